#include "platform/canvas_device.h"

#include "platform/qt_drawing.h"

namespace gp {

CanvasDevice::CanvasDevice(int pixelWidth, int pixelHeight, Single unitsWide, Single unitsHigh,
                           long backColor, double devicePixelRatio)
    : image_(std::max(1, pixelWidth), std::max(1, pixelHeight), QImage::Format_RGB32),
      sx_(pixelWidth / static_cast<double>(unitsWide)),
      sy_(pixelHeight / static_cast<double>(unitsHigh)),
      dpr_(devicePixelRatio),
      back_(toQColor(backColor)) {
    image_.setDevicePixelRatio(devicePixelRatio);
    image_.fill(back_);
}

CanvasDevice::~CanvasDevice() {
    if (painter_.isActive()) painter_.end();
}

QPainter& CanvasDevice::painter() {
    if (!painter_.isActive()) {
        painter_.begin(&image_);
        painter_.setRenderHint(QPainter::Antialiasing, false);
        // The image carries its pixel ratio; draw in device pixels.
        painter_.resetTransform();
        painter_.scale(1.0 / dpr_, 1.0 / dpr_);
    }
    return painter_;
}

void CanvasDevice::line(const Stroke& s) {
    dirty_ = true;
    QPainter& p = painter();
    const PenScale scale{dpr_, sx_};
    p.setPen(makePen(s.style, s.width, s.color, scale));
    const QPointF a(s.x1 * sx_, s.y1 * sy_), b(s.x2 * sx_, s.y2 * sy_);
    if (a == b)
        p.drawPoint(a);
    else
        p.drawLine(a, b);
}

void CanvasDevice::pset(Single x, Single y, int width, long color) {
    dirty_ = true;
    drawDot(painter(), x * sx_, y * sy_, width, color, PenScale{dpr_, sx_});
}

void CanvasDevice::print(Single x, Single y, const std::string& text, const FontSpec& font) {
    dirty_ = true;
    QPainter& p = painter();
    p.save();
    p.resetTransform();  // fonts size themselves by the image's pixel ratio
    drawText(p, x * sx_ / dpr_, y * sy_ / dpr_, text, font);
    p.restore();
}

void CanvasDevice::cls() {
    dirty_ = true;
    if (painter_.isActive()) painter_.end();
    image_.fill(back_);
}

const QImage& CanvasDevice::image() {
    dirty_ = false;
    if (painter_.isActive()) painter_.end();
    return image_;
}

} // namespace gp
