// "Print It" of frmString2: the two questions, the exchanged axes, Tics + 1
// strings a corner, the scaled and centred figure, and the points that
// come back after a scaled print.

#include "string2_fixture.h"

namespace gp::string2test {
namespace {

void answers(test::TestApp& t, const char* scale, const char* colours) {
    t.answer(scale);
    t.answer(colours);
}

TEST_F(String2Test, PrintQuestionsAndRefusals) {
    t.answer("2");  // Cancel at the first question: nothing more
    press("cmdPrintIt");
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].title, "Make Width of paper?");
    EXPECT_EQ(lastPrompt(), " Do you want the shape Scaled to the width and height of the paper?");
    EXPECT_EQ(boxes()[0].buttons, vbYesNoCancel);
    EXPECT_TRUE(t.opsOf("Printer").empty());

    press("Command1");
    click(3000, 3000);
    click(4000, 3000);
    t.clear();
    press("cmdPrintIt");
    EXPECT_EQ(boxes()[0].title, "Need More Points");
    EXPECT_EQ(lastPrompt(), "You may not print a shape with less than three points");
    EXPECT_TRUE(t.opsOf("Printer").empty());
}

TEST_F(String2Test, FullSizePrintExchangesTheAxes) {
    type("txtTics", "4");
    chain({{1000, 1000}, {2000, 1000}, {2000, 3000}});
    t.clear();
    answers(t, "7", "7");
    press("cmdPrintIt");
    EXPECT_EQ(boxes()[1].title, "Colors?");
    EXPECT_EQ(lastPrompt(), "Do you want random colors?");
    EXPECT_EQ(segs("Printer"), (std::vector<Seg>{
                                   {1000, 1000, 1000, 2000, -1},  // PrintLin 1-2
                                   {1000, 2000, 3000, 2000, -1},  // PrintLin 2-3
                                   {1000, 1000, 1000, 2000, -1},  // k = 0, on the older segment
                                   {1000, 1250, 1500, 2000, -1},
                                   {1000, 1500, 2000, 2000, -1},
                                   {1000, 1750, 2500, 2000, -1},
                                   {1000, 2000, 3000, 2000, -1},
                               }));
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_EQ(f->nextPoint(), 4);
    EXPECT_TRUE(segs().empty());

    // Random colours: the two segments black, one colour a corner; the
    // check box has no say on paper.
    press("mnuCube");
    tick(1);
    t.clear();
    answers(t, "7", "6");
    press("cmdPrintIt");
    const auto s = segs("Printer");
    ASSERT_EQ(s.size(), 2u + 27 * 5);  // 4 tics + 1
    EXPECT_EQ(s[0][4] + s[1][4], -2);
    for (size_t i = 2; i < s.size(); ++i) ASSERT_EQ(s[i][4], s[2 + (i - 2) / 5 * 5][4]);
    t.clear();
    answers(t, "7", "7");
    press("cmdPrintIt");
    for (const Seg& seg : segs("Printer")) ASSERT_EQ(seg[4], -1);
}

class String2SmallPage : public String2Test {
protected:
    String2SmallPage() : String2Test(10200, 8200) {}
};

TEST_F(String2SmallPage, ScaledPrintFillsOneWayAndCentresTheOther) {
    press("mnuTriangle1");
    t.clear();
    answers(t, "6", "7");
    press("cmdPrintIt");
    const auto s = segs("Printer");
    ASSERT_EQ(s.size(), 2u + 3 * 16);
    // Factor 0.8 (the page height fills first), shifted 100 down and 1636
    // across: equal blanks left and right.
    EXPECT_EQ(s[0], (Seg{1636, 100, 1636, 8100, -1}));
    EXPECT_EQ(s[1], (Seg{1636, 8100, 8564, 4100, -1}));
    EXPECT_EQ(s[34], (Seg{8564, 4100, 1636, 100, -1}));  // k = 0 of the last corner
    // The plot points are back: the next click goes on from (11000, 100).
    EXPECT_EQ(f->pointY(3), 8760);
    t.clear();
    click(9000, 4000);
    EXPECT_EQ(segs()[0], (Seg{12560, 8885, 9000, 4000, -1}));
}

TEST_F(String2Test, ScaledPrintOfATallFigureFloorsItsPoints) {
    type("txtTics", "2");
    chain({{0, 0}, {100, 1000}, {200, 0}});
    t.clear();
    answers(t, "6", "7");
    press("cmdPrintIt");
    // Factor 11.32 as a Single (from the page width); 100 x 11.32 + 6428
    // falls just short of 7560.
    const auto s = segs("Printer");
    EXPECT_EQ(s[0], (Seg{100, 6428, 11419, 7559, -1}));
    EXPECT_EQ(s[1], (Seg{11419, 7559, 100, 8691, -1}));
    EXPECT_EQ(f->pointX(2), 100);
}

TEST_F(String2Test, FiguresThatCannotBePrintedKeepTheirPoints) {
    type("txtTics", "2");
    chain({{500, 100}, {500, 900}, {500, 300}, {500, 700}});  // one x for all
    t.clear();
    answers(t, "6", "7");
    press("cmdPrintIt");
    ASSERT_EQ(t.faults().size(), 1u);
    EXPECT_NE(t.faults()[0].find("scaled"), std::string::npos);
    EXPECT_TRUE(t.opsOf("Printer").empty());
    EXPECT_EQ(f->pointY(2), 900);
    answers(t, "7", "7");  // at full size it prints
    press("cmdPrintIt");
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);

    type("txtTics", "0");
    for (const char* scale : {"6", "7"}) {
        t.clear();
        answers(t, scale, "7");
        press("cmdPrintIt");
        EXPECT_EQ(t.faults().size(), 1u);
        EXPECT_TRUE(t.opsOf("Printer").empty());
        EXPECT_EQ(f->pointX(4), 500);
        EXPECT_EQ(f->pointY(4), 700);
    }
}

} // namespace
} // namespace gp::string2test
