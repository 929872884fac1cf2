// Stick curves: the Count of each row of the table, stick ends in Single
// arithmetic, the rhombus walks, the fill's rounded crossings, the page with
// its axes exchanged, and MultiDrawing1.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "stick_support.h"
#include "stringart/stick_fill.h"

using namespace stick_test;

TEST(StickScreen, DefaultsGiveLeng720Count16AndTheVertexAt2400By9500) {
    StickForm s;
    EXPECT_EQ(s.f->Me().ScaleWidth(), 14000);
    EXPECT_EQ(s.f->Me().ScaleHeight(), 10000);
    EXPECT_TRUE(s.t.ops().empty());  // no Form_Activate: empty until "Draw It"
    s.click("cmdDrawIt");
    EXPECT_EQ(s.t.ops().front().op, "cls");
    const auto b = black(s.canvas());
    ASSERT_EQ(b.size(), 17u);  // the base, then sticks 1 to 16
    // The base is High long, so it ends at 12400 and stick 1 starts past it.
    EXPECT_EQ(b[0].x1, 2400); EXPECT_EQ(b[0].y1, 9500); EXPECT_EQ(b[0].x2, 12400);
    const Single StepX = Single(720 * std::cos(radians(54)));
    const Single StepY = Single(-720 * std::sin(radians(54)));
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(b[k].x1, 2400 + (16 - k) * 720);
        // Worked in Double from the Single steps, rounded once as it is passed.
        EXPECT_EQ(b[k].x2, Single(2400 + k * Double(StepX))) << k;
        EXPECT_EQ(b[k].y2, Single(9500 + k * Double(StepY))) << k;
    }
    EXPECT_FALSE(hatch(s.canvas()).empty());
}

TEST(StickScreen, CountAndVertexOfEachRowOfTheTable) {
    struct Row { const char* angle; const char* tics; bool doubled; size_t black; int startX; };
    const Row rows[] = {
        {"90", ".5", false, 14, 2400},   // cut by the top edge: CInt(9500 / 720) = 13
        {"120", ".5", false, 11, 6266},  // 7733 / 720 = 10; vertex Int(7733 * cos 60) + 2400
        {"54", ".5", true, 43, 13832},   // 10 a side; walks of 9 and 10; turned vertex
        {"54", "8", false, 2, 2400},     // Count 1: one stick, no cell
        {"54", "20", false, 1, 2400},    // Count 0: the base only
    };
    for (const Row& r : rows) {
        StickForm s;
        s.set(r.angle, r.tics, r.doubled, "optNoColor").click("cmdDrawIt");
        EXPECT_EQ(black(s.canvas()).size(), r.black) << r.angle << " " << r.tics;
        EXPECT_EQ(s.f->vertex().StartX, r.startX) << r.angle;
    }
}

TEST(StickScreen, TurnedSideOfTheRhombus) {
    StickForm s;
    s.set("54", ".5", true, "optNoColor").click("cmdDrawIt");
    const auto b = black(s.canvas());
    const Single StepX = Single(720 * std::cos(radians(54)));
    EXPECT_EQ(b[0].x2, 2400 + 7200);
    EXPECT_EQ(s.f->vertex().StartY, 3675);
    EXPECT_EQ(b[21].x1, 13832); EXPECT_EQ(b[21].x2, 13832 - 7200);
    EXPECT_EQ(b[22].x2, Single(13832 - Double(StepX)));
    EXPECT_EQ(b[31].x1, b[30].x2);  // a walk of Line -Step
    EXPECT_EQ(b[42].x1, 13832);     // the last stick is the turned leg
    EXPECT_EQ(b[42].x2, Single(13832 - 10 * Double(StepX)));
}

TEST(StickScreen, OneColourPerSideByTheOptions) {
    auto colours = [](const std::string& option) {
        StickForm s;
        s.set("54", ".5", true, option).click("cmdDrawIt");
        std::vector<long> runs;
        for (const Stroke& st : hatch(s.canvas())) {
            EXPECT_EQ(st.width, 1);
            if (runs.empty() || runs.back() != st.color) runs.push_back(st.color);
        }
        return runs.size();
    };
    EXPECT_EQ(colours("optRandColor"), 2u);
    EXPECT_EQ(colours("optSame"), 1u);
    EXPECT_EQ(colours("optNoColor"), 0u);
}

TEST(StickFill, CrossingsAreWholeOnBothSticksAndCellsAreACheckerboard) {
    const Integer Count = 16;
    const Double a = radians(54);
    const Single StepX = Single(720 * std::cos(a)), StepY = Single(-720 * std::sin(a));
    StickCrossings t(100);
    t.build(720, Count, StepX, -StepY, false, a);
    EXPECT_EQ(t.CrossY(0, 3), -StepY * 13);  // the leg's marks, counted from its far end
    for (int i = 1; i <= Count - 2; ++i)
        for (int j = i + 1; j <= Count - 1; ++j) {
            const Single x = t.CrossX(i, j), y = t.CrossY(i, j);
            EXPECT_EQ(x, std::round(x));
            EXPECT_EQ(y, std::round(y));
            EXPECT_NEAR(x, t.BaseTic(i) - t.StickSlope(i) * y, 1 + std::fabs(t.StickSlope(i)));
            EXPECT_NEAR(x, t.BaseTic(j) - t.StickSlope(j) * y, 2 + std::fabs(t.StickSlope(j)));
        }
    // Inside a cell the lines go down one unit at a time, so the runs of
    // such steps are the hatched cells: those where i + j has the parity.
    int cells = 0, runs = 0;
    for (int i = 1; i <= Count - 1; ++i)
        for (int j = i + 2; j <= Count; ++j) cells += (i + j) % 2 == 1;
    Integer last = -10;
    t.hatch(Count, 1, [&](Integer ha, Integer, Integer, Integer) {
        runs += ha != last - 1;
        last = ha;
    });
    EXPECT_EQ(runs, cells);
}

TEST(StickFill, TwoCrossingsAtOneHeightStopWithAMessage) {
    // At 10 degrees the crossings near the base's far end crowd within one
    // unit of height: cell (57, 59) has Rows 0.
    const Double a = radians(10);
    StickCrossings t(100);
    t.build(60, 60, Single(60 * std::cos(a)), Single(60 * std::sin(a)), false, a);
    EXPECT_THROW(t.hatch(60, 0, [](Integer, Integer, Integer, Integer) {}), Fault);
}

TEST(StickPrint, AxesExchangedCIntAndTheTurnedSide) {
    StickForm s;
    s.set("54", ".5", false, "optNoColor").click("cmdPrintIt");
    auto p = s.page();
    // min(14920, 11320 / sin 54 = 13992) / 720: Count 19, sticks 0 to 19.
    ASSERT_EQ(p.size(), 20u);
    const Single StepSin = Single(720 * std::sin(radians(54)));
    const Single StepCos = Single(720 * std::cos(radians(54)));
    EXPECT_EQ(p[0].x1, 200); EXPECT_EQ(p[0].y1, 19 * 720 + 200);  // the base, down the left
    EXPECT_EQ(p[19].x2, Single(19 * Double(StepSin) + 200));
    EXPECT_EQ(p[19].y2, Single(19 * Double(StepCos) + 200));
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    EXPECT_EQ(s.t.count("frmStickCurves", "cls"), 0);

    // .1004 inch is 144.58 units: the page rounds to 145, the screen floors.
    s.set("54", ".1004", false, "optNoColor").click("cmdPrintIt");
    s.click("cmdDrawIt");
    p = s.page();
    EXPECT_EQ(p[20].y1 - p[21].y1, 145);
    const auto b = black(s.canvas());
    EXPECT_EQ(b[1].x1 - b[2].x1, 144);

    StickForm d;
    d.set("54", ".5", true, "optNoColor").click("cmdPrintIt");
    p = d.page();
    ASSERT_EQ(p.size(), 26u);  // 14820 / (1 + cos 54) / 720: 12 a side
    EXPECT_EQ(d.f->vertex().StartX, 7190);
    EXPECT_EQ(d.f->vertex().StartY, 13918);
    EXPECT_EQ(p[13].y1, -12 * 720 + 13918);
    EXPECT_EQ(p[25].x2, Single(-Double(StepSin) * 12 + 7190));
}

TEST(StickPrint, FillIsTwoWideAndStaysTwoForTheTurnedSticks) {
    StickForm s;
    s.set("54", ".5", true, "optRandColor").click("cmdPrintIt");
    std::set<long> colours;
    int sticks = 0;
    for (const Stroke& st : s.page()) {
        if (st.color != kForeground) colours.insert(st.color);
        if (st.color == kForeground && ++sticks > 13) {
            EXPECT_EQ(st.width, 2);
        }
        if (st.color != kForeground) {
            EXPECT_EQ(st.width, 2);
        }
    }
    EXPECT_EQ(sticks, 26);
    EXPECT_EQ(colours.size(), 2u);
    StickForm same;
    same.set("54", ".5", true, "optSame").click("cmdPrintIt");
    colours.clear();
    for (const Stroke& st : hatch(same.page())) colours.insert(st.color);
    EXPECT_EQ(colours.size(), 1u);
}

TEST(StickMulti, FiguresOf10To50ForTheDefaultsAndMarksKeptOnTheBase) {
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
    const auto l = s.canvas();
    size_t walk = 2;
    while (walk < l.size() && l[walk].x1 == l[walk - 1].x2) ++walk;
    const Single StepX = Single(72 * std::cos(Double(Single(10 * Double(kStickPi) / 180))));
    EXPECT_LT(4000 + Double(walk - 1) * StepX, 13900);
    EXPECT_GE(4000 + Double(walk) * StepX, 13900);
    EXPECT_EQ(l.size() - walk, 131u);
    EXPECT_EQ(l[walk].x1, 4000 + 130 * 72);
}

// The distance is a Single but the arithmetic on it is Double: a Single
// product would round 0.7f * 1440 = 1007.99998 up to 1008 before the floor,
// and Single sums would move stick ends and hatch lines by a unit.
TEST(StickArithmetic, DoubleWorkOnSingleValues) {
    StickForm s;
    s.set("54", ".7", false, "optNoColor").click("cmdDrawIt");
    s.click("cmdPrintIt");
    const auto b = black(s.canvas());
    EXPECT_EQ(b[1].x1 - b[2].x1, 1007);  // Int on the screen
    const auto p = s.page();
    EXPECT_EQ(p[0].y1 - p[1].y1, 1008);  // CInt on the page

    // Leng 720 at 54 degrees, 12 marks: the page's first side.
    const Double a = radians(54);
    StickCrossings t(200);
    t.build(720, 12, Single(720 * std::cos(a)), Single(720 * std::sin(a)), false, a);
    bool found = false;
    t.hatch(12, 0, [&](Integer ha, Integer hb, Integer hc, Integer hd) {
        if (ha == 4717 && hc == 3617) {
            EXPECT_EQ(int(hb), 4287);
            EXPECT_EQ(int(hd), 3494);
            found = true;
        }
    });
    EXPECT_TRUE(found);

    // MultiDrawing1 at 10 degrees: the angle is worked in Double, then
    // stored as a Single; Single steps give 0.17453290522.
    StickForm m;
    m.set("10", ".5").click("cmdAnimate");
    EXPECT_EQ(m.f->stickAngle(), Double(Single(10 * Double(kStickPi) / 180)));
    EXPECT_NE(m.f->stickAngle(), Double(10.0f * kStickPi / 180.0f));
    const auto l = m.canvas();
    const Single StepX = Single(720 * std::cos(m.f->stickAngle()));
    EXPECT_EQ(l.back().x2, Single(4000 + 13 * Double(StepX)));  // the last stick is the leg, 13 marks
}
