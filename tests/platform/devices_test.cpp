// The Qt devices: the canvas keeps its marks until Cls.
#include <gtest/gtest.h>

#include <QImage>

#include "platform/canvas_device.h"
#include "shell/drawing_surface.h"

using namespace gp;

namespace {
bool dark(const QImage& img, int x, int y) { return qGray(img.pixel(x, y)) < 128; }
} // namespace

TEST(Canvas, MarksStayUntilClsAndFollowTheFormsScale) {
    // 100 by 50 pixels over a scale of 1000 by 500 units.
    CanvasDevice canvas(100, 50, 1000, 500, RGB(255, 255, 255), 1.0);
    DrawingSurface me(DrawingSurface::Kind::Canvas, "frmTest", 1000, 500);
    me.attach(&canvas);
    me.Line(0, 250, 1000, 250);
    me.setDrawStyle(1);
    me.Line(500, 0, 500, 500);
    const QImage& img = canvas.image();
    EXPECT_TRUE(dark(img, 10, 25));
    EXPECT_TRUE(dark(img, 90, 25));
    EXPECT_FALSE(dark(img, 10, 10));
    int dashes = 0;  // a dashed line has gaps
    for (int y = 0; y < 50; ++y) dashes += dark(img, 50, y) ? 1 : 0;
    EXPECT_GT(dashes, 10);
    EXPECT_LT(dashes, 50);
    me.Cls();
    const QImage& cleared = canvas.image();
    EXPECT_FALSE(dark(cleared, 10, 25));
    me.PSet(200, 100);
    EXPECT_TRUE(dark(canvas.image(), 20, 10));
}
