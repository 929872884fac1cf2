// Runs of frmExplodeIt: the ticks and the wrap of a cycle in every mode,
// Quit, and the values that would break a run, with the messages they give.
#include "explode_fixture.h"

using namespace explode_test;

namespace {
// The runner's first point, (-2.3, 2), as a Scalar frame at `factor` shows it.
float scalarX1(double factor) { return formX(factor * -2.3f); }
}

TEST(ExplodeRun, FramesStepsAndWrapsAsTyped) {
    Explode e;
    EXPECT_EQ(e("clear cmdBegin").t.ops().size(), 0u);  // Begin draws nothing
    for (int k = 1; k <= 10; ++k) EXPECT_EQ(e("t1").x1(), scalarX1(0.5 + 0.25 * k)) << k;
    e("clear t1");  // frame 11 is drawn, wiped and replaced by frame 0 in one tick
    EXPECT_EQ(e.t.lines(kForm).at(0).x1, scalarX1(3.25));
    EXPECT_EQ(e.counters() + std::to_string(e.t.count(kForm, "line")), " 11  0 46");
    const Op p = e.t.opsOf(kForm, "print").back();
    EXPECT_EQ(std::vector<float>({p.stroke.x1, p.stroke.y1, e.x1()}), std::vector<float>({8700, 1100, 5724}));
    EXPECT_EQ(p.font.name, "Arial");

    struct Case { const char* steps; float x1; const char* counters; };
    for (const Case& c : {Case{"txtSteps=2.5 cmdBegin t3", scalarX1(0.5), " 1  2  3  0 "},  // step 1, counts whole
                          Case{"txtSteps=.5 cmdBegin t2", 5724, " 1  0  1  0 "},           // every tick wraps
                          Case{"txtSteps=-2 cmdBegin t2", 5724, " 1  0  1  0 "},
                          Case{"txtStart=2 txtEnd=-2 txtSteps=4 cmdBegin t2", 6000, " 1  2 "},  // factor 0
                          Case{"txtStart=2 txtEnd=-2 txtSteps=4 cmdBegin t3", formX(2.3f), " 1  2  3 "}}) {
        Explode r;
        EXPECT_EQ(r(c.steps).x1(), c.x1) << c.steps;
        EXPECT_EQ(r.counters(), c.counters) << c.steps;
    }
}

TEST(ExplodeRun, BoxesAreReadAtEveryTickAndQuitStops) {
    Explode e;
    EXPECT_EQ(e("cmdBegin t1 txtStart=1 t1").x1(), scalarX1(1 + 2 * Single(0.2)));
    EXPECT_EQ(e("optUp t2").y1(), Single(5400 - 480 - 960 * double(Single(0.2)) - 240));  // frame 4
    EXPECT_EQ(e.text("txtY", 0), " 3.8");
    e("txtSteps=5 t6 cmdQuit clear t5");  // StepCount was taken at Begin; Quit leaves the frame
    EXPECT_EQ(e.t.ops().size(), 0u);
    EXPECT_EQ(e("txtSteps=20 cmdBegin t1 cmdBegin t1").counters(), " 11  12 ");  // a Begin while running keeps the counter
}

TEST(ExplodeRun, MultiplierCyclesRestartFromTheSavedTable) {
    Explode e;
    e("txtSteps=3 optMultiplier cmdBegin");
    for (int n : {1, 2, 3, 1, 2})  // the shear adds y to x; frame 0 is one product of the saved table
        EXPECT_EQ(e("t1").x1(), formX(-2.3f + 2.0 * n)) << n;
    EXPECT_EQ(e.text("txtX", 0), " 1.7");  // -2.3 + 4, a Single just above 1.7
    EXPECT_EQ(e("optScalar txtStart=1 t1").x1(), formX((1 + 2 * (3 - 1) / 3.0f) * (-2.3f + 4)));  // kept
    EXPECT_FLOAT_EQ(e("cmdQuit").f().ptX(1), -2.3f);  // Quit brings the saved table back
}

TEST(ExplodeRunLimits, MessagesUsersSee) {
    const std::string zero = ": Steps reads as 0, and the shape moves by (End - Start) / Steps. "
                             "Please type a number of steps other than 0.";
    const std::string every = ", so the shape will change every 500 thousandths of a second.";
    Explode e("abc"), cancel("");
    const auto& q = e.t.dialogs()[0];
    const auto& m = e.t.dialogs()[1];
    EXPECT_EQ(q.title + "|" + q.prompt + "|" + q.defaultText, "Time interval|Enter the interval in thousandths of seconds|500");
    EXPECT_EQ(m.title + "|" + m.prompt, "Time interval|\"abc\" is not a whole number of thousandths of seconds from 0 to 32767" + every);
    EXPECT_EQ(cancel.t.dialogs()[1].prompt, "No interval was given" + every);
    e("txtSteps=0 cmdBegin cmdPlotPoints mnuSquares txtSteps=40000 cmdBegin txtSteps=200 optUp cmdBegin t140");
    EXPECT_EQ(e.t.faults(), (std::vector<std::string>{
        "The run did not start" + zero, "Nothing was plotted" + zero, "The shape is loaded but not drawn" + zero,
        "The run did not start: Steps must lie between -32768 and 32767.",
        "The run has stopped: in Up mode the shape can slide for 136 frames at most. "
        "Please use fewer Steps, then press Begin to run again from frame 1."}));
    EXPECT_EQ(e.text("txtX", 0), "-4");  // the squares were loaded
    EXPECT_EQ(e.y1(), 4872);             // frame 136 stays: 5400 - (136 * 240) * .0125 - 120
    EXPECT_EQ(e.f().stepIndex(), 0);
    EXPECT_FALSE(e.timer().Enabled());
}

TEST(ExplodeRunLimits, StepsRetypedEmptyGiveEmptyFramesAndUpWrapsPastFrame136) {
    Explode e;
    e("cmdBegin t1 clear txtSteps= t3");
    EXPECT_EQ(e.counters() + std::to_string(e.t.count(kForm, "line")), " 2  3  4 0");
    EXPECT_EQ(e("txtSteps=10 t1").frame().size(), 23u);
    e("cmdQuit optUp txtSteps=136 cmdBegin t131 clear t1");  // frame 137 would be wiped in its own tick
    EXPECT_EQ(e.counters() + std::to_string(e.t.count(kForm, "line")), " 137  0 23");
    // A counter left high by a longer run in another mode wraps the same way.
    EXPECT_EQ(e("optScalar txtSteps=200 cmdBegin t150 optUp txtSteps=10 cmdBegin clear t2").counters(), " 151  0  1 ");
    e("cmdQuit cmdClear @6000,5000 txtSteps=300 cmdBegin t200");  // one point: nothing to place
    EXPECT_TRUE(e.t.faults().empty());
}

TEST(ExplodeRunLimits, SingleOverflowAndTheIntegerCounterStopTheRunOnce) {
    Explode e;
    e("txtr11=1e20 txtr22=1e20 txtr12=0 optMultiplier cmdBegin t10");
    EXPECT_EQ(e.t.faults().size(), 1u);
    EXPECT_FLOAT_EQ(e.f().ptX(1), -2.3f);  // back to the table of Begin
    e("@6000,5000 txtSteps=32767 cmdBegin t32770");  // an empty table: cheap frames
    EXPECT_EQ(e.t.faults().size() * 100000 + e.f().stepIndex(), 232767u);
    EXPECT_FALSE(e.timer().Enabled());
}

TEST(ExplodeRun, BeginKeepsAndACycleBringsBackOnlyThePointsTheTableHeld) {
    // Begin keeps points 1 to 24 of the runner. The squares loaded during the
    // run have 25, and at the end of the cycle their 25th comes back from an
    // entry Begin never kept: the origin on a new form, not the squares'
    // (1, 0) that the table held past the runner when Begin was pressed.
    Explode e;
    e("txtSteps=1 mnuSquares mnuRunner optMultiplier cmdBegin mnuSquares clear t2");
    const std::vector<Stroke> l = e.frame();
    ASSERT_EQ(l.size(), 24u);
    EXPECT_EQ(l.front().x1, formX(-2.3f + 2.0));  // the runner's first point, sheared once
    EXPECT_EQ(std::vector<float>({l.back().x2, l.back().y2}), std::vector<float>({6000, 5400}));
}
