#include "platform/system_printer.h"

#include <QDateTime>
#include <QDir>
#include <QMessageBox>
#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "platform/pdf_sheets.h"

namespace gp {

SystemPrinterSink::SystemPrinterSink() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    hasPrinter_ = !info.isNull();
    if (!hasPrinter_) return;
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Portrait);
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

void SystemPrinterSink::emitPage(const Page& page, Single printableWidth, Single printableHeight) {
    if (!hasPrinter_) {
        saveAsPdf(page, printableWidth, printableHeight);
        return;
    }
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    printer.setResolution(1440);  // painter units are twips
    printer.setDocName("gridpages sheet");
    printer.setPageOrientation(page.orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
    // Without full-page mode the painter's origin is the corner of the
    // printable area, which is where the pages put theirs.
    paintSheet(printer, page, printableWidth, printableHeight, 0.0);
}

void SystemPrinterSink::saveAsPdf(const Page& page, Single printableWidth, Single printableHeight) {
    const QString folder = fallbackFolder();
    QDir().mkpath(folder);
    const QString stamp = QDateTime::currentDateTime().toString("yyyyMMdd-hhmmss-zzz");
    const QString path = QDir(folder).filePath("sheet-" + stamp + ".pdf");
    writeSheetPdf(path, page, printableWidth, printableHeight);
    if (!told_) {
        told_ = true;
        QMessageBox::information(nullptr, "No printer",
                                 "No printer is installed, so each sheet is saved as a PDF file "
                                 "in this folder:\n\n" + folder);
    }
}

} // namespace gp
