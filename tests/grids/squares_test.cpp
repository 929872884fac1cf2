// The squares sheets: grid edges and loop ends, the multiplication chart
// (landscape and back, its numbers and where they stand), the centred grid,
// the puzzle sheet behind both forms, and the cell sizes they refuse.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/test_app.h"

using namespace gp;
using gp::test::Op;
using gp::test::TestApp;

namespace {
struct Squares {
    TestApp t;
    Form* f;
    explicit Squares(const std::string& form = "frmSquares", Single w = 11520, Single h = 15120)
        : t(w, h) {
        f = &t.show(form);
    }
    void print(const std::string& width, const std::string& high, bool table = false,
               const std::string& button = "cmdPrintIt") {
        t.edit(*f, "txtWidth", width);
        t.edit(*f, "txtHigh", high);
        if (table) dynamic_cast<CheckBox*>(f->find("chkMult"))->setValue(1);
        t.fire(*f, button, Event::Click);
    }
    std::vector<Stroke> lines() const { return t.lines("Printer"); }
    std::vector<Op> prints() const { return t.opsOf("Printer", "print"); }
};

bool vertical(const Stroke& s) { return s.x1 == s.x2 && s.y1 != s.y2; }
}

TEST(SquaresSheet, DefaultsLeaveTheTopStripAndEndOnBothEdges) {
    Squares s;
    s.print(".5", ".5");
    auto l = s.lines();
    ASSERT_EQ(l.size(), 17u + 21u);  // x = 1 .. 11521, y = 721 .. 15121
    EXPECT_EQ(l[0].x1, 1); EXPECT_EQ(l[0].y1, 721); EXPECT_EQ(l[0].y2, 15121);
    EXPECT_EQ(l[1].x1, 721);
    EXPECT_EQ(l[16].x1, 11521);  // maxX is drawn
    EXPECT_EQ(l[17].y1, 721); EXPECT_EQ(l[17].x1, 1); EXPECT_EQ(l[17].x2, 11521);
    EXPECT_EQ(l.back().y1, 15121);  // maxY is drawn
    EXPECT_EQ(l[0].width, 2);
    EXPECT_EQ(s.t.count("Printer", "orientation"), 0);  // no chart: the sheet is not turned
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
}

TEST(SquaresSheet, UnevenCellsTakeOnlyWholeCells) {
    Squares s;
    s.print(".7", "1.3");  // 1007 by 1872 twips
    auto l = s.lines();
    const float maxX = 11 * 1007 + 1, maxY = 8 * 1872 + 1;
    EXPECT_EQ(std::count_if(l.begin(), l.end(), vertical), 12);
    for (const Stroke& st : l) {
        EXPECT_LE(std::max(st.x1, st.x2), maxX);
        EXPECT_LE(std::max(st.y1, st.y2), maxY);
    }
    EXPECT_EQ(l[0].y1, 1873);
    EXPECT_EQ(l.back().y1, maxY);
}

TEST(SquaresSheet, ACellWiderThanThePageLeavesOneLineAndFlatRows) {
    Squares s;
    s.print("9", ".5");
    auto l = s.lines();
    EXPECT_EQ(std::count_if(l.begin(), l.end(), vertical), 1);
    EXPECT_EQ(l[0].x1, 1);
    for (size_t i = 1; i < l.size(); ++i) EXPECT_EQ(l[i].x2, 1);
}

TEST(SquaresSheet, CellsTheLoopsCannotStepOverAreRefusedAtOnce) {
    for (const char* bad : {"0", "-1", "abc", "", ".0005", "30"}) {
        Squares s;
        s.print(".5", bad, true);
        EXPECT_EQ(s.t.ops().size(), 0u) << bad;  // not even the orientation
        ASSERT_EQ(s.t.faults().size(), 1u) << bad;
        EXPECT_NE(s.t.faults()[0].find("Nothing was printed"), std::string::npos);
        EXPECT_EQ(s.t.printer().Orientation(), 1);
    }
}

TEST(MultiplicationChart, TurnsTheSheetAndTurnsItBackAfterEndDoc) {
    Squares s;
    s.print(".5", ".5", true);
    auto& ops = s.t.ops();
    ASSERT_GE(ops.size(), 3u);
    EXPECT_EQ(ops.front().op, "orientation"); EXPECT_EQ(ops.front().value, 2);
    EXPECT_EQ(ops[ops.size() - 2].op, "enddoc");
    EXPECT_EQ(ops.back().op, "orientation"); EXPECT_EQ(ops.back().value, 1);
    // The landscape sheet: 15120 wide, 11520 high.
    auto l = s.lines();
    EXPECT_EQ(l[0].y2, 11521);
    EXPECT_EQ(l.back().x2, 15121);
    EXPECT_EQ(s.t.printer().Orientation(), 1);
}

TEST(MultiplicationChart, HeadingAndProductsStandCentredInTheirCells) {
    Squares s;
    s.print(".5", ".5", true);
    auto p = s.prints();
    // 21 columns (colX 361 .. 14761) of 15 rows, and the heading.
    ASSERT_EQ(p.size(), 1u + 21 * 15);
    EXPECT_EQ(p[0].text, "Name this chart: ");
    EXPECT_EQ(p[0].stroke.x1, 500); EXPECT_EQ(p[0].stroke.y1, 100);
    EXPECT_EQ(p[0].font.name, "Georgia"); EXPECT_EQ(p[0].font.size, 20);
    // Without a font engine a 14 point digit is 140 wide and a line 322 high.
    EXPECT_EQ(p[1].text, "1"); EXPECT_EQ(p[1].font.size, 14);
    EXPECT_EQ(p[1].stroke.x1, 291);   // CInt(361 - 70)
    EXPECT_EQ(p[1].stroke.y1, 920);   // CInt(1081 - 161)
    EXPECT_EQ(p[2].text, "2"); EXPECT_EQ(p[2].stroke.y1, 1640);
    EXPECT_EQ(p[16].text, "2");       // second column, first row
    EXPECT_EQ(p[17].text, "4");
    EXPECT_EQ(p[17].stroke.x1, 1081 - 70);
    EXPECT_EQ(p.back().text, "315");
    EXPECT_EQ(p.back().stroke.x1, 14551);  // each number centred by its own width
    EXPECT_EQ(p.back().stroke.y1, 920 + 14 * 720);
}

TEST(MultiplicationChart, ACellWiderThanTheSheetPrintsTheHeadingOnly) {
    Squares s;
    s.print("11", ".5", true);
    ASSERT_EQ(s.prints().size(), 1u);
    EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
}

TEST(MultiplicationChart, ProductsBeyondAnIntegerAreRefusedBeforeDrawingAndTheSheetTurnsBack) {
    Squares s;
    s.print(".02", ".02", true);
    EXPECT_EQ(s.t.count("Printer", "line"), 0);
    EXPECT_EQ(s.t.count("Printer", "print"), 0);
    ASSERT_EQ(s.t.faults().size(), 1u);
    EXPECT_NE(s.t.faults()[0].find("32767"), std::string::npos);
    EXPECT_EQ(s.t.ops().back().op, "orientation");
    EXPECT_EQ(s.t.printer().Orientation(), 1);
    // The next sheet is portrait again.
    dynamic_cast<CheckBox*>(s.f->find("chkMult"))->setValue(0);
    s.t.clear();
    s.print(".5", ".5");
    EXPECT_EQ(s.lines()[0].y2, 15121);
}

TEST(CenteredSquares, DefaultsFillTheAreaAndOvershootByOneTwip) {
    Squares s("frmSquares2");
    s.print(".5", ".5");
    auto l = s.lines();
    ASSERT_EQ(l.size(), 17u + 22u);  // x = 0 .. 11520, y = 0 .. 15120
    EXPECT_EQ(l[0].x1, 0); EXPECT_EQ(l[0].y1, 0); EXPECT_EQ(l[0].y2, 15121);
    EXPECT_EQ(l[16].x1, 11520);
    EXPECT_EQ(l[17].y1, 0); EXPECT_EQ(l[17].x2, 11521);
    EXPECT_EQ(l.back().y1, 15120);
}

TEST(CenteredSquares, TheLeftOverIsHalvedWithTheFractionCut) {
    Squares even("frmSquares2", 11000, 15120);
    even.print(".5", ".5");
    EXPECT_EQ(even.lines()[0].x1, 100);  // 200 left over
    Squares odd("frmSquares2", 11001, 15121);
    odd.print(".5", ".5");
    auto l = odd.lines();
    EXPECT_EQ(l[0].x1, 100);   // 201 left over
    EXPECT_EQ(l[0].y1, 0);     // 1 left over
    EXPECT_EQ(l[0].y2, 15121);
}

TEST(CenteredSquares, ACellWiderThanThePageStandsInTheMiddle) {
    Squares s("frmSquares2");
    s.print("9", ".5");
    auto l = s.lines();
    EXPECT_EQ(std::count_if(l.begin(), l.end(), vertical), 1);
    EXPECT_EQ(l[0].x1, 5760);
}

TEST(PuzzleSheet, CopiesStandInColumnsAndEachClosesOnItsCorner) {
    for (const char* form : {"frmSquares", "frmSquares2"}) {
        Squares s(form);
        s.print("3", "abc", false, "cmdStart");  // the boxes play no part
        auto l = s.lines();
        ASSERT_EQ(l.size(), 6u * 14) << form;
        const float corners[6][2] = {{800, 800}, {800, 5264}, {800, 9728},
                                     {5984, 800}, {5984, 5264}, {5984, 9728}};
        for (int c = 0; c < 6; ++c) {
            EXPECT_EQ(l[c * 14].x1, corners[c][0]);
            EXPECT_EQ(l[c * 14].y1, corners[c][1]);
            EXPECT_EQ(l[c * 14].y2, corners[c][1] + 4320);
            EXPECT_EQ(l[c * 14 + 11].x2 - l[c * 14 + 11].x1, -3600);
            EXPECT_EQ(l[c * 14 + 13].x2, corners[c][0]);
            EXPECT_EQ(l[c * 14 + 13].y2, corners[c][1]);
        }
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    }
}

TEST(PuzzleSheet, TooSmallAnAreaPrintsAnEmptySheet) {
    Squares narrow("frmSquares", 2239, 15120);
    narrow.t.fire(*narrow.f, "cmdStart", Event::Click);
    EXPECT_EQ(narrow.t.count("Printer", "line"), 0);
    EXPECT_EQ(narrow.t.count("Printer", "enddoc"), 1);
    Squares just("frmSquares", 2240, 2240);
    just.t.fire(*just.f, "cmdStart", Event::Click);
    EXPECT_EQ(just.t.count("Printer", "line"), 14);
}
