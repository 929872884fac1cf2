// The great dodecagon: the floored parts and the five arms of 13 strokes.
#include <gtest/gtest.h>

#include "templates/great_dodeca.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(GreatDodeca, PartsArmWalkStylesAndFloors) {
    TestApp t;
    auto ls = PrintAt(t, "frmGreatDodeca", "1.5");  // side 2160, first copy at (0, 4590)
    ASSERT_GE(ls.size(), 65u);
    const int style[13] = {0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0, 1, 1};
    float top = 1e9f;
    for (size_t i = 0; i < 65; ++i) {
        EXPECT_EQ(ls[i].style, style[i % 13]) << i;
        if (i % 13) EXPECT_EQ(Point(ls[i].x1, ls[i].y1), Point(ls[i - 1].x2, ls[i - 1].y2)) << i;
        top = std::min({top, ls[i].y1, ls[i].y2});
    }
    EXPECT_EQ(top, 0);  // no margin: the net touches the top
    // Arm 0: stroke 1 up at 288 degrees, stroke 3 back exactly to the start on x = 0.
    EXPECT_EQ(Point(ls[0].x2, ls[0].y2), Point(667, 4590 - 2054));
    EXPECT_EQ(Point(ls[2].x2, ls[2].y2), Point(0, 4590));
    // Strokes 5 and 8 lie on the same line but 2 twips apart at this side.
    EXPECT_EQ(ls[7].x1, ls[4].x1);
    EXPECT_EQ(ls[4].y1 - ls[7].y1, 2);
    // Arms 1 to 4 start anew at the pentagon's corners.
    EXPECT_EQ(Point(ls[13].x1, ls[13].y1), Point(667 + 824, 4590 - 2054 - 2536));
    EXPECT_EQ(Point(ls[26].x1, ls[26].y1), Point(667 + 824 + 2160 + 2668, 0));
    EXPECT_EQ(ls[39].y1, 4590);
    EXPECT_EQ(Point(ls[52].x1, ls[52].y1),
              Point(667 + 824 + 2160 + 2668 + 667 + 824 - 1747 - 2158, 4590 + 1269 + 1568));
    // Arm 1 turns stroke 1 to heading 0, and its stroke 3 lands only within the floors.
    EXPECT_EQ(Point(ls[13].x2 - ls[13].x1, ls[13].y2), Point(2160, ls[13].y1));
    EXPECT_NE(ls[15].x2, ls[13].x1);
    for (int arm = 1; arm < 5; ++arm) {  // stroke 11 of every arm ends near the centre
        EXPECT_NEAR(ls[13 * arm + 10].x2, ls[10].x2, 16) << arm;
        EXPECT_NEAR(ls[13 * arm + 10].y2, ls[10].y2, 16) << arm;
    }
    // Every part is floored anew from the preview's smaller side.
    auto parts = [](Integer side) {
        const GreatDodecaParts p = GreatDodecaPartsFor(side);
        return std::vector<int>({p.shortSide, p.sideCos36, p.sideSin36, p.sideCos72, p.sideSin72,
                                 p.shortCos36, p.shortSin36, p.shortCos72, p.shortSin72});
    };
    EXPECT_EQ(parts(2160), std::vector<int>({1334, 1747, 1269, 667, 2054, 1079, 784, 412, 1268}));
    EXPECT_EQ(parts(1200), std::vector<int>({741, 970, 705, 370, 1141, 599, 435, 228, 704}));
}
