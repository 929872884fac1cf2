// Hexagon sheets: the honeycomb's columns and rows, the four-inch limit, the
// inscribed and target series (sides, corners, written-back texts), and the
// factors and lengths that would never end.
#include <gtest/gtest.h>

#include "support/test_app.h"

using namespace gp;
using gp::test::TestApp;

namespace {
struct Hexagons {
    TestApp t;
    Form* f;
    explicit Hexagons(Single w = 11520, Single h = 15120) : t(w, h) { f = &t.show("frmHexagon"); }
    void click(const std::string& button, const std::string& leng = "1",
               const std::string& scale = "0.5") {
        t.edit(*f, "txtLeng", leng);
        t.edit(*f, "txtScale", scale);
        t.fire(*f, button, Event::Click);
    }
    std::vector<Stroke> lines() const { return t.lines("Printer"); }
    std::string text(const std::string& box) const {
        return dynamic_cast<TextBox*>(f->find(box))->Text();
    }
    // The side of each hexagon: the length of its first stroke.
    std::vector<float> sides() const {
        std::vector<float> out;
        auto l = lines();
        for (size_t i = 0; i < l.size(); i += 6) out.push_back(l[i].x2 - l[i].x1);
        return out;
    }
};
}

TEST(Honeycomb, DefaultsGiveFiveColumnsLockedByRise) {
    Hexagons h;
    h.click("cmdPrintIt");
    auto l = h.lines();
    ASSERT_EQ(l.size(), 5u * 6 * 6);
    // The first hexagon, stroke by stroke, ends where it began.
    EXPECT_EQ(l[0].x1, 720); EXPECT_EQ(l[0].y1, 0); EXPECT_EQ(l[0].x2, 2160);
    EXPECT_EQ(l[1].x2, 2880); EXPECT_EQ(l[1].y2, 1247);
    EXPECT_EQ(l[2].x2, 2160); EXPECT_EQ(l[2].y2, 2494);
    EXPECT_EQ(l[3].x2, 720);
    EXPECT_EQ(l[4].x2, 0); EXPECT_EQ(l[4].y2, 1247);
    EXPECT_EQ(l[5].x2, 720); EXPECT_EQ(l[5].y2, 0);
    EXPECT_EQ(l[0].width, 4);
    EXPECT_EQ(l[6].y1, 2494);      // down the even column by 2 rise
    EXPECT_EQ(l[30].y1, 12470);    // the last that starts above 15120 - 1247
    EXPECT_EQ(l[36].x1, 2880);     // second column, moved down by rise
    EXPECT_EQ(l[36].y1, 1247);
    EXPECT_EQ(l[4 * 36].x1, 9360); // 11520 fails against 11520 - 2016
}

TEST(Honeycomb, FiveInchesAreDrawnAsFourAndTheBoxKeepsTheText) {
    Hexagons h;
    h.click("cmdPrintIt", "5");
    EXPECT_EQ(h.sides().at(0), 5760);
    EXPECT_EQ(h.text("txtLeng"), "5");
}

TEST(Honeycomb, AnOddSideRoundsTheStartButNotTheHalfSide) {
    Hexagons h;
    h.click("cmdPrintIt", "1.0007");  // 1441
    auto l = h.lines();
    EXPECT_EQ(l[0].x1, 720);
    EXPECT_EQ(l[1].x2, 720 + 1441 + 720.5f);
    size_t i = 0;
    while (l[i].x1 == 720) i += 6;  // the first stroke of each hexagon
    EXPECT_EQ(l[i].x1, 2882);  // CInt(2161.5 + 720)
}

TEST(Honeycomb, ASideTooLongForTheWidthDrawsNothing) {
    Hexagons h(8000, 15120);
    h.click("cmdPrintIt", "4");
    EXPECT_EQ(h.t.count("Printer", "line"), 0);
    EXPECT_EQ(h.t.count("Printer", "enddoc"), 1);
}

TEST(Honeycomb, SidesWithNoRiseAreRefusedAtOnce) {
    for (const char* bad : {"0", "0.0007", "-1", "abc"}) {
        Hexagons h;
        h.click("cmdPrintIt", bad);
        EXPECT_EQ(h.t.count("Printer", "line"), 0) << bad;
        ASSERT_EQ(h.t.faults().size(), 1u) << bad;
        EXPECT_NE(h.t.faults()[0].find("too small"), std::string::npos);
    }
    Hexagons tiny;
    tiny.click("cmdPrintIt", "0.002");  // millions of strokes
    EXPECT_EQ(tiny.t.count("Printer", "line"), 0);
    EXPECT_EQ(tiny.t.faults().size(), 1u);
}

TEST(InscribedHexagons, DefaultsHalveDownTo45OnOneCorner) {
    Hexagons h;
    h.click("cmdHexInscribed");
    EXPECT_EQ(h.sides(), (std::vector<float>{1440, 720, 360, 180, 90, 45}));
    auto l = h.lines();
    for (size_t i = 0; i < l.size(); i += 6) {
        EXPECT_EQ(l[i].x1, 720);
        EXPECT_EQ(l[i].y1, 0);
    }
    EXPECT_EQ(l[7].y2, 623);  // rise Int(720 * Sin(60 degrees))
    EXPECT_EQ(h.text("txtLeng"), "1");
}

TEST(InscribedHexagons, TheWidthLimitIsWrittenBackAsStrWritesIt) {
    Hexagons h;
    h.click("cmdHexInscribed", "5");
    EXPECT_EQ(h.sides().at(0), 5760);
    EXPECT_EQ(h.text("txtLeng"), " 4");
    Hexagons narrow(11000, 15120);
    narrow.click("cmdHexInscribed", "30");  // beyond an Integer: lowered all the same
    EXPECT_EQ(narrow.sides().at(0), 5500);
    EXPECT_EQ(narrow.text("txtLeng"), " 3.81");
}

TEST(InscribedHexagons, GrowingFactorsStopPastHalfThePage) {
    Hexagons h;
    h.click("cmdHexInscribed", "1", "2");
    EXPECT_EQ(h.sides(), (std::vector<float>{1440, 2880, 5760}));
    Hexagons huge;
    huge.click("cmdHexInscribed", "1", "1000");  // the next side is past any Integer
    EXPECT_EQ(huge.sides(), (std::vector<float>{1440}));
    EXPECT_TRUE(huge.t.faults().empty());
    Hexagons zero;
    zero.click("cmdHexInscribed", "1", "0");
    EXPECT_EQ(zero.sides().size(), 1u);
}

TEST(InscribedHexagons, FactorsThatStopTheSideShrinkingAreRefusedBeforeDrawing) {
    for (const char* bad : {"1", "0.99", "1.0001"}) {
        Hexagons h;
        h.click("cmdHexInscribed", "1", bad);
        EXPECT_EQ(h.t.count("Printer", "line"), 0) << bad;
        ASSERT_EQ(h.t.faults().size(), 1u) << bad;
        EXPECT_NE(h.t.faults()[0].find("scaling factor"), std::string::npos);
    }
    Hexagons none;
    none.click("cmdHexInscribed", "-2", "1");  // a side below 0 draws nothing
    EXPECT_EQ(none.t.count("Printer", "line"), 0);
    EXPECT_EQ(none.t.count("Printer", "enddoc"), 1);
}

TEST(TargetHexagons, DefaultsMakeFiveConcentricRings) {
    Hexagons h;
    h.click("cmdTarget");
    EXPECT_EQ(h.sides(), (std::vector<float>{1440, 720, 360, 180, 90}));
    auto l = h.lines();
    EXPECT_EQ(l[6].x1, 1080);  // CInt(0.5 * 1440 / 2 + 720)
    EXPECT_EQ(l[6].y1, 624);   // CInt(0.5 * 1440 * Sin(60 degrees))
    EXPECT_EQ(l[12].x1, 1260);
    EXPECT_EQ(l[12].y1, 936);  // CInt(311.77 + 624)
}

TEST(TargetHexagons, AFactorOfOneOrMoreBecomes099) {
    for (const char* big : {"1", "1.5", "7"}) {
        Hexagons h;
        h.click("cmdTarget", "1", big);
        EXPECT_EQ(h.text("txtScale"), "0.99") << big;
        EXPECT_EQ(h.t.count("Printer", "enddoc"), 1);
        auto s = h.sides();
        EXPECT_GT(s.size(), 50u);
        EXPECT_GE(s.back(), 72);
    }
}

TEST(TargetHexagons, FourInchesAndTheWidthLimitApply) {
    Hexagons h;
    h.click("cmdTarget", "5");
    EXPECT_EQ(h.sides().at(0), 5760);
    EXPECT_EQ(h.text("txtLeng"), "5");  // the four-inch limit is silent
    Hexagons narrow(11000, 15120);
    narrow.click("cmdTarget", "5");
    EXPECT_EQ(narrow.sides().at(0), 5500);
    EXPECT_EQ(narrow.text("txtLeng"), " 3.81");
}

TEST(TargetHexagons, AFactorThatIsNoNumberGetsAClearMessage) {
    for (const char* bad : {"abc", "", "0.5x"}) {
        Hexagons h;
        h.click("cmdTarget", "1", bad);
        EXPECT_EQ(h.t.count("Printer", "line"), 0);
        ASSERT_EQ(h.t.faults().size(), 1u);
        EXPECT_NE(h.t.faults()[0].find("scaling factor \"" + std::string(bad) + "\" is not a number"),
                  std::string::npos);
        EXPECT_EQ(h.text("txtScale"), bad);
    }
}

TEST(TargetHexagons, FactorsNearOneOrFarBelowZeroEndAtOnce) {
    Hexagons near;
    near.click("cmdTarget", "1", "0.995");
    EXPECT_EQ(near.t.count("Printer", "line"), 0);
    EXPECT_EQ(near.t.faults().size(), 1u);
    Hexagons negative;
    negative.click("cmdTarget", "1", "-1000");
    EXPECT_EQ(negative.sides().size(), 1u);
    EXPECT_TRUE(negative.t.faults().empty());
}
