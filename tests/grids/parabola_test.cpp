// The parabola sheet: axes and ticks, the curve's dots and where they are
// dropped, the thickness written back, and the equation as typed.
#include "grids/page.h"

using namespace gp;
using gp::test::Op;
using gp::test::GridPage;

namespace {
GridPage graph(const std::string& a = "1", const std::string& thick = "3", Single w = 11520) {
    return GridPage("frmParabola", {{"txtWid", a}, {"txtThick", thick}}, "cmdGraph", w);
}
}

TEST(ParabolaSheet, AxesTicksAndDotsInPairsUpToTheTop) {
    GridPage p = graph();
    auto l = p.lines();
    ASSERT_EQ(l.size(), 2u + 8 + 12);
    EXPECT_EQ(l[0].x1, 5760); EXPECT_EQ(l[0].y1, 15119); EXPECT_EQ(l[0].y2, 0);
    EXPECT_EQ(l[1].x1, 0); EXPECT_EQ(l[1].y1, 13679); EXPECT_EQ(l[1].x2, 11520);
    EXPECT_EQ(l[2].x1, 4320); EXPECT_EQ(l[2].y1, 13609); EXPECT_EQ(l[2].y2, 13749);
    EXPECT_EQ(l[9].x1, 11520);  // n = 4 on the right
    EXPECT_EQ(l[10].x1, 5690); EXPECT_EQ(l[10].y1, 15119); EXPECT_EQ(l[10].x2, 5830);
    EXPECT_EQ(l.back().y1, 13679 - 14400);
    auto d = p.dots();
    EXPECT_EQ(d[0].stroke.x1, 5761); EXPECT_EQ(d[0].stroke.y1, 13679); EXPECT_EQ(d[1].stroke.x1, 5759);
    EXPECT_EQ(d[2 * 1439].stroke.x1, 7200); EXPECT_EQ(d[2 * 1439].stroke.y1, 13679 - 1440);
    EXPECT_NEAR(double(d.size()) / 2, 4438, 2);  // where the curve reaches the top
    EXPECT_LT(d.back().stroke.y1, 4);
}

TEST(ParabolaSheet, ThicknessWrittenBackAndEquationAsTyped) {
    // Axes keep what the Printer held, ticks are one thinner than the dots.
    for (auto [a, thick, box, equation] :
         {std::tuple{" 2.50 ", "3", 3, "y =  2.50 x^2"}, {"1", "1", 2, "y = 1x^2"}, {"1", "0", 2, "y = 1x^2"},
          {"1", "abc", 2, "y = 1x^2"}, {"1", "10", 10, "y = 1x^2"}, {"abc", "3", 3, "y = abcx^2"}}) {
        GridPage p = graph(a, thick);
        SCOPED_TRACE(std::string(a) + "/" + thick);
        EXPECT_EQ(p.text("txtThick"), std::to_string(box));
        EXPECT_EQ(p.lines().at(0).width, 1);
        EXPECT_EQ(p.lines().at(2).width, box - 1);
        EXPECT_EQ(p.dots().at(0).stroke.width, box);
        auto prints = p.t.opsOf("Printer", "print");
        ASSERT_EQ(prints.size(), 1u);
        EXPECT_EQ(prints[0].text, equation);
        EXPECT_EQ(prints[0].stroke.x1, 700); EXPECT_EQ(prints[0].stroke.y1, 100);
    }
}

TEST(ParabolaSheet, DotsBeyondAnIntegerOrThePageAreLeftOutAndNumbersNoSingleHoldsAreRefused) {
    for (auto [a, thick, refused, message] : {std::tuple{"100", "3", false, ""}, {"-100", "3", false, ""},
             {"1e30", "3", false, ""}, {"1e39", "3", true, "factor a"}, {"1", "1e10", true, ""}}) {
        GridPage p = graph(a, thick);
        SCOPED_TRACE(a);
        EXPECT_EQ(p.t.faults().size(), refused ? 1u : 0u);
        EXPECT_EQ(p.t.count("Printer", "enddoc"), refused ? 0 : 1);
        if (refused) {
            EXPECT_EQ(p.t.ops().size(), 0u);
            EXPECT_NE(p.t.faults()[0].find(message), std::string::npos);
        }
        for (const Op& o : p.dots()) EXPECT_GE(o.stroke.y1, 0);
    }
    // "abc" is 0: a flat row across; at 8000 wide (midX 4000) dots only on 0 .. 8000.
    for (auto [a, w, n, y] : {std::tuple{"abc", 11520.f, 2u * 5760, 13679.f}, {"0.1", 8000.f, 8000u, -1.f}}) {
        auto d = graph(a, "3", w).dots();
        EXPECT_EQ(d.size(), n);
        for (const Op& o : d)
            EXPECT_TRUE(o.stroke.x1 >= 0 && o.stroke.x1 <= w && (y < 0 || o.stroke.y1 == y)) << o.stroke.x1;
    }
}
