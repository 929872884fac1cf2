// "Draw It": the canvas scale, the Count of each row of the table, the stick
// ends, the rhombus and the checkerboard fill on the screen.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "stick_support.h"
#include "stringart/stick_fill.h"

using namespace stick_test;

TEST(StickScreen, DesignHasItsOwnScaleAndDefaults) {
    StickForm s;
    const FormDesign& d = s.f->design();
    EXPECT_EQ(d.caption, "Stick Curves");
    EXPECT_EQ(d.clientWidth, 13875);
    EXPECT_EQ(d.clientHeight, 9495);
    EXPECT_EQ(s.f->Me().ScaleWidth(), 14000);
    EXPECT_EQ(s.f->Me().ScaleHeight(), 10000);
    EXPECT_EQ(static_cast<TextBox*>(s.f->find("txtAngle"))->Text(), "54");
    EXPECT_EQ(static_cast<TextBox*>(s.f->find("txtTics"))->Text(), ".5");
    EXPECT_EQ(static_cast<CheckBox*>(s.f->find("chkDouble"))->Value(), 0);
    EXPECT_TRUE(static_cast<OptionButton*>(s.f->find("optRandColor"))->Value());
    for (const char* o : {"optRandColor", "optSame", "optNoColor"})
        EXPECT_EQ(s.f->find(o)->design().container, "frmColor");
    EXPECT_EQ(static_cast<Label*>(s.f->find("cmdAnimate"))->Caption(), "MultiDrawing1");
    // No Form_Activate: the canvas is empty until "Draw It".
    EXPECT_TRUE(s.t.ops().empty());
}

TEST(StickScreen, DefaultsGiveLeng720Count16AndTheVertexAt2400By9500) {
    StickForm s;
    s.click("cmdDrawIt");
    ASSERT_FALSE(s.t.ops().empty());
    EXPECT_EQ(s.t.ops().front().op, "cls");
    EXPECT_EQ(s.f->vertex().StartX, 2400);
    EXPECT_EQ(s.f->vertex().StartY, 9500);
    const auto b = StickForm::black(s.canvas());
    ASSERT_EQ(b.size(), 17u);  // the base, then sticks 1 to 16
    // The base is as long as the canvas is high: it ends at 12400, and the
    // first stick starts past it, at 2400 + 15 * 720.
    EXPECT_EQ(b[0].x1, 2400); EXPECT_EQ(b[0].y1, 9500);
    EXPECT_EQ(b[0].x2, 12400); EXPECT_EQ(b[0].y2, 9500);
    EXPECT_EQ(b[1].x1, 13200);
    EXPECT_EQ(b[16].x1, 2400);  // stick 16 is the leg itself
    // Leg ends: vertex + k * step in Single arithmetic, from the Single
    // constant 3.1415925.
    const Single StepX = Single(720 * std::cos(radians(54)));
    const Single StepY = Single(-720 * std::sin(radians(54)));
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(b[k].x1, 2400 + (16 - k) * 720);
        EXPECT_EQ(b[k].y1, 9500);
        EXPECT_EQ(b[k].x2, legEnd(2400, k, StepX)) << k;
        EXPECT_EQ(b[k].y2, legEnd(9500, k, StepY)) << k;
        EXPECT_EQ(b[k].width, 1);
    }
    EXPECT_EQ(s.f->stickDistance(), 0.5f);
    EXPECT_DOUBLE_EQ(s.f->stickAngle(), radians(54));
}

TEST(StickScreen, RightAngleIsCutByTheTopEdgeAndKeepsTheConstantsTrace) {
    StickForm s;
    s.set("90", ".5", false, "optNoColor").click("cmdDrawIt");
    const auto b = StickForm::black(s.canvas());
    // 16 marks would reach 11520 high; CInt(9500 / 720) = 13 fit.
    ASSERT_EQ(b.size(), 14u);
    EXPECT_EQ(b[1].x1, 2400 + 12 * 720);
    // With 3.1415925 the leg is not quite upright: its x moves by a few
    // Single steps over 13 marks.
    const Single StepX = Single(720 * std::cos(radians(90)));
    EXPECT_GT(StepX, 0.0f);
    EXPECT_EQ(b[13].x2, legEnd(2400, 13, StepX));
    EXPECT_NE(b[13].x2, 2400.0f);
}

TEST(StickScreen, WideAngleMovesTheVertexRight) {
    for (bool doubled : {false, true}) {
        StickForm s;
        s.set("120", ".5", doubled, "optNoColor").click("cmdDrawIt");
        const auto b = StickForm::black(s.canvas());
        // Length 11600 / 1.5 = 7733.3 (under the top-edge limit) gives Count
        // 10 and a vertex at Int(7733.3 * cos 60) + 2400.
        if (!doubled) {
            EXPECT_EQ(s.f->vertex().StartX, 6266);
            ASSERT_EQ(b.size(), 11u);
            EXPECT_NEAR(b[10].x2, 2400, 720);  // the leg leans back to the panel
        } else {
            // 21 strokes for the first side (base, 9 leg steps, 11 sticks),
            // then the turned side.
            EXPECT_EQ(b[0].x1, 6266);
            EXPECT_EQ(b[0].x2, 6266 + 7200);
        }
    }
}

TEST(StickScreen, DoubledRhombusWalksBothLegsAndTurnsTheVertex) {
    StickForm s;
    s.set("54", ".5", true, "optNoColor").click("cmdDrawIt");
    const auto b = StickForm::black(s.canvas());
    // Count = Int(7305.8 / 720) = 10. First side: base 7200 long, the leg
    // walked with the counter from 2 while below Count (9 strokes), sticks
    // 0 to 10. Second side: the walk runs while the counter is not above
    // Count (10 strokes).
    ASSERT_EQ(b.size(), 21u + 22u);
    EXPECT_EQ(b[0].x2, 2400 + 7200);
    const Single StepX = Single(720 * std::cos(radians(54)));
    const Single StepY = Single(-720 * std::sin(radians(54)));
    EXPECT_EQ(b[1].x2, legEnd(2400, 1, StepX));
    EXPECT_EQ(b[9].x1, b[8].x2);  // a walk: each step starts where the last ended
    EXPECT_EQ(b[10].x1, 2400 + 7200);  // stick 0 is the base
    EXPECT_EQ(b[20].x1, 2400);         // stick 10 the leg
    // The vertex moves to the opposite corner of the rhombus.
    EXPECT_EQ(s.f->vertex().StartX, 13832);
    EXPECT_EQ(s.f->vertex().StartY, 3675);
    EXPECT_EQ(b[21].x1, 13832); EXPECT_EQ(b[21].x2, 13832 - 7200);
    EXPECT_EQ(b[22].x2, Single(13832) - StepX);
    EXPECT_EQ(b[31].y2, b[30].y2 - StepY);  // the tenth and last step of the turned leg
    for (int k = 0; k <= 10; ++k) {
        const Stroke& st = b[32 + k];
        EXPECT_EQ(st.x1, 13832 - (10 - k) * 720);
        EXPECT_EQ(st.x2, Single(13832) - Single(k) * StepX);
        EXPECT_EQ(st.y2, Single(3675) - Single(k) * StepY);
    }
}

TEST(StickScreen, LargeDistancesGiveOneStickOrTheBaseOnly) {
    StickForm one;
    one.set("54", "8", false).click("cmdDrawIt");  // Leng 11520: CInt(11600 / 11520) = 1
    EXPECT_EQ(StickForm::black(one.canvas()).size(), 2u);
    EXPECT_TRUE(StickForm::hatch(one.canvas()).empty());
    StickForm none;
    none.set("54", "20", false).click("cmdDrawIt");  // Leng 28800: Count 0
    EXPECT_EQ(StickForm::black(none.canvas()).size(), 1u);
    EXPECT_TRUE(none.t.faults().empty());
}

TEST(StickScreen, FillIsACheckerboardOfOneColourPerSide) {
    StickForm s;
    s.click("cmdDrawIt");
    const auto h = StickForm::hatch(s.canvas());
    ASSERT_GT(h.size(), 1000u);
    std::set<long> colours;
    for (const Stroke& st : h) {
        colours.insert(st.color);
        EXPECT_EQ(st.width, 1);
        // Whole units, inside the figure, above the base.
        EXPECT_EQ(st.x1, std::floor(st.x1));
        EXPECT_LE(st.y1, 9500);
        EXPECT_GE(st.x1, 2400);
    }
    EXPECT_EQ(colours.size(), 1u);
}

TEST(StickScreen, RandomColorGivesEachSideItsOwnAndBothSidesEqualSharesOne) {
    auto coloursOf = [](const std::string& option) {
        StickForm s;
        s.set("54", ".5", true, option).click("cmdDrawIt");
        std::vector<long> seen;
        for (const Stroke& st : StickForm::hatch(s.canvas()))
            if (seen.empty() || seen.back() != st.color) seen.push_back(st.color);
        return seen;
    };
    EXPECT_EQ(coloursOf("optRandColor").size(), 2u);
    EXPECT_EQ(coloursOf("optSame").size(), 1u);
    EXPECT_TRUE(coloursOf("optNoColor").empty());
}

TEST(StickScreen, SecondSideOfBothSidesEqualIsTheFirstTurned) {
    StickForm s;
    s.set("54", ".5", true, "optSame").click("cmdDrawIt");
    const auto all = s.canvas();
    // Hatch lines before the turned base belong to side 1.
    std::vector<Stroke> first, second;
    bool turned = false;
    for (const Stroke& st : all) {
        if (st.color == kForeground && st.x1 == 13832 && st.y1 == 3675) turned = true;
        if (st.color != kForeground) (turned ? second : first).push_back(st);
    }
    ASSERT_EQ(first.size(), second.size());
    ASSERT_FALSE(first.empty());
    // The same cells, mirrored through both vertices.
    for (size_t n = 0; n < first.size(); n += 97) {
        EXPECT_EQ(first[n].x1 - 2400, 13832 - second[n].x1);
        EXPECT_EQ(9500 - first[n].y1, second[n].y1 - 3675);
    }
}

TEST(StickCrossingTable, CrossingsAreWholeAndLieOnBothSticks) {
    const Integer Leng = 720, Count = 16;
    const Double a = radians(54);
    const Single StepX = Single(720 * std::cos(a)), StepY = Single(-720 * std::sin(a));
    StickCrossings t(100);
    t.build(Leng, Count, StepX, -StepY, false, a);
    EXPECT_EQ(t.StickSlope(0), Single(-1 / std::tan(a)));
    EXPECT_EQ(t.CrossX(3, Count), 3 * 720);
    EXPECT_EQ(t.CrossY(3, Count), 0);
    EXPECT_EQ(t.CrossY(0, 3), -StepY * 13);
    for (int i = 1; i <= Count - 2; ++i) {
        for (int j = i + 1; j <= Count - 1; ++j) {
            const Single x = t.CrossX(i, j), y = t.CrossY(i, j);
            EXPECT_EQ(x, std::round(x));
            EXPECT_EQ(y, std::round(y));
            EXPECT_GE(y, 0);
            // x = BaseTic - slope * y on both sticks, within the rounding.
            EXPECT_NEAR(x, t.BaseTic(i) - t.StickSlope(i) * y, 1.0 + std::fabs(t.StickSlope(i)));
            EXPECT_NEAR(x, t.BaseTic(j) - t.StickSlope(j) * y, 1.0 + std::fabs(t.StickSlope(j)) * 0.5 + 1);
        }
    }
    // Within a cell the lines go down one unit at a time; so the runs of
    // such steps are the hatched cells, every other one by the parity.
    int cells = 0;
    for (int i = 1; i <= Count - 1; ++i)
        for (int j = i + 2; j <= Count; ++j) cells += (i + j) % 2 == 1;
    int runs = 0, lines = 0;
    Integer lastA = -1;
    t.hatch(Count, 1, [&](Integer ha, Integer, Integer, Integer) {
        if (lines == 0 || ha != lastA - 1) ++runs;
        lastA = ha;
        ++lines;
    });
    EXPECT_EQ(runs, cells);
    EXPECT_GT(lines, 10 * cells);
}

TEST(StickCrossingTable, TwoCrossingsAtOneHeightStopWithAMessage) {
    // At 10 degrees the crossings near the vertex of the base crowd within one
    // unit of height; this cell (57, 59) of parity 0 has Rows 0.
    const Double a = radians(10);
    const Single StepX = Single(60 * std::cos(a)), StepY = Single(-60 * std::sin(a));
    StickCrossings t(100);
    t.build(60, 60, StepX, -StepY, false, a);
    EXPECT_EQ(Int((t.CrossY(56, 59) - t.CrossY(56, 58)) / -1.0f), 0);
    try {
        t.hatch(60, 0, [](Integer, Integer, Integer, Integer) {});
        FAIL() << "no fault";
    } catch (const Fault& f) {
        EXPECT_NE(std::string(f.what()).find("same height"), std::string::npos);
    }
}

TEST(StickCrossingTable, ColoursComeRedGreenBlueThenParity) {
    RandomSource r1, r2;
    r1.seed(7);
    r2.seed(7);
    const StickColour c = FreshStickColour(r1);
    EXPECT_EQ(c.red, CInt(r2.Rnd() * 255.0f));
    EXPECT_EQ(c.green, CInt(r2.Rnd() * 255.0f));
    EXPECT_EQ(c.blue, CInt(r2.Rnd() * 255.0f));
    EXPECT_EQ(c.Parity, Int(r2.Rnd() * 2.0f));
}
