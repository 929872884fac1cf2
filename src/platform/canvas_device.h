#pragma once
// A form's canvas on screen. Every call is recorded at once, in order, and
// kept until Cls, as the forms expect (none of them repaints); pixels are
// made only when the window paints, for the latest state. A small change is
// painted there and then onto the image on show; a big one (a template at
// a small side) is painted by a worker while the image before it stays on
// show, and a Cls meanwhile makes the worker stop and start over.

#include <QImage>
#include <functional>
#include <memory>

#include "platform/canvas_painter.h"
#include "platform/canvas_record.h"
#include "platform/raster_worker.h"
#include "shell/drawing_surface.h"

namespace gp {

class CanvasDevice : public SurfaceDevice {
public:
    // Up to this many new ops are painted in the paint event itself: a few
    // milliseconds at most, even of short dashed strokes.
    static constexpr size_t kPaintNow = 4000;

    // pixelWidth/Height: the client area in device pixels; units: the
    // canvas's ScaleWidth and ScaleHeight; mostOps: the most ops one
    // handler may draw, where that is more than a few thousand.
    CanvasDevice(int pixelWidth, int pixelHeight, Single unitsWide, Single unitsHigh, long backColor,
                 double devicePixelRatio, size_t mostOps = 0);
    ~CanvasDevice() override;

    void line(const Stroke& s) override;
    void pset(Single x, Single y, int width, long color) override;
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override;
    void cls() override;

    // Every op drawn so far, painted now if need be.
    const QImage& image();
    // What the window paints: the newest image there is. Small changes are
    // painted into it first; big ones go to the worker, and the callback of
    // onImageReady asks for another paint when its image is in.
    const QImage& imageForPaint();
    void onImageReady(std::function<void()> callback) { ready_ = std::move(callback); }
    // Whether the window's last paint showed every op drawn so far.
    bool screenUpToDate() const;
    // Ops turned into pixels on an image that was shown, since the canvas
    // was made: each op once, however many paints it took.
    size_t opsPainted() const { return opsPainted_; }

private:
    struct Shown {
        QImage image;
        std::uint64_t generation = 0;  // the Cls it follows
        size_t count = 0;              // ops of that record painted on it
    };
    bool shownIsLatest() const { return shown_.generation == generation_ && shown_.count == record_->size(); }
    void paintHere();
    void startWorker();
    void workerDone(QImage image, RasterWorker::Target target);

    QSize pixels_;
    CanvasScale scale_;
    QColor back_;
    std::shared_ptr<CanvasRecord> record_;
    size_t mostOps_;
    std::uint64_t generation_ = 0;
    Shown shown_;
    RasterWorker::Target onScreen_;
    std::function<void()> ready_;
    size_t opsPainted_ = 0;
    RasterWorker worker_;
};

} // namespace gp
