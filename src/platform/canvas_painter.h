#pragma once
// Turns a canvas's recorded ops into pixels, as the screen shows them: one
// painter for the whole run of ops, a pen made only when DrawStyle,
// DrawWidth or the colour change, and solid strokes of one pen handed to
// QPainter in batches (consecutive strokes only, so a later colour still
// covers an earlier one).

#include <QImage>
#include <QLineF>
#include <QPainter>
#include <atomic>
#include <vector>

#include "platform/canvas_record.h"

namespace gp {

// The canvas's units to the image's device pixels, and the image's pixel
// ratio (fonts and the pixel-wide pen follow it).
struct CanvasScale {
    double sx, sy, dpr;
};

class CanvasPainter {
public:
    CanvasPainter(QImage& image, const CanvasScale& scale);
    ~CanvasPainter();
    CanvasPainter(const CanvasPainter&) = delete;
    CanvasPainter& operator=(const CanvasPainter&) = delete;

    void line(const CanvasOp& op);
    void dot(const CanvasOp& op);
    void text(Single x, Single y, const std::string& text, const FontSpec& font);
    // Sends the strokes still held back.
    void flush();

private:
    void usePen(const CanvasOp& op);

    QPainter painter_;
    CanvasScale scale_;
    std::vector<QLineF> run_;
    bool penSet_ = false;
    int style_ = 0, width_ = 0, color_ = 0;
    // The last few pens made: a figure that alternates solid and dashed
    // strokes switches between two pens thousands of times.
    struct CachedPen {
        int style, width, color;
        QPen pen;
    };
    std::vector<CachedPen> pens_;
};

// Paints ops [slice.from, slice.to) onto `image`. Returns false, with the
// image half painted, when `stop` was raised before the end.
bool paintSlice(QImage& image, const CanvasScale& scale, const CanvasSlice& slice,
                const std::atomic<bool>* stop = nullptr);

} // namespace gp
