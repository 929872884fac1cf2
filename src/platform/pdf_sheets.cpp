#include "platform/pdf_sheets.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "platform/painter_device.h"

namespace gp {

namespace {
constexpr double kMargin = 360.0;  // a quarter inch, in twips
}

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

QByteArray sheetPdf(const Page& page, Single printableWidth, Single printableHeight) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(1440);
        writer.setCreator("gridpages");
        const QSizeF inches((printableWidth + 2 * kMargin) / 1440.0, (printableHeight + 2 * kMargin) / 1440.0);
        writer.setPageLayout(QPageLayout(QPageSize(inches, QPageSize::Inch, QString(), QPageSize::ExactMatch),
                                         QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
        paintSheet(writer, page, printableWidth, printableHeight, kMargin);
    }
    return bytes;
}

OutputResult PdfSheetSink::emitPage(const Page& page, Single printableWidth, Single printableHeight) {
    const QByteArray bytes = sheetPdf(page, printableWidth, printableHeight);
    return folder_.write(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
}

} // namespace gp
