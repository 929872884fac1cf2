#include "platform/page_buffer.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>
#include <QPen>
#include <QString>
#include <QVector>

#include "platform/qt_drawing.h"

namespace gp {

void PageBufferDevice::print(Single x, Single y, const std::string& text, const FontSpec& font) {
    page_.texts.push_back({x, y, text, font});
    page_.ops.push_back({PageOp::TextOp, Stroke{x, y, x, y, 0, 0, kForeground},
                         static_cast<int>(page_.texts.size() - 1)});
}

void PageBufferDevice::endDoc() {
    // The orientation of the Printer holds across pages: start the next page
    // with it.
    const int orientation = printer_.Orientation();
    page_.orientation = orientation;
    sink_.emitPage(page_, printer_.ScaleWidth(), printer_.ScaleHeight());
    page_ = Page{};
    page_.orientation = orientation;
}

void PageBufferDevice::abortPage() {
    const int orientation = page_.orientation;
    page_ = Page{};
    page_.orientation = orientation;
}

void renderPage(QPainter& painter, const Page& page) {
    const PenScale scale{PaperPen::kTwipsPerPoint, 1.0};
    QVector<QLineF> run;
    Stroke runPen{0, 0, 0, 0, -1, -1, -2};
    auto flush = [&] {
        if (run.isEmpty()) return;
        painter.setPen(makePen(runPen.style, runPen.width, runPen.color, scale));
        painter.drawLines(run);
        run.clear();
    };
    for (const PageOp& op : page.ops) {
        const Stroke& s = op.stroke;
        if (op.kind == PageOp::LineOp) {
            if (s.style != runPen.style || s.width != runPen.width || s.color != runPen.color) {
                flush();
                runPen = s;
            }
            run.append(QLineF(s.x1, s.y1, s.x2, s.y2));
            continue;
        }
        flush();
        if (op.kind == PageOp::DotOp) {
            drawDot(painter, s.x1, s.y1, s.width, s.color, scale);
        } else {
            const PageText& t = page.texts[static_cast<size_t>(op.textIndex)];
            drawText(painter, t.x, t.y, t.text, t.font);
        }
    }
    flush();
}

} // namespace gp
