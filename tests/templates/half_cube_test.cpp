// The half cube: the twenty strokes of a copy, the stair tiling of preview
// and print with their tests on either side of the body, and the odd side.
#include <gtest/gtest.h>

#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(HalfCube, PreviewOfTheDefaultIsSixCopiesOnTheStair) {
    TestApp t;
    t.show("frmHalfCube");
    auto l = t.lines("frmHalfCube");
    ASSERT_EQ(l.size(), 6u * 20);
    std::vector<Point> want{{3565, 565}, {5730, 965}, {3565, 3296}, {5730, 3696}, {3565, 6027}, {5730, 6427}};
    EXPECT_EQ(CopyStarts(l, 20), want);
    // The bottom flaps of the last copy end below the canvas, uncut by the test.
    float bottom = 0;
    for (const Stroke& s : l) bottom = std::max(bottom, std::max(s.y1, s.y2));
    EXPECT_EQ(bottom, 8592);
}

TEST(HalfCube, PrintOfTheDefaultStartsWithItsTipsOnTheEdges) {
    TestApp t;
    auto l = PrintAt(t, "frmHalfCube", "1");
    std::vector<Point> want{{1018, 1018}, {4916, 1738}, {1018, 5934}, {4916, 6654}, {1018, 10850}, {4916, 11570}};
    EXPECT_EQ(CopyStarts(l, 20), want);
    EXPECT_EQ(l[0].x2, 0);        // leftmost tip on x = 0
    EXPECT_EQ(l[12].y2, 0);       // topmost tip on y = 0
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
}

TEST(HalfCube, OneCopyIsTheOutlineWalkThenTheDashedFolds) {
    TestApp t;
    auto l = PrintAt(t, "frmHalfCube", "1");
    // side 1440, flapHeight 1018, halfSide 720, copy at (1018, 1018).
    const float X = 1018, Y = 1018;
    struct Want { float x1, y1, x2, y2; int style; };
    std::vector<Want> want{
        {X, Y, X - 1018, Y + 720, 0}, {X - 1018, Y + 720, X, Y + 1440, 0},
        {X, Y + 1440, X - 1018, Y + 2160, 0}, {X - 1018, Y + 2160, X, Y + 2880, 0},
        {X, Y + 2880, X + 720, Y + 3898, 0}, {X + 720, Y + 3898, X + 1440, Y + 2880, 0},
        {X + 1440, Y + 2880, X + 2160, Y + 3898, 0}, {X + 2160, Y + 3898, X + 2880, Y + 2880, 0},
        {X + 2880, Y + 2880, X + 3898, Y + 2160, 0}, {X + 3898, Y + 2160, X + 2880, Y + 1440, 0},
        {X + 2880, Y + 1440, X + 1440, Y + 1440, 0}, {X + 1440, Y + 1440, X + 1440, Y, 0},
        {X + 1440, Y, X + 720, Y - 1018, 0}, {X + 720, Y - 1018, X, Y, 0},
        {X, Y, X + 1440, Y, 1}, {X, Y, X, Y + 2880, 1},
        {X, Y + 2880, X + 2880, Y + 2880, 1}, {X + 2880, Y + 2880, X + 2880, Y + 1440, 1},
        {X, Y + 1440, X + 1440, Y + 1440, 1}, {X + 1440, Y + 1440, X + 1440, Y + 2880, 1},
    };
    ASSERT_GE(l.size(), want.size());
    for (size_t i = 0; i < want.size(); ++i) {
        SCOPED_TRACE("stroke " + std::to_string(i + 1));
        EXPECT_EQ(l[i].x1, want[i].x1); EXPECT_EQ(l[i].y1, want[i].y1);
        EXPECT_EQ(l[i].x2, want[i].x2); EXPECT_EQ(l[i].y2, want[i].y2);
        EXPECT_EQ(l[i].style, want[i].style);
        EXPECT_EQ(l[i].width, 1);
    }
    EXPECT_EQ(t.printer().DrawStyle(), 0);
}

TEST(HalfCube, AnOddSideEndsTheWalkOneUnitLeftOfAndAboveItsStart) {
    TestApp t;
    auto l = PreviewAt(t, "frmHalfCube", "1.00125");  // side 801, halfSide 400
    ASSERT_GE(l.size(), 20u);
    EXPECT_EQ(l[13].x2, l[0].x1 - 1);
    EXPECT_EQ(l[13].y2, l[0].y1 - 1);
    // The second copy stands Int(801 * 2.707) right and halfSide lower.
    EXPECT_EQ(l[20].x1 - l[0].x1, 2168);
    EXPECT_EQ(l[20].y1 - l[0].y1, 400);
}

TEST(HalfCube, PrintTestsBeforeTheBodyAndPreviewAfterIt) {
    TestApp t;
    EXPECT_EQ(PrintAt(t, "frmHalfCube", "2").size(), 20u);
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    TestApp t3;
    EXPECT_TRUE(PrintAt(t3, "frmHalfCube", "3").empty());
    EXPECT_EQ(t3.count("Printer", "enddoc"), 1);  // an empty sheet, all the same
    TestApp p;
    auto l = PreviewAt(p, "frmHalfCube", "3");  // one copy, running off the canvas
    ASSERT_EQ(l.size(), 20u);
    EXPECT_EQ(l[0].x1, 3000 + 1697);
}

TEST(HalfCube, ATenthOfAnInchPreviewsEightHundredSeventyCopies) {
    TestApp t;
    auto l = PreviewAt(t, "frmHalfCube", "0.1");
    EXPECT_EQ(l.size(), 870u * 20);
    EXPECT_TRUE(t.faults().empty());
}

TEST(HalfCube, TinyOddSidesThatNeverLeaveTheRowAreRefusedBeforeDrawing) {
    // side 17: each row starts higher than the last, so the stair would run
    // up to the end of the Integer range.
    TestApp t;
    auto l = PrintAt(t, "frmHalfCube", "0.0119");
    EXPECT_TRUE(l.empty());
    EXPECT_EQ(t.count("Printer", "enddoc"), 0);
    ASSERT_EQ(t.faults().size(), 1u);
    TestApp p;
    EXPECT_TRUE(PreviewAt(p, "frmHalfCube", "0.0213").empty());  // preview side 17
}

TEST(HalfCube, SidesPastHalfTheIntegerRangePrintAnEmptySheet) {
    // 2 * side would leave the range, but the print's tests come first and
    // no copy fits: the sheet ends with no strokes and no message.
    for (const char* text : {"12", "22.7"}) {
        TestApp t;
        EXPECT_TRUE(PrintAt(t, "frmHalfCube", text).empty()) << text;
        EXPECT_TRUE(t.faults().empty()) << text;
        EXPECT_EQ(t.count("Printer", "enddoc"), 1) << text;
    }
    // The preview draws its first copy before any test, so there such a
    // side is left blank, silently.
    TestApp t;
    Form& f = t.show("frmHalfCube");
    t.edit(f, "txtLeng", "21");
    t.fire(f, "cmdExit", Event::Click);
    t.clear();
    t.show("frmHalfCube");
    EXPECT_TRUE(t.lines("frmHalfCube").empty());
    EXPECT_TRUE(t.faults().empty());
}
