#include "platform/system_printer.h"

#include <QDir>
#include <QMessageBox>
#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "platform/pdf_sheets.h"

namespace gp {

namespace {
// The printer's own paper, turned as the page asks, with no margins beyond
// those the printer cannot print on: the printable area is what the printer
// reports.
void setUp(QPrinter& printer, const QPrinterInfo& info, int orientation) {
    printer.setPageSize(info.defaultPageSize());
    printer.setPageOrientation(orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setPageMargins(printer.pageLayout().minimumMargins(), printer.pageLayout().units());
}
} // namespace

SystemPrinterSink::SystemPrinterSink() : fallback_(fallbackFolder().toStdString(), "pdf") {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    hasPrinter_ = !info.isNull();
    if (!hasPrinter_) return;
    QPrinter printer(info, QPrinter::HighResolution);
    setUp(printer, info, 1);
    const QRectF area = printer.pageLayout().paintRect(QPageLayout::Inch);
    if (area.width() > 0 && area.height() > 0) {
        width_ = static_cast<Single>(area.width() * 1440.0);
        height_ = static_cast<Single>(area.height() * 1440.0);
    }
}

QString SystemPrinterSink::fallbackFolder() {
    QString base = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (base.isEmpty()) base = QDir::homePath();
    return QDir(base).filePath("gridpages sheets");
}

OutputResult SystemPrinterSink::emitPage(const Page& page, Single printableWidth, Single printableHeight) {
    if (!hasPrinter_) return saveAsPdf(page, printableWidth, printableHeight);
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    QPrinter printer(info, QPrinter::HighResolution);
    setUp(printer, info, page.orientation);
    printer.setResolution(1440);  // painter units are twips
    printer.setDocName("gridpages sheet");
    // Without full-page mode the painter's origin is the corner of the
    // printable area, which is where the pages put theirs.
    paintSheet(printer, page, printableWidth, printableHeight, 0.0);
    return OutputResult::written();
}

OutputResult SystemPrinterSink::saveAsPdf(const Page& page, Single printableWidth, Single printableHeight) {
    const QString folder = fallbackFolder();
    const QByteArray bytes =
        sheetPdf(page, printableWidth, printableHeight, SheetFrame::around(printableWidth, printableHeight));
    const OutputResult saved = fallback_.write(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
    if (!saved.ok()) return saved;
    if (!told_) {
        told_ = true;
        QMessageBox::information(nullptr, "No printer",
                                 "No printer is installed, so each sheet is saved as a PDF file "
                                 "in this folder:\n\n" + folder);
    }
    return saved;
}

} // namespace gp
