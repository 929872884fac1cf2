// The surface's state: where each Line form starts and ends, how the
// current point moves, and what Orientation does to the scale.
#include <gtest/gtest.h>

#include "shell/drawing_surface.h"
#include "support/test_app.h"

using namespace gp;
using gp::test::Op;
using gp::test::TestLog;

namespace {
struct Fixture {
    TestLog log;
    std::vector<Op>& ops = log.ops;
    SurfaceLog rec{log, "S"};
    DrawingSurface s{DrawingSurface::Kind::Printer, "S", 11520, 15120};
    Fixture() { s.attach(&rec); }
    Stroke last() const { return ops.back().stroke; }
};
}

TEST(DrawingSurface, TheFiveLineFormsStartAndEndWhereTheySay) {
    Fixture f;
    f.s.Line(10, 20, 30, 40);
    EXPECT_EQ(f.last().x1, 10);
    EXPECT_EQ(f.last().y2, 40);
    EXPECT_EQ(f.last().color, kForeground);
    f.s.Line(1, 2, 3, 4, RGB(255, 0, 0));
    EXPECT_EQ(f.last().color, 255);
    f.s.LineTo(100, 200);  // from the end of the last stroke
    EXPECT_EQ(f.last().x1, 3);
    EXPECT_EQ(f.last().y1, 4);
    f.s.LineStep(5, 6, 10, -6);
    EXPECT_EQ(f.last().x2, 15);
    EXPECT_EQ(f.last().y2, 0);
    f.s.LineStep(-15, 7);  // relative to the current point
    EXPECT_EQ(f.last().x1, 15);
    EXPECT_EQ(f.last().x2, 0);
    EXPECT_EQ(f.last().y2, 7);
    EXPECT_EQ(f.s.CurrentX, 0);
    EXPECT_EQ(f.s.CurrentY, 7);
}

TEST(DrawingSurface, RelativeEndsAreWorkedOutInSinglePrecision) {
    Fixture f;
    f.s.CurrentX = 16777216.0f;  // 2^24: the next Single is 2 away
    f.s.LineStep(1, 0);
    EXPECT_EQ(f.last().x2, 16777216.0f);
    f.s.Line(0.1, 0, 0, 0);
    EXPECT_EQ(f.last().x1, 0.1f);  // rounded to a Single on the way in
}

TEST(DrawingSurface, StrokesOffTheSurfaceStillMoveTheCurrentPoint) {
    Fixture f;
    f.s.Line(-500, -500, -100, 20000);
    f.s.LineStep(100, 0);
    EXPECT_EQ(f.last().x1, -100);
    EXPECT_EQ(f.last().x2, 0);
    f.s.Line(5, 5, 5, 5);  // both ends equal: still one stroke
    EXPECT_EQ(f.ops.size(), 3u);
    EXPECT_EQ(f.s.CurrentX, 5);
}

TEST(DrawingSurface, StyleWidthAndDotsTravelWithEachStroke) {
    Fixture f;
    f.s.setDrawStyle(1);
    f.s.setDrawWidth(3);
    f.s.Line(0, 0, 1, 1);
    EXPECT_EQ(f.last().style, 1);
    EXPECT_EQ(f.last().width, 3);
    f.s.PSet(7.5, 8.25);
    EXPECT_EQ(f.ops.back().op, "pset");
    EXPECT_EQ(f.s.CurrentX, 7.5f);
    EXPECT_EQ(f.s.CurrentY, 8.25f);
    EXPECT_THROW(f.s.Line(1e39, 0, 0, 0), Fault);  // no Single holds it
}

TEST(DrawingSurface, PrintJoinsItemsAndMovesToTheNextLine) {
    Fixture f;
    f.s.CurrentX = 300;
    f.s.CurrentY = 400;
    f.s.Print("x = ", Integer(5), 0.5);
    EXPECT_EQ(f.ops.back().text, "x =  5  .5 ");
    EXPECT_EQ(f.ops.back().stroke.x1, 300);
    EXPECT_EQ(f.s.CurrentX, 0);
    EXPECT_EQ(f.s.CurrentY, 400 + f.s.TextHeight("x"));
}

TEST(DrawingSurface, OrientationSwapsTheScaleAndHoldsAfterEndDoc) {
    Fixture f;
    EXPECT_EQ(f.s.ScaleWidth(), 11520);
    f.s.setOrientation(2);
    EXPECT_EQ(f.s.ScaleWidth(), 15120);
    EXPECT_EQ(f.s.ScaleHeight(), 11520);
    f.s.Line(1, 1, 2, 2);
    f.s.EndDoc();
    EXPECT_EQ(f.s.Orientation(), 2);
    EXPECT_EQ(f.s.ScaleWidth(), 15120);
    EXPECT_EQ(f.s.CurrentX, 0);  // a new page starts at the corner
    f.s.setOrientation(1);
    EXPECT_EQ(f.s.ScaleWidth(), 11520);
    EXPECT_EQ(f.ops[0].op, "orientation");
    EXPECT_EQ(f.ops[0].value, 2);
}

TEST(DrawingSurface, ClsClearsAndGoesToTheCorner) {
    Fixture f;
    f.s.Line(0, 0, 50, 60);
    f.s.Cls();
    EXPECT_EQ(f.ops.back().op, "cls");
    EXPECT_EQ(f.s.CurrentX, 0);
    EXPECT_EQ(f.s.CurrentY, 0);
}

TEST(WorkMeter, StopsAHandlerThatDrawsWithoutEnd) {
    Fixture f;
    WorkMeter meter;
    meter.setLimit(1000);
    f.s.setWorkMeter(&meter);
    EXPECT_THROW(
        for (;;) f.s.LineStep(0, 0),
        Fault);
    EXPECT_EQ(meter.used(), 1001u);
}
