// frmString2 on screen: the cube on every activation, corners of strings
// with their floors, clicks and typed points at their limits, the read-out
// and the colour passes.

#include "string2_fixture.h"

namespace gp::string2test {
namespace {

TEST(String2Activation, EveryActivationDrawsTheCubeOverTheCanvas) {
    test::TestApp app;
    auto& f = app.show<FrmString2>("frmString2");
    for (int shown = 0; shown < 2; ++shown) {
        std::vector<Seg> s;
        for (const Stroke& l : app.lines("frmString2")) s.push_back({l.x1, l.y1, l.x2, l.y2, float(l.color)});
        ASSERT_EQ(s.size(), 2u + 12 * 15);
        EXPECT_EQ(s[0], (Seg{7560, 8485, 7560, 4735, 0}));
        EXPECT_EQ(s[1], (Seg{7560, 4735, 5685, 2860, 0}));
        EXPECT_EQ(s[2], (Seg{7560, 8235, 7435, 4610, 0}));
        EXPECT_EQ(s.back(), (Seg{7560, 8485, 7560, 4735, 0}));  // point 13 to 14
        EXPECT_EQ(app.count("frmString2", "cls"), 0);
        EXPECT_EQ(f.nextPoint(), 15);
        EXPECT_EQ(f.lastPoint(), 14);
        // Hidden with a cleared list and shown again: the cube is back,
        // drawn over the canvas.
        app.fire(f, "Command1", Event::Click);
        app.fire(f, "cmdExit", Event::Click);
        EXPECT_FALSE(f.visible());
        app.clear();
        app.show("frmString2");
    }
}

TEST_F(String2Test, CornerEndsAreFlooredAfterTheSum) {
    click(8000, 3000);  // goes on from point 14 at plot (6000, 4250)
    auto s = segs();
    ASSERT_EQ(s.size(), 1u + 15);
    EXPECT_EQ(s[0], (Seg{7560, 4735, 8000, 3000, -1}));
    EXPECT_EQ(s[1], (Seg{7560, 8235, 7589, 4619, 0}));  // steps 440/15, -1735/15
    EXPECT_EQ(s[15], (Seg{7560, 4735, 8000, 3000, 0}));
    EXPECT_EQ(t.count("frmString2", "pset"), 1);
    EXPECT_EQ(f->pointX(15), 6440);
    EXPECT_EQ(f->pointY(15), 5985);

    t.clear();
    type("txtTics", "3");
    chain({{1440, 3985}, {1450, 3995}, {2440, 2985}});
    s = segs();
    ASSERT_EQ(s.size(), 2u + 3);
    EXPECT_EQ(s[2], (Seg{3003, 4996, 3340, 5326, 0}));  // -10/3 floors to -4
    EXPECT_EQ(s[3], (Seg{3006, 4993, 3670, 5663, 0}));
    // The Single step 10/3 lies just below 10/3: three of them fall short.
    EXPECT_EQ(s[4], (Seg{3009, 4990, 4000, 5999, 0}));
}

TEST_F(String2Test, TicCountsAsTyped) {
    const std::pair<const char*, size_t> cases[] = {{"1", 1}, {"2.9", 2}, {" 7abc", 7}, {"-4", 0}};
    for (auto [text, strings] : cases) {
        t.clear();
        type("txtTics", text);
        click(5000, 5000);
        EXPECT_EQ(segs().size(), 1 + strings) << text;
        EXPECT_TRUE(t.faults().empty());
    }
    // One tic: the only string lies on the newer segment.
    EXPECT_EQ(segs().size(), 1u);
}

TEST_F(String2Test, BadTicCountsAreRefusedBeforeThePointIsTaken) {
    for (const char* bad : {"0", "", "abc", "0.5", "32767", "-99999"}) {
        t.clear();
        type("txtTics", bad);
        click(9000, 2000);
        setPos(100, 100);
        ASSERT_EQ(t.faults().size(), 2u) << bad;
        EXPECT_NE(t.faults()[0].find("tics"), std::string::npos);
        EXPECT_TRUE(t.ops().empty());
        EXPECT_EQ(f->nextPoint(), 15);
        EXPECT_EQ(f->lastPoint(), 14);
    }
    type("txtTics", "32766");  // the largest count still draws
    click(9000, 2000);
    EXPECT_EQ(segs().size(), 1u + 32766);
}

TEST_F(String2Test, ClicksAreStrictlyInsideTheCanvasAndStopAt199) {
    for (auto [x, y] : std::vector<std::pair<double, double>>{{1560, 4000}, {13890, 4000}, {5000, 0}, {5000, 8985}})
        click(x, y);
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->nextPoint(), 15);

    press("Command1");
    click(1560.5, 8984.9);  // just inside: plot (0, 1)
    EXPECT_EQ(f->pointX(1), 0);
    EXPECT_EQ(f->pointY(1), 1);
    EXPECT_EQ(t.count("frmString2", "line"), 0);
    click(4000, 3000);
    EXPECT_EQ(segs(), (std::vector<Seg>{{1560, 8984, 4000, 3000, -1}}));
    tick(1);  // the click's own dot and segment keep the default colour
    click(4000, 5000);
    const auto s = segs();
    ASSERT_EQ(s.size(), 1u + 1 + 15);
    EXPECT_EQ(s[1][4], -1);
    for (size_t i = 3; i < s.size(); ++i) EXPECT_EQ(s[i][4], s[2][4]);
    EXPECT_EQ(t.count("frmString2", "pset"), 3);

    type("txtTics", "1");
    for (int i = 4; i <= 199; ++i) click(2000 + (50 * i) % 11000, 1000 + (i % 7) * 900);
    EXPECT_EQ(f->lastPoint(), 199);
    t.clear();
    click(6000, 6000);
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->nextPoint(), 200);
}

TEST_F(String2Test, TypedPointsAndTheirLimits) {
    press("Command1");
    t.clear();
    setPos(0, 0);  // valid, at the foot of lne1
    ASSERT_EQ(t.count("frmString2", "pset"), 1);
    EXPECT_EQ(t.opsOf("frmString2", "pset")[0].stroke.y1, 8985);
    tick(1);
    setPos(13889, 8984);  // the far limits are inside; Lin colours the segment
    const auto s = segs();
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0][2], 15449);
    EXPECT_EQ(s[0][3], 1);
    EXPECT_NE(s[0][4], -1);

    const std::string text =
        "Your point is outside the area. X can not be greater than 13890 and Y can not be greater than 8985 .";
    const std::pair<const char*, const char*> outside[] = {
        {"13890", "1"}, {"1", "8985"}, {"-1", "1"}, {"1", "-0.5"}, {"99999", "1"}};
    for (auto [x, y] : outside) {
        t.clear();
        type("txtX", x);
        type("txtY", y);
        press("lblSetPos");
        const auto b = boxes();
        ASSERT_EQ(b.size(), 1u);
        EXPECT_EQ(b[0].title, "Coordinate Error");
        EXPECT_EQ(b[0].prompt, text);
        EXPECT_TRUE(t.ops().empty());
        EXPECT_EQ(f->nextPoint(), 3);
    }
    tick(0);
    type("txtTics", "1");
    for (int i = 3; i <= 99; ++i) setPos(100 * (i % 50), 1000 + (i % 3) * 500);
    EXPECT_EQ(t.count("frmString2", "pset"), 0);  // no dot after the first point
    EXPECT_EQ(f->nextPoint(), 100);
    t.clear();
    setPos(400, 400);  // silently ignored from 100 on
    EXPECT_TRUE(t.ops().empty());
    EXPECT_TRUE(t.dialogs().empty());
    EXPECT_EQ(f->lastPoint(), 99);
}

TEST_F(String2Test, LiveReadOutAndAbout) {
    auto& xy = *static_cast<Label*>(f->find("lblXY"));
    const std::pair<std::pair<double, double>, const char*> moves[] = {
        {{1600.7, 100.2}, "(40,8885)"}, {{100, 8984.5}, "(-1460,1)"}, {{1560, 0}, "(0,8985)"},
        // Far off the form the numbers are Doubles, written with all their digits.
        {{123456789.5, -98765432.25}, "(123455232,98774417)"}};
    for (auto [at, shown] : moves) {
        EventArgs a;
        a.x = static_cast<Single>(at.first);
        a.y = static_cast<Single>(at.second);
        t.fire(*f, kFormEvents, Event::MouseMove, a);
        EXPECT_EQ(xy.Caption(), shown);
    }
    press("mnuAbout");
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].title, "Info About Program");
    EXPECT_EQ(lastPrompt(),
              "Click around on the area at the right or enter a coordinate and click in the set position.  "
              "Your strings will start forming.  Change the tic marks to 25 or more for the Shapes menu.  "
              "These are set shapes.  You may print them also.");
    press("mnuEnd");
    EXPECT_FALSE(f->visible());
}

TEST_F(String2Test, ChangeColorsRepaintsFifteenTimes) {
    press("cmdCycle");
    const auto s = segs();
    ASSERT_EQ(s.size(), 15u * 182);
    EXPECT_EQ((Seg{s[182][0], s[182][1], s[182][2], s[182][3], 0}), (Seg{7560, 8485, 7560, 4735, 0}));
    for (size_t c = 0; c < 15 * 12; ++c) {
        const size_t first = (c / 12) * 182 + 2 + (c % 12) * 15;
        for (size_t k = 0; k < 15; ++k) ASSERT_EQ(s[first + k][4], s[first][4]);
    }
    EXPECT_EQ(f->nextPoint(), 15);
    EXPECT_EQ(static_cast<CheckBox*>(f->find("chkColorIt"))->Value(), 0);

    // Fewer than three points: both Lin segments through unset points.
    press("Command1");
    click(3000, 3000);
    t.clear();
    press("cmdCycle");
    ASSERT_EQ(segs().size(), 30u);
    EXPECT_EQ(segs()[0][2], 1560);
    EXPECT_EQ(f->nextPoint(), 3);
    t.clear();
    click(5000, 5000);  // taken as a third point, in black
    EXPECT_EQ(segs().size(), 1u + 15);
    EXPECT_EQ(segs().back()[4], 0);

    // Refused whole, before a stroke: 0 tics, or 15 x 97 corners x 5000.
    type("txtTics", "1");
    press("mnuOcta3");
    for (const char* tics : {"0", "5000"}) {
        t.clear();
        type("txtTics", tics);
        press("cmdCycle");
        EXPECT_EQ(t.faults().size(), 1u);
        EXPECT_TRUE(t.ops().empty());
    }
}

} // namespace
} // namespace gp::string2test
