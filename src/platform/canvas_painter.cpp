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

void CanvasPainter::usePen(const CanvasOp& op) {
    if (penSet_ && op.style == style_ && op.width == width_ && op.color == color_) return;
    flush();
    const QPen* pen = nullptr;
    for (const CachedPen& c : pens_)
        if (c.style == op.style && c.width == op.width && c.color == op.color) pen = &c.pen;
    if (!pen) {
        if (pens_.size() >= kPens) pens_.erase(pens_.begin());
        pens_.push_back({op.style, op.width, op.color,
                         makePen(op.style, op.width, op.color, PenScale{scale_.dpr, scale_.sx})});
        pen = &pens_.back().pen;
    }
    painter_.setPen(*pen);
    penSet_ = true;
    style_ = op.style;
    width_ = op.width;
    color_ = op.color;
}

void CanvasPainter::line(const CanvasOp& op) {
    usePen(op);
    const QPointF a(op.x1 * scale_.sx, op.y1 * scale_.sy), b(op.x2 * scale_.sx, op.y2 * scale_.sy);
    if (a == b) {
        flush();
        painter_.drawPoint(a);
    } else if (op.style != CanvasOp::Solid) {
        // A dashed stroke starts its pattern afresh; a batch would carry
        // the pattern on from the stroke before.
        flush();
        painter_.drawLine(a, b);
    } else {
        run_.emplace_back(a, b);
        if (run_.size() >= kBatch) flush();
    }
}

void CanvasPainter::dot(const CanvasOp& op) {
    flush();
    drawDot(painter_, op.x1 * scale_.sx, op.y1 * scale_.sy, op.width, op.color, PenScale{scale_.dpr, scale_.sx});
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
        const CanvasOp& op = slice.at(i);
        switch (op.kind) {
        case CanvasOp::Line: painter.line(op); break;
        case CanvasOp::Dot: painter.dot(op); break;
        case CanvasOp::Text: {
            const PageText& t = slice.text(op);
            painter.text(t.x, t.y, t.text, t.font);
            break;
        }
        }
    }
    return true;
}

} // namespace gp
