// frmString2 on screen and on paper: the cube on every activation, corners
// of strings with their floors, clicks and typed points at their limits,
// the read-out, the colour passes, the Shapes menu, and "Print It" with its
// questions, exchanged axes, scaled and centred figure.

#include <limits>

#include "string2_fixture.h"

namespace gp::string2test {
namespace {

TEST_F(String2Test, EveryActivationDrawsTheCubeOverTheCanvas) {
    for (int cleared = 0; cleared < 2; ++cleared) {  // hidden, the list kept or cleared, shown again
        if (cleared) press("Command1");
        press("cmdExit");
        EXPECT_FALSE(f->visible());
        t.clear();
        t.show("frmString2");
        const auto s = segs();
        ASSERT_EQ(s.size(), 2u + 12 * 15);
        EXPECT_EQ(s[1], (Seg{7560, 4735, 5685, 2860, 0}));
        EXPECT_EQ(s[2], (Seg{7560, 8235, 7435, 4610, 0}));
        EXPECT_EQ(t.count("frmString2", "cls"), 0);
        EXPECT_EQ(f->nextPoint(), 15);
    }
}

TEST_F(String2Test, CornerEndsAreFlooredAfterTheSum) {
    click(8000, 3000);  // goes on from point 14 at plot (6000, 4250)
    auto s = segs();
    ASSERT_EQ(s.size(), 1u + 15);
    EXPECT_EQ(s[0], (Seg{7560, 4735, 8000, 3000, -1}));
    EXPECT_EQ(s[1], (Seg{7560, 8235, 7589, 4619, 0}));  // steps 440/15, -1735/15
    EXPECT_EQ(s[15], (Seg{7560, 4735, 8000, 3000, 0}));
    EXPECT_EQ(points(15, 15), (Pts{{6440, 5985}}));
    type("txtTics", "3");
    t.clear();
    chain({{1440, 3985}, {1450, 3995}, {2440, 2985}});
    s = segs();
    EXPECT_EQ(s[2], (Seg{3003, 4996, 3340, 5326, 0}));  // -10/3 floors to -4
    EXPECT_EQ(s[4], (Seg{3009, 4990, 4000, 5999, 0}));  // three Single steps of 10/3 fall short
}

TEST_F(String2Test, TicCountsAsTypedAndBadOnesRefusedBeforeThePointIsTaken) {
    for (auto [text, strings] : {std::pair<const char*, size_t>{"1", 1}, {"2.9", 2}, {" 7abc", 7}, {"-4", 0}}) {
        t.clear();
        type("txtTics", text);
        click(5000, 5000);
        EXPECT_EQ(segs().size(), 1 + strings) << text;
    }
    for (const char* bad : {"0", "", "abc", "0.5", "32767", "-99999"}) {
        t.clear();
        type("txtTics", bad);
        click(9000, 2000);
        setPos(100, 100);
        ASSERT_EQ(t.faults().size(), 2u) << bad;
        EXPECT_NE(t.faults()[0].find("tics"), std::string::npos);
        EXPECT_TRUE(t.ops().empty());
        EXPECT_EQ(f->nextPoint(), 19);
    }
    type("txtTics", "32766");  // the largest count still draws
    click(9000, 2000);
    EXPECT_EQ(segs().size(), 1u + 32766);
}

TEST_F(String2Test, ClicksAndTypedPointsAtTheirLimits) {
    for (auto [x, y] : Pts{{1560, 4000}, {13890, 4000}, {5000, 0}, {5000, 8985}}) click(x, y);
    EXPECT_TRUE(t.ops().empty());
    press("Command1");
    click(1560.5, 8984.9);  // just inside: plot (0, 1), a dot and no line
    EXPECT_EQ(points(1, 1), (Pts{{0, 1}}));
    click(4000, 3000);
    tick(1);  // the click's own segment keeps the default colour; Lin colours a typed one
    click(4000, 5000);
    auto s = segs();
    ASSERT_EQ(s.size(), 2u + 15);
    EXPECT_EQ(s[0], (Seg{1560, 8984, 4000, 3000, -1}));
    EXPECT_EQ(s[1][4], -1);
    for (size_t i = 3; i < s.size(); ++i) EXPECT_EQ(s[i][4], s[2][4]);
    EXPECT_EQ(t.count("frmString2", "pset"), 3);
    chain({{0, 0}, {13889, 8984}});  // the foot of lne1 and the far limits are inside
    EXPECT_EQ(t.opsOf("frmString2", "pset").back().stroke.y1, 8985);
    EXPECT_EQ(segs().back()[2], 15449);
    EXPECT_NE(segs().back()[4], -1);
    for (auto [x, y] : Pts{{13890, 1}, {1, 8985}, {-1, 1}}) {
        t.clear();
        setPos(x, y);
        EXPECT_EQ(last(), "Coordinate Error|Your point is outside the area. X can not be greater than 13890 "
                          "and Y can not be greater than 8985 .");
        EXPECT_TRUE(t.ops().empty());
    }
    tick(0);
    type("txtTics", "1");
    t.clear();
    for (int i = 3; i <= 100; ++i) setPos(100 * (i % 50), 1000 + (i % 3) * 500);  // silent from 100 on
    EXPECT_TRUE(t.dialogs().empty());
    EXPECT_EQ(f->lastPoint(), 99);
    for (int i = 100; i <= 200; ++i) click(2000 + (50 * i) % 11000, 1000 + (i % 7) * 900);  // clicks stop at 199
    EXPECT_EQ(f->lastPoint(), 199);
}

TEST_F(String2Test, LiveReadOutAboutAndEnd) {
    const std::pair<std::pair<double, double>, const char*> moves[] = {
        {{1600.7, 100.2}, "(40,8885)"}, {{100, 8984.5}, "(-1460,1)"},
        {{123456789.5, -98765432.25}, "(123455232,98774417)"}};  // far off: Doubles with all their digits
    for (auto [at, shown] : moves) {
        EventArgs a;
        a.x = Single(at.first);
        a.y = Single(at.second);
        t.fire(*f, kFormEvents, Event::MouseMove, a);
        EXPECT_EQ(static_cast<Label*>(f->find("lblXY"))->Caption(), shown);
    }
    // A position that no Single holds is an overflow, told once; the read-out
    // keeps the last position and the form goes on.
    for (float bad : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                      std::numeric_limits<float>::quiet_NaN()}) {
        for (bool onX : {true, false}) {
            EventArgs a;
            a.x = onX ? bad : 2000.0f;
            a.y = onX ? 100.0f : bad;
            t.clear();
            t.fire(*f, kFormEvents, Event::MouseMove, a);
            ASSERT_EQ(t.faults().size(), 1u);
            EXPECT_NE(t.faults()[0].find("(overflow)"), std::string::npos);
            EXPECT_EQ(static_cast<Label*>(f->find("lblXY"))->Caption(), "(123455232,98774417)");
            a.button = 1;
            t.fire(*f, kFormEvents, Event::MouseDown, a);  // no click outside the canvas is taken
            EXPECT_EQ(f->lastPoint(), 14);
            EXPECT_TRUE(t.ops().empty());
        }
    }
    press("mnuAbout");
    EXPECT_EQ(last(), "Info About Program|Click around on the area at the right or enter a coordinate and click in "
                      "the set position.  Your strings will start forming.  Change the tic marks to 25 or more for "
                      "the Shapes menu.  These are set shapes.  You may print them also.");
    press("mnuEnd");
    EXPECT_FALSE(f->visible());
}

TEST_F(String2Test, ChangeColorsRepaintsFifteenTimes) {
    press("cmdCycle");
    const auto s = segs();
    ASSERT_EQ(s.size(), 15u * 182);
    for (size_t c = 0; c < 15 * 12; ++c)  // one colour a corner
        for (size_t k = 0, first = (c / 12) * 182 + 2 + (c % 12) * 15; k < 15; ++k) ASSERT_EQ(s[first + k][4], s[first][4]);
    EXPECT_EQ(static_cast<CheckBox*>(f->find("chkColorIt"))->Value(), 0);
    press("Command1");  // fewer than three points: both Lin segments through unset points
    click(3000, 3000);
    t.clear();
    press("cmdCycle");
    ASSERT_EQ(segs().size(), 30u);
    EXPECT_EQ(segs()[0][2], 1560);
    t.clear();
    click(5000, 5000);  // taken as a third point, in black
    EXPECT_EQ(segs().size(), 1u + 15);
    EXPECT_EQ(segs().back()[4], 0);
    type("txtTics", "1");
    press("mnuOcta3");
    for (const char* tics : {"0", "5000"}) {  // refused whole: 0 tics, or 15 x 97 corners x 5000
        t.clear();
        type("txtTics", tics);
        press("cmdCycle");
        EXPECT_EQ(t.faults().size(), 1u);
        EXPECT_TRUE(t.ops().empty());
    }
}

TEST_F(String2Test, PresetsDrawTheirWholeChains) {
    const struct { const char* menu; int last; Pts ends; } cases[] = {  // ends: points 3 and last
        {"mnuCube", 29, {{3625, 6125}, {6000, 4250}}}, {"mnuTriangle2", 11, {{6000, 2987}, {11000, 100}}},
        {"mnuOcta2", 24, {{7742, 2621}, {5370, 1035}}}};
    type("txtTics", "25");
    for (const auto& c : cases) {
        t.clear();
        press(c.menu);
        EXPECT_EQ(f->nextPoint(), c.last + 1) << c.menu;
        EXPECT_EQ(t.count("frmString2", "line"), 2 + (c.last - 2) * 25);
        EXPECT_EQ(t.count("frmString2", "cls"), 0);
        EXPECT_EQ((Pts{points(3, 3)[0], points(c.last, c.last)[0]}), c.ends);
    }
    type("txtTics", "");  // a bad tic count leaves the figure as it was
    t.clear();
    press("mnuTetra1");
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->lastPoint(), 24);

    // The tetrahedra go on from Triangle2, the corner at 11 drawn a second time.
    type("txtTics", "4");
    t.clear();
    press("mnuTetra1");
    const auto s = segs();
    ASSERT_EQ(s.size(), 2u + 9 * 4 + 7 * 4);
    for (size_t k = 0; k < 4; ++k) EXPECT_EQ(s[2 + 8 * 4 + k], s[2 + 9 * 4 + k]);
    click(5000, 5000);  // overwrites point 18; Tetrahedron2's points 19 to 21 stay
    EXPECT_EQ(points(17, 19), (Pts{{11000, 100}, {3440, 3985}, {1000, 100}}));
    t.clear();
    press("mnutetra2");
    EXPECT_EQ(t.count("frmString2", "line"), 2 + 9 * 4 + 11 * 4);
    EXPECT_EQ(f->nextPoint(), 22);
}

TEST_F(String2Test, OctagonsTakeAFreshRandomPointAtEachPress) {
    for (auto [menu, at, low, high] : {std::tuple<const char*, int, int, int>{"mnuOcta1", 12, 2000, 5999}, {"mnuOcta3", 70, 3600, 4599}}) {
        press(menu);
        const auto c = points(at, at)[0];
        EXPECT_TRUE(c.first >= low && c.first <= high && c.second >= low && c.second <= high) << menu;
        press(menu);
        EXPECT_NE(points(at, at)[0], c) << menu;
    }
    EXPECT_EQ(f->lastPoint(), 99);
}

TEST_F(String2Test, PrintQuestionsRefusalsAndTheFullSizeSheet) {
    t.answer("2");  // Cancel at the first question: nothing more
    press("cmdPrintIt");
    EXPECT_EQ(last(), "Make Width of paper?| Do you want the shape Scaled to the width and height of the paper?");
    EXPECT_EQ(boxes()[0].buttons, vbYesNoCancel);
    type("txtTics", "4");
    chain({{1000, 1000}, {2000, 1000}});
    press("cmdPrintIt");
    EXPECT_EQ(last(), "Need More Points|You may not print a shape with less than three points");
    EXPECT_TRUE(t.opsOf("Printer").empty());
    setPos(2000, 3000);
    print("7", "7");
    EXPECT_EQ(last(), "Colors?|Do you want random colors?");
    EXPECT_EQ(segs("Printer"), (std::vector<Seg>{{1000, 1000, 1000, 2000, -1},  // PrintLin 1-2, axes exchanged
                                                 {1000, 2000, 3000, 2000, -1},
                                                 {1000, 1000, 1000, 2000, -1},  // k = 0, on the older segment
                                                 {1000, 1250, 1500, 2000, -1}, {1000, 1500, 2000, 2000, -1},
                                                 {1000, 1750, 2500, 2000, -1}, {1000, 2000, 3000, 2000, -1}}));
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_TRUE(segs().empty());
    press("mnuCube");  // random colours: the segments black, one colour a corner, the box has no say
    tick(1);
    print("7", "6");
    const auto s = segs("Printer");
    ASSERT_EQ(s.size(), 2u + 27 * 5);
    EXPECT_EQ(s[0][4] + s[1][4], -2);
    for (size_t i = 2; i < s.size(); ++i) ASSERT_EQ(s[i][4], s[2 + (i - 2) / 5 * 5][4]);
}

class String2SmallPage : public String2Test {
protected:
    String2SmallPage() : String2Test(10200, 8200) {}
};

TEST_F(String2SmallPage, ScaledPrintFillsOneWayAndCentresTheOther) {
    press("mnuTriangle1");
    print("6", "7");
    const auto s = segs("Printer");
    ASSERT_EQ(s.size(), 2u + 3 * 16);
    // Factor 0.8 (the height fills first), 100 down and 1636 across: equal blanks left and right.
    EXPECT_EQ(s[0], (Seg{1636, 100, 1636, 8100, -1}));
    EXPECT_EQ(s[1], (Seg{1636, 8100, 8564, 4100, -1}));
    t.clear();
    click(9000, 4000);  // the plot points are back: it goes on from (11000, 100)
    EXPECT_EQ(segs()[0], (Seg{12560, 8885, 9000, 4000, -1}));
}

TEST_F(String2Test, ScaledPrintOfATallFigureFloorsItsPointsAndAFlatOneIsRefused) {
    type("txtTics", "2");
    chain({{0, 0}, {100, 1000}, {200, 0}});
    print("6", "7");
    // Factor 11.32 as a Single; 100 x 11.32 + 6428 falls just short of 7560.
    EXPECT_EQ(segs("Printer")[0], (Seg{100, 6428, 11419, 7559, -1}));
    EXPECT_EQ(f->pointX(2), 100);
    chain({{500, 100}, {500, 900}, {500, 300}, {500, 700}});  // one x for all
    for (const char* tics : {"2", "0"})
        for (const char* scale : {"6", "7"}) {
            type("txtTics", tics);
            print(scale, "7");
            const bool prints = std::string(tics) == "2" && std::string(scale) == "7";
            EXPECT_EQ(t.count("Printer", "enddoc"), prints ? 1 : 0) << tics << " " << scale;
            EXPECT_EQ(t.faults().size(), prints ? 0u : 1u);
            EXPECT_EQ(points(2, 4), (Pts{{500, 900}, {500, 300}, {500, 700}}));
        }
}

} // namespace
} // namespace gp::string2test
