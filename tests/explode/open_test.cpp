// Opening frmExplodeIt: its design, the interval question and its bad
// replies, the first frame, and the ways out.
#include "explode_fixture.h"

#include "explode/graph_points.h"

using namespace explode_test;

TEST(ExplodeDesign, ControlsStandWhereTheFormPutsThem) {
    const gp::FormDesign d = FrmExplodeIt::Design();
    EXPECT_EQ(d.caption, "Explode It");
    EXPECT_EQ(d.clientWidth, 12375);
    EXPECT_EQ(d.clientHeight, 9390);
    EXPECT_EQ(d.backColor, gp::kSystem3DHighlight);
    EXPECT_EQ(d.font.name, "Arial");
    EXPECT_DOUBLE_EQ(d.font.size, 8.25);
    auto find = [&](const std::string& name, int index = -1) -> const gp::ControlDesign& {
        for (const auto& c : d.controls)
            if (c.name == name && c.index == index) return c;
        throw std::logic_error("no " + name);
    };
    // The last column of the table: 1920 + 480 * 10.
    EXPECT_EQ(find("txtX", 10).left, 6720);
    EXPECT_EQ(find("txtY", 10).top, 1080);
    EXPECT_EQ(find("txtY", 0).caption, "5");
    EXPECT_EQ(find("txtX", 0).caption, "2");
    EXPECT_EQ(find("optScalar").container, "fraChoice");
    EXPECT_EQ(find("optScalar").value, 1);
    EXPECT_EQ(find("optMultiplier").value, 0);
    EXPECT_EQ(find("txtStart").caption, ".5");
    EXPECT_EQ(find("txtr21").caption, "0");
    EXPECT_EQ(find("Timer1").interval, 500);
    EXPECT_FALSE(find("Timer1").enabled);
    EXPECT_EQ(find("cmdClear").caption, "New Graph");
    EXPECT_EQ(find("Label1").toolTip,
              "This is a matrix multiplier which will change the shape.  The Steps number is the only part used.");

    // Three black lines and 28 red ticks, 240 twips long, one graph unit apart.
    int red = 0, xTicks = 0, yTicks = 0;
    for (const auto& c : d.controls) {
        if (c.kind != gp::ControlKind::Line) continue;
        if (c.foreColor != gp::RGB(255, 0, 0)) continue;
        ++red;
        if (c.top == 5280 && c.height == 5520 && c.left == c.width && (c.left - 6000) % 240 == 0) ++xTicks;
        if (c.left == 5880 && c.width == 6120 && c.top == c.height && (5400 - c.top) % 240 == 0) ++yTicks;
    }
    EXPECT_EQ(red, 28);
    EXPECT_EQ(xTicks, 14);
    EXPECT_EQ(yTicks, 14);
    EXPECT_EQ(find("Line31").kind, gp::ControlKind::Line);
    EXPECT_EQ(find("Line3").left, 120);
    EXPECT_EQ(find("Line3").width, 12120);
    EXPECT_EQ(find("mnuTriangles").container, "mnuSamples");
}

TEST(ExplodeOpening, AsksForTheIntervalAndDrawsTheRunnerAtHalfSize) {
    Explode e;
    ASSERT_EQ(e.t.dialogs().size(), 1u);
    const auto& q = e.t.dialogs()[0];
    EXPECT_EQ(q.kind, "inputbox");
    EXPECT_EQ(q.prompt, "Enter the interval in thousandths of seconds");
    EXPECT_EQ(q.title, "Time interval");
    EXPECT_EQ(q.defaultText, "500");
    EXPECT_EQ(e.timer().Interval(), 500);
    EXPECT_FALSE(e.timer().Enabled());
    EXPECT_EQ(e.t.count(kForm, "cls"), 0);  // the opening draws over whatever is there

    const auto l = e.frame();
    ASSERT_EQ(l.size(), 23u);  // 24 points, an open line
    // (-2.3, 2) and (-1.2, 1.1) at factor .5.
    EXPECT_EQ(l[0].x1, 5724);
    EXPECT_EQ(l[0].y1, 5160);
    EXPECT_EQ(l[0].x2, 5856);
    EXPECT_EQ(l[0].y2, 5268);
    EXPECT_EQ(l[22].x2, formX(0.5 * -1.1f));
    EXPECT_EQ(l[22].y2, formY(0.5 * 4.8f));
    EXPECT_EQ(l[0].color, -1);
    EXPECT_EQ(l[0].width, 1);

    // The boxes show the half values, cut downward to tenths.
    const std::vector<std::string> xs = {"-1.2", "-.7", "-.5", "-.2", "-.7", "-.2",
                                         "-.5",  "-.5", "-1",  "-.8", "-1"};
    const std::vector<std::string> ys = {" 1", " .5", " 1.1", " .6", " 0", " .6",
                                         " 1.1", " 2", " 1.6", " 1.3", " 1.7"};
    EXPECT_EQ(e.xs(), xs);
    EXPECT_EQ(e.ys(), ys);
}

TEST(ExplodeOpening, TenthsTextCutsDownwardFromTheSingle) {
    EXPECT_EQ(gp::TenthsText(-1.2f), "-1.3");
    EXPECT_EQ(gp::TenthsText(2.3f), " 2.2");
    EXPECT_EQ(gp::TenthsText(-2.3f), "-2.3");
    EXPECT_EQ(gp::TenthsText(0.5), " .5");
    EXPECT_EQ(gp::TenthsText(0.0), " 0");
    EXPECT_EQ(gp::TenthsText(-0.01), "-.1");
    EXPECT_EQ(gp::TenthsText(12.0), " 12");
    EXPECT_EQ(gp::TenthsText(-3.0), "-3");
}

TEST(ExplodeOpening, GoodIntervalRepliesAreTakenAsCIntWould) {
    for (auto [reply, want] : std::vector<std::pair<std::string, int>>{
             {"20", 20}, {" 250 ", 250}, {"12.5", 12}, {"13.5", 14}, {"0", 0}, {"32767", 32767},
             {"1e3", 1000}, {"-0.4", 0}}) {
        Explode e(reply);
        EXPECT_EQ(e.timer().Interval(), want) << reply;
        EXPECT_EQ(e.t.dialogs().size(), 1u) << reply;  // no message
        EXPECT_EQ(e.frame().size(), 23u);
    }
}

TEST(ExplodeOpening, BadIntervalRepliesSayWhyAndUse500) {
    for (const std::string reply : {"", "abc", "-5", "40000", "32767.5", "5 0 0x", "   "}) {
        Explode e(reply);
        ASSERT_EQ(e.t.dialogs().size(), 2u) << reply;
        const auto& m = e.t.dialogs()[1];
        EXPECT_EQ(m.kind, "msgbox");
        EXPECT_EQ(m.title, "Time interval");
        EXPECT_NE(m.prompt.find("500 thousandths"), std::string::npos) << m.prompt;
        EXPECT_EQ(e.timer().Interval(), 500);
        EXPECT_TRUE(e.t.faults().empty());
        EXPECT_EQ(e.frame().size(), 23u) << "the first frame is drawn all the same";
    }
    Explode cancel("");
    EXPECT_EQ(cancel.t.dialogs()[1].prompt.rfind("No interval was given", 0), 0u);
}

TEST(ExplodeOpening, IntervalZeroLeavesTheTimerSilent) {
    Explode e("0");
    e.click("cmdBegin");
    EXPECT_TRUE(e.timer().Enabled());
    e.t.clear();
    e.tick(5);
    EXPECT_EQ(e.t.ops().size(), 0u);
}

TEST(ExplodeWaysOut, ExitHidesAndTheRunGoesOnWhileHidden) {
    Explode e;
    e.click("cmdBegin");
    e.tick(3);
    e.click("cmdExit");
    ASSERT_NE(e.form(), nullptr);
    EXPECT_FALSE(e.f().visible());
    e.tick(2);
    EXPECT_EQ(e.f().stepIndex(), 5);
    EXPECT_EQ(e.counters().back(), " 5 ");

    // Shown again: the runner and the question come back, the counter does not reset.
    e.edit("txtStart", "1");
    e.t.clear();
    e.open("40");
    EXPECT_EQ(e.timer().Interval(), 40);
    EXPECT_TRUE(e.timer().Enabled());
    EXPECT_EQ(e.f().stepIndex(), 5);
    EXPECT_EQ(e.text("txtStart"), "1");
    EXPECT_EQ(e.t.count(kForm, "cls"), 0);
    EXPECT_EQ(e.frame().size(), 23u);
    e.tick();
    EXPECT_EQ(e.counters().back(), " 6 ");
}

TEST(ExplodeWaysOut, ShownAgainInMultiplierModeTheRunnerIsMultipliedOnce) {
    Explode e;
    e.option("optMultiplier");
    e.click("cmdBegin");
    e.tick(3);
    e.click("cmdExit");
    e.t.clear();
    e.open();
    // The reloaded runner is sheared once while it is drawn; the run goes on from there.
    EXPECT_EQ(e.frame()[0].x1, formX(-2.3f + 2));
    EXPECT_FLOAT_EQ(e.f().ptX(1), -2.3f + 2);
    e.t.clear();
    e.tick();
    EXPECT_EQ(e.frame()[0].x1, formX(-2.3f + 2 * 2));
}

TEST(ExplodeWaysOut, MenuExitHidesKeyAndFrameUnload) {
    {
        Explode e;
        e.menu("mnuExit");
        ASSERT_NE(e.form(), nullptr);
        EXPECT_FALSE(e.f().visible());
    }
    {
        Explode e;
        e.click("cmdClear");
        e.mouse(6000, 5000);
        EXPECT_EQ(e.f().clickCount(), 2);
        EXPECT_EQ(e.timer().Interval(), 500);
        EventArgs key;
        key.keyCode = 65;
        e.t.fire(e.f(), gp::kFormEvents, Event::KeyDown, key);
        EXPECT_EQ(e.form(), nullptr);
        // A new instance: counters from 0 and the design's texts.
        e.open();
        EXPECT_EQ(e.f().clickCount(), 0);
        EXPECT_EQ(e.text("txtSteps"), "10");
    }
    {
        Explode e;
        e.click("cmdBegin");
        e.t.app().closeByFrame(e.f());
        EXPECT_EQ(e.form(), nullptr);
        e.tick(3);  // nothing left to tick
        EXPECT_TRUE(e.t.faults().empty());
    }
}

TEST(ExplodeWaysOut, ClickCountAndStepIndexSurviveAHide) {
    Explode e;
    e.click("cmdClear");
    e.mouse(6240, 5160);
    e.mouse(6480, 5160);
    e.click("cmdBegin");
    e.tick(4);
    e.click("cmdExit");
    e.open();
    EXPECT_EQ(e.f().clickCount(), 3);
    EXPECT_EQ(e.f().stepIndex(), 4);
    EXPECT_EQ(e.f().pointCount(), 24);  // the opening loads the runner again
    // The next click goes on at index 3 and cuts the table to 3 points.
    e.mouse(6720, 5160);
    EXPECT_EQ(e.f().pointCount(), 3);
    EXPECT_FLOAT_EQ(e.f().ptX(3), 3.0f);
}
