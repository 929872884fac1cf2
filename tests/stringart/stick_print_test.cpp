// "Print It" (the page's axes exchanged, CInt for the mark distance, tables
// to 200) and "MultiDrawing1".
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "stick_support.h"

using namespace stick_test;

TEST(StickPrint, DefaultsRunTheBaseDownTheLeftAndTheLegToTheRight) {
    StickForm s;
    s.set("54", ".5", false, "optNoColor").click("cmdPrintIt");
    const auto p = s.page();
    // Length: the page's height less 200 (14920) or the leg that reaches the
    // right side (11320 / sin 54 = 13992), the smaller; Count = 19.
    ASSERT_EQ(p.size(), 20u);
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    EXPECT_EQ(s.t.count("frmStickCurves", "cls"), 0);  // the canvas is not touched
    const Single StepSin = Single(720 * std::sin(radians(54)));
    const Single StepCos = Single(720 * std::cos(radians(54)));
    for (int k = 0; k <= 19; ++k) {
        EXPECT_EQ(p[k].x1, 200);
        EXPECT_EQ(p[k].y1, (19 - k) * 720 + 200);
        EXPECT_EQ(p[k].x2, legEnd(200, k, StepSin)) << k;
        EXPECT_EQ(p[k].y2, legEnd(200, k, StepCos)) << k;
    }
    // Stick 0 is the base straight down, stick 19 the leg from the vertex.
    EXPECT_EQ(p[0].x2, 200); EXPECT_EQ(p[0].y2, 200);
    EXPECT_EQ(p[19].y1, 200);
}

TEST(StickPrint, PageRoundsTheMarkDistanceWhereTheScreenFloors) {
    // .1004 inch is 144.58 units: the screen floors to 144, the page rounds
    // to 145.
    StickForm s;
    s.set("54", ".1004", false, "optNoColor").click("cmdDrawIt");
    const auto b = StickForm::black(s.canvas());
    ASSERT_GE(b.size(), 3u);
    EXPECT_EQ(b[1].x1 - b[2].x1, 144);
    s.click("cmdPrintIt");
    const auto p = s.page();
    ASSERT_EQ(p.size(), 97u);  // Count = Int(13992 / 145) = 96
    EXPECT_EQ(p[0].y1 - p[1].y1, 145);
}

TEST(StickPrint, DoubleTurnsTheSecondSideAboutTheRhombusCentre) {
    StickForm s;
    s.set("54", ".5", true, "optNoColor").click("cmdPrintIt");
    const auto p = s.page();
    // (15120 - 300) / (1 + cos 54) = 9333.6 gives Count 12 on each side.
    ASSERT_EQ(p.size(), 26u);
    EXPECT_EQ(p[0].y1, 12 * 720 + 200);
    EXPECT_EQ(s.f->vertex().StartX, 7190);
    EXPECT_EQ(s.f->vertex().StartY, 13918);
    const Single StepSin = Single(720 * std::sin(radians(54)));
    const Single StepCos = Single(720 * std::cos(radians(54)));
    for (int k = 0; k <= 12; ++k) {
        const Stroke& st = p[13 + k];
        EXPECT_EQ(st.x1, 7190);
        EXPECT_EQ(st.y1, -(12 - k) * 720 + 13918);
        EXPECT_EQ(st.x2, -StepSin * Single(k) + Single(7190));
        EXPECT_EQ(st.y2, -StepCos * Single(k) + Single(13918));
    }
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
}

TEST(StickPrint, WideAngleMovesTheVertexDownThePage) {
    StickForm single;
    single.set("120", ".5", false, "optNoColor").click("cmdPrintIt");
    EXPECT_EQ(single.page().front().y1, 13 * 720 + 5173);
    StickForm doubled;
    doubled.set("120", ".5", true, "optNoColor").click("cmdPrintIt");
    // Without the 200 when doubled.
    EXPECT_EQ(doubled.page().front().y1, 13 * 720 + 4940);
}

TEST(StickPrint, FillIsTwoWideOnePageTwipApartAndWidthStaysForTheSecondSide) {
    StickForm s;
    s.set("54", ".5", true, "optRandColor").click("cmdPrintIt");
    const auto p = s.page();
    std::set<long> colours;
    size_t sticks = 0, steps = 0, ones = 0;
    for (size_t n = 0; n < p.size(); ++n) {
        if (p[n].color == kForeground) {
            ++sticks;
            if (sticks > 13) EXPECT_EQ(p[n].width, 2);  // the second side's sticks
            continue;
        }
        colours.insert(p[n].color);
        EXPECT_EQ(p[n].width, 2);
        // Exchanged axes: a, the height on the stick, is now x; inside a
        // cell the lines are one page twip apart.
        if (n > 0 && p[n - 1].color == p[n].color) {
            ++steps;
            ones += std::fabs(p[n - 1].x1 - p[n].x1) == 1;
        }
    }
    EXPECT_GT(ones, steps * 19 / 20);
    EXPECT_EQ(sticks, 26u);
    EXPECT_EQ(colours.size(), 2u);
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
}

TEST(StickPrint, BothSidesEqualPrintsOneColour) {
    StickForm s;
    s.set("54", ".5", true, "optSame").click("cmdPrintIt");
    std::set<long> colours;
    for (const Stroke& st : StickForm::hatch(s.page())) colours.insert(st.color);
    EXPECT_EQ(colours.size(), 1u);
}

TEST(StickPrint, FillRunsToCount200OnPaperAndNoFurther) {
    StickForm ok;
    ok.set("54", ".05", false).click("cmdPrintIt");  // Leng 72: Count 194
    EXPECT_TRUE(ok.t.faults().empty());
    EXPECT_EQ(StickForm::black(ok.page()).size(), 195u);
    StickForm over;
    over.set("54", ".04", false).click("cmdPrintIt");  // Leng 58: Count 241
    ASSERT_EQ(over.t.faults().size(), 1u);
    EXPECT_NE(over.t.faults()[0].find("200"), std::string::npos);
    EXPECT_TRUE(over.page().empty());
    EXPECT_EQ(over.t.count("Printer", "enddoc"), 0);
    // Without a fill there is no such limit.
    over.set("54", ".04", false, "optNoColor").click("cmdPrintIt");
    EXPECT_EQ(over.page().size(), 242u);
}

TEST(StickMulti, DefaultsOverlayTheFiguresOf10To50Degrees) {
    StickForm s;
    s.click("cmdAnimate");
    EXPECT_EQ(s.t.ops().front().op, "cls");
    const auto l = s.canvas();
    std::vector<size_t> bases;
    for (size_t n = 0; n < l.size(); ++n)
        if (l[n].x1 == 4000 && l[n].y1 == 9500 && l[n].x2 == 13500 && l[n].y2 == 9500) bases.push_back(n);
    ASSERT_EQ(bases.size(), 5u);  // 10, 20, 30, 40, 50; never 54
    for (size_t f = 0; f < bases.size(); ++f) {
        const Double a = Double(Single(Single(10 * (f + 1)) * kStickPi / 180.0f));
        const Stroke& leg = l[bases[f] + 1];
        EXPECT_EQ(leg.x1, 4000);
        EXPECT_EQ(leg.x2, 4000 + Single(720 * std::cos(a)));
        EXPECT_EQ(leg.y2, 9500 + Single(-720 * std::sin(a)));
    }
    EXPECT_EQ(s.f->stickAngle(), Double(Single(50.0f * kStickPi / 180.0f)));
    EXPECT_TRUE(StickForm::hatch(l).empty());
}

TEST(StickMulti, LegWalksToTheEdgeAndSticksStayOnTheBase) {
    StickForm s;
    s.set("10", ".05", false).click("cmdAnimate");
    const auto l = s.canvas();
    // One figure at 10 degrees; Leng 72. The leg goes on while its next mark
    // is left of 13900; the sticks are cut to Int(9500 / 72) = 131.
    const Single StepX = Single(72 * std::cos(Double(Single(10.0f * kStickPi / 180.0f))));
    size_t walk = 2;  // l[0] is the base, l[1] the first step of the leg
    while (walk < l.size() && l[walk].x1 == l[walk - 1].x2 && l[walk].y1 == l[walk - 1].y2) ++walk;
    const size_t legStrokes = walk - 1;
    EXPECT_LT(4000 + Single(legStrokes) * StepX, 13900);
    EXPECT_GE(4000 + Single(legStrokes + 1) * StepX, 13900);
    EXPECT_EQ(l.size() - walk, 131u);
    EXPECT_EQ(l[walk].x1, 4000 + 130 * 72);
}

TEST(StickMulti, AnglesBelow10LeaveTheCanvasClear) {
    StickForm s;
    s.set("9.9", ".5").click("cmdAnimate");
    EXPECT_EQ(s.t.count("frmStickCurves", "cls"), 1);
    EXPECT_TRUE(s.canvas().empty());
    EXPECT_TRUE(s.t.faults().empty());
}
