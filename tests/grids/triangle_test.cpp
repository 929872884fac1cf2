// The triangle sheet: row positions, where each cell's strokes go, the loop
// ends at the page's edges, and the values it refuses.
#include <gtest/gtest.h>

#include <chrono>

#include "support/test_app.h"

using namespace gp;
using gp::test::TestApp;

namespace {
struct Sheet {
    TestApp t;
    Form* f;
    Sheet(const std::string& leng, const std::string& angle, const std::string& thick = "2",
          Single w = 11520, Single h = 15120)
        : t(w, h) {
        f = &t.show("frmTriangle");
        t.edit(*f, "txtLeng", leng);
        t.edit(*f, "txtAngle", angle);
        t.edit(*f, "txtThick", thick);
        t.fire(*f, "cmdPrintIt", Event::Click);
    }
    std::vector<Stroke> lines() const { return t.lines("Printer"); }
};
}

TEST(TriangleSheet, DefaultsGiveRowsOf1247AndTheFirstCellOfTheExample) {
    Sheet s("1", "60");
    auto l = s.lines();
    ASSERT_GE(l.size(), 5u);
    EXPECT_EQ(l[0].x1, 720); EXPECT_EQ(l[0].x2, 2160); EXPECT_EQ(l[0].y2, 0);
    EXPECT_EQ(l[1].x2, 1440); EXPECT_EQ(l[1].y2, 1247);
    EXPECT_EQ(l[2].x2, 0); EXPECT_EQ(l[2].y2, 1247);
    EXPECT_EQ(l[3].x1, 0); EXPECT_EQ(l[3].x2, 1440);  // Line -Step(base, 0)
    EXPECT_EQ(l[4].x2, 2160); EXPECT_EQ(l[4].y2, 0);  // up to the next apex
    EXPECT_EQ(l[0].width, 2);
    // Rows at 0, 1247, ... while y + rise stays on the page: the bottom of
    // the twelfth row is the lowest stroke.
    float bottom = 0;
    for (const Stroke& st : l) bottom = std::max(bottom, st.y2);
    EXPECT_EQ(bottom, 12 * 1247);
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
}

TEST(TriangleSheet, CellsRunWhileTheApexIsWithinAThirdOfABaseOfTheEdge) {
    Sheet s("1", "60");
    float lastEven = 0, lastOdd = 0;
    for (const Stroke& st : s.lines()) {
        if (st.y1 == 0 && st.y2 == 0 && st.x2 - st.x1 == 1440) lastEven = std::max(lastEven, st.x1);
        if (st.y1 == 1247 && st.y2 == 1247 && st.x2 - st.x1 == 1440) lastOdd = std::max(lastOdd, st.x1);
    }
    // Even rows: 720 + 7 * 1440 = 10800 <= 11520 - 480. Odd rows: 7 * 1440
    // = 10080; 11520 itself would also pass (11520 - 480 >= 11520 is false).
    EXPECT_EQ(lastEven, 10800);
    EXPECT_EQ(lastOdd, 10080);
}

TEST(TriangleSheet, TheCellAtZeroHasNoUpStroke) {
    Sheet s("1", "60");
    auto l = s.lines();
    // Row 1 starts with the cell at x = 0: its right flank is the first
    // stroke that runs from (0, 1247) down to (720, 2494).
    size_t i = 1;
    while (!(l[i].x1 == 0 && l[i].y1 == 1247 && l[i].x2 == 720 && l[i].y2 == 2494)) ++i;
    --i;
    EXPECT_EQ(l[i + 2].x2, -720);  // the left flank runs off the page
    EXPECT_EQ(l[i + 3].x1, -720);  // stroke 4 goes on from its true end
    EXPECT_EQ(l[i + 3].x2, 720);
    EXPECT_EQ(l[i + 4].x1, 1440);  // no stroke 5: the next cell follows
    EXPECT_EQ(l[i + 4].y1, 1247);
}

TEST(TriangleSheet, OddBaseRoundsTheStartButNotTheHalfBase) {
    Sheet s("1.0007", "60");  // base 1441
    auto l = s.lines();
    EXPECT_EQ(l[0].x1, 720);             // CInt(720.5) is 720
    EXPECT_EQ(l[1].x2, 720.5f + 720);    // base / 2 + x keeps the half
}

TEST(TriangleSheet, TextsAreCutAsTheConversionsSay) {
    Sheet a("1.0003", "60.9");
    auto l = a.lines();
    EXPECT_EQ(l[0].x2 - l[0].x1, 1440);
    EXPECT_EQ(l[1].y2, 1247);  // 60.9 is taken as 60 degrees
}

TEST(TriangleSheet, ARiseAboveThePageMakesAnEmptySheet) {
    Sheet s("8", "70");  // rise Int(5760 * tan 70) is 15825, above 15120
    EXPECT_TRUE(s.lines().empty());
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
}

TEST(TriangleSheet, ALongBaseLeavesEvenRowsEmptyButKeepsTheOddRowCell) {
    Sheet s("20", "5");  // base 28800, rise 1259
    auto l = s.lines();
    ASSERT_FALSE(l.empty());
    for (const Stroke& st : l) EXPECT_NE(st.y1, 0);  // row 0 has no cell
    EXPECT_EQ(l[0].x1, 0);
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
}

TEST(TriangleSheet, LandscapeAndOtherPrintableAreasSetTheLoopEnds) {
    Sheet s("1", "60", "1", 15120, 11520);
    float bottom = 0, right = 0;
    for (const Stroke& st : s.lines()) {
        bottom = std::max(bottom, st.y2);
        if (st.y1 == 0 && st.y2 == 0) right = std::max(right, st.x2);
    }
    EXPECT_EQ(bottom, 9 * 1247);  // 9 rows: 9 * 1247 = 11223 <= 11520
    EXPECT_EQ(right, 720 + 10 * 1440);  // apexes up to 13680 <= 15120 - 480
}

TEST(TriangleSheet, TheWidestSheetStepsPastItsLastCellWithoutOverflow) {
    // Odd rows end at 31680; the step to 33120 lies beyond an Integer.
    Sheet s("1", "60", "2", 32767, 15120);
    EXPECT_TRUE(s.t.faults().empty());
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    float right = 0;
    for (const Stroke& st : s.lines())
        if (st.y1 == 1247 && st.y2 == 1247) right = std::max(right, st.x2);
    EXPECT_EQ(right, 31680 + 1440);
    EXPECT_EQ(s.lines().size(), 6u * 22 * 5 + 6u * (23 * 5 - 1));
}

TEST(TriangleSheet, ImpossibleValuesComeBackAtOnceWithAMessageAndNoSheet) {
    for (auto [leng, angle] : {std::pair{"0", "60"}, {"-1", "60"}, {"1", "90"}, {"1", "95"},
                               {"1", "0"}, {"abc", "60"}, {"0.0001", "60"}, {"1", "180"}}) {
        const auto start = std::chrono::steady_clock::now();
        Sheet s(leng, angle);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
        EXPECT_EQ(s.t.faults().size(), 1u) << leng << " " << angle;
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 0) << leng << " " << angle;
        EXPECT_TRUE(s.f->visible());
    }
}

TEST(TriangleSheet, AThicknessOfZeroStillPrintsAtOnce) {
    Sheet s("1", "60", "0");
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    EXPECT_TRUE(s.t.faults().empty());
}

TEST(TriangleSheet, ASheetOfMillionsOfStrokesIsRefusedBeforeDrawing) {
    Sheet s("0.001", "89");  // base 1, rise 28: 11520 x 540 cells
    EXPECT_EQ(s.t.faults().size(), 1u);
    EXPECT_TRUE(s.lines().empty());
}

TEST(TriangleSheet, TwoClicksMakeTwoSheetsAndTheFieldsStay) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    t.fire(f, "cmdPrintIt", Event::Click);
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_EQ(t.count("Printer", "enddoc"), 2);
    EXPECT_EQ(static_cast<TextBox*>(f.find("txtAngle"))->Text(), "60");
}
