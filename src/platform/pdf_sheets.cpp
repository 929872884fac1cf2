#include "platform/pdf_sheets.h"

#include <QDir>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "platform/painter_device.h"
#include "platform/sheet_frame.h"

namespace gp {

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

bool writeSheetPdf(const QString& path, const Page& page, Single printableWidth, Single printableHeight) {
    QPdfWriter writer(path);
    writer.setResolution(1440);
    writer.setCreator("gridpages");
    const SheetFrame frame = SheetFrame::around(printableWidth, printableHeight);
    const QSizeF inches(frame.paperWidth / 1440.0, frame.paperHeight / 1440.0);
    writer.setPageLayout(QPageLayout(QPageSize(inches, QPageSize::Inch, QString(), QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    paintSheet(writer, page, printableWidth, printableHeight, frame.margin);
    return true;
}

PdfSheetSink::PdfSheetSink(QString directory) : dir_(std::move(directory)) { QDir().mkpath(dir_); }

OutputResult PdfSheetSink::emitPage(const Page& page, Single printableWidth, Single printableHeight) {
    ++count_;
    last_ = QDir(dir_).filePath(QString("sheet-%1.pdf").arg(count_, 4, 10, QChar('0')));
    writeSheetPdf(last_, page, printableWidth, printableHeight);
    return OutputResult::written();
}

} // namespace gp
