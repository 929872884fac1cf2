// The great dodecagon net: the floored parts, the five arms of 13 strokes,
// the tiling with its tests at the ends of the loops, and refused sides.

#include <gtest/gtest.h>

#include "dodec_sheet.h"
#include "templates/frm_great_dodeca.h"
#include "templates/great_dodeca.h"

namespace gp {
namespace {

using test::Sheet;
using test::Tiles;

constexpr size_t kCopyStrokes = kGreatDodecaStrokes;

Tiles TilesOf(const Sheet& sh) { return test::TilesOf(sh.lines(), kCopyStrokes); }

Tiles Grid(std::vector<float> xs, std::vector<float> ys) {
    Tiles t;
    for (float y : ys)
        for (float x : xs) t.push_back({x, y});
    return t;
}

TEST(GreatDodecaParts, DefaultSidesOnBothSurfaces) {
    const GreatDodecaParts p = GreatDodecaPartsFor(2160);  // print, "1.5"
    EXPECT_EQ(std::vector<int>({p.shortSide, p.sideCos36, p.sideSin36, p.sideCos72, p.sideSin72,
                                p.shortCos36, p.shortSin36, p.shortCos72, p.shortSin72}),
              std::vector<int>({1334, 1747, 1269, 667, 2054, 1079, 784, 412, 1268}));
    const GreatDodecaParts q = GreatDodecaPartsFor(1200);  // preview, "1.5"
    EXPECT_EQ(std::vector<int>({q.shortSide, q.sideCos36, q.sideSin36, q.sideCos72, q.sideSin72,
                                q.shortCos36, q.shortSin36, q.shortCos72, q.shortSin72}),
              std::vector<int>({741, 970, 705, 370, 1141, 599, 435, 228, 704}));
}

TEST(GreatDodecaSheet, PrintTiling) {
    struct Case {
        int side;
        Tiles tiles;
    };
    const Case cases[] = {
        {2160, Grid({0}, {4590, 12018})},  // the two nets that the solid needs
        {1440, Grid({0, 4994}, {3059, 8009, 12959})},
        {1080, Grid({0, 3750, 7500}, {2295, 6009, 9723, 13437})},
        {2880, Grid({0}, {6121})},  // one copy, clipped
    };
    for (const Case& c : cases) {
        Sheet sh(11520, 15120);
        DrawGreatDodecaSheet(sh.s, c.side, 0);
        EXPECT_EQ(TilesOf(sh), c.tiles) << c.side;
        EXPECT_EQ(sh.lines().size(), c.tiles.size() * kCopyStrokes);
    }
}

TEST(GreatDodecaSheet, PreviewTiling) {
    struct Case {
        int side;
        Tiles tiles;
    };
    const Case cases[] = {
        {1200, Grid({3000}, {2549, 6674})},
        {800, Grid({3000, 5776}, {1698, 4446, 7194})},
        {600, Grid({3000, 5080, 7160}, {1272, 3331, 5390, 7449})},
    };
    for (const Case& c : cases) {
        Sheet sh(9405, 8415);
        DrawGreatDodecaSheet(sh.s, c.side, TemplateForm::kPreviewLeft);
        EXPECT_EQ(TilesOf(sh), c.tiles) << c.side;
    }
    // From 2 inches to the top of the range one copy, clipped at 3.
    for (int side : {1600, 2000, 2400}) {
        Sheet sh(9405, 8415);
        DrawGreatDodecaSheet(sh.s, side, TemplateForm::kPreviewLeft);
        EXPECT_EQ(TilesOf(sh).size(), 1u) << side;
    }
}

TEST(GreatDodecaSheet, TooLargeStillDrawsOneCopyAtTheTop) {
    Sheet sh(1000, 1000);
    DrawGreatDodecaSheet(sh.s, 2160, 0);
    ASSERT_EQ(TilesOf(sh), Grid({0}, {4590}));
    // The starts of arms 1 and 2 lie on y = 0: the net touches the top.
    float top = 1e9f;
    for (const Stroke& s : sh.lines()) top = std::min({top, s.y1, s.y2});
    EXPECT_EQ(top, 0);
}

TEST(GreatDodecaCopy, ArmWalkStylesAndFloors) {
    Sheet sh(11520, 15120);
    const GreatDodecaParts p = GreatDodecaPartsFor(2160);
    DrawGreatDodecaCopy(sh.s, p, 0, 4590);
    const GridPoint arm4 = GreatDodecaArmStarts(p, 0, 4590)[4];
    EXPECT_EQ(arm4.x, 667 + 824 + 2160 + 2668 + 667 + 824 - 1747 - 2158);
    EXPECT_EQ(arm4.y, 4590 + 1269 + 1568);
    const auto ls = sh.lines();
    ASSERT_EQ(ls.size(), kCopyStrokes);
    const int style[13] = {0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0, 1, 1};
    for (size_t i = 0; i < ls.size(); ++i) {
        const size_t k = i % 13;
        EXPECT_EQ(ls[i].style, style[k]) << i;
        if (k != 0) {
            EXPECT_EQ(ls[i].x1, ls[i - 1].x2) << i;
            EXPECT_EQ(ls[i].y1, ls[i - 1].y2) << i;
        }
    }
    EXPECT_EQ(sh.s.DrawStyle(), 0);
    // Arm 0: stroke 1 up at 288 degrees, stroke 3 back exactly to the start.
    EXPECT_EQ(ls[0].x2, 667);
    EXPECT_EQ(ls[0].y2, 4590 - 2054);
    EXPECT_EQ(ls[2].x2, 0);
    EXPECT_EQ(ls[2].y2, 4590);
    // Strokes 5 and 8 lie on the same line but 2 twips apart at this side.
    EXPECT_EQ(ls[7].x1, ls[4].x1);
    EXPECT_EQ(ls[4].y1 - ls[7].y1, 2);
    // Arms 1 to 4 start at the pentagon's corners.
    EXPECT_EQ(ls[13].x1, 667 + 824);
    EXPECT_EQ(ls[13].y1, 4590 - 2054 - 2536);
    EXPECT_EQ(ls[26].x1, 667 + 824 + 2160 + 2668);
    EXPECT_EQ(ls[26].y1, 0);
    EXPECT_EQ(ls[39].y1, 4590);
    EXPECT_EQ(ls[52].x1, arm4.x);
    // Arm 1 turns stroke 1 to heading 0: a long stroke along x.
    EXPECT_EQ(ls[13].x2 - ls[13].x1, 2160);
    EXPECT_EQ(ls[13].y2, ls[13].y1);
    // In arm 1 stroke 3 is a step and lands only within the floors.
    EXPECT_NE(ls[15].x2, ls[13].x1);
    // The centre: stroke 11 of every arm ends near the same point.
    for (int arm = 1; arm < 5; ++arm) {
        EXPECT_NEAR(ls[13 * arm + 10].x2, ls[10].x2, 16) << arm;
        EXPECT_NEAR(ls[13 * arm + 10].y2, ls[10].y2, 16) << arm;
    }
}

struct GreatDodecaForm : ::testing::Test {
    test::TestApp t;
    TextBox& leng(Form& f) { return *dynamic_cast<TextBox*>(f.find("txtLeng")); }
    Tiles tiles(const std::string& surface) {
        Tiles out;
        const auto ls = t.lines(surface);
        for (size_t i = 0; i < ls.size(); i += kCopyStrokes) out.push_back({ls[i].x1, ls[i].y1});
        return out;
    }
};

TEST_F(GreatDodecaForm, DesignDefaultsAndInfo) {
    const FormDesign d = TemplateForm::BuildDesign(FrmGreatDodeca::Description());
    EXPECT_EQ(d.caption, "Great Dodecagon Template");
    EXPECT_EQ(d.clientWidth, 9405);
    EXPECT_EQ(d.clientHeight, 8415);
    EXPECT_EQ(d.backColor, RGB(128, 255, 128));
    for (const ControlDesign& c : d.controls) EXPECT_LE(c.left + c.width, 2775) << c.name;

    Form& f = t.show("frmGreatDodeca");
    EXPECT_EQ(leng(f).Text(), "1.5");
    EXPECT_EQ(tiles("frmGreatDodeca"), Grid({3000}, {2549, 6674}));
    EXPECT_EQ(t.lines("frmGreatDodeca")[13].x2 - t.lines("frmGreatDodeca")[13].x1, 1200);  // arm 1, long
    t.fire(f, "mnuInfo", Event::Click);
    ASSERT_EQ(t.dialogs().size(), 2u);
    EXPECT_EQ(t.dialogs()[0].title, "What is it?");
    EXPECT_EQ(t.dialogs()[1].title, "How do I put it together?");
    EXPECT_EQ(t.dialogs()[1].buttons, 0);
}

TEST_F(GreatDodecaForm, RangeOfChangeIncludesThree) {
    Form& f = t.show("frmGreatDodeca");
    t.clear();
    t.edit(f, "txtLeng", "3");  // the top of the range still redraws
    EXPECT_EQ(t.count("frmGreatDodeca", "cls"), 1);
    // side 2400: shortSin72 1410, sideSin72 2282; one copy, clipped.
    EXPECT_EQ(tiles("frmGreatDodeca"), Grid({3000}, {2 * 1410 + 2282}));
    t.clear();
    t.edit(f, "txtLeng", "3.01");
    EXPECT_EQ(t.count("frmGreatDodeca", "cls"), 1);
    EXPECT_EQ(t.count("frmGreatDodeca", "line"), 0);
    t.clear();
    t.edit(f, "txtLeng", "1");
    EXPECT_EQ(tiles("frmGreatDodeca"), Grid({3000, 5776}, {1698, 4446, 7194}));
    // Activating again draws over the old strokes, with no Cls.
    t.clear();
    t.fire(f, kFormEvents, Event::Activate);
    EXPECT_EQ(t.count("frmGreatDodeca", "cls"), 0);
    EXPECT_EQ(t.count("frmGreatDodeca", "line"), int(6 * kCopyStrokes));
}

TEST_F(GreatDodecaForm, PrintAndClosing) {
    Form& f = t.show("frmGreatDodeca");
    t.clear();
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_EQ(tiles("Printer"), Grid({0}, {4590, 12018}));
    EXPECT_EQ(t.lines("Printer")[13].x2 - t.lines("Printer")[13].x1, 2160);
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_EQ(t.printer().DrawStyle(), 0);
    // No Form_QueryUnload: closing by the frame unloads, and the next
    // opening has the default again; Exit keeps what was typed.
    t.edit(f, "txtLeng", "2");
    t.fire(f, "cmdExit", Event::Click);
    EXPECT_EQ(leng(t.show("frmGreatDodeca")).Text(), "2");
    t.app().closeByFrame(*t.app().loaded("frmGreatDodeca"));
    EXPECT_EQ(leng(t.show("frmGreatDodeca")).Text(), "1.5");
}

TEST_F(GreatDodecaForm, RefusesSidesItCannotDraw) {
    Form& f = t.show("frmGreatDodeca");
    // 0.0007 and 0.001 are 1 twip: a row step of 0. 0.002 needs millions
    // of copies; from 4.089 inches the second row's tileY overflows.
    for (const char* text : {"0", "-1.5", "0.0007", "0.001", "0.002", "4.089", "23"}) {
        t.edit(f, "txtLeng", text);
        t.clear();
        t.fire(f, "cmdPrintIt", Event::Click);
        EXPECT_EQ(t.count("Printer", "line"), 0) << text;
        EXPECT_EQ(t.count("Printer", "enddoc"), 0) << text;
        EXPECT_EQ(t.faults().size(), 1u) << text;
        EXPECT_EQ(leng(f).Text(), text);
    }
    // The largest side whose first row step fits: one copy, clipped.
    t.clear();
    t.edit(f, "txtLeng", "4.088");
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_TRUE(t.faults().empty());
    EXPECT_EQ(t.count("Printer", "line"), int(kCopyStrokes));
    // A small but sane side fills the sheet without tripping the guard.
    t.clear();
    t.edit(f, "txtLeng", "0.03");
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_TRUE(t.faults().empty());
    EXPECT_GT(t.count("Printer", "line"), int(kCopyStrokes) * 1000);
}

} // namespace
} // namespace gp
