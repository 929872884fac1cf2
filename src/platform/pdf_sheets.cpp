#include "platform/pdf_sheets.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "platform/painter_device.h"
#include "platform/sheet_frame.h"

namespace gp {

namespace {
// Qt's PDF writer gives the page a whole number of points, so A4 would come
// out as 595 x 842 instead of 595.276 x 841.89. Its page box is written with
// six decimals; the exact size is written over it, padded with blanks to the
// same length, so that every offset of the file stays right.
void exactPageBox(QByteArray& pdf, double widthPoints, double heightPoints) {
    const QByteArray box = "/MediaBox [0 0 " + QByteArray::number(double(qRound(widthPoints)), 'f', 6) + " " +
                           QByteArray::number(double(qRound(heightPoints)), 'f', 6) + "]";
    const qsizetype at = pdf.indexOf(box);
    if (at < 0) return;
    QByteArray exact = "/MediaBox [0 0 " + QByteArray::number(widthPoints, 'f', 6) + " " +
                       QByteArray::number(heightPoints, 'f', 6) + "]";
    if (exact.size() > box.size()) return;  // cannot happen: rounding only adds digits
    exact.append(QByteArray(box.size() - exact.size(), ' '));
    pdf.replace(at, box.size(), exact);
}
} // namespace

void paintSheet(QPagedPaintDevice& device, const Page& page, Single printableWidth,
                Single printableHeight, double margin) {
    QPainter painter;
    if (!painter.begin(&device)) return;
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.translate(margin, margin);
    // What lies off the printable area is clipped, as on a printer.
    painter.setClipRect(QRectF(0, 0, printableWidth, printableHeight));
    renderPage(painter, page);
    painter.end();
}

QByteArray sheetPdf(const Page& page, Single printableWidth, Single printableHeight, const SheetFrame& frame) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(1440);
        writer.setCreator("gridpages");
        const QSizeF inches(frame.paperWidth / 1440.0, frame.paperHeight / 1440.0);
        writer.setPageLayout(QPageLayout(QPageSize(inches, QPageSize::Inch, QString(), QPageSize::ExactMatch),
                                         QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
        paintSheet(writer, page, printableWidth, printableHeight, frame.margin);
    }
    exactPageBox(bytes, frame.paperWidth / 20.0, frame.paperHeight / 20.0);
    return bytes;
}

OutputResult PdfSheetSink::emitPage(const Page& page, Single printableWidth, Single printableHeight) {
    const QByteArray bytes =
        sheetPdf(page, printableWidth, printableHeight, paper_.frameFor(page.orientation, printableWidth, printableHeight));
    return folder_.write(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
}

} // namespace gp
