// Opening frmExplodeIt: the design values that matter, the interval question
// and its replies, the first frame, and the ways out.
#include "explode_fixture.h"

#include "explode/graph_points.h"

using namespace explode_test;

TEST(ExplodeOpening, DesignAndTheRunnerAtHalfSizeCutToTenths) {
    const FormDesign d = FrmExplodeIt::Design();
    int red = 0;
    for (const auto& c : d.controls) {
        red += c.kind == ControlKind::Line && c.foreColor == RGB(255, 0, 0);  // 14 ticks on each axis
        if (c.name == "txtX" && c.index == 10) {
            EXPECT_EQ(c.left, 6720);  // 1920 + 480 * 10
        }
    }
    EXPECT_EQ(red, 28);
    Explode e;
    EXPECT_EQ(e.t.count(kForm, "cls"), 0);  // the opening draws over the canvas
    const auto l = e.frame();
    ASSERT_EQ(l.size(), 23u);  // 24 points, an open line; (-2.3, 2) to (-1.2, 1.1) at factor .5
    EXPECT_EQ(ends(l[0]), std::vector<float>({5724, 5160, 5856, 5268}));
    EXPECT_EQ(e.row("txtX"), "-1.2 -.7 -.5 -.2 -.7 -.2 -.5 -.5 -1 -.8 -1 ");
    EXPECT_EQ(e.row("txtY"), " 1  .5  1.1  .6  0  .6  1.1  2  1.6  1.3  1.7 ");
    for (auto [v, want] : std::vector<std::pair<double, std::string>>{
             {-1.2f, "-1.3"}, {2.3f, " 2.2"}, {-2.3f, "-2.3"}, {0.0, " 0"}, {-0.01, "-.1"}, {12.0, " 12"}})
        EXPECT_EQ(TenthsText(v), want) << v;
}

TEST(ExplodeOpening, IntervalRepliesTakenAsCIntOrRefusedForThe500Default) {
    for (auto [reply, want] : std::vector<std::pair<std::string, int>>{
             {" 250 ", 250}, {"12.5", 12}, {"13.5", 14}, {"32767", 32767}, {"1e3", 1000}, {"-0.4", 0},
             {"", -1}, {"abc", -1}, {"-5", -1}, {"40000", -1}, {"32767.5", -1}, {"   ", -1}}) {
        Explode e(reply);
        EXPECT_EQ(e.timer().Interval(), want < 0 ? 500 : want) << reply;
        EXPECT_EQ(e.t.dialogs().size(), want < 0 ? 2u : 1u) << reply;  // one message for a bad reply
        EXPECT_EQ(e.frame().size(), 23u) << "the first frame is drawn all the same";
    }
    EXPECT_EQ(Explode("0")("cmdBegin clear t5").t.ops().size(), 0u);  // interval 0: the timer never fires
}

TEST(ExplodeWaysOut, ExitHidesTheRunGoesOnAndShowingAgainResetsNothing) {
    Explode e;
    e("cmdClear @6240,5160 @6480,5160 cmdBegin t3 cmdExit t2 txtStart=1");
    EXPECT_FALSE(e.f().visible());
    e.open("40");  // the runner and the question come back
    EXPECT_EQ(e.timer().Interval(), 40);
    EXPECT_EQ(e.text("txtStart") + e.counters(), "1 1  2  3  4  5 ");
    EXPECT_EQ(e.f().pointCount(), 24);
    e("t1 cmdQuit @6720,5160");  // click 3 goes on at index 3 and cuts the table
    EXPECT_EQ(e.f().stepIndex() * 1000 + e.f().pointCount(), 6003);
    EXPECT_FLOAT_EQ(e.f().ptX(3), 3.0f);

    Explode m;  // shown again in Multiplier mode: the runner is sheared once
    m("optMultiplier cmdBegin cmdExit clear").open();
    EXPECT_EQ(m.x1(), formX(-2.3f + 2));
    EXPECT_EQ(m("clear t1").x1(), formX(-2.3f + 2 * 2));
}

TEST(ExplodeWaysOut, MenuExitHidesKeyAndFrameUnload) {
    Explode e;
    EXPECT_FALSE(e("mnuExit").f().visible());
    e.open();
    e("cmdClear @6000,5000").t.fire(e.f(), kFormEvents, Event::KeyDown, EventArgs{});
    EXPECT_EQ(e.form(), nullptr);
    e.open();  // a new instance: counters from 0
    EXPECT_EQ(e.f().clickCount(), 0);
    e.t.app().closeByFrame(e("cmdBegin").f());
    EXPECT_EQ(e.form(), nullptr);
    EXPECT_TRUE(e.t.faults().empty());
}
