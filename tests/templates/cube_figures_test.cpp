// The stroke walks of the three cube figures: the half cube's twenty strokes
// and odd side, the rhombi-cube's nineteen with their corners unrounded, the
// one-sixth cube's thirteen between the corners of its table.
#include <gtest/gtest.h>

#include <cmath>

#include "templates/frm_one_sixth_cube.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(HalfCube, OneCopyIsTheOutlineWalkThenTheDashedFolds) {
    TestApp t;
    auto l = DrawAt(t, "frmHalfCube", "1", true);
    // side 1440, flapHeight 1018, halfSide 720, copy at (1018, 1018): the
    // leftmost tip lands on x = 0 and the topmost on y = 0.
    const float X = 1018, Y = 1018;
    const float want[20][4] = {
        {0, 0, -1018, 720}, {-1018, 720, 0, 1440}, {0, 1440, -1018, 2160}, {-1018, 2160, 0, 2880},
        {0, 2880, 720, 3898}, {720, 3898, 1440, 2880}, {1440, 2880, 2160, 3898}, {2160, 3898, 2880, 2880},
        {2880, 2880, 3898, 2160}, {3898, 2160, 2880, 1440}, {2880, 1440, 1440, 1440}, {1440, 1440, 1440, 0},
        {1440, 0, 720, -1018}, {720, -1018, 0, 0}, {0, 0, 1440, 0}, {0, 0, 0, 2880},
        {0, 2880, 2880, 2880}, {2880, 2880, 2880, 1440}, {0, 1440, 1440, 1440}, {1440, 1440, 1440, 2880}};
    ASSERT_GE(l.size(), 20u);
    for (size_t i = 0; i < 20; ++i) {
        const Stroke& s = l[i];
        EXPECT_EQ(std::vector<float>({s.x1 - X, s.y1 - Y, s.x2 - X, s.y2 - Y}),
                  std::vector<float>(want[i], want[i] + 4)) << "stroke " << i + 1;
        EXPECT_EQ(s.style, i < 14 ? 0 : 1) << "stroke " << i + 1;
    }
    // On the canvas the bottom flaps of the last copy run on below 8400.
    TestApp p;
    float bottom = 0;
    for (const Stroke& s : DrawAt(p, "frmHalfCube", "1", false)) bottom = std::max({bottom, s.y1, s.y2});
    EXPECT_EQ(bottom, 8592);
}

TEST(HalfCube, AnOddSideEndsTheWalkOneUnitLeftOfAndAboveItsStart) {
    TestApp t;
    auto l = DrawAt(t, "frmHalfCube", "1.00125", false);  // side 801, halfSide 400
    ASSERT_GE(l.size(), 21u);
    EXPECT_EQ(l[13].x2, l[0].x1 - 1);
    EXPECT_EQ(l[13].y2, l[0].y1 - 1);
    // The second copy stands Int(801 * 2.707) right and halfSide lower.
    EXPECT_EQ(l[20].x1 - l[0].x1, 2168);
    EXPECT_EQ(l[20].y1 - l[0].y1, 400);
    EXPECT_EQ(DrawAt(t, "frmHalfCube", "3", false)[0].x1, 3000 + 1697);  // one copy, off the canvas
    // The first copy comes before any test: past half the Integer range the
    // preview is left blank, silently.
    TestApp u;
    EXPECT_TRUE(ReopenedWith(u, "frmHalfCube", "21").empty());
    EXPECT_TRUE(u.dialogs().empty());
}

TEST(RhombiCube, TheWalkChangesStyleOnlyWhereTheFoldsAre) {
    TestApp t;
    auto l = DrawAt(t, "frmRhombiCube", "1", true);
    ASSERT_GE(l.size(), 19u);
    const int styles[19] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 1, 0, 1, 1};
    for (int i = 0; i < 19; ++i) {
        EXPECT_EQ(l[i].style, styles[i]) << "stroke " << i + 1;
        if (i == 0) continue;
        EXPECT_EQ(Point(l[i].x1, l[i].y1), Point(l[i - 1].x2, l[i - 1].y2)) << i;  // unbroken
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
    // Offsets stay unrounded until they reach the surface.
    l = DrawAt(t, "frmRhombiCube", "1.00125", false);  // side 801
    ASSERT_GE(l.size(), 1u);
    const double acute = 3.141592653 - 2 * std::atan(std::sqrt(2.0));
    EXPECT_FLOAT_EQ(l[0].x2, float(3000 + 801 * std::cos(acute)));
    EXPECT_FLOAT_EQ(l[0].y2, float(CInt(801 * 1.3) - 801 * std::sin(acute)));
}

TEST(OneSixthCube, ThirteenStrokesBetweenCorners) {
    TestApp t;
    auto l = DrawAt(t, "frmOneSixthCube", "1", true);
    ASSERT_GE(l.size(), 13u);
    // At side 1440 from the copy at (480, 300): corners 1 to 8.
    const float cx[9] = {0, 0, 0, 1440, 1440, 720, 1867, 640, -480};
    const float cy[9] = {0, 1440, 0, 0, 1440, 2458, 2948, 3703, 2798};
    const int from[13] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 1, 5, 5, 5};
    const int to[13] = {1, 2, 3, 4, 5, 6, 7, 8, 1, 4, 1, 8, 7};
    for (size_t i = 0; i < 13; ++i) {
        EXPECT_EQ(Point(l[i].x1, l[i].y1), Point(480 + cx[from[i]], 300 + cy[from[i]])) << "stroke " << i + 1;
        EXPECT_EQ(Point(l[i].x2, l[i].y2), Point(480 + cx[to[i]], 300 + cy[to[i]])) << "stroke " << i + 1;
        EXPECT_EQ(l[i].style, i < 9 ? 0 : 1) << "stroke " << i + 1;
    }
    // Half an odd side is rounded only as it is stored, to the even neighbour.
    EXPECT_EQ(int(SixthCubeCornerTable(801).cornerX[5]), 400);
    EXPECT_EQ(int(SixthCubeCornerTable(803).cornerX[5]), 402);
    // The canvas has its own scale: 8943 units down (the preview's rows depend on it).
    EXPECT_EQ(CInt(t.show("frmOneSixthCube").Me().ScaleHeight()), 8943);
}
