// The rhombic dodecahedron: one closed walk then the folds, the reach of the
// second preview copy, and the waste-rhombus label.
#include <gtest/gtest.h>

#include "templates/rhombi_dodec.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(RhombiDodec, OneClosedWalkThenElevenFolds) {
    TestApp t;
    auto ls = PrintAt(t, "frmRhombiDodec", "1");  // first copy at (1600, 0)
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
