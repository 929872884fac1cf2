// The walks of the two dodecahedron figures: the rhombic dodecahedron's
// closed outline and folds with its waste-rhombus label, and the great
// dodecagon's floored parts and five arms of 13 strokes.
#include <gtest/gtest.h>

#include "templates/great_dodeca.h"
#include "templates/rhombi_dodec.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(RhombiDodec, OneClosedWalkThenElevenFolds) {
    TestApp t;
    auto ls = DrawAt(t, "frmRhombiDodec", "1", true);  // first copy at (1600, 0)
    ASSERT_GE(ls.size(), kRhombiDodecStrokes);
    for (size_t i = 1; i < kRhombiDodecStrokes; ++i) {
        EXPECT_EQ(Point(ls[i].x1, ls[i].y1), Point(ls[i - 1].x2, ls[i - 1].y2)) << i;  // no break
        EXPECT_EQ(ls[i].style, i < 27 ? 0 : 1) << i;
    }
    const double spine = 6 * 1440 * 0.9428090416;
    EXPECT_NEAR(ls[12].x2, 1600 + 1440, 0.01);  // down the right side
    EXPECT_NEAR(ls[12].y2, spine, 0.01);
    EXPECT_NEAR(ls[13].x2, 1600, 0.01);         // bottom edge
    EXPECT_NEAR(ls[25].y2, 0, 0.01);            // back up the left side
    EXPECT_NEAR(ls[26].x2, 1600 + 1440, 0.01);  // over the top edge again
    EXPECT_NEAR(ls[37].x2, 1600, 0.01);         // the zigzag ends at the bottom
    EXPECT_NEAR(ls[37].y2, spine, 0.01);
    // The first right rhombus reaches out to 1.7778 side.
    EXPECT_NEAR(ls[1].x2, 1600 + 1440 * (1 + 7.0 / 9), 0.01);
    EXPECT_NEAR(ls[1].y2, 1440 * 0.6285393611, 0.01);
    // At the default the second preview copy reaches 9315, inside the canvas.
    TestApp p;
    p.show("frmRhombiDodec");
    float right = 0;
    for (const Stroke& s : p.lines("frmRhombiDodec")) right = std::max({right, s.x1, s.x2});
    EXPECT_NEAR(right, 9315, 1);
}

TEST(RhombiDodec, LabelFollowsTheFlooredSideAndStays) {
    TestApp t;
    auto info2 = [&](Form& f) -> Label& { return *dynamic_cast<Label*>(f.find("lblInfo2")); };
    Form& shown = t.show("frmRhombiDodec");  // 1160 / 800 is below 1.46: at once
    EXPECT_TRUE(info2(shown).Visible());
    EXPECT_EQ(info2(shown).Caption(),
              "If you print more than one template, you will cut out a smaller rhombi.  Remove them.   "
              "The template only contains large rhombi.");
    TestApp u;
    Form& f = u.app().load("frmRhombiDodec");  // loaded, no preview yet
    EXPECT_FALSE(info2(f).Visible());
    u.edit(f, "txtLeng", "1.46");  // preview side 1168: not below 1.46
    EXPECT_FALSE(info2(f).Visible());
    u.fire(f, "cmdPrintIt", Event::Click);  // print side 2102: below
    EXPECT_TRUE(info2(f).Visible());
    u.edit(f, "txtLeng", "1.5");
    EXPECT_TRUE(info2(f).Visible());  // nothing hides it again
}

TEST(GreatDodeca, PartsArmWalkStylesAndFloors) {
    TestApp t;
    auto ls = DrawAt(t, "frmGreatDodeca", "1.5", true);  // side 2160, first copy at (0, 4590)
    ASSERT_GE(ls.size(), 65u);
    const int style[13] = {0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0, 1, 1};
    float top = 1e9f;
    for (size_t i = 0; i < 65; ++i) {
        EXPECT_EQ(ls[i].style, style[i % 13]) << i;
        top = std::min({top, ls[i].y1, ls[i].y2});
        if (i % 13 == 0) continue;  // each arm starts anew
        EXPECT_EQ(Point(ls[i].x1, ls[i].y1), Point(ls[i - 1].x2, ls[i - 1].y2)) << i;
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
