// Runs of frmExplodeIt: Begin, the ticks and the wrap of a cycle in every
// mode, Quit, and the values that would break a run (Steps 0, Up past frame
// 136, numbers too large for a Single or an Integer).
#include "explode_fixture.h"

using namespace explode_test;

namespace {
// The first point of the runner, (-2.3, 2), as Scalar frame k shows it.
float scalarX1(double factor) { return formX(factor * -2.3f); }

std::vector<std::string> texts(std::initializer_list<int> ns) {
    std::vector<std::string> out;
    for (int n : ns) out.push_back(gp::Str(n) + " ");
    return out;
}
}

TEST(ExplodeRun, DefaultsGrowTheRunnerByAQuarterAndWrapAfterFrame10) {
    Explode e;
    e.click("cmdBegin");
    EXPECT_TRUE(e.timer().Enabled());
    EXPECT_EQ(e.t.count(kForm, "cls"), 0);  // Begin draws nothing
    for (int k = 1; k <= 10; ++k) {
        e.tick();
        const auto l = e.frame();
        ASSERT_EQ(l.size(), 23u);
        EXPECT_EQ(l[0].x1, scalarX1(0.5 + 0.25 * k)) << k;
        EXPECT_EQ(l[22].y2, formY((0.5 + 0.25 * k) * 4.8f)) << k;
    }
    EXPECT_EQ(e.frame()[0].x1, 4344);  // factor 3: 6000 - 240 * 6.9
    e.t.clear();
    e.tick();  // frame 11 is drawn, wiped and replaced by frame 0 in one tick
    EXPECT_EQ(e.counters(), texts({11, 0}));
    EXPECT_EQ(e.t.count(kForm, "cls"), 2);
    EXPECT_EQ(e.t.count(kForm, "line"), 46);
    EXPECT_EQ(e.t.lines(kForm)[0].x1, scalarX1(3.25));
    EXPECT_EQ(e.frame()[0].x1, 5724);
    EXPECT_EQ(e.text("txtX", 0), "-1.2");
    e.tick();
    EXPECT_EQ(e.counters().back(), " 1 ");
    EXPECT_EQ(e.f().stepIndex(), 1);

    // The counter sits at (8700, 1100) in the form's font.
    const Op p = e.t.opsOf(kForm, "print").back();
    EXPECT_EQ(p.stroke.x1, 8700);
    EXPECT_EQ(p.stroke.y1, 1100);
    EXPECT_EQ(p.font.name, "Arial");
}

TEST(ExplodeRun, StepsDividesAsTypedButCountsWhole) {
    {   // 2.5: step 1, two frames, then Start again
        Explode e;
        e.edit("txtSteps", "2.5");
        e.click("cmdBegin");
        EXPECT_EQ(e.f().stepCount(), 2);
        e.tick();
        EXPECT_EQ(e.frame()[0].x1, scalarX1(1.5));
        e.tick();
        EXPECT_EQ(e.frame()[0].x1, scalarX1(2.5));
        e.tick();
        EXPECT_EQ(e.frame()[0].x1, scalarX1(0.5));
        EXPECT_EQ(e.counters(), texts({1, 2, 3, 0}));
    }
    for (const std::string steps : {".5", "-2"}) {  // every tick wraps: the picture stands at Start
        Explode e;
        e.edit("txtSteps", steps);
        e.click("cmdBegin");
        e.tick(3);
        EXPECT_EQ(e.counters(), texts({1, 0, 1, 0, 1, 0})) << steps;
        EXPECT_EQ(e.frame()[0].x1, 5724) << steps;
        EXPECT_EQ(e.f().stepIndex(), 0);
    }
}

TEST(ExplodeRun, EndBelowStartShrinksThroughTheOrigin) {
    Explode e;
    e.edit("txtStart", "2");
    e.edit("txtEnd", "-2");
    e.edit("txtSteps", "4");
    e.click("cmdBegin");
    e.tick(2);  // factor 0: every stroke at the origin
    for (const Stroke& s : e.frame()) {
        EXPECT_EQ(s.x1, 6000);
        EXPECT_EQ(s.y2, 5400);
    }
    EXPECT_EQ(e.text("txtX", 0), " 0");
    e.tick();  // factor -1: turned through the origin
    EXPECT_EQ(e.frame()[0].x1, formX(2.3f));
    EXPECT_EQ(e.frame()[0].y1, 5880);
    EXPECT_EQ(e.text("txtX", 0), " 2.2");  // the Single 2.3 cut downward
    e.tick(2);
    EXPECT_EQ(e.frame()[0].x1, scalarX1(2));
    EXPECT_EQ(e.counters().back(), " 0 ");
}

TEST(ExplodeRun, QuitStopsAndBeginCarriesOnCounting) {
    Explode e;
    e.click("cmdBegin");
    e.tick(3);
    const auto ops = e.t.ops().size();
    e.click("cmdQuit");
    EXPECT_FALSE(e.timer().Enabled());
    EXPECT_EQ(e.t.ops().size(), ops);  // the last frame stays
    e.tick(5);
    EXPECT_EQ(e.t.ops().size(), ops);
    e.click("cmdBegin");
    e.tick();
    EXPECT_EQ(e.counters().back(), " 4 ");
    // A second Begin while running keeps running and keeps the counter.
    e.click("cmdBegin");
    e.tick();
    EXPECT_EQ(e.counters().back(), " 5 ");
}

TEST(ExplodeRun, BoxesAndModeAreReadAtEveryTick) {
    Explode e;
    e.click("cmdBegin");
    e.tick();
    e.edit("txtStart", "1");  // factor 1 + 2 * (3 - 1) / 10
    e.tick();
    EXPECT_EQ(e.frame()[0].x1, scalarX1(1 + 2 * gp::Single(0.2)));
    e.option("optRight");
    e.tick();  // shift 1 + 3 * .2
    EXPECT_EQ(e.frame()[0].x1, formX(-2.3f + (1 + 3 * double(gp::Single(0.2)))));
    EXPECT_EQ(e.frame()[0].y1, 4920);
    e.option("optUp");
    e.tick();  // 5400 - 480 - 960 * .2 - 240
    EXPECT_EQ(e.frame()[0].x1, 5448);
    EXPECT_EQ(e.frame()[0].y1, gp::Single(5400 - 480 - 960 * double(gp::Single(0.2)) - 240));
    EXPECT_EQ(e.text("txtY", 0), " 3.8");
    // StepCount was taken at Begin: Steps typed now changes the step only.
    e.edit("txtSteps", "5");
    e.tick(6);
    EXPECT_EQ(e.counters().back(), " 10 ");
}

TEST(ExplodeRun, TheIdentityMatrixStandsStill) {
    Explode e;
    e.edit("txtr12", "0");
    e.option("optMultiplier");
    e.click("cmdBegin");  // the matrix is read here
    e.click("cmdQuit");
    e.click("cmdPlotPoints");
    const auto still = e.frame();
    EXPECT_EQ(still[0].x1, 5448);
    e.click("cmdBegin");
    for (int k = 0; k < 14; ++k) {
        e.tick();
        const auto l = e.frame();
        ASSERT_EQ(l.size(), still.size());
        for (size_t i = 0; i < l.size(); ++i) {
            EXPECT_EQ(l[i].x1, still[i].x1);
            EXPECT_EQ(l[i].y2, still[i].y2);
        }
    }
    EXPECT_EQ(e.counters().back(), " 3 ");
}

TEST(ExplodeRun, MultiplierCyclesRestartFromTheSavedTable) {
    Explode e;
    e.edit("txtSteps", "3");
    e.option("optMultiplier");
    e.click("cmdBegin");
    // The shear adds y to x: point 1 (-2.3, 2) goes 2 to the right per product.
    auto x1 = [&] { return e.frame()[0].x1; };
    auto sheared = [](int n) { return formX(-2.3f + 2.0 * n); };
    e.tick();
    EXPECT_EQ(x1(), sheared(1));
    e.tick(2);
    EXPECT_EQ(x1(), sheared(3));
    e.tick();  // frame 4 wiped; frame 0 is one product of the saved table
    EXPECT_EQ(x1(), sheared(1));
    EXPECT_EQ(e.counters().back(), " 0 ");
    e.tick();
    EXPECT_EQ(x1(), sheared(2));  // later cycles show M^(k+1)
    EXPECT_EQ(e.text("txtX", 0), " 1.7");  // -2.3 + 4, a Single just above 1.7
    // Another mode keeps the multiplied table; Quit brings the saved one back.
    e.option("optScalar");
    e.edit("txtStart", "1");
    e.tick();
    EXPECT_EQ(x1(), formX((1 + 2 * (3 - 1) / 3.0f) * (-2.3f + 4)));
    e.click("cmdQuit");
    EXPECT_FLOAT_EQ(e.f().ptX(1), -2.3f);
    EXPECT_FLOAT_EQ(e.f().ptY(1), 2.0f);
}

TEST(ExplodeRunLimits, StepsOfZeroRefuseToStartAndLeaveFramesEmpty) {
    Explode e;
    e.edit("txtSteps", "0");
    e.click("cmdBegin");
    ASSERT_EQ(e.t.faults().size(), 1u);
    EXPECT_NE(e.t.faults()[0].find("Steps"), std::string::npos);
    EXPECT_FALSE(e.timer().Enabled());

    e.t.clear();
    e.click("cmdPlotPoints");
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_EQ(e.t.count(kForm, "cls"), 0);
    EXPECT_EQ(e.text("txtStart"), ".5");

    e.t.clear();
    e.menu("mnuSquares");  // loaded and shown, not drawn
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_EQ(e.f().pointCount(), 25);
    EXPECT_EQ(e.text("txtX", 0), "-4");
    EXPECT_EQ(e.t.count(kForm, "line"), 0);

    // Retyping Steps during a run: empty frames, no message, then on again.
    e.edit("txtSteps", "10");
    e.click("cmdBegin");
    e.tick();
    e.t.clear();
    e.edit("txtSteps", "");
    e.tick(3);
    EXPECT_EQ(e.t.count(kForm, "line"), 0);
    EXPECT_EQ(e.counters(), texts({2, 3, 4}));
    EXPECT_TRUE(e.t.faults().empty());
    e.edit("txtSteps", "10");
    e.tick();
    EXPECT_EQ(e.frame().size(), 24u);
    EXPECT_TRUE(e.timer().Enabled());
}

TEST(ExplodeRunLimits, StepsBeyondTheIntegerRangeDoNotStart) {
    Explode e;
    e.edit("txtSteps", "40000");
    e.click("cmdBegin");
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_FALSE(e.timer().Enabled());
    e.edit("txtSteps", "-32768");
    e.click("cmdBegin");
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_EQ(e.f().stepCount(), -32768);
}

TEST(ExplodeRunLimits, UpModeStopsOnceBeforeFrame137) {
    Explode e;
    e.option("optUp");
    e.edit("txtSteps", "200");
    e.click("cmdBegin");
    e.tick(136);
    EXPECT_TRUE(e.t.faults().empty());
    // (k * 240) * StepSize = 32640 * .0125
    EXPECT_EQ(e.frame()[0].y1, 4392);
    const auto ops = e.t.opsOf(kForm).size();
    e.tick(5);
    ASSERT_EQ(e.t.faults().size(), 1u);
    EXPECT_NE(e.t.faults()[0].find("136"), std::string::npos);
    EXPECT_FALSE(e.timer().Enabled());
    EXPECT_EQ(e.t.opsOf(kForm).size(), ops);  // frame 136 stays on show
    EXPECT_EQ(e.f().stepIndex(), 0);
    // Fewer steps, Begin: a new run from frame 1 that cycles.
    e.edit("txtSteps", "135");
    e.click("cmdBegin");
    e.tick(137);
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_EQ(e.counters().back(), " 1 ");
}

TEST(ExplodeRunLimits, UpModeWrapsPastFrame136WithoutDrawingIt) {
    Explode e;
    e.option("optUp");
    e.edit("txtSteps", "136");
    e.click("cmdBegin");
    e.tick(136);
    // Frame 137 would be wiped in its own tick: the cycle wraps to frame 0.
    e.t.clear();
    e.tick();
    EXPECT_TRUE(e.t.faults().empty());
    EXPECT_EQ(e.counters(), (std::vector<std::string>{" 137 ", " 0 "}));
    EXPECT_EQ(e.t.count(kForm, "cls"), 2);
    EXPECT_EQ(e.t.count(kForm, "line"), 23);
    EXPECT_EQ(e.frame()[0].y1, 4800);  // frame 0 at Start .5
    EXPECT_TRUE(e.timer().Enabled());

    // A counter left high by a longer run in another mode wraps the same way.
    e.option("optScalar");
    e.edit("txtSteps", "200");
    e.click("cmdBegin");
    e.tick(150);
    e.option("optUp");
    e.edit("txtSteps", "10");
    e.click("cmdBegin");
    e.tick();
    EXPECT_TRUE(e.t.faults().empty());
    EXPECT_EQ(e.counters().back(), " 0 ");
    e.tick();
    EXPECT_EQ(e.counters().back(), " 1 ");
}

TEST(ExplodeRunLimits, UpModeWithAnEmptyTableHasNothingToPlace) {
    Explode e;
    e.mouse(6000, 5000);  // no New Graph: the table counts as empty
    e.option("optUp");
    e.edit("txtSteps", "300");
    e.click("cmdBegin");
    e.tick(200);
    EXPECT_TRUE(e.t.faults().empty());
    EXPECT_EQ(e.counters().back(), " 200 ");
}

TEST(ExplodeRunLimits, ASingleOverflowStopsTheRunWithOneMessage) {
    Explode e;
    for (const char* box : {"txtr11", "txtr22"}) e.edit(box, "1e20");
    e.edit("txtr12", "0");
    e.option("optMultiplier");
    e.click("cmdBegin");
    e.tick(10);
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_FALSE(e.timer().Enabled());
    EXPECT_FLOAT_EQ(e.f().ptX(1), -2.3f);  // back to the table of Begin
    // The form stays usable.
    e.edit("txtr11", "1");
    e.edit("txtr22", "1");
    e.click("cmdBegin");
    e.tick();
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_EQ(e.frame()[0].x1, formX(-2.3f));
}

TEST(ExplodeRunLimits, TheFrameCounterStopsAtTheIntegerLimit) {
    Explode e;
    e.mouse(6000, 5000);  // empty table: cheap frames
    e.edit("txtSteps", "32767");
    e.click("cmdBegin");
    e.tick(32767);
    EXPECT_TRUE(e.t.faults().empty());
    e.tick(3);
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_FALSE(e.timer().Enabled());
    EXPECT_EQ(e.f().stepIndex(), 32767);
}
