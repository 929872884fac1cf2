#include "platform/painter_device.h"

#include <QPainter>
#include <QPen>

namespace gp {

void PainterDevice::line(const Stroke& s) {
    if (s.style != runPen_.style || s.width != runPen_.width || s.color != runPen_.color) {
        flush();
        runPen_ = s;
    }
    run_.append(QLineF(s.x1, s.y1, s.x2, s.y2));
}

void PainterDevice::pset(Single x, Single y, int width, long color) {
    flush();
    drawDot(painter_, x, y, width, color, scale_);
}

void PainterDevice::print(Single x, Single y, const std::string& text, const FontSpec& font) {
    flush();
    drawText(painter_, x, y, text, font);
}

void PainterDevice::flush() {
    if (run_.isEmpty()) return;
    painter_.setPen(makePen(runPen_.style, runPen_.width, runPen_.color, scale_));
    painter_.drawLines(run_);
    run_.clear();
}

void renderPage(QPainter& painter, const Page& page) {
    PainterDevice device(painter, PenScale{PaperPen::kTwipsPerPoint, 1.0});
    replay(page, device);
    device.flush();
}

} // namespace gp
