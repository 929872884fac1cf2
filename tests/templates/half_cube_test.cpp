// The half cube: the twenty strokes of a copy, the odd side, and the
// preview's first copy drawn before any test.
#include <gtest/gtest.h>

#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(HalfCube, OneCopyIsTheOutlineWalkThenTheDashedFolds) {
    TestApp t;
    auto l = PrintAt(t, "frmHalfCube", "1");
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
    for (const Stroke& s : PreviewAt(p, "frmHalfCube", "1")) bottom = std::max({bottom, s.y1, s.y2});
    EXPECT_EQ(bottom, 8592);
}

TEST(HalfCube, AnOddSideEndsTheWalkOneUnitLeftOfAndAboveItsStart) {
    TestApp t;
    auto l = PreviewAt(t, "frmHalfCube", "1.00125");  // side 801, halfSide 400
    ASSERT_GE(l.size(), 21u);
    EXPECT_EQ(l[13].x2, l[0].x1 - 1);
    EXPECT_EQ(l[13].y2, l[0].y1 - 1);
    // The second copy stands Int(801 * 2.707) right and halfSide lower.
    EXPECT_EQ(l[20].x1 - l[0].x1, 2168);
    EXPECT_EQ(l[20].y1 - l[0].y1, 400);
    EXPECT_EQ(PreviewAt(t, "frmHalfCube", "3")[0].x1, 3000 + 1697);  // one copy, off the canvas
    // The first copy comes before any test: past half the Integer range the
    // preview is left blank, silently.
    TestApp u;
    EXPECT_TRUE(ReopenedWith(u, "frmHalfCube", "21").empty());
    EXPECT_TRUE(u.dialogs().empty());
}
