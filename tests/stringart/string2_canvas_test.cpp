// frmString2 on screen: the cube on every activation, the corners of
// strings with their floors, clicks and typed points at their limits, the
// live read-out, Clear It and the colour passes.

#include "string2_fixture.h"

namespace gp::string2test {
namespace {

using S = Seg;

TEST_F(String2Test, EveryActivationDrawsTheCubeOverTheCanvas) {
    test::TestApp app;
    auto& form = app.show<FrmString2>("frmString2");
    const auto check = [&] {
        const auto ls = app.lines("frmString2");
        ASSERT_EQ(ls.size(), 2u + 12 * 15);
        EXPECT_EQ((S{ls[0].x1, ls[0].y1, ls[0].x2, ls[0].y2, ls[0].color}), (S{7560, 8485, 7560, 4735, 0}));
        EXPECT_EQ((S{ls[1].x1, ls[1].y1, ls[1].x2, ls[1].y2, ls[1].color}), (S{7560, 4735, 5685, 2860, 0}));
        EXPECT_EQ((S{ls[2].x1, ls[2].y1, ls[2].x2, ls[2].y2, ls[2].color}), (S{7560, 8235, 7435, 4610, 0}));
        // The last string of the last corner runs from point 13 to point 14.
        const Stroke& last = ls.back();
        EXPECT_EQ((S{last.x1, last.y1, last.x2, last.y2, last.color}), (S{7560, 8485, 7560, 4735, 0}));
        EXPECT_EQ(form.nextPoint(), 15);
        EXPECT_EQ(form.lastPoint(), 14);
        EXPECT_EQ(form.areaWide(), 13890);
        EXPECT_EQ(form.areaHigh(), 8985);
    };
    check();
    // Hidden and shown again: the points are replaced and drawn over the
    // old picture, with no Cls.
    app.fire(form, "Command1", Event::Click);
    app.fire(form, "cmdExit", Event::Click);
    EXPECT_FALSE(form.visible());
    app.clear();
    app.show("frmString2");
    check();
    EXPECT_EQ(app.count("frmString2", "cls"), 0);
}

TEST_F(String2Test, AClickAfterOpeningGoesOnFromPoint14) {
    click(8000, 3000);
    const auto s = segs();
    ASSERT_EQ(s.size(), 1u + 15);
    const auto dots = t.opsOf("frmString2", "pset");
    ASSERT_EQ(dots.size(), 1u);
    EXPECT_EQ(dots[0].stroke.x1, 8000);
    EXPECT_EQ(dots[0].stroke.y1, 3000);
    EXPECT_EQ(dots[0].stroke.color, -1);
    EXPECT_EQ(s[0], (S{7560, 4735, 8000, 3000, -1}));
    // Steps of 440/15 and -1735/15: each end is floored after the sum.
    EXPECT_EQ(s[1], (S{7560, 8235, 7589, 4619, 0}));
    EXPECT_EQ(s[15], (S{7560, 4735, 8000, 3000, 0}));
    EXPECT_EQ(f->pointX(15), 6440);
    EXPECT_EQ(f->pointY(15), 5985);
    EXPECT_EQ(f->nextPoint(), 16);
    EXPECT_EQ(f->lastPoint(), 15);
}

TEST_F(String2Test, CornerEndsAreFlooredFromSingleSteps) {
    type("txtTics", "3");
    chain({{1440, 3985}, {1450, 3995}, {2440, 2985}});
    const auto s = segs();
    ASSERT_EQ(s.size(), 2u + 3);
    EXPECT_EQ(s[0], (S{3000, 5000, 3010, 4990, 0}));
    EXPECT_EQ(s[1], (S{3010, 4990, 4000, 6000, 0}));
    // -10/3 floors to -4, not -3.
    EXPECT_EQ(s[2], (S{3003, 4996, 3340, 5326, 0}));
    EXPECT_EQ(s[3], (S{3006, 4993, 3670, 5663, 0}));
    // The Single step 10/3 lies a little below 10/3: three of them fall
    // short of 10 and the floor takes the end one twip back.
    EXPECT_EQ(s[4], (S{3009, 4990, 4000, 5999, 0}));
    EXPECT_EQ(f->nextPoint(), 4);
}

TEST_F(String2Test, TicCounts) {
    // One tic: the one string lies on the newer segment.
    type("txtTics", "1");
    chain({{1000, 1000}, {2000, 1000}, {2000, 3000}});
    auto s = segs();
    ASSERT_EQ(s.size(), 3u);
    EXPECT_EQ(s[2], (S{3560, 7985, 3560, 5985, 0}));

    // Negative: segments only, no message.
    t.clear();
    type("txtTics", "-4");
    chain({{1000, 1000}, {2000, 1000}, {2000, 3000}});
    EXPECT_EQ(segs().size(), 2u);
    EXPECT_TRUE(t.faults().empty());

    // "2.9" and " 7abc" read as 2 and 7 strings a corner.
    t.clear();
    type("txtTics", "2.9");
    click(5000, 5000);
    EXPECT_EQ(segs().size(), 1u + 2);
    t.clear();
    type("txtTics", " 7abc");
    click(5100, 5000);
    EXPECT_EQ(segs().size(), 1u + 7);
}

TEST_F(String2Test, TicsThatCannotBeDrawnAreRefusedBeforeTheClickIsTaken) {
    for (const char* bad : {"0", "", "abc", "0.5", "40000", "-99999"}) {
        SCOPED_TRACE(bad);
        t.clear();
        type("txtTics", bad);
        const int next = f->nextPoint();
        click(9000, 2000);
        ASSERT_EQ(t.faults().size(), 1u);
        EXPECT_NE(t.faults()[0].find("tics"), std::string::npos);
        EXPECT_TRUE(segs().empty());
        EXPECT_EQ(t.count("frmString2", "pset"), 0);
        EXPECT_EQ(f->nextPoint(), next);
        EXPECT_EQ(f->lastPoint(), 14);
    }
    // The form goes on as soon as the count is good.
    t.clear();
    type("txtTics", "5");
    click(9000, 2000);
    EXPECT_EQ(segs().size(), 1u + 5);
    EXPECT_EQ(f->nextPoint(), 16);
}

TEST_F(String2Test, ClicksAreStrictlyInsideTheCanvas) {
    const int next = f->nextPoint();
    for (auto [x, y] : std::vector<std::pair<double, double>>{
             {1560, 4000}, {1000, 4000}, {13890, 4000}, {5000, 0}, {5000, 8985}, {5000, -3}}) {
        click(x, y);
    }
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->nextPoint(), next);
    // Just inside the corner of the canvas.
    press("Command1");
    click(1560.5, 8984.9, 2);
    EXPECT_EQ(f->pointX(1), 0);
    EXPECT_EQ(f->pointY(1), 1);
    EXPECT_EQ(f->lastPoint(), 1);
}

TEST_F(String2Test, AfterClearItTheThirdClickIsTheFirstCorner) {
    press("Command1");
    EXPECT_EQ(t.count("frmString2", "cls"), 1);
    EXPECT_EQ(f->nextPoint(), 1);
    EXPECT_EQ(f->lastPoint(), 1);
    for (int i = 1; i <= 200; ++i) ASSERT_EQ(f->pointX(i) + f->pointY(i), 0);
    t.clear();
    click(3000, 3000);
    EXPECT_EQ(t.count("frmString2", "pset"), 1);
    EXPECT_EQ(t.count("frmString2", "line"), 0);
    EXPECT_EQ(f->lastPoint(), 1);
    click(4000, 3000);
    EXPECT_EQ(t.count("frmString2", "pset"), 2);
    EXPECT_EQ(segs(), (std::vector<S>{{3000, 3000, 4000, 3000, -1}}));
    EXPECT_EQ(f->lastPoint(), 2);
    tick(true);  // the click's own dot and segment stay in the default colour
    click(4000, 5000);
    const auto s = segs();
    ASSERT_EQ(s.size(), 1u + 1 + 15);
    EXPECT_EQ(s[1], (S{4000, 3000, 4000, 5000, -1}));
    for (size_t i = 3; i < s.size(); ++i) EXPECT_EQ(s[i].color, s[2].color);
    EXPECT_NE(s[2].color, -1);
    EXPECT_EQ(f->lastPoint(), 3);
}

TEST_F(String2Test, At199ClickedPointsFurtherClicksDoNothing) {
    type("txtTics", "1");
    press("Command1");
    for (int i = 0; i < 199; ++i) click(2000 + 50 * i % 11000, 1000 + (i % 7) * 900);
    EXPECT_EQ(f->nextPoint(), 200);
    EXPECT_EQ(f->lastPoint(), 199);
    t.clear();
    click(6000, 6000);
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->nextPoint(), 200);
    EXPECT_EQ(f->lastPoint(), 199);
}

TEST_F(String2Test, TypedPoints) {
    press("Command1");
    t.clear();
    setPos("0", "0");  // valid, at the foot of lne1
    const auto dots = t.opsOf("frmString2", "pset");
    ASSERT_EQ(dots.size(), 1u);
    EXPECT_EQ(dots[0].stroke.x1, 1560);
    EXPECT_EQ(dots[0].stroke.y1, 8985);
    tick(true);
    setPos("13889", "8984");  // the far limits are inside
    const auto s = segs();
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].x2, 15449);
    EXPECT_EQ(s[0].y2, 1);
    EXPECT_NE(s[0].color, -1);  // Lin colours the typed segment
    EXPECT_EQ(t.count("frmString2", "pset"), 1);
    tick(false);
    setPos("500.9", "700");
    EXPECT_EQ(f->pointX(3), 500);
    EXPECT_EQ(segs().size(), 1u + 1 + 15);
    EXPECT_EQ(t.count("frmString2", "pset"), 1);  // no dot after the first point
}

TEST_F(String2Test, CoordinateErrorLeavesEverythingAsItWas) {
    const std::string text =
        "Your point is outside the area. X can not be greater than 13890 and Y can not be greater than 8985 .";
    for (auto [x, y] : std::vector<std::pair<std::string, std::string>>{
             {"13890", "100"}, {"100", "8985"}, {"-1", "100"}, {"100", "-0.5"}, {"99999", "1"}, {"1", "1e9"}}) {
        SCOPED_TRACE(x + "," + y);
        t.clear();
        setPos(x, y);
        const auto b = boxes();
        ASSERT_EQ(b.size(), 1u);
        EXPECT_EQ(b[0].title, "Coordinate Error");
        EXPECT_EQ(b[0].prompt, text);
        EXPECT_EQ(b[0].buttons, vbOKOnly);
        EXPECT_TRUE(t.ops().empty());
        EXPECT_TRUE(t.faults().empty());
        EXPECT_EQ(f->nextPoint(), 15);
        EXPECT_EQ(f->lastPoint(), 14);
    }
}

TEST_F(String2Test, TypedPointsStopAt99) {
    type("txtTics", "1");
    press("Command1");
    for (int i = 0; i < 99; ++i) setPos(std::to_string(100 * (i % 50)), std::to_string(1000 + (i % 3) * 500));
    EXPECT_EQ(f->nextPoint(), 100);
    EXPECT_EQ(f->lastPoint(), 99);
    t.clear();
    setPos("400", "400");
    EXPECT_TRUE(t.ops().empty());
    EXPECT_TRUE(t.dialogs().empty());
    EXPECT_EQ(f->nextPoint(), 100);
    // Clicks still reach 199.
    click(5000, 5000);
    EXPECT_EQ(f->nextPoint(), 101);
}

TEST_F(String2Test, LiveReadOut) {
    auto& xy = *static_cast<Label*>(f->find("lblXY"));
    EXPECT_EQ(xy.Caption(), "(100,100)");
    move(1600.7, 100.2);
    EXPECT_EQ(xy.Caption(), "(40,8885)");
    move(100, 8984.5);  // over the bare panel the x is negative
    EXPECT_EQ(xy.Caption(), "(-1460,1)");
    move(1560, 0);  // not a click, but shown
    EXPECT_EQ(xy.Caption(), "(0,8985)");
}

TEST_F(String2Test, ChangeColorsRepaintsFifteenTimes) {
    press("cmdCycle");
    const auto s = segs();
    ASSERT_EQ(s.size(), 15u * (2 + 12 * 15));
    // Each pass is the cube again, every corner in one colour of its own.
    EXPECT_EQ((S{s[182].x1, s[182].y1, s[182].x2, s[182].y2, 0}), (S{7560, 8485, 7560, 4735, 0}));
    for (size_t i = 0; i < s.size(); ++i) ASSERT_NE(s[i].color, -1);
    for (size_t c = 0; c < 12; ++c)
        for (size_t k = 1; k < 15; ++k) ASSERT_EQ(s[2 + c * 15 + k].color, s[2 + c * 15].color);
    EXPECT_EQ(f->nextPoint(), 15);
    EXPECT_EQ(static_cast<CheckBox*>(f->find("chkColorIt"))->Value(), 0);
    t.clear();
    click(9000, 4000);
    for (const S& seg : segs()) EXPECT_LE(seg.color, 0);  // black again

    // A ticked box stays ticked.
    tick(true);
    press("cmdCycle");
    EXPECT_EQ(static_cast<CheckBox*>(f->find("chkColorIt"))->Value(), 1);
}

TEST_F(String2Test, ChangeColorsWithFewerThanThreePoints) {
    press("Command1");
    click(3000, 3000);
    t.clear();
    press("cmdCycle");
    const auto s = segs();
    ASSERT_EQ(s.size(), 30u);
    EXPECT_EQ((S{s[0].x1, s[0].y1, s[0].x2, s[0].y2, 0}), (S{3000, 3000, 1560, 8985, 0}));
    EXPECT_EQ(f->nextPoint(), 3);
    // The next click is taken as a third point.
    t.clear();
    click(5000, 5000);
    EXPECT_EQ(segs().size(), 1u + 15);
}

TEST_F(String2Test, ChangeColorsRefusesABadTicCountAtOnce) {
    type("txtTics", "0");
    press("cmdCycle");
    EXPECT_EQ(t.faults().size(), 1u);
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(static_cast<CheckBox*>(f->find("chkColorIt"))->Value(), 0);
    // 15 passes of 97 corners of 5000 strings: far too many, refused whole.
    type("txtTics", "1");
    press("mnuOcta3");
    t.clear();
    type("txtTics", "5000");
    press("cmdCycle");
    EXPECT_EQ(t.faults().size(), 1u);
    EXPECT_TRUE(t.ops().empty());
}

TEST_F(String2Test, AboutAndEnd) {
    press("mnuAbout");
    const auto b = boxes();
    ASSERT_EQ(b.size(), 1u);
    EXPECT_EQ(b[0].title, "Info About Program");
    EXPECT_EQ(b[0].prompt,
              "Click around on the area at the right or enter a coordinate and click in the set position.  "
              "Your strings will start forming.  Change the tic marks to 25 or more for the Shapes menu.  "
              "These are set shapes.  You may print them also.");
    EXPECT_EQ(b[0].buttons, vbOKOnly);
    EXPECT_TRUE(f->visible());
    press("mnuEnd");
    EXPECT_FALSE(f->visible());
}

TEST(String2Design, MenusCaptionsAndTips) {
    const FormDesign d = FrmString2::Design();
    EXPECT_EQ(d.caption, "String Art Point Plotting");
    EXPECT_EQ(d.clientWidth, 13890);
    EXPECT_EQ(d.clientHeight, 8985);
    std::vector<std::string> file, shapes;
    for (const ControlDesign& c : d.controls) {
        if (c.kind != ControlKind::Menu) continue;
        if (c.container == "mnuFile") file.push_back(c.separator ? "-" : c.caption);
        if (c.container == "mnuShapes") shapes.push_back(c.name + " " + c.caption);
    }
    EXPECT_EQ(file, (std::vector<std::string>{"About", "-", "&Open", "&Save", "-", "End"}));
    EXPECT_EQ(shapes, (std::vector<std::string>{"mnuCube &Cube", "mnuTriangle1 &Triangle1", "mnuTriangle2 Triangle2",
                                                "mnuTetra1 Tetrahedron1", "mnutetra2 Tetrahedron2",
                                                "mnuOcta1 &Octagon1", "mnuOcta2 Octagon2", "mnuOcta3 Octagon3"}));
    auto find = [&](const std::string& n) {
        for (const ControlDesign& c : d.controls)
            if (c.name == n) return c;
        return ControlDesign{};
    };
    EXPECT_EQ(find("lblInstructions").toolTip, "The area is anywhereat the right, click with longer segments");
    EXPECT_EQ(find("lblSetPos").toolTip, "Click here to use the point you enter.");
    EXPECT_EQ(find("cmdCycle").toolTip, "Start or stop the line to change colors");
    EXPECT_EQ(find("cmdPrintIt").toolTip, "Your points will be put on Paper.");
    EXPECT_EQ(find("txtTics").caption, "15");
    EXPECT_EQ(find("lblSetPos").caption, " Set Position  X    ,   Y");
    const ControlDesign lne1 = find("lne1");
    EXPECT_EQ(std::vector<int>({lne1.left, lne1.top, lne1.width, lne1.height}), std::vector<int>({1560, 0, 1560, 9000}));
}

} // namespace
} // namespace gp::string2test
