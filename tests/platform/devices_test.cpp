// The Qt devices: the canvas keeps its marks until Cls, a printer page
// leaves only at EndDoc and a faulted page never leaves at all.
#include <gtest/gtest.h>

#include <QImage>

#include "platform/canvas_device.h"
#include "platform/page_buffer.h"
#include "shell/drawing_surface.h"

using namespace gp;

namespace {
struct CollectingSink : PageSink {
    std::vector<Page> pages;
    std::vector<std::pair<Single, Single>> areas;
    void emitPage(const Page& page, Single w, Single h) override {
        pages.push_back(page);
        areas.push_back({w, h});
    }
};

bool dark(const QImage& img, int x, int y) { return qGray(img.pixel(x, y)) < 128; }
} // namespace

TEST(PageBuffer, APageLeavesWholeAtEndDocAndAFaultedPageNever) {
    CollectingSink sink;
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    PageBufferDevice device(sink, printer);
    printer.attach(&device);

    printer.Line(0, 0, 100, 100);
    printer.abortPage();  // what the guard does when a handler faults
    EXPECT_TRUE(sink.pages.empty());
    printer.EndDoc();
    ASSERT_EQ(sink.pages.size(), 1u);
    EXPECT_TRUE(sink.pages[0].empty());  // the dropped stroke is gone

    printer.setOrientation(2);
    printer.Line(0, 0, 1, 1);
    printer.Print("7");
    printer.EndDoc();
    ASSERT_EQ(sink.pages.size(), 2u);
    EXPECT_EQ(sink.pages[1].orientation, 2);
    EXPECT_EQ(sink.pages[1].ops.size(), 2u);
    EXPECT_EQ(sink.areas[1].first, 15120);  // landscape: the long side across

    printer.Line(0, 0, 1, 1);  // the orientation holds for the next sheet
    printer.EndDoc();
    EXPECT_EQ(sink.pages[2].orientation, 2);
}

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
