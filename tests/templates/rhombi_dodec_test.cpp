// The rhombic dodecahedron net: where the copies stand, how the loops end,
// the waste-rhombus warning, and the sides that are refused.

#include <gtest/gtest.h>

#include "dodec_sheet.h"
#include "templates/frm_rhombi_dodec.h"
#include "templates/rhombi_dodec.h"

namespace gp {
namespace {

using test::Sheet;
using test::Tiles;

Tiles TilesOf(const Sheet& sh) { return test::TilesOf(sh.lines(), kRhombiDodecStrokes); }

TEST(RhombiDodecSheet, WorkedFigures) {
    Sheet print(11520, 15120);  // "1.45" on paper
    DrawRhombiDodecSheet(print.s, 2088, 0);
    EXPECT_EQ(TilesOf(print), (Tiles{{2320, 0}, {7656, 0}}));

    Sheet inch(11520, 15120);
    DrawRhombiDodecSheet(inch.s, 1440, 0);
    EXPECT_EQ(TilesOf(inch), (Tiles{{1600, 0}, {5280, 0}, {8960, 0}}));
}

size_t Copies(Single w, Single h, int side, int rowStart) {
    Sheet sh(w, h);
    DrawRhombiDodecSheet(sh.s, side, rowStart);
    return TilesOf(sh).size();
}

TEST(RhombiDodecSheet, LoopEnds) {
    const int form = TemplateForm::kPreviewLeft;
    // The column test sees the right tip: two copies on the canvas up to
    // 1.47 inches, one from 1.48.
    EXPECT_EQ(Copies(9405, 8400, 1168, form), 2u);
    EXPECT_EQ(Copies(9405, 8400, 1176, form), 2u);
    EXPECT_EQ(Copies(9405, 8400, 1184, form), 1u);
    // At the default the second copy reaches 9315, inside the canvas.
    Sheet d(9405, 8400);
    DrawRhombiDodecSheet(d.s, 1160, form);
    float right = 0;
    for (const Stroke& s : d.lines()) right = std::max({right, s.x1, s.x2});
    EXPECT_NEAR(right, 9315, 1);

    // The row test sees the spine only: 1.85 inches still fits a row on the
    // canvas and on the sheet, 1.86 draws nothing.
    EXPECT_EQ(Copies(9405, 8400, 1480, form), 1u);
    EXPECT_EQ(Copies(9405, 8400, 1488, form), 0u);
    EXPECT_EQ(Copies(11520, 15120, 2664, 0), 1u);
    EXPECT_EQ(Copies(11520, 15120, 2678, 0), 0u);

    // Smaller sides fill more rows, each a spine's height below the last.
    Sheet e(11520, 15120);
    DrawRhombiDodecSheet(e.s, 720, 0);
    const Tiles t = TilesOf(e);
    ASSERT_EQ(t.size(), 18u);  // 6 columns, 3 rows
    EXPECT_EQ(t[5], std::make_pair(800.f + 5 * 1840, 0.f));
    EXPECT_EQ(t[6], std::make_pair(800.f, 4073.f));  // CInt(4320 * s1)
    EXPECT_EQ(t[12], std::make_pair(800.f, 8146.f));
}

TEST(RhombiDodecCopy, OneClosedWalkThenElevenFolds) {
    Sheet c(11520, 15120);
    DrawRhombiDodecCopy(c.s, 1440, 1600, 0);
    const auto ls = c.lines();
    ASSERT_EQ(ls.size(), 38u);
    for (size_t i = 1; i < ls.size(); ++i) {
        EXPECT_EQ(ls[i].x1, ls[i - 1].x2) << i;  // no break in the walk
        EXPECT_EQ(ls[i].y1, ls[i - 1].y2) << i;
        EXPECT_EQ(ls[i].style, i < 27 ? 0 : 1) << i;
    }
    EXPECT_EQ(c.s.DrawStyle(), 0);
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
}

// The form around the figure: the label, the range of txtLeng_Change, the
// print, and the sides it refuses.
struct RhombiDodecForm : ::testing::Test {
    test::TestApp t;
    Label& info2(Form& f) { return *dynamic_cast<Label*>(f.find("lblInfo2")); }
    TextBox& leng(Form& f) { return *dynamic_cast<TextBox*>(f.find("txtLeng")); }
};

TEST_F(RhombiDodecForm, DesignAndDefaultPreview) {
    const FormDesign d = TemplateForm::BuildDesign(FrmRhombiDodec::Description());
    EXPECT_EQ(d.caption, "Rhombus Dodecahedron Template");
    EXPECT_EQ(d.clientWidth, 9405);
    EXPECT_EQ(d.clientHeight, 8400);
    EXPECT_EQ(d.backColor, RGB(0, 192, 192));

    Form& f = t.show("frmRhombiDodec");
    EXPECT_EQ(leng(f).Text(), "1.45");
    // 1160 twips: two copies, and the label comes up at once.
    const auto ls = t.lines("frmRhombiDodec");
    ASSERT_EQ(ls.size(), 2u * kRhombiDodecStrokes);
    EXPECT_EQ(ls[0].x1, 4289);
    EXPECT_EQ(ls[0].x2 - ls[0].x1, 1160);  // the top edge is one side
    EXPECT_EQ(ls[38].x1, 7253);
    EXPECT_TRUE(info2(f).Visible());
    EXPECT_EQ(info2(f).Caption(),
              "If you print more than one template, you will cut out a smaller rhombi.  Remove them.   "
              "The template only contains large rhombi.");

    t.fire(f, "mnuInfo", Event::Click);
    ASSERT_EQ(t.dialogs().size(), 1u);
    EXPECT_EQ(t.dialogs()[0].title, "Info");
}

TEST_F(RhombiDodecForm, LabelFollowsTheFlooredSideAndStays) {
    // Loaded but not shown, so no preview has run yet.
    Form& f = t.app().load("frmRhombiDodec");
    EXPECT_FALSE(info2(f).Visible());
    t.edit(f, "txtLeng", "1.46");  // preview side 1168: 1.46, no label
    EXPECT_FALSE(info2(f).Visible());
    EXPECT_EQ(t.lines("frmRhombiDodec").size(), 2u * kRhombiDodecStrokes);
    t.fire(f, "cmdPrintIt", Event::Click);  // print side 2102: below 1.46
    EXPECT_TRUE(info2(f).Visible());
    t.edit(f, "txtLeng", "1.5");
    EXPECT_TRUE(info2(f).Visible());  // nothing hides it again
}

TEST_F(RhombiDodecForm, RangeOfChange) {
    Form& f = t.show("frmRhombiDodec");
    t.clear();
    t.edit(f, "txtLeng", "");  // keeps the preview: no Cls
    EXPECT_TRUE(t.ops().empty());
    t.edit(f, "txtLeng", "4");  // out of range: blank
    EXPECT_EQ(t.count("frmRhombiDodec", "cls"), 1);
    EXPECT_EQ(t.count("frmRhombiDodec", "line"), 0);
    t.clear();
    t.edit(f, "txtLeng", "1.48");
    EXPECT_EQ(t.count("frmRhombiDodec", "line"), kRhombiDodecStrokes);
    t.clear();
    t.edit(f, "txtLeng", "1.86");  // in range, but no row fits the canvas
    EXPECT_EQ(t.count("frmRhombiDodec", "cls"), 1);
    EXPECT_EQ(t.count("frmRhombiDodec", "line"), 0);
    EXPECT_TRUE(t.faults().empty());
}

TEST_F(RhombiDodecForm, PrintIsOneSheet) {
    Form& f = t.show("frmRhombiDodec");
    t.clear();
    t.fire(f, "cmdPrintIt", Event::Click);
    const auto ls = t.lines("Printer");
    ASSERT_EQ(ls.size(), 2u * kRhombiDodecStrokes);
    EXPECT_EQ(ls[0].x1, 2320);
    EXPECT_EQ(ls[0].x2 - ls[0].x1, 2088);
    EXPECT_EQ(ls[38].x1, 7656);
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_EQ(t.printer().DrawStyle(), 0);
    // Above the preview's range a print still runs its loops: no row fits,
    // and the sheet ends empty.
    t.clear();
    t.edit(f, "txtLeng", "3");
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_EQ(t.count("Printer", "line"), 0);
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_TRUE(t.faults().empty());
}

TEST_F(RhombiDodecForm, RefusesSidesItCannotDraw) {
    Form& f = t.show("frmRhombiDodec");
    // 0.001 is 1 twip (millions of copies), 3.8 overflows side * 6.
    for (const char* text : {"0", "-1", "abc", "0.001", "0.002", "3.8", "30"}) {
        t.edit(f, "txtLeng", text);
        t.clear();
        t.fire(f, "cmdPrintIt", Event::Click);
        EXPECT_EQ(t.count("Printer", "line"), 0) << text;
        EXPECT_EQ(t.count("Printer", "enddoc"), 0) << text;
        EXPECT_EQ(t.faults().size(), 1u) << text;
        EXPECT_EQ(leng(f).Text(), text);
    }
    // 3.79 inches, 5457 twips: the largest side whose row test stays in
    // range is taken, and no row fits the sheet.
    t.clear();
    t.edit(f, "txtLeng", "3.79");
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_TRUE(t.faults().empty());
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    // A small but sane side fills the sheet without tripping the guard.
    t.clear();
    t.edit(f, "txtLeng", "0.03");
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_TRUE(t.faults().empty());
    EXPECT_GT(t.count("Printer", "line"), 38 * 1000);
}

} // namespace
} // namespace gp
