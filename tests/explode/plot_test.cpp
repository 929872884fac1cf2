// One frame of frmExplodeIt: Plot Points in the four modes, the samples and
// the shape clicked on the graph.
#include "explode_fixture.h"

using namespace explode_test;

const std::string kRunnerXs = "-2.3 -1.3 -1 -.3 -1.4 -.3 -1 -1 -1.9 -1.5 -1.9 ";

TEST(ExplodePlotPoints, EachModeAtFrame0AndTheTableIsKeptUntilBegin) {
    struct Case { const char* mode; float x1, y1; };
    for (const Case c : {Case{"optScalar", 5448, 4920}, Case{"optRight", formX(-2.3f + 0.5), 4920},
                         Case{"optUp", 5448, 4800}, Case{"optMultiplier", 6000, 5400}}) {
        Explode e;  // txtX(0) is a display, never a source; Multiplier reads the all-zero matrix
        e(std::string("txtX(0)=9 ") + c.mode + " clear cmdPlotPoints");
        EXPECT_EQ(e.t.count(kForm, "cls") * 100 + e.frame().size(), 123u);
        EXPECT_EQ(std::vector<float>({e.x1(), e.y1()}), std::vector<float>({c.x1, c.y1})) << c.mode;
        EXPECT_EQ(e.text("txtStart") + e.row("txtX"), ".5" + kRunnerXs) << c.mode;
    }
    Explode e;  // after a Multiplier run one more shear is drawn, then Begin's table is back
    EXPECT_EQ(e("optMultiplier cmdBegin t3 cmdPlotPoints").x1(), formX(-2.3f + 4 * 2.0));
    EXPECT_EQ(e.row("txtX"), kRunnerXs);
}

TEST(ExplodeSamples, SquaresAndTrianglesReachWhereTheyShouldAndKeepLaterEntries) {
    Explode e;
    auto l = e("txtStart=3 mnuSquares").frame();  // (-4, 0) (0, 4) (4, 0) (0, -4) (-4, 0) ... times 3
    ASSERT_EQ(l.size(), 24u);
    EXPECT_EQ(std::vector<float>({l[0].x1, l[0].y2, l[1].x2, l[2].y2, l[3].x2}),
              std::vector<float>({3120, 2520, 8880, 8280, 3120}));  // every square closes
    l = e("txtStart=1 clear mnuTriangles").frame();
    EXPECT_EQ(e.t.opsOf(kForm).front().op, "cls");
    EXPECT_FLOAT_EQ(e.f().ptX(21), 1.0f);  // entries 18 to 25 keep the squares'
    ASSERT_EQ(l.size(), 16u);              // the last side, (0, -5) to (-4, 3), is gone over twice
    EXPECT_EQ(ends(l[15]), std::vector<float>({6000, formY(-5), formX(-4), formY(3)}));
    EXPECT_EQ(ends(l[12]), ends(l[15]));
}

TEST(ExplodeSamples, MultiplierModeKeepsThePlainShapeOnlyUntilTheMatrixIsRead) {
    Explode e;
    for (const Stroke& s : e("optMultiplier mnuSquares").frame()) EXPECT_EQ(s.x1, 6000);  // all-zero product
    EXPECT_FLOAT_EQ(e.f().ptY(2), 4.0f);
    EXPECT_EQ(e("cmdBegin cmdQuit mnuSquares").frame()[0].x2, formX(4));  // (0, 4) sheared in place
    EXPECT_EQ(e("cmdBegin t1").frame()[0].x2, formX(8));
}

TEST(ExplodeClicks, OnlyStrictlyInsideCountsAndBeforeNewGraphTheTableIsEmpty) {
    Explode e;
    EXPECT_EQ(e("clear @6000,5000").f().pointCount(), -1);  // no New Graph yet
    for (const char* m : {"optScalar", "optRight", "optUp", "optMultiplier"}) e(m + std::string(" cmdBegin t12 cmdPlotPoints"));
    EXPECT_EQ(e.t.count(kForm, "line") + e.t.faults().size(), 0u);
    EXPECT_EQ(e("cmdClear @12200,5000 @0,5000 @6000,1540 @6000,9300").f().clickCount(), 1);
    EXPECT_EQ(e("@12199.5,9299.5 @0.5,1540.5").f().pointCount(), 2);
    EXPECT_EQ(e("@nan,5000 @6000,nan @inf,5000 @-inf,5000 @3e38,-3e38").f().pointCount(), 2);
}

TEST(ExplodeClicks, ClickedPointsAreStoredShownJoinedAndRun) {
    Explode e;
    e("cmdClear clear @6120,5040");  // graph (.5, 1.5): a dot, no line
    EXPECT_EQ(e.t.count(kForm, "pset") * 10 + e.t.count(kForm, "line"), 10);
    EXPECT_EQ(ends(e("@5700,5760").t.lines(kForm).at(0)), std::vector<float>({6120, 5040, 5700, 5760}));  // (-1.25, -1.5)
    e("@6240,5400");
    EXPECT_EQ(e.text("txtY", 0) + e.text("txtX", 1) + e.text("txtX", 3), " 1.5-1.3-.2");  // the opening's column stays
    EXPECT_EQ(e("txtStart=1 cmdBegin t1").frame().size(), 2u);  // three points, an open line
}

TEST(ExplodeClicks, TheTableStopsAt199AndCutsAtTheOldCountAfterASample) {
    Explode e;
    e("cmdClear");
    for (int i = 0; i < 205; ++i) e("@" + std::to_string(1000 + 50 * i) + "," + std::to_string(3000 + i % 7 * 100));
    EXPECT_EQ(e.f().pointCount() * 1000 + e.t.count(kForm, "pset"), 199199);
    // A click on the full table stores nothing: the saved shape comes back.
    e("txtr11=2 txtr12=0 optMultiplier cmdBegin t2 @6000,5400 cmdPlotPoints");
    EXPECT_FLOAT_EQ(e.f().ptX(11), -18.75f);
    EXPECT_EQ(e.text("txtX", 10), "-18.8");

    Explode s;
    s("cmdClear @7000,4000 @7100,4000 @7200,4000 @7300,4000 mnuSquares clear @6000,5400");
    EXPECT_EQ(s.f().pointCount(), 5);
    EXPECT_EQ(ends(s.t.lines(kForm).at(0)), std::vector<float>({formX(0), formY(-4), 6000, 5400}));  // from the squares' 4th
}
