#include "platform/canvas_painter.h"

#include "platform/qt_drawing.h"

namespace gp {

namespace {
// Long enough to make drawLines pay, short enough to stay in the cache.
constexpr size_t kBatch = 1024;
// How often a worker looks whether its ops are still wanted: a fraction of
// a millisecond of painting.
constexpr size_t kStopCheck = 1024;
constexpr size_t kPens = 4;
} // namespace

CanvasPainter::CanvasPainter(QImage& image, const CanvasScale& scale) : painter_(&image), scale_(scale) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    // The image carries its pixel ratio; draw in device pixels.
    painter_.resetTransform();
    painter_.scale(1.0 / scale_.dpr, 1.0 / scale_.dpr);
    run_.reserve(kBatch);
    pens_.reserve(kPens);
}

CanvasPainter::~CanvasPainter() {
    flush();
    painter_.end();
}

void CanvasPainter::usePen(const Stroke& s) {
    if (penSet_ && s.style == style_ && s.width == width_ && s.color == color_) return;
    flush();
    const QPen* pen = nullptr;
    for (const CachedPen& c : pens_)
        if (c.style == s.style && c.width == s.width && c.color == s.color) pen = &c.pen;
    if (!pen) {
        if (pens_.size() >= kPens) pens_.erase(pens_.begin());
        pens_.push_back({s.style, s.width, s.color, makePen(s.style, s.width, s.color, PenScale{scale_.dpr, scale_.sx})});
        pen = &pens_.back().pen;
    }
    painter_.setPen(*pen);
    penSet_ = true;
    style_ = s.style;
    width_ = s.width;
    color_ = s.color;
}

void CanvasPainter::line(const Stroke& s) {
    usePen(s);
    const QPointF a(s.x1 * scale_.sx, s.y1 * scale_.sy), b(s.x2 * scale_.sx, s.y2 * scale_.sy);
    if (a == b) {
        flush();
        painter_.drawPoint(a);
    } else if (s.style != 0) {
        // A dashed stroke starts its pattern afresh; a batch would carry
        // the pattern on from the stroke before.
        flush();
        painter_.drawLine(a, b);
    } else {
        run_.emplace_back(a, b);
        if (run_.size() >= kBatch) flush();
    }
}

void CanvasPainter::dot(Single x, Single y, int width, long color) {
    flush();
    drawDot(painter_, x * scale_.sx, y * scale_.sy, width, color, PenScale{scale_.dpr, scale_.sx});
    penSet_ = false;
}

void CanvasPainter::text(Single x, Single y, const std::string& text, const FontSpec& font) {
    flush();
    painter_.save();
    painter_.resetTransform();  // fonts size themselves by the image's pixel ratio
    drawText(painter_, x * scale_.sx / scale_.dpr, y * scale_.sy / scale_.dpr, text, font);
    painter_.restore();
}

void CanvasPainter::flush() {
    if (run_.empty()) return;
    painter_.drawLines(run_.data(), static_cast<int>(run_.size()));
    run_.clear();
}

bool paintSlice(QImage& image, const CanvasScale& scale, const CanvasSlice& slice, const std::atomic<bool>* stop) {
    CanvasPainter painter(image, scale);
    for (size_t i = slice.from; i < slice.to; ++i) {
        if (stop && (i - slice.from) % kStopCheck == 0 && stop->load(std::memory_order_relaxed)) return false;
        const PageOp& op = slice.at(i);
        const Stroke& s = op.stroke;
        switch (op.kind) {
        case PageOp::LineOp: painter.line(s); break;
        case PageOp::DotOp: painter.dot(s.x1, s.y1, s.width, s.color); break;
        case PageOp::TextOp: {
            const PageText& t = slice.text(op);
            painter.text(t.x, t.y, t.text, t.font);
            break;
        }
        }
    }
    return true;
}

} // namespace gp
