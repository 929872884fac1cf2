#include "platform/focus_ring.h"

#include <QPen>
#include <cmath>

namespace gp {

namespace {
// Relative luminance of an sRGB colour, as contrast ratios are reckoned.
double luminance(const QColor& c) {
    auto channel = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}
} // namespace

QColor focusRingColour(const QColor& face) {
    const double l = luminance(face);
    // Contrast with black is (l + 0.05) / 0.05, with white 1.05 / (l + 0.05).
    return (l + 0.05) * (l + 0.05) >= 0.05 * 1.05 ? QColor(Qt::black) : QColor(Qt::white);
}

void drawFocusRing(QPainter& painter, const QRect& bounds, const QColor& face) {
    constexpr int kWidth = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    QPen pen(focusRingColour(face), kWidth);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    // A pen of width 2 straddles its line: one pixel in from the edge keeps
    // the whole ring inside the control at any scale.
    painter.drawRect(QRectF(bounds).adjusted(kWidth / 2.0 + 1, kWidth / 2.0 + 1, -kWidth / 2.0 - 1, -kWidth / 2.0 - 1));
    painter.restore();
}

} // namespace gp
