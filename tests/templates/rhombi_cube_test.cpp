// The rhombi-cube: the nineteen-stroke walk with its changes of style, the
// interlocking rows, and the column and row tests at their limits.
#include <gtest/gtest.h>

#include <cmath>

#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(RhombiCube, DefaultGivesTenCopiesInPreviewAndPrint) {
    TestApp t;
    t.show("frmRhombiCube");
    std::vector<Point> preview;
    for (float y : {1040, 2548, 4056, 5564, 7072})
        for (float x : {3000, 6200}) preview.push_back({x, y});
    EXPECT_EQ(CopyStarts(t.lines("frmRhombiCube"), 19), preview);
    EXPECT_EQ(t.lines("frmRhombiCube").size(), 10u * 19);

    TestApp p;
    auto l = PrintAt(p, "frmRhombiCube", "1");
    std::vector<Point> print;
    for (float y : {1872, 4586, 7300, 10014, 12728})
        for (float x : {0, 5760}) print.push_back({x, y});  // 5760 is exactly 11520 - 4 * side
    EXPECT_EQ(CopyStarts(l, 19), print);
    EXPECT_EQ(l.size(), 10u * 19);
    EXPECT_EQ(p.count("Printer", "enddoc"), 1);
}

TEST(RhombiCube, TheWalkChangesStyleOnlyWhereTheFoldsAre) {
    TestApp t;
    auto l = PrintAt(t, "frmRhombiCube", "1");
    ASSERT_GE(l.size(), 19u);
    const int styles[19] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 1, 0, 1, 1};
    for (int i = 0; i < 19; ++i) EXPECT_EQ(l[i].style, styles[i]) << "stroke " << i + 1;
    // One unbroken walk: each stroke starts where the last ended.
    for (int i = 1; i < 19; ++i) {
        EXPECT_EQ(l[i].x1, l[i - 1].x2) << i;
        EXPECT_EQ(l[i].y1, l[i - 1].y2) << i;
    }
    // Corners in units of side 1440 from A (0, 1872): B, E (through M), G.
    const float s = 1440, y0 = 1872;
    EXPECT_NEAR(l[0].x2, 0.3333 * s, 0.5);
    EXPECT_NEAR(l[0].y2, y0 - 0.9428 * s, 0.5);
    EXPECT_NEAR(l[3].x2, 2.5556 * s, 0.5);
    EXPECT_NEAR(l[3].y2, y0 - 1.2571 * s, 0.5);
    EXPECT_NEAR(l[5].x2, 3.8889 * s, 0.5);
    // The outline closes on A; the folds end at G.
    EXPECT_NEAR(l[11].x2, 0, 0.01);
    EXPECT_NEAR(l[11].y2, y0, 0.01);
    EXPECT_NEAR(l[18].x2, l[5].x2, 0.01);
    EXPECT_NEAR(l[18].y2, l[5].y2, 0.01);
    EXPECT_EQ(t.printer().DrawStyle(), 0);
}

TEST(RhombiCube, OffsetsStayUnroundedUntilTheyReachTheSurface) {
    TestApp t;
    auto l = PreviewAt(t, "frmRhombiCube", "1.00125");  // side 801
    ASSERT_GE(l.size(), 1u);
    const double acute = 3.141592653 - 2 * std::atan(std::sqrt(2.0));
    EXPECT_FLOAT_EQ(l[0].x2, float(3000 + 801 * std::cos(acute)));
    EXPECT_FLOAT_EQ(l[0].y2, float(CInt(801 * 1.3) - 801 * std::sin(acute)));
}

TEST(RhombiCube, ColumnTestLeavesThePreviewBlankFromSide1602) {
    TestApp t;
    EXPECT_EQ(PreviewAt(t, "frmRhombiCube", "2").size(), 2u * 19);  // side 1600: one column, two rows
    EXPECT_TRUE(PreviewAt(t, "frmRhombiCube", "2.0025").empty());   // side 1602
    EXPECT_TRUE(t.faults().empty());
}

TEST(RhombiCube, SheetsAboveTwoInchesComeOutEmpty) {
    TestApp t;
    EXPECT_TRUE(PrintAt(t, "frmRhombiCube", "2.01").empty());
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    TestApp u;
    EXPECT_EQ(PrintAt(u, "frmRhombiCube", "2").size() % 19, 0u);
    EXPECT_FALSE(u.lines("Printer").empty());
}

TEST(RhombiCube, ASideOfOneHasNoRowStepAndIsRefused) {
    // rowPitchHalf is 0: the rows would never move down.
    TestApp t;
    auto l = PrintAt(t, "frmRhombiCube", "0.0007");  // side 1
    EXPECT_TRUE(l.empty());
    EXPECT_EQ(t.count("Printer", "enddoc"), 0);
    EXPECT_EQ(t.faults().size(), 1u);
}

TEST(RhombiCube, PrintedSidesTooLargeForTheIntegersAreRefused) {
    TestApp t;
    EXPECT_TRUE(PrintAt(t, "frmRhombiCube", "18").empty());  // CInt(side * 1.3) overflows
    ASSERT_EQ(t.faults().size(), 1u);
    EXPECT_EQ(t.count("Printer", "enddoc"), 0);
    // Past 2 * side's range but short of that: the row test ends the sheet
    // before any copy, with no message.
    TestApp u;
    EXPECT_TRUE(PrintAt(u, "frmRhombiCube", "12").empty());
    EXPECT_TRUE(u.faults().empty());
    EXPECT_EQ(u.count("Printer", "enddoc"), 1);
}
