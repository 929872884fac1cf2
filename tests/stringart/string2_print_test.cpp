// "Print It" of frmString2: its two questions, the exchanged axes, Tics + 1
// strings a corner, the scaled and centred figure, and the points that
// come back after a scaled print.

#include "string2_fixture.h"

namespace gp::string2test {
namespace {

using S = Seg;

TEST_F(String2Test, FewerThanThreePointsAreNotPrinted) {
    press("Command1");
    click(3000, 3000);
    click(4000, 3000);
    t.clear();
    press("cmdPrintIt");
    const auto b = boxes();
    ASSERT_EQ(b.size(), 1u);
    EXPECT_EQ(b[0].title, "Need More Points");
    EXPECT_EQ(b[0].prompt, "You may not print a shape with less than three points");
    EXPECT_EQ(b[0].buttons, vbOKOnly);
    EXPECT_TRUE(t.opsOf("Printer").empty());
    EXPECT_EQ(f->lastPoint(), 2);
}

TEST_F(String2Test, CancelAtTheFirstQuestionPrintsNothing) {
    t.answer("2");
    press("cmdPrintIt");
    const auto b = boxes();
    ASSERT_EQ(b.size(), 1u);
    EXPECT_EQ(b[0].title, "Make Width of paper?");
    EXPECT_EQ(b[0].prompt, " Do you want the shape Scaled to the width and height of the paper?");
    EXPECT_EQ(b[0].buttons, vbYesNoCancel);
    EXPECT_TRUE(t.opsOf("Printer").empty());
}

TEST_F(String2Test, FullSizePrintExchangesTheAxes) {
    type("txtTics", "4");
    chain({{1000, 1000}, {2000, 1000}, {2000, 3000}});
    t.clear();
    t.answer("7");
    t.answer("7");
    press("cmdPrintIt");
    const auto b = boxes();
    ASSERT_EQ(b.size(), 2u);
    EXPECT_EQ(b[1].title, "Colors?");
    EXPECT_EQ(b[1].prompt, "Do you want random colors?");
    EXPECT_EQ(b[1].buttons, vbYesNo);
    EXPECT_EQ(segs("Printer"), (std::vector<S>{
                                   {1000, 1000, 1000, 2000, -1},  // PrintLin 1-2
                                   {1000, 2000, 3000, 2000, -1},  // PrintLin 2-3
                                   {1000, 1000, 1000, 2000, -1},  // k = 0 lies on the older segment
                                   {1000, 1250, 1500, 2000, -1},
                                   {1000, 1500, 2000, 2000, -1},
                                   {1000, 1750, 2500, 2000, -1},
                                   {1000, 2000, 3000, 2000, -1},
                               }));
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_EQ(f->nextPoint(), 4);
    EXPECT_EQ(f->lastPoint(), 3);
    EXPECT_TRUE(segs().empty());  // the canvas is not touched
}

TEST_F(String2Test, RandomColoursTakeOneColourACorner) {
    t.answer("7");
    t.answer("6");
    press("cmdPrintIt");  // the cube at full size
    const auto s = segs("Printer");
    ASSERT_EQ(s.size(), 2u + 12 * 16);
    EXPECT_EQ(s[0].color, -1);
    EXPECT_EQ(s[1].color, -1);
    for (size_t c = 0; c < 12; ++c)
        for (size_t k = 0; k < 16; ++k) {
            ASSERT_NE(s[2 + c * 16 + k].color, -1);
            ASSERT_EQ(s[2 + c * 16 + k].color, s[2 + c * 16].color);
        }
    // chkColorIt has no say on paper.
    t.clear();
    tick(true);
    t.answer("7");
    t.answer("7");
    press("cmdPrintIt");
    for (const S& seg : segs("Printer")) ASSERT_EQ(seg.color, -1);
}

class String2SmallPage : public String2Test {
protected:
    String2SmallPage() : String2Test(10200, 8200) {}
};

TEST_F(String2SmallPage, ScaledPrintFillsOneWayAndCentresTheOther) {
    press("mnuTriangle1");
    t.clear();
    t.answer("6");
    t.answer("7");
    press("cmdPrintIt");
    const auto s = segs("Printer");
    ASSERT_EQ(s.size(), 2u + 3 * 16);
    // Points scaled by 0.8 (the height fills first) and shifted by 100
    // down and 1636 across, which leaves equal blanks left and right.
    EXPECT_EQ(s[0], (S{1636, 100, 1636, 8100, -1}));
    EXPECT_EQ(s[1], (S{1636, 8100, 8564, 4100, -1}));
    // The chain itself: both segments and the k = 0 string of each corner,
    // which runs from P to Q exactly.
    float minX = 1e9f, maxX = -1e9f, minY = 1e9f, maxY = -1e9f;
    for (const S& seg : {s[0], s[1], s[2], s[18], s[34]}) {
        minX = std::min({minX, seg.x1, seg.x2});
        maxX = std::max({maxX, seg.x1, seg.x2});
        minY = std::min({minY, seg.y1, seg.y2});
        maxY = std::max({maxY, seg.y1, seg.y2});
    }
    EXPECT_EQ(minX, 1636);
    EXPECT_EQ(10200 - maxX, 1636);
    EXPECT_EQ(minY, 100);
    EXPECT_EQ(8200 - maxY, 100);

    // The plot points are back: the next click goes on from (11000, 100).
    EXPECT_EQ(f->pointX(5), 11000);
    EXPECT_EQ(f->pointY(5), 100);
    EXPECT_EQ(f->pointY(3), 8760);
    t.clear();
    click(9000, 4000);
    const auto c = segs();
    ASSERT_FALSE(c.empty());
    EXPECT_EQ(c[0], (S{12560, 8885, 9000, 4000, -1}));
}

TEST_F(String2Test, ScaledPrintOfATallFigureFloorsItsPoints) {
    type("txtTics", "2");
    chain({{0, 0}, {100, 1000}, {200, 0}});
    t.clear();
    t.answer("6");
    t.answer("7");
    press("cmdPrintIt");
    const auto s = segs("Printer");
    ASSERT_EQ(s.size(), 2u + 3);
    // Factor 11.32 (as a Single) from the page width; 100 * 11.32 + 6428
    // falls just short of 7560.
    EXPECT_EQ(s[0], (S{100, 6428, 11419, 7559, -1}));
    EXPECT_EQ(s[1], (S{11419, 7559, 100, 8691, -1}));
    EXPECT_EQ(f->pointX(2), 100);
    EXPECT_EQ(f->pointY(2), 1000);
}

TEST_F(String2Test, UnscalableOrUndrawableFiguresAreRefusedWithTheirPointsKept) {
    type("txtTics", "2");
    chain({{500, 100}, {500, 900}, {500, 300}, {500, 700}});  // one x for all
    t.clear();
    t.answer("6");
    t.answer("7");
    press("cmdPrintIt");
    ASSERT_EQ(t.faults().size(), 1u);
    EXPECT_NE(t.faults()[0].find("scaled"), std::string::npos);
    EXPECT_TRUE(t.opsOf("Printer").empty());
    EXPECT_EQ(f->pointY(2), 900);
    EXPECT_EQ(f->nextPoint(), 5);
    // At full size the same figure prints.
    t.clear();
    t.answer("7");
    t.answer("7");
    press("cmdPrintIt");
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);

    // A tic count of 0 stops the print before a stroke, scaled or not.
    for (const char* answer : {"6", "7"}) {
        type("txtTics", "2");
        chain({{0, 0}, {100, 1000}, {200, 0}});
        type("txtTics", "0");
        t.clear();
        t.answer(answer);
        t.answer("7");
        press("cmdPrintIt");
        EXPECT_EQ(t.faults().size(), 1u);
        EXPECT_TRUE(t.opsOf("Printer").empty());
        EXPECT_EQ(f->pointX(3), 200);
    }
}

} // namespace
} // namespace gp::string2test
