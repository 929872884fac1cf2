// One frame of frmExplodeIt: Plot Points in the four modes, the samples and
// the shape clicked on the graph.
#include "explode_fixture.h"

using namespace explode_test;

namespace {
const std::string kRunnerXs = "-2.3 -1.3 -1 -.3 -1.4 -.3 -1 -1 -1.9 -1.5 -1.9 ";

// Smallest and largest x, then y, of a frame's strokes.
std::vector<float> extent(const std::vector<Stroke>& l) {
    std::vector<float> r = {1e9f, -1e9f, 1e9f, -1e9f};
    for (const Stroke& s : l)
        r = {std::min({r[0], s.x1, s.x2}), std::max({r[1], s.x1, s.x2}), std::min({r[2], s.y1, s.y2}),
             std::max({r[3], s.y1, s.y2})};
    return r;
}
}

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
    auto l = e("txtStart=3 mnuSquares").frame();
    ASSERT_EQ(l.size(), 24u);
    EXPECT_EQ(extent(l), (std::vector<float>{3120, 8880, 2520, 8280}));
    EXPECT_EQ(l[3].x2, l[0].x1);  // every square closes
    l = e("txtStart=1 clear mnuTriangles").frame();
    EXPECT_EQ(e.t.opsOf(kForm).front().op, "cls");
    EXPECT_FLOAT_EQ(e.f().ptX(21), 1.0f);  // entries 18 to 25 keep the squares'
    ASSERT_EQ(l.size(), 16u);
    EXPECT_EQ(extent(l)[2], formY(3));
    EXPECT_EQ(extent(l)[3], formY(-5));
    EXPECT_EQ(l[15].x1, l[12].x1);  // the last side is gone over twice
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
}

TEST(ExplodeClicks, ClickedPointsAreStoredShownJoinedAndRun) {
    Explode e;
    e("cmdClear clear @6120,5040");  // graph (.5, 1.5): a dot, no line
    EXPECT_EQ(e.t.count(kForm, "pset") * 10 + e.t.count(kForm, "line"), 10);
    const Stroke s = e("@5700,5760").t.lines(kForm).at(0);  // graph (-1.25, -1.5)
    EXPECT_EQ(std::vector<float>({s.x1, s.y1, s.x2, s.y2}), std::vector<float>({6120, 5040, 5700, 5760}));
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
    const Stroke j = s.t.lines(kForm).at(0);  // joined from the squares' fourth point
    EXPECT_EQ(std::vector<float>({j.x1, j.y1}), std::vector<float>({formX(0), formY(-4)}));
}
