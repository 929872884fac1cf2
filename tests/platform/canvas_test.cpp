// The canvas records at once and paints when the window asks: its image must
// come out pixel for pixel as drawing every call straight onto an image
// did, whether painted in the paint event, by the worker, or bit by bit as
// clicks and ticks add to it.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <fstream>
#include <functional>
#include <memory>
#include <string>

#include "platform/canvas_device.h"
#include "platform/qt_drawing.h"
#include "shell/drawing_surface.h"

using namespace gp;

namespace {

constexpr int kW = 200, kH = 120;
constexpr Single kUnitsW = 3000, kUnitsH = 1800;

// Every call painted at once with its own pen: how the canvas drew before
// it learnt to wait.
class ImmediateCanvas : public SurfaceDevice {
public:
    ImmediateCanvas() : image(kW, kH, QImage::Format_RGB32) {
        image.fill(Qt::white);
        begin();
    }
    void line(const Stroke& s) override {
        p.setPen(makePen(s.style, s.width, s.color, PenScale{1.0, kW / double(kUnitsW)}));
        const QPointF a(s.x1 * sx, s.y1 * sy), b(s.x2 * sx, s.y2 * sy);
        if (a == b)
            p.drawPoint(a);
        else
            p.drawLine(a, b);
    }
    void pset(Single x, Single y, int width, long color) override {
        drawDot(p, x * sx, y * sy, width, color, PenScale{1.0, sx});
    }
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override {
        p.save();
        p.resetTransform();
        drawText(p, x * sx, y * sy, text, font);
        p.restore();
    }
    void cls() override {
        p.end();
        image.fill(Qt::white);
        begin();
    }
    // The image so far; drawing goes on after it.
    QImage done() {
        p.end();
        QImage copy = image.copy();
        begin();
        return copy;
    }

    QImage image;

private:
    void begin() {
        p.begin(&image);
        p.setRenderHint(QPainter::Antialiasing, false);
    }
    QPainter p;
    const double sx = kW / double(kUnitsW), sy = kH / double(kUnitsH);
};

// Counts the calls a page makes.
struct Recorder : SurfaceDevice {
    size_t ops = 0;
    void line(const Stroke&) override { ++ops; }
    void pset(Single, Single, int, long) override { ++ops; }
    void print(Single, Single, const std::string&, const FontSpec&) override { ++ops; }
};

struct Pair {
    ImmediateCanvas before;
    CanvasDevice canvas{kW, kH, kUnitsW, kUnitsH, 0xFFFFFF, 1.0};
    DrawingSurface me{DrawingSurface::Kind::Canvas, "frmTest", kUnitsW, kUnitsH};
    int readyCalls = 0;
    Pair() {
        me.attach(&before);
        me.attach(&canvas);
        canvas.onImageReady([this] { ++readyCalls; });
    }
    // Paints as the window does until the screen is complete.
    const QImage& paintUntilComplete() {
        QElapsedTimer t;
        t.start();
        canvas.imageForPaint();
        while (!canvas.screenUpToDate() && t.elapsed() < 20000) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
            canvas.imageForPaint();
        }
        return canvas.imageForPaint();
    }
};

// Solid and dashed strokes at several widths and colours crossing each
// other, dots, a point-long line, text: every kind of call a page makes.
void mixedFigure(DrawingSurface& me, int seed) {
    for (int i = 0; i < 40; ++i) {
        me.setDrawStyle(i % 5 == 0 ? 1 : 0);
        me.setDrawWidth(1 + (i + seed) % 3);
        const long colour = i % 4 == 0 ? kForeground : RGB((i * 53 + seed) % 256, (i * 97) % 256, (i * 31) % 256).value();
        me.Line(100.0 + 70 * i, 50.0 + 13 * ((i + seed) % 7), 2900.0 - 60 * i, 1700.0 - 37 * (i % 11), colour);
    }
    // Runs of one pen, thin and thick, solid and dashed, crossing the above.
    for (int w : {1, 3}) {
        for (int style : {0, 1}) {
            me.setDrawWidth(w);
            me.setDrawStyle(style);
            for (int i = 0; i < 25; ++i)
                me.Line(50.0 + 110 * i, 1750.0 - 20 * i * w, 2950.0 - 100 * i, 40.0 + 30 * i + seed * 10);
        }
    }
    me.setDrawWidth(1);
    me.setDrawStyle(0);
    me.Line(1500, 900, 1500, 900);  // a line of no length is a point
    me.PSet(300, 300);
    me.setDrawWidth(4);
    me.PSet(2700, 1500);
    me.CurrentX = 200;
    me.CurrentY = 1200;
    me.Print("Side 1 in");
}

// A dense fan of strokes in alternating colours: more than the paint event
// paints itself, so the worker takes it.
void bigFan(DrawingSurface& me, int seed) {
    me.setDrawWidth(1);
    me.setDrawStyle(0);
    const int n = static_cast<int>(CanvasDevice::kPaintNow) + 5000;
    for (int i = 0; i < n; ++i) {
        const long colour = (i / 7) % 2 ? RGB(200, seed % 256, 0).value() : RGB(0, 0, 255).value();
        me.Line(10.0 + (i * 7919LL % 2980), 10.0 + (i * 104729LL % 1780), 1500.0 + seed, 900.0, colour);
    }
}

void expectSame(const QImage& got, const QImage& want) {
    ASSERT_EQ(got.size(), want.size());
    int differ = 0;
    for (int y = 0; y < want.height(); ++y)
        for (int x = 0; x < want.width(); ++x) differ += got.pixel(x, y) != want.pixel(x, y);
    EXPECT_EQ(differ, 0) << "pixels that differ from drawing every call at once";
}

} // namespace

TEST(LazyCanvas, PaintsExactlyAsDrawingEveryCallAtOnce) {
    Pair t;
    mixedFigure(t.me, 1);
    expectSame(t.paintUntilComplete(), t.before.done());
    EXPECT_TRUE(t.canvas.screenUpToDate());

    // Cls in the middle: only what follows it shows.
    Pair c;
    mixedFigure(c.me, 2);
    c.me.Cls();
    mixedFigure(c.me, 3);
    expectSame(c.paintUntilComplete(), c.before.done());
}

TEST(LazyCanvas, KeepsOnlyWhatTheScreenMakesOfOddPensAndColours) {
    // The record keeps a colour in 32 bits, a width in 16 and three kinds
    // of style. Colours past 24 bits or negative, widths of 0 or below and
    // the styles that draw solid one stroke at a time must look exactly as
    // they did, between and across runs of the plain solid pen.
    Pair t;
    const long colours[] = {0x7FFFFFFF, 0x1FF00FF, -5, -2147483647 - 1, 0xFFFFFF, kForeground};
    const int widths[] = {0, -3, 1, 2, 5};
    for (int i = 0; i < 60; ++i) {
        t.me.setDrawStyle(i % 7);
        t.me.setDrawWidth(widths[i % 5]);
        t.me.Line(30.0 + 45 * i, 20.0 + 25 * (i % 13), 2950.0 - 40 * i, 1780.0 - 28 * (i % 17), colours[i % 6]);
        t.me.setDrawStyle(0);
        t.me.Line(2900.0 - 45 * i, 30.0, 60.0 + 40 * i, 1750.0, colours[(i + 3) % 6]);
        t.me.Line(60.0 + 40 * i, 1750.0, 1500.0, 900.0, colours[(i + 3) % 6]);
    }
    t.me.setDrawWidth(0);
    t.me.PSet(400, 400);
    t.me.setDrawWidth(-2);
    t.me.PSet(2600, 1400);
    expectSame(t.paintUntilComplete(), t.before.done());
}

TEST(LazyCanvas, KeepsMarksAcrossPaintsAndPaintsOnlyWhatIsNew) {
    // Strings added click by click over one figure: each paint adds its ops
    // on top of the image on show. Dropping an op, or painting an older op
    // after a newer one, changes the colour where two strokes of different
    // colours cross; painting one twice shows in the count.
    Pair t;
    size_t recorded = 0;
    for (int click = 0; click < 6; ++click) {
        t.me.setDrawWidth(1 + click % 2);
        for (int i = 0; i < 30; ++i)
            t.me.Line(100.0 * click + 20 * i, 0, 3000.0 - 90 * i, 1800.0 - 40 * click,
                      RGB((click * 80) % 256, i * 8, 255 - click * 40));
        recorded += 30;
        t.paintUntilComplete();
        EXPECT_EQ(t.canvas.opsPainted(), recorded) << "each op painted once, after click " << click;
        EXPECT_TRUE(t.canvas.screenUpToDate());
    }
    const QImage kept = t.paintUntilComplete().copy();
    t.me.Line(0, 900, 3000, 900, RGB(0, 255, 0));
    EXPECT_FALSE(t.canvas.screenUpToDate()) << "a new op is not on the screen before the next paint";
    expectSame(t.paintUntilComplete(), t.before.done());
    EXPECT_EQ(t.canvas.opsPainted(), recorded + 1);
    EXPECT_NE(kept, t.canvas.image());
}

TEST(LazyCanvas, BigRecordsArePaintedByTheWorkerWhileTheLastImageStaysOnShow) {
    Pair t;
    mixedFigure(t.me, 4);
    const QImage first = t.paintUntilComplete().copy();
    t.me.Cls();
    bigFan(t.me, 5);
    // The paint event does not wait for the worker: the last image shows.
    const QImage& meanwhile = t.canvas.imageForPaint();
    EXPECT_EQ(meanwhile, first);
    EXPECT_FALSE(t.canvas.screenUpToDate());
    expectSame(t.paintUntilComplete(), t.before.done());
    EXPECT_GE(t.readyCalls, 1) << "the window is asked to paint when the worker's image is in";

    // Ops added while the worker paints come after its image, in order,
    // and none is painted twice.
    t.me.Cls();
    const size_t before = t.canvas.opsPainted();
    Recorder counted;
    t.me.attach(&counted);
    bigFan(t.me, 6);
    t.canvas.imageForPaint();
    mixedFigure(t.me, 7);
    bigFan(t.me, 8);
    expectSame(t.paintUntilComplete(), t.before.done());
    EXPECT_EQ(t.canvas.opsPainted() - before, counted.ops);
}

TEST(LazyCanvas, ANewRecordStopsTheWorkerAndTheLatestOneShows) {
    // Keystrokes faster than the worker: each Cls and redraw makes it start
    // over, and the image that finally shows is the last keystroke's.
    Pair t;
    for (int key = 0; key < 4; ++key) {
        t.me.Cls();
        bigFan(t.me, 10 + key);
        t.canvas.imageForPaint();
    }
    expectSame(t.paintUntilComplete(), t.before.done());

    // A small redraw after a big one: painted at once, the worker dropped.
    t.me.Cls();
    bigFan(t.me, 20);
    t.canvas.imageForPaint();
    t.me.Cls();
    mixedFigure(t.me, 21);
    expectSame(t.canvas.imageForPaint(), t.before.done());
    EXPECT_TRUE(t.canvas.screenUpToDate());
    // A worker's image that still comes in is dropped, not shown.
    for (int i = 0; i < 20; ++i) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    expectSame(t.canvas.imageForPaint(), t.before.done());
}

TEST(LazyCanvas, ImageIsCompleteAtOnceAndClsOfAnEmptyCanvasIsBlank) {
    Pair t;
    bigFan(t.me, 30);
    t.canvas.imageForPaint();  // the worker starts
    expectSame(t.canvas.image(), t.before.done());
    t.me.Cls();
    const QImage& blank = t.canvas.image();
    EXPECT_EQ(blank.pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(blank.pixel(kW / 2, kH / 2), qRgb(255, 255, 255));
}

namespace {
long residentKiB() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmRSS:", 0) == 0) return std::stol(line.substr(6));
    return 0;
}
// Waits up to 5 s for the resident size to pass `atLeast` KiB.
long waitForResident(long atLeast) {
    QElapsedTimer t;
    t.start();
    long now = residentKiB();
    while (now < atLeast && t.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        now = residentKiB();
    }
    return now;
}
} // namespace

TEST(CanvasMemory, AWindowOfDensePreviewsKeepsItsMemoryReadyAndGivesItBackWhenItCloses) {
    // A template's window has a million and a half strokes' worth faulted
    // in before the first dense preview, records of that size reuse it, and
    // none of it stays once the window is gone: opening and closing one
    // template after another must not pile memory up.
    constexpr size_t kDensest = 1'500'000;
    constexpr long kReadyKiB = kDensest * sizeof(CanvasOp) / 1024;
    const long before = residentKiB();
    for (int window = 0; window < 2; ++window) {
        {
            CanvasDevice canvas(kW, kH, kUnitsW, kUnitsH, 0xFFFFFF, 1.0, kDensest);
            const long ready = waitForResident(before + kReadyKiB * 9 / 10);
            if (ready < before + kReadyKiB * 9 / 10) GTEST_SKIP() << "this system faults no memory in ahead";
            DrawingSurface me(DrawingSurface::Kind::Canvas, "frmTest", kUnitsW, kUnitsH);
            me.attach(&canvas);
            long after[2];
            for (long& resident : after) {
                me.Cls();
                for (size_t i = 0; i < kDensest; ++i) me.Line(i % 3000, 10, 20, i % 1800);
                resident = residentKiB();
            }
            // What was ready, the block kept ahead of a growing record and
            // room for the allocator's own: far less than a second record's worth.
            EXPECT_LT(after[0], before + kReadyKiB + 10 * 1024) << "a dense record took far more than was ready";
            EXPECT_LT(after[1], after[0] + kReadyKiB / 4) << "the second dense record did not reuse the first's memory";
        }
        EXPECT_LT(residentKiB(), before + 8 * 1024) << "window " << window << " kept its memory after closing";
    }
}
