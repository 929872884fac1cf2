#pragma once
// Paints drawing calls on a QPainter whose coordinates are twips of the
// printable area: a recorded page replayed onto paper, a PDF or an image.
// Runs of strokes with the same pen go out in one call.

#include <QLineF>
#include <QVector>

#include "platform/qt_drawing.h"
#include "shell/page.h"

class QPainter;

namespace gp {

// A pen for DrawWidth on paper: one unit is one point (20 twips).
struct PaperPen {
    static constexpr double kTwipsPerPoint = 20.0;
};

class PainterDevice : public SurfaceDevice {
public:
    PainterDevice(QPainter& painter, const PenScale& scale) : painter_(painter), scale_(scale) {}
    ~PainterDevice() override { flush(); }

    void line(const Stroke& s) override;
    void pset(Single x, Single y, int width, long color) override;
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override;
    // Sends the strokes still held back.
    void flush();

private:
    QPainter& painter_;
    PenScale scale_;
    QVector<QLineF> run_;
    Stroke runPen_{0, 0, 0, 0, -1, -1, -2};
};

// Paints a whole page at paper scale.
void renderPage(QPainter& painter, const Page& page);

} // namespace gp
