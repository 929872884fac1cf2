// One frame of frmExplodeIt: Plot Points, the four modes at frame 0, the
// samples and the shape clicked on the graph.
#include "explode_fixture.h"

using namespace explode_test;

namespace {
const std::vector<std::string> kRunnerXs = {"-2.3", "-1.3", "-1", "-.3", "-1.4", "-.3",
                                            "-1",   "-1",   "-1.9", "-1.5", "-1.9"};
const std::vector<std::string> kRunnerYs = {" 2", " 1.1", " 2.2", " 1.2", " .1", " 1.2",
                                            " 2.2", " 4", " 3.2", " 2.7", " 3.4"};
}

TEST(ExplodePlotPoints, ScalarShowsThePlainSizeAndPutsStartBack) {
    Explode e;
    e.t.clear();
    e.click("cmdPlotPoints");
    EXPECT_EQ(e.t.count(kForm, "cls"), 1);
    const auto l = e.frame();
    ASSERT_EQ(l.size(), 23u);
    EXPECT_EQ(l[0].x1, 5448);  // -2.3 at scale 1
    EXPECT_EQ(l[0].y1, 4920);
    EXPECT_EQ(l[0].x2, 5712);
    EXPECT_EQ(l[0].y2, 5136);
    EXPECT_EQ(e.text("txtStart"), ".5");
    EXPECT_EQ(e.xs(), kRunnerXs);
    EXPECT_EQ(e.ys(), kRunnerYs);
    EXPECT_EQ(e.f().pointCount(), 24);
    EXPECT_FLOAT_EQ(e.f().ptX(1), -2.3f);  // no Begin yet: the table is kept
}

TEST(ExplodePlotPoints, RightAndUpMoveByStartAndTypedPointsAreNotRead) {
    Explode e;
    e.editElement("txtX", 0, "9");  // a display, never a source
    e.option("optRight");
    e.click("cmdPlotPoints");
    auto l = e.frame();
    EXPECT_EQ(l[0].x1, formX(-2.3f + 0.5));
    EXPECT_EQ(l[0].y1, 4920);
    EXPECT_EQ(e.text("txtStart"), ".5");

    e.option("optUp");
    e.click("cmdPlotPoints");
    l = e.frame();
    EXPECT_EQ(l[0].x1, 5448);
    EXPECT_EQ(l[0].y1, 4800);  // 5400 - 480 - 0 - 120
    EXPECT_EQ(e.text("txtX", 0), "-2.3");
}

TEST(ExplodePlotPoints, AfterAMultiplierRunTheTableComesBackFromBegin) {
    Explode e;
    e.option("optMultiplier");
    e.click("cmdBegin");
    e.tick(3);
    EXPECT_FLOAT_EQ(e.f().ptX(1), -2.3f + 3 * 2);  // shear three times
    e.click("cmdPlotPoints");
    // One more product is drawn, then the table is the one of Begin again.
    const auto l = e.frame();
    EXPECT_EQ(l[0].x1, formX(-2.3f + 4 * 2.0));
    EXPECT_FLOAT_EQ(e.f().ptX(1), -2.3f);
    EXPECT_EQ(e.text("txtX", 0), "-2.3");
}

TEST(ExplodePlotPoints, MultiplierBeforeAnyBeginMultipliesByZerosButKeepsTheShape) {
    Explode e;
    e.option("optMultiplier");
    e.click("cmdPlotPoints");
    const auto l = e.frame();
    ASSERT_EQ(l.size(), 23u);
    for (const Stroke& s : l) {
        EXPECT_EQ(s.x1, 6000);
        EXPECT_EQ(s.y2, 5400);
    }
    EXPECT_EQ(e.f().pointCount(), 24);
    EXPECT_FLOAT_EQ(e.f().ptY(8), 4.1f);
    EXPECT_EQ(e.xs(), kRunnerXs);
}

TEST(ExplodeSamples, RunnerInRightModeAtStartZeroShowsTheListedTenths) {
    Explode e;
    e.option("optRight");
    e.edit("txtStart", "0");
    e.menu("mnuRunner");
    EXPECT_EQ(e.xs(), kRunnerXs);
    EXPECT_EQ(e.ys(), kRunnerYs);
    EXPECT_EQ(e.frame().size(), 23u);
}

TEST(ExplodeSamples, SquaresAndTrianglesReachWhereTheyShould) {
    Explode e;
    e.edit("txtStart", "3");
    e.menu("mnuSquares");
    EXPECT_EQ(e.f().pointCount(), 25);
    auto l = e.frame();
    ASSERT_EQ(l.size(), 24u);
    float minX = 1e9f, maxX = -1e9f, minY = 1e9f, maxY = -1e9f;
    for (const Stroke& s : l) {
        minX = std::min({minX, s.x1, s.x2});
        maxX = std::max({maxX, s.x1, s.x2});
        minY = std::min({minY, s.y1, s.y2});
        maxY = std::max({maxY, s.y1, s.y2});
    }
    EXPECT_EQ(minX, 3120);
    EXPECT_EQ(maxX, 8880);
    EXPECT_EQ(minY, 2520);
    EXPECT_EQ(maxY, 8280);
    // Every square closes: its fifth point is its first.
    EXPECT_EQ(l[3].x2, l[0].x1);
    EXPECT_EQ(l[3].y2, l[0].y1);
    EXPECT_EQ(e.text("txtX", 0), "-12");
    EXPECT_EQ(e.text("txtY", 1), " 12");

    e.edit("txtStart", "1");
    e.menu("mnuTriangles");
    EXPECT_EQ(e.f().pointCount(), 17);
    l = e.frame();
    ASSERT_EQ(l.size(), 16u);
    minY = 1e9f, maxY = -1e9f;
    for (const Stroke& s : l) {
        minY = std::min({minY, s.y1, s.y2});
        maxY = std::max({maxY, s.y1, s.y2});
    }
    EXPECT_EQ(minY, formY(3));
    EXPECT_EQ(maxY, formY(-5));
    // The last side is gone over twice.
    EXPECT_EQ(l[15].x1, l[12].x1);
    EXPECT_EQ(l[15].x2, l[12].x2);
    EXPECT_EQ(e.text("txtX", 1), " .5");
}

TEST(ExplodeSamples, ASampleClearsFirstAndKeepsLaterTableEntries) {
    Explode e;
    e.menu("mnuSquares");  // 25 points
    e.t.clear();
    e.menu("mnuTriangles");  // 17: entries 18 to 25 keep the squares'
    EXPECT_EQ(e.t.opsOf(kForm).front().op, "cls");
    EXPECT_FLOAT_EQ(e.f().ptX(21), 1.0f);
    const auto first = e.frame();
    e.menu("mnuTriangles");
    const auto again = e.frame();
    ASSERT_EQ(first.size(), again.size());
    for (size_t i = 0; i < first.size(); ++i) EXPECT_EQ(first[i].x2, again[i].x2);
}

TEST(ExplodeSamples, MultiplierModeKeepsThePlainShapeOnlyUntilTheMatrixIsRead) {
    Explode e;
    e.option("optMultiplier");
    // No matrix read yet: the frame shows the all-zero product, the table
    // stays the plain squares.
    e.menu("mnuSquares");
    for (const Stroke& s : e.frame()) EXPECT_EQ(s.x1, 6000);
    EXPECT_FLOAT_EQ(e.f().ptY(2), 4.0f);

    e.click("cmdBegin");  // reads the shear
    e.click("cmdQuit");
    e.menu("mnuSquares");
    const auto l = e.frame();
    EXPECT_EQ(l[0].x1, formX(-4));  // (-4, 0) sheared stays
    EXPECT_EQ(l[0].x2, formX(4));   // (0, 4) becomes (4, 4)
    EXPECT_EQ(e.text("txtX", 1), " 4");
    // The loaded table is multiplied in place, so a run goes on from there:
    // frame 1 shows the second shear.
    EXPECT_FLOAT_EQ(e.f().ptX(2), 4.0f);
    e.click("cmdBegin");
    e.tick();
    EXPECT_EQ(e.frame()[0].x2, formX(8));
}

TEST(ExplodeClicks, OnlyStrictlyInsideTheGraphAreaCounts) {
    Explode e;
    e.click("cmdClear");
    e.t.clear();
    for (auto [x, y] : std::vector<std::pair<Single, Single>>{
             {12200, 5000}, {0, 5000}, {6000, 1540}, {6000, 9300}, {-5, 5000}, {6000, 1000}}) {
        e.mouse(x, y);
    }
    EXPECT_EQ(e.t.ops().size(), 0u);
    EXPECT_EQ(e.f().clickCount(), 1);
    EXPECT_EQ(e.f().pointCount(), 24);
    e.mouse(12199.5f, 9299.5f);
    EXPECT_EQ(e.f().clickCount(), 2);
    EXPECT_EQ(e.f().pointCount(), 1);
    e.mouse(0.5f, 1540.5f);
    EXPECT_EQ(e.f().pointCount(), 2);
}

TEST(ExplodeClicks, BeforeNewGraphTheTableCountsAsEmpty) {
    Explode e;
    e.t.clear();
    e.mouse(6000, 5000);
    EXPECT_EQ(e.f().pointCount(), -1);
    EXPECT_EQ(e.t.ops().size(), 0u);
    e.click("cmdBegin");
    e.tick(15);
    e.click("cmdQuit");
    e.click("cmdPlotPoints");
    for (const std::string& m : {"optRight", "optUp", "optMultiplier"}) {
        e.option(m);
        e.click("cmdBegin");
        e.tick(12);
    }
    EXPECT_EQ(e.t.count(kForm, "line"), 0);
    EXPECT_TRUE(e.t.faults().empty());
    // A sample gives the table points again.
    e.menu("mnuRunner");
    EXPECT_EQ(e.f().pointCount(), 24);
}

TEST(ExplodeClicks, ClickedPointsAreStoredShownAndJoined) {
    Explode e;
    e.click("cmdClear");
    e.t.clear();
    e.mouse(6120, 5040);  // graph (.5, 1.5)
    EXPECT_EQ(e.t.count(kForm, "pset"), 1);
    EXPECT_EQ(e.t.count(kForm, "line"), 0);
    EXPECT_EQ(e.text("txtX", 0), " .5");
    EXPECT_EQ(e.text("txtY", 0), " 1.5");
    e.mouse(5700, 5760);  // graph (-1.25, -1.5)
    const auto l = e.t.lines(kForm);
    ASSERT_EQ(l.size(), 1u);
    EXPECT_EQ(l[0].x1, 6120);
    EXPECT_EQ(l[0].y1, 5040);
    EXPECT_EQ(l[0].x2, 5700);
    EXPECT_EQ(l[0].y2, 5760);
    EXPECT_EQ(e.text("txtX", 1), "-1.3");
    EXPECT_EQ(e.text("txtY", 1), "-1.5");
    e.mouse(6240, 5400);
    EXPECT_EQ(e.f().pointCount(), 3);
    EXPECT_EQ(e.text("txtX", 2), " 1");
    EXPECT_EQ(e.text("txtX", 3), "-.2");  // the opening's half-size column stays

    // Three points run as a two-segment open line.
    e.edit("txtStart", "1");
    e.click("cmdBegin");
    e.tick();
    EXPECT_EQ(e.frame().size(), 2u);
}

TEST(ExplodeClicks, TheTableStopsAt199Points) {
    Explode e;
    e.click("cmdClear");
    for (int i = 0; i < 205; ++i) e.mouse(1000 + 50 * i, 3000 + (i % 7) * 100);
    EXPECT_EQ(e.f().clickCount(), 200);
    EXPECT_EQ(e.f().pointCount(), 199);
    EXPECT_EQ(e.t.count(kForm, "pset"), 199);
    EXPECT_EQ(e.t.count(kForm, "line"), 23 + 198);  // the opening's runner, then the joins
    // Boxes show points 1 to 11 only.
    EXPECT_EQ(e.text("txtX", 10), "-18.8");  // click 11 at X 1500
    e.edit("txtStart", "1");
    e.click("cmdPlotPoints");
    EXPECT_EQ(e.frame().size(), 198u);
    EXPECT_TRUE(e.t.faults().empty());

    // A click on the full table stores nothing, so after a Multiplier run
    // Plot Points still brings the table of Begin back.
    e.edit("txtr11", "2");
    e.edit("txtr12", "0");
    e.option("optMultiplier");
    e.click("cmdBegin");
    e.tick(2);
    e.mouse(6000, 5400);
    e.click("cmdPlotPoints");
    EXPECT_EQ(e.text("txtX", 10), "-18.8");
    EXPECT_FLOAT_EQ(e.f().ptX(11), -18.75f);
}

TEST(ExplodeClicks, AClickAfterASampleCutsTheTableAtTheOldCount) {
    Explode e;
    e.click("cmdClear");
    for (int i = 0; i < 4; ++i) e.mouse(7000 + 100 * i, 4000);
    e.menu("mnuSquares");
    EXPECT_EQ(e.f().clickCount(), 5);
    e.t.clear();
    e.mouse(6000, 5400);
    EXPECT_EQ(e.f().pointCount(), 5);
    // Joined from the stored fourth point, a point of the squares.
    const auto l = e.t.lines(kForm);
    ASSERT_EQ(l.size(), 1u);
    EXPECT_EQ(l[0].x1, formX(0));
    EXPECT_EQ(l[0].y1, formY(-4));
}
