// The rhombi-cube: the nineteen-stroke walk with its changes of style and
// its corners, unrounded until they reach the surface.
#include <gtest/gtest.h>

#include <cmath>

#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(RhombiCube, TheWalkChangesStyleOnlyWhereTheFoldsAre) {
    TestApp t;
    auto l = PrintAt(t, "frmRhombiCube", "1");
    ASSERT_GE(l.size(), 19u);
    const int styles[19] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 1, 0, 1, 1};
    for (int i = 0; i < 19; ++i) {
        EXPECT_EQ(l[i].style, styles[i]) << "stroke " << i + 1;
        if (i > 0) EXPECT_EQ(Point(l[i].x1, l[i].y1), Point(l[i - 1].x2, l[i - 1].y2)) << i;  // unbroken
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
    l = PreviewAt(t, "frmRhombiCube", "1.00125");  // side 801
    ASSERT_GE(l.size(), 1u);
    const double acute = 3.141592653 - 2 * std::atan(std::sqrt(2.0));
    EXPECT_FLOAT_EQ(l[0].x2, float(3000 + 801 * std::cos(acute)));
    EXPECT_FLOAT_EQ(l[0].y2, float(CInt(801 * 1.3) - 801 * std::sin(acute)));
}
