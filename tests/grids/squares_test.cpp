// The squares sheets: grid edges and loop ends, the multiplication chart
// (landscape and back, its numbers), the centred grid, the puzzle sheet, and
// the cell sizes they refuse.
#include "grids/page.h"

using namespace gp;
using gp::test::GridPage;

namespace {
GridPage grid(const char* form, const std::string& cw, const std::string& ch, const char* chart = "0",
          Single w = 11520, Single h = 15120) {
    return GridPage(form, {{"txtWidth", cw}, {"txtHigh", ch}, {"chkMult", chart}}, "cmdPrintIt", w, h);
}
long verticals(const std::vector<Stroke>& l) {
    return std::count_if(l.begin(), l.end(), [](const Stroke& s) { return s.x1 == s.x2 && s.y1 != s.y2; });
}
}

TEST(SquaresSheet, GridEdgesAndLoopEnds) {
    // Whole cells only; both far edges are drawn, the lines overshoot by a
    // twip, and the centred grid halves the left-over with the fraction cut.
    struct Case { const char *form, *cw, *ch; Single w, h; long v; float x0, y0, xEnd, yEnd, right, bottom; };
    const Case cases[] = {
        {"frmSquares", ".5", ".5", 11520, 15120, 17, 1, 721, 11521, 15121, 11521, 15121},
        {"frmSquares", ".7", "1.3", 11520, 15120, 12, 1, 1873, 11078, 14977, 11078, 14977},
        {"frmSquares", "9", ".5", 11520, 15120, 1, 1, 721, 1, 15121, 1, 15121},
        {"frmSquares2", ".5", ".5", 11520, 15120, 17, 0, 0, 11520, 15120, 11521, 15121},
        {"frmSquares2", ".5", ".5", 11001, 15121, 16, 100, 0, 10900, 15120, 10901, 15121},  // 201, 1 over
        {"frmSquares2", "9", ".5", 11520, 15120, 1, 5760, 0, 5760, 15120, 5761, 15121}};
    for (const Case& c : cases) {
        GridPage s = grid(c.form, c.cw, c.ch, "0", c.w, c.h);
        auto l = s.lines();
        SCOPED_TRACE(std::string(c.form) + " " + c.cw + " " + std::to_string(c.w));
        EXPECT_EQ(verticals(l), c.v);
        EXPECT_EQ(l[0].x1, c.x0); EXPECT_EQ(l[0].y1, c.y0); EXPECT_EQ(l[0].y2, c.bottom);
        EXPECT_EQ(l[c.v - 1].x1, c.xEnd); EXPECT_EQ(l.back().y1, c.yEnd); EXPECT_EQ(l.back().x2, c.right);
        EXPECT_EQ(l[0].width, 2);
        EXPECT_EQ(s.t.count("Printer", "orientation"), 0);
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    }
}

TEST(MultiplicationChart, LandscapeSheetWithCentredNumbersTurnedBackAfterEndDoc) {
    GridPage s = grid("frmSquares", ".5", ".5", "1");
    auto l = s.lines();
    auto& ops = s.t.ops();
    EXPECT_EQ(ops.front().op + ops[ops.size() - 2].op + ops.back().op, "orientationenddocorientation");
    EXPECT_EQ(ops.front().value, 2); EXPECT_EQ(ops.back().value, 1);
    EXPECT_EQ(l[0].y2, 11521); EXPECT_EQ(l.back().x2, 15121);  // 15120 wide, 11520 high
    auto p = s.t.opsOf("Printer", "print");
    ASSERT_EQ(p.size(), 1u + 21 * 15);  // the heading, 21 columns of 15
    EXPECT_EQ(p[0].text, "Name this chart: ");
    EXPECT_EQ(p[0].stroke.x1, 500); EXPECT_EQ(p[0].font.name, "Georgia"); EXPECT_EQ(p[0].font.size, 20);
    // Without a font engine a 14 point digit is 140 wide and a line 322 high.
    EXPECT_EQ(p[1].text, "1"); EXPECT_EQ(p[1].font.size, 14);
    EXPECT_EQ(p[1].stroke.x1, 291); EXPECT_EQ(p[1].stroke.y1, 920);  // CInt(361 - 70), CInt(1081 - 161)
    EXPECT_EQ(p.back().text, "315");  // each number centred by its own width
    EXPECT_EQ(p.back().stroke.x1, 14551); EXPECT_EQ(p.back().stroke.y1, 920 + 14 * 720);
    EXPECT_EQ(grid("frmSquares", "11", ".5", "1").t.opsOf("Printer", "print").size(), 1u);  // heading only
}

TEST(SquaresSheet, CellsTheLoopsCannotStepOverOrProductsBeyondAnIntegerAreRefusedAtOnce) {
    // A refused cell does not even turn the sheet; a refused chart turns it back.
    for (const std::string cell : {"0", "-1", "abc", "", ".0005", "30", ".02"}) {
        const bool chart = cell == ".02";
        GridPage s = grid("frmSquares", chart ? cell : ".5", cell, "1");
        SCOPED_TRACE(cell);
        EXPECT_EQ(s.t.ops().size(), chart ? 2u : 0u);
        EXPECT_EQ(s.t.count("Printer", "orientation"), chart ? 2 : 0);
        ASSERT_EQ(s.t.faults().size(), 1u);
        EXPECT_NE(s.t.faults()[0].find(chart ? "32767" : "Nothing was printed"), std::string::npos);
        EXPECT_EQ(s.t.printer().Orientation(), 1);
        s.t.clear();
        s.click({{"txtWidth", ".5"}, {"txtHigh", ".5"}, {"chkMult", "0"}}, "cmdPrintIt");
        EXPECT_EQ(s.lines()[0].y2, 15121);  // the next sheet is portrait
    }
}

TEST(PuzzleSheet, CopiesStandInColumnsAndEachClosesOnItsCorner) {
    const float corners[6][2] = {{800, 800}, {800, 5264}, {800, 9728},
                                 {5984, 800}, {5984, 5264}, {5984, 9728}};
    for (const char* form : {"frmSquares", "frmSquares2"}) {
        auto l = GridPage(form, {{"txtHigh", "abc"}}, "cmdStart").lines();  // the boxes play no part
        ASSERT_EQ(l.size(), 6u * 14) << form;
        for (int c = 0; c < 6; ++c) {
            EXPECT_EQ(l[c * 14].x1, corners[c][0]); EXPECT_EQ(l[c * 14].y1, corners[c][1]);
            EXPECT_EQ(l[c * 14].y2, corners[c][1] + 4320);
            EXPECT_EQ(l[c * 14 + 11].x2 - l[c * 14 + 11].x1, -3600);
            EXPECT_EQ(l[c * 14 + 13].x2, corners[c][0]); EXPECT_EQ(l[c * 14 + 13].y2, corners[c][1]);
        }
    }
    // Too small an area prints an empty sheet; 2240 square holds one copy.
    for (auto [w, h, n] : {std::tuple{2239.f, 15120.f, 0}, {2240.f, 2240.f, 14}}) {
        GridPage s("frmSquares", {}, "cmdStart", w, h);
        EXPECT_EQ(s.t.count("Printer", "line"), n);
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    }
}
