// The one-sixth cube pyramid: the thirteen strokes between the corners of
// its table, and the rounding of half an odd side.
#include <gtest/gtest.h>

#include "templates/frm_one_sixth_cube.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(OneSixthCube, ThirteenStrokesBetweenCorners) {
    TestApp t;
    auto l = PrintAt(t, "frmOneSixthCube", "1");
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
