// Stick curves: the Count of each row, stick ends worked in Double from the
// Single steps, the rhombus, the fill's whole crossings, the page with its
// axes exchanged, MultiDrawing1, the angle label and "Angle Error", and bad
// input that ends at once with a message or an empty figure.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "stringart/frm_stick_curves.h"
#include "stringart/stick_fill.h"
#include "support/test_app.h"

namespace {

using namespace gp;

struct StickForm {
    test::TestApp t;
    FrmStickCurves* f = &t.show<FrmStickCurves>("frmStickCurves");
    StickForm& set(const std::string& angle, const std::string& tics, bool doubled = false,
                   const std::string& fill = "optRandColor") {
        t.edit(*f, "txtAngle", angle);
        t.edit(*f, "txtTics", tics);
        static_cast<CheckBox*>(f->find("chkDouble"))->setValue(doubled ? 1 : 0);
        static_cast<OptionButton*>(f->find(fill))->select();
        return *this;
    }
    void click(const std::string& button) { t.fire(*f, button, Event::Click); }
    std::vector<Stroke> canvas() const { return t.lines("frmStickCurves"); }
    std::vector<Stroke> page() const { return t.lines("Printer"); }
};

// Strokes in the foreground colour (bases, legs, sticks), or the hatch.
std::vector<Stroke> pick(std::vector<Stroke> all, bool hatched) {
    all.erase(std::remove_if(all.begin(), all.end(), [&](const Stroke& s) { return (s.color != kForeground) != hatched; }), all.end());
    return all;
}
std::vector<Stroke> black(const std::vector<Stroke>& all) { return pick(all, false); }
Double radians(Double degrees) { return degrees * Double(kStickPi) / 180; }
const Single kCos54 = Single(720 * std::cos(radians(54))), kSin54 = Single(720 * std::sin(radians(54)));

TEST(StickScreen, DefaultsCountOfEachRowAndTheTurnedSide) {
    StickForm s;
    EXPECT_EQ(s.f->Me().ScaleWidth() + s.f->Me().ScaleHeight(), 24000);  // 14000 by 10000
    EXPECT_TRUE(s.t.ops().empty());  // empty until "Draw It"
    s.click("cmdDrawIt");
    EXPECT_EQ(s.t.ops().front().op, "cls");
    auto b = black(s.canvas());
    ASSERT_EQ(b.size(), 17u);  // the base to 12400, then sticks 1 to 16
    EXPECT_EQ(b[0].x1, 2400); EXPECT_EQ(b[0].y1, 9500); EXPECT_EQ(b[0].x2, 12400);
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(b[k].x1, 2400 + (16 - k) * 720);
        EXPECT_EQ(b[k].x2, Single(2400 + k * Double(kCos54))) << k;  // rounded once, not summed in Single
        EXPECT_EQ(b[k].y2, Single(9500 - k * Double(kSin54))) << k;
    }
    const struct { const char* angle; const char* tics; bool doubled; size_t black; int startX; } rows[] = {
        {"90", ".5", false, 14, 2400},   // cut by the top edge: CInt(9500 / 720) = 13
        {"120", ".5", false, 11, 6266},  // 7733 / 720 = 10; vertex Int(7733 * cos 60) + 2400
        {"54", "8", false, 2, 2400},     // Count 1: one stick, no cell
        {"54", "20", false, 1, 2400},    // Count 0: the base only
        {"5", ".5", false, 17, 2400},    // past the box's limits a drawing still takes the angle
        {"175", ".5", false, 9, 0},      // 5817 / 720: 8 sticks under the base
        {"54", "-.5", false, 1, 2400},   // Count -16: the base alone
        {"54", "-.5", true, 4, 0},       // two bases and two first leg steps
        {"54", ".5", true, 43, 13832},   // 10 a side; walks of 9 and 10; turned vertex
    };  // startX 0: not checked
    for (const auto& r : rows) {
        StickForm s;
        s.set(r.angle, r.tics, r.doubled, "optNoColor").click("cmdDrawIt");
        if (r.startX) { EXPECT_EQ(s.f->vertex().StartX, r.startX) << r.angle; }
        s.click("cmdPrintIt");
        EXPECT_TRUE(s.t.faults().empty()) << r.angle << " " << r.tics;
        EXPECT_EQ(black(s.canvas()).size(), r.black) << r.angle << " " << r.tics;
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
        b = black(s.canvas());
    }
    EXPECT_EQ(b[21].x1, 13832); EXPECT_EQ(b[21].x2, 13832 - 7200);  // the turned side's base
    EXPECT_EQ(b[31].x1, b[30].x2);                                   // a walk of Line -Step
    EXPECT_EQ(b[42].x2, Single(13832 - 10 * Double(kCos54)));        // the turned leg
}

TEST(StickFill, WholeCrossingsACheckerboardAndOneColourPerSide) {
    StickCrossings t(100);
    t.build(720, 16, kCos54, kSin54, false, radians(54));
    EXPECT_EQ(t.CrossY(0, 3), kSin54 * 13);  // the leg's marks, counted from its far end
    EXPECT_EQ(t.CrossY(5, 9), std::round(t.CrossY(5, 9)));  // crossings are whole
    // Inside a cell the lines go down one unit at a time: the runs of such
    // steps are the hatched cells, those where i + j is odd.
    int cells = 0, runs = 0;
    for (int i = 1; i <= 15; ++i)
        for (int j = i + 2; j <= 16; ++j) cells += (i + j) % 2 == 1;
    Integer last = -10;
    t.hatch(16, 1, [&](Integer ha, Integer, Integer, Integer) { runs += ha != last - 1; last = ha; });
    EXPECT_EQ(runs, cells);
    // At 10 degrees two crossings crowd within one unit of height: refused.
    StickCrossings crowded(100);
    crowded.build(60, 60, Single(60 * std::cos(radians(10))), Single(60 * std::sin(radians(10))), false, radians(10));
    EXPECT_THROW(crowded.hatch(60, 0, [](Integer, Integer, Integer, Integer) {}), Fault);

    // A colour a side, one in all, or none; one wide on screen, two on paper.
    for (auto [option, colours] : {std::pair<const char*, size_t>{"optRandColor", 2}, {"optSame", 1}, {"optNoColor", 0}}) {
        StickForm c;
        c.set("54", ".5", true, option).click("cmdDrawIt");
        c.click("cmdPrintIt");
        std::set<long> screen, paper;
        for (const Stroke& st : pick(c.canvas(), true)) { EXPECT_EQ(st.width, 1); screen.insert(st.color); }
        for (const Stroke& st : pick(c.page(), true)) { EXPECT_EQ(st.width, 2); paper.insert(st.color); }
        EXPECT_EQ(screen.size(), colours) << option;
        EXPECT_EQ(paper.size(), colours) << option;
    }
}

TEST(StickPrint, AxesExchangedCIntAndTheTurnedSide) {
    StickForm s;
    s.set("54", ".5", false, "optNoColor").click("cmdPrintIt");
    auto p = s.page();
    ASSERT_EQ(p.size(), 20u);  // min(14920, 11320 / sin 54) / 720: Count 19
    EXPECT_EQ(p[0].x1, 200); EXPECT_EQ(p[0].y1, 19 * 720 + 200);  // the base, down the left
    EXPECT_EQ(p[19].x2, Single(19 * Double(kSin54) + 200));
    EXPECT_EQ(p[19].y2, Single(19 * Double(kCos54) + 200));
    EXPECT_EQ(s.t.count("frmStickCurves", "cls"), 0);

    StickForm d;
    d.set("54", ".5", true, "optRandColor").click("cmdPrintIt");
    p = black(d.page());
    ASSERT_EQ(p.size(), 26u);  // 14820 / (1 + cos 54) / 720: 12 a side
    EXPECT_EQ(d.f->vertex().StartY, 13918);
    EXPECT_EQ(p[13].y1, -12 * 720 + 13918);
    EXPECT_EQ(p[25].x2, Single(-Double(kSin54) * 12 + 7190));
    for (size_t i = 13; i < p.size(); ++i) EXPECT_EQ(p[i].width, 2);  // the turned sticks stay two wide
}

// The distance is a Single but its arithmetic is Double: a Single product
// would round 0.7f * 1440 up to 1008 before the floor, and Single sums
// would move stick ends and hatch lines by a unit.
TEST(StickArithmetic, DoubleWorkOnSingleValues) {
    for (auto [tics, screen, page] : {std::tuple<const char*, int, int>{".7", 1007, 1008}, {".1004", 144, 145}}) {
        StickForm s;
        s.set("54", tics, false, "optNoColor").click("cmdDrawIt");
        s.click("cmdPrintIt");
        const auto b = black(s.canvas()), p = s.page();
        EXPECT_EQ(b[1].x1 - b[2].x1, screen) << tics;  // Int on the screen
        EXPECT_EQ(p[0].y1 - p[1].y1, page) << tics;    // CInt on the page
    }
    StickCrossings t(200);
    t.build(720, 12, kCos54, kSin54, false, radians(54));
    bool found = false;
    t.hatch(12, 0, [&](Integer ha, Integer hb, Integer hc, Integer hd) {
        if (ha == 4717 && hc == 3617) found = hb == 4287 && hd == 3494;
    });
    EXPECT_TRUE(found);
}

TEST(StickMulti, FiguresOf10To50AndTheAngleWorkedInDouble) {
    StickForm s;
    s.click("cmdAnimate");
    int bases = 0;
    for (const Stroke& st : s.canvas()) bases += st.x1 == 4000 && st.x2 == 13500 && st.y2 == 9500;
    EXPECT_EQ(bases, 5);  // never 54: the steps are of 10
    EXPECT_EQ(s.f->stickAngle(), Double(Single(50 * Double(kStickPi) / 180)));
    // At 10 degrees and Leng 72 the leg is walked until its next mark would
    // pass 13900; the sticks are cut to Int(9500 / 72) = 131.
    s.t.clear();
    s.set("10", ".05").click("cmdAnimate");
    const Double angle = s.f->stickAngle();
    EXPECT_EQ(angle, Double(Single(10 * Double(kStickPi) / 180)));
    EXPECT_NE(angle, Double(10.0f * kStickPi / 180.0f));  // not a Single product
    const auto l = s.canvas();
    size_t walk = 2;
    while (walk < l.size() && l[walk].x1 == l[walk - 1].x2) ++walk;
    EXPECT_LT(4000 + Double(walk - 1) * Single(72 * std::cos(angle)), 13900);
    EXPECT_GE(4000 + Double(walk) * Single(72 * std::cos(angle)), 13900);
    EXPECT_EQ(l.size() - walk, 131u);
    EXPECT_EQ(l[walk].x1, 4000 + 130 * 72);
    s.set("10", ".5").click("cmdAnimate");
    EXPECT_EQ(s.canvas().back().x2, Single(4000 + 13 * Double(Single(720 * std::cos(angle)))));  // leg, 13 marks
}

TEST(StickAngle, LabelStepsByFiveAndTheBoxRefusesOutside10To170) {
    const struct { const char* typed; int button; const char* shown; } label[] = {
        {"50", 1, " 55"}, {"54", 2, " 49"}, {"168", 1, " 170"}, {"12", 2, " 10"}, {"abc", 1, " 10"},
        {"52.5", 1, " 57"}, {"53.5", 1, " 59"}, {"99999999", 2, " 170"}, {"-99999999", 1, " 10"}};
    for (const auto& c : label) {
        StickForm s;
        s.t.edit(*s.f, "txtAngle", c.typed);
        EventArgs e;
        e.button = c.button;  // 1 steps up, 2 down
        s.t.fire(*s.f, "lblAngle", Event::MouseDown, e);
        EXPECT_EQ(static_cast<TextBox*>(s.f->find("txtAngle"))->Text(), c.shown) << c.typed;
        EXPECT_TRUE(s.t.dialogs().empty());
    }
    for (const char* typed : {"10", "170", "9.99", "170.01", "", "abc"}) {
        StickForm s;
        s.t.edit(*s.f, "txtAngle", typed);
        s.t.fire(*s.f, "txtAngle", Event::LostFocus);
        const bool ok = Val(typed) >= 10 && Val(typed) <= 170;
        ASSERT_EQ(s.t.dialogs().size(), ok ? 0u : 1u) << typed;
        if (!ok) {
            EXPECT_EQ(s.t.dialogs()[0].title + "|" + s.t.dialogs()[0].prompt + std::to_string(s.t.dialogs()[0].buttons),
                      "Angle Error|You must enter an angle >10 and < 17016");
        }
    }
}

// Bad input ends at once: no distance or no angle with a message and no
// stroke; MultiDrawing1 stops below 10, on a leg that never leaves the form
// and on a step of zero; past the fill tables (100 sticks on screen, 200 on
// paper) only a filled figure is refused. n counts MultiDrawing1's bases, or
// the foreground strokes.
TEST(StickBadInput, EachEndsAtOnceAndTheFormGoesOn) {
    const struct { const char* button; const char* angle; const char* tics; const char* fill; const char* says; size_t n; } cases[] = {
        {"cmdDrawIt", "54", "0", "optNoColor", "distance", 0},   {"cmdPrintIt", "54", "", "optNoColor", "distance", 0},
        {"cmdDrawIt", "54", "abc", "optSame", "distance", 0},    {"cmdPrintIt", "54", ".0003", "optSame", "distance", 0},
        {"cmdDrawIt", "abc", ".5", "optSame", "0 degrees", 0},   {"cmdPrintIt", "0", ".5", "optSame", "0 degrees", 0},
        {"cmdAnimate", "9.9", ".5", "optSame", nullptr, 0},      {"cmdAnimate", "9.9", "0", "optSame", nullptr, 0},
        {"cmdAnimate", "175", ".5", "optSame", nullptr, 17},     {"cmdAnimate", "189", ".5", "optSame", nullptr, 18},
        {"cmdAnimate", "270", ".5", "optSame", "", 0},           {"cmdAnimate", "1e9", ".5", "optSame", "", 0},
        {"cmdAnimate", "54", "0", "optSame", "", 0},             {"cmdAnimate", "54", "abc", "optSame", "", 0},
        {"cmdDrawIt", "54", ".01", "optRandColor", "", 0},       // Count 829 > 100
        {"cmdDrawIt", "54", ".0806", "optRandColor", nullptr, 101},  // Count 100 fills
        {"cmdDrawIt", "54", ".01", "optNoColor", nullptr, 830},
        {"cmdPrintIt", "54", ".05", "optSame", nullptr, 195},    // Count 194 fills
        {"cmdPrintIt", "54", ".04", "optSame", "", 0},           // Count 241 > 200
        {"cmdPrintIt", "54", ".04", "optNoColor", nullptr, 242}};
    for (const auto& c : cases) {
        StickForm s;
        s.set(c.angle, c.tics, false, c.fill).click(c.button);
        const std::string at = std::string(c.button) + " " + c.angle + " " + c.tics;
        ASSERT_EQ(s.t.faults().size(), c.says ? 1u : 0u) << at;
        if (c.says) { EXPECT_NE(s.t.faults()[0].find(c.says), std::string::npos) << s.t.faults()[0]; }
        size_t n = 0;
        for (const Stroke& st : black(std::string(c.button) == "cmdPrintIt" ? s.page() : s.canvas()))
            n += std::string(c.button) != "cmdAnimate" || (st.x1 == 4000 && st.x2 == 13500);
        EXPECT_EQ(n, c.n) << at;
        EXPECT_EQ(s.t.count("Printer", "enddoc"), std::string(c.button) == "cmdPrintIt" && !c.says);
        s.t.clear();
        s.set("54", ".5").click("cmdDrawIt");
        EXPECT_EQ(black(s.canvas()).size(), 17u) << at;
    }
    // The densest values end too: by the work limit, with its message, or
    // with the whole drawing, never by running on.
    StickForm s;
    s.set("90", ".0007", true, "optNoColor").click("cmdDrawIt");
    s.set("90", ".0004", true, "optNoColor").click("cmdPrintIt");
    s.set("170", ".0007").click("cmdAnimate");
    for (const std::string& f : s.t.faults()) EXPECT_NE(f.find("too many"), std::string::npos) << f;
    s.t.clear();
    s.set("10", ".05", true).click("cmdPrintIt");  // the densest fill the page allows
    EXPECT_EQ(s.t.faults().size() + s.t.count("Printer", "enddoc"), 1u);
}

} // namespace
