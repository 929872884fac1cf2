#include "platform/qt_drawing.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>

namespace gp {

QColor toQColor(long rgb) {
    if (rgb < 0) return QColor(0, 0, 0);
    return QColor(static_cast<int>(rgb & 0xFF), static_cast<int>((rgb >> 8) & 0xFF),
                  static_cast<int>((rgb >> 16) & 0xFF));
}

QPen makePen(int style, int width, long color, const PenScale& scale) {
    // A thickness below 1 is drawn as the thinnest line, not left out.
    const double w = std::max(1, width) * scale.unitsPerWidth;
    QPen pen(toQColor(color));
    pen.setWidthF(w);
    if (style == 1) {
        // Dashes of 1/12 inch with gaps of 1/24 inch, whatever the thickness,
        // so fold lines look alike on every sheet. Qt counts in pen widths.
        const double dash = 120.0 * scale.unitsPerTwip / w;
        const double gap = 60.0 * scale.unitsPerTwip / w;
        pen.setDashPattern({std::max(dash, 1.0), std::max(gap, 1.0)});
        pen.setCapStyle(Qt::FlatCap);
    } else {
        pen.setCapStyle(Qt::RoundCap);
    }
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

void drawDot(QPainter& painter, double x, double y, int width, long color, const PenScale& scale) {
    // A round pen point: one pixel on screen at width 1, a round dot of
    // the width's diameter on paper.
    const double d = std::max(1, width) * scale.unitsPerWidth;
    painter.setPen(QPen(toQColor(color), d, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(x, y));
}

QFont toQFont(const FontSpec& font) {
    QFont f(qs(font.name));
    f.setPointSizeF(font.size > 0 ? font.size : 8.25);
    f.setBold(font.bold);
    f.setItalic(font.italic);
    // Where the named face is missing the stand-in keeps its kind: a serif
    // heading stays serif.
    const bool serif = font.name == "Georgia" || font.name == "Times New Roman";
    f.setStyleHint(serif ? QFont::Serif : QFont::SansSerif);
    return f;
}

void drawText(QPainter& painter, double x, double y, const std::string& text, const FontSpec& font) {
    painter.setFont(toQFont(font));
    painter.setPen(QColor(0, 0, 0));
    const QFontMetricsF fm(painter.font(), painter.device());
    painter.drawText(QPointF(x, y + fm.ascent()), qs(text));
}

TextSize QtTextMeasurer::measure(const std::string& text, const FontSpec& font) const {
    // An image at 1440 dots to the inch measures directly in twips.
    static QImage probe = [] {
        QImage img(1, 1, QImage::Format_RGB32);
        img.setDotsPerMeterX(56693);
        img.setDotsPerMeterY(56693);
        return img;
    }();
    const QFontMetricsF fm(toQFont(font), &probe);
    return {static_cast<Single>(fm.horizontalAdvance(qs(text))), static_cast<Single>(fm.height())};
}

} // namespace gp
