// The parabola sheet: axes and ticks, the curve's dots and where they are
// dropped, the thickness written back, and the equation as typed.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/test_app.h"

using namespace gp;
using gp::test::Op;
using gp::test::TestApp;

namespace {
struct Parabola {
    TestApp t;
    Form* f;
    explicit Parabola(const std::string& a = "1", const std::string& thick = "3", Single w = 11520,
                      Single h = 15120)
        : t(w, h) {
        f = &t.show("frmParabola");
        t.edit(*f, "txtWid", a);
        t.edit(*f, "txtThick", thick);
        t.fire(*f, "cmdGraph", Event::Click);
    }
    std::vector<Stroke> lines() const { return t.lines("Printer"); }
    std::vector<Op> dots() const { return t.opsOf("Printer", "pset"); }
    std::string text(const std::string& box) const {
        return dynamic_cast<TextBox*>(f->find(box))->Text();
    }
};
}

TEST(ParabolaSheet, AxesThenTicksOneThinnerThanTheCurve) {
    Parabola p;
    auto l = p.lines();
    ASSERT_EQ(l.size(), 2u + 8 + 12);
    EXPECT_EQ(l[0].x1, 5760); EXPECT_EQ(l[0].y1, 15119); EXPECT_EQ(l[0].y2, 0);
    EXPECT_EQ(l[1].x1, 0); EXPECT_EQ(l[1].y1, 13679); EXPECT_EQ(l[1].x2, 11520);
    EXPECT_EQ(l[0].width, 1);  // what the Printer held
    EXPECT_EQ(l[2].x1, 4320); EXPECT_EQ(l[2].y1, 13609); EXPECT_EQ(l[2].y2, 13749);
    EXPECT_EQ(l[3].x1, 7200);
    EXPECT_EQ(l[9].x1, 11520);  // n = 4 on the right
    EXPECT_EQ(l[10].x1, 5690); EXPECT_EQ(l[10].y1, 15119); EXPECT_EQ(l[10].x2, 5830);
    EXPECT_EQ(l[11].y1, 13679);  // the tick on the origin
    EXPECT_EQ(l.back().y1, 13679 - 14400);
    EXPECT_EQ(l[2].width, 2);
    EXPECT_EQ(p.dots().at(0).stroke.width, 3);
}

TEST(ParabolaSheet, DotsInPairsUpToTheTopOfTheSheet) {
    Parabola p;
    auto d = p.dots();
    ASSERT_EQ(d.size() % 2, 0u);
    EXPECT_EQ(d[0].stroke.x1, 5761); EXPECT_EQ(d[0].stroke.y1, 13679);
    EXPECT_EQ(d[1].stroke.x1, 5759);
    // i = 1440 is one inch out and one inch up.
    EXPECT_EQ(d[2 * 1439].stroke.x1, 7200); EXPECT_EQ(d[2 * 1439].stroke.y1, 13679 - 1440);
    // The curve stops near i = 4438, where it reaches the top.
    const size_t steps = d.size() / 2;
    EXPECT_NEAR(double(steps), 4438, 2);
    for (const Op& o : d) EXPECT_GE(o.stroke.y1, 0);
    EXPECT_LT(d.back().stroke.y1, 4);
}

TEST(ParabolaSheet, TheEquationShowsTheTextAsTyped) {
    Parabola p(" 2.50 ");
    auto prints = p.t.opsOf("Printer", "print");
    ASSERT_EQ(prints.size(), 1u);
    EXPECT_EQ(prints[0].text, "y =  2.50 x^2");
    EXPECT_EQ(prints[0].stroke.x1, 700); EXPECT_EQ(prints[0].stroke.y1, 100);
    Parabola word("abc");
    EXPECT_EQ(word.t.opsOf("Printer", "print").at(0).text, "y = abcx^2");
    for (const Op& o : word.dots()) EXPECT_EQ(o.stroke.y1, 13679);  // a is 0
    EXPECT_EQ(word.dots().size(), 2u * 5760);
}

TEST(ParabolaSheet, ThinThicknessesAreRaisedToTwoInTheBox) {
    for (const char* thin : {"1", "0", "", "abc", "-3"}) {
        Parabola p("1", thin);
        EXPECT_EQ(p.text("txtThick"), "2") << thin;
        EXPECT_EQ(p.lines().at(2).width, 1);
        EXPECT_EQ(p.dots().at(0).stroke.width, 2);
    }
    Parabola ten("1", "10");
    EXPECT_EQ(ten.text("txtThick"), "10");
    EXPECT_EQ(ten.lines().at(2).width, 9);
    EXPECT_EQ(ten.dots().at(0).stroke.width, 10);
}

TEST(ParabolaSheet, DotsBeyondAnIntegerOrThePageAreLeftOut) {
    for (const char* steep : {"100", "-100", "1e30"}) {
        Parabola p(steep);
        EXPECT_TRUE(p.t.faults().empty()) << steep;
        EXPECT_EQ(p.t.count("Printer", "enddoc"), 1);
        for (const Op& o : p.dots()) EXPECT_GE(o.stroke.y1, 0);
    }
    Parabola narrow("0.1", "3", 8000, 15120);  // midX 4000: dots only on 0 .. 8000
    auto d = narrow.dots();
    EXPECT_EQ(d.size(), 2u * 4000);
    for (const Op& o : d) {
        EXPECT_GE(o.stroke.x1, 0);
        EXPECT_LE(o.stroke.x1, 8000);
    }
}

TEST(ParabolaSheet, NumbersNoSingleOrIntegerHoldsStopBeforeAnyStroke) {
    Parabola huge("1e39");
    EXPECT_EQ(huge.t.ops().size(), 0u);
    ASSERT_EQ(huge.t.faults().size(), 1u);
    EXPECT_NE(huge.t.faults()[0].find("factor a"), std::string::npos);
    Parabola thick("1", "1e10");
    EXPECT_EQ(thick.t.ops().size(), 0u);
    EXPECT_EQ(thick.t.faults().size(), 1u);
}
