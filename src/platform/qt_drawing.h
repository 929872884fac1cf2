#pragma once
// Small pieces shared by every Qt device: pens for DrawStyle and DrawWidth,
// dots, text, colours and fonts.

#include <QColor>
#include <QFont>
#include <QPen>
#include <QString>

#include "shell/drawing_surface.h"

class QPainter;

namespace gp {

// unitsPerWidth: device units for one DrawWidth step (20 twips on paper, one
// pixel on screen). unitsPerTwip: device units for one twip, to size dashes.
struct PenScale {
    double unitsPerWidth;
    double unitsPerTwip;
};

QColor toQColor(long rgb);  // kForeground is black
QPen makePen(int style, int width, long color, const PenScale& scale);
void drawDot(QPainter& painter, double x, double y, int width, long color, const PenScale& scale);
// Text with its top left corner at (x, y), as Print puts it.
void drawText(QPainter& painter, double x, double y, const std::string& text, const FontSpec& font);
QFont toQFont(const FontSpec& font);
inline QString qs(const std::string& s) { return QString::fromStdString(s); }

// TextWidth and TextHeight in twips, from the metrics of the face that is
// really drawn (a stand-in where the named one is missing).
class QtTextMeasurer : public TextMeasurer {
public:
    TextSize measure(const std::string& text, const FontSpec& font) const override;
};

} // namespace gp
