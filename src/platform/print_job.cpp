#include "platform/print_job.h"

#include <QDir>
#include <algorithm>
#include <QFileInfo>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryFile>

#include "platform/cups_library.h"
#include "platform/pdf_sheets.h"

namespace gp {

namespace {
// CUPS names a queue's instance "queue/instance"; jobs go to the queue.
QByteArray cupsQueueName(const QString& queue) { return queue.section('/', 0, 0).toLocal8Bit(); }
} // namespace

QString defaultQueue() { return QPrinterInfo::defaultPrinterName(); }

QString installedQueue(const QString& name) {
    if (name == "default") return defaultQueue();
    return QPrinterInfo::printerInfo(name).isNull() ? QString() : name;
}

QPageLayout queueLayout(const PrintTarget& target, int orientation) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(target.queue);
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageSize(target.paper ? *target.paper : info.defaultPageSize());
    printer.setPageOrientation(orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
    // No margins beyond those the printer cannot print on (or the sheet's
    // own, where it keeps one): the printable area is what the printer
    // reports.
    if (target.margin <= 0) {
        printer.setPageMargins(printer.pageLayout().minimumMargins(), printer.pageLayout().units());
    } else {
        QPageLayout layout = printer.pageLayout();
        layout.setUnits(QPageLayout::Point);
        const QMarginsF least = layout.minimumMargins();
        const double own = target.margin / 20.0;
        printer.setPageMargins(QMarginsF(std::max(least.left(), own), std::max(least.top(), own),
                                         std::max(least.right(), own), std::max(least.bottom(), own)),
                               QPageLayout::Point);
    }
    return printer.pageLayout();
}

std::optional<TwipsSize> queuePrintableArea(const PrintTarget& target) {
    if (QPrinterInfo::printerInfo(target.queue).isNull()) return std::nullopt;
    const QRectF area = queueLayout(target, 1).paintRect(QPageLayout::Inch);
    if (area.width() <= 0 || area.height() <= 0) return std::nullopt;
    return TwipsSize{static_cast<Single>(area.width() * 1440.0), static_cast<Single>(area.height() * 1440.0)};
}

OutputResult printSheet(const Page& page, Single printableWidth, Single printableHeight,
                        const PrintTarget& target, const std::string& title) {
    const std::string what = "the printer " + target.queue.toStdString();
    if (QPrinterInfo::printerInfo(target.queue).isNull()) return OutputResult::failed(what, "it is not installed");
    const QPageLayout layout = queueLayout(target, page.orientation);
    const QString name = title.empty() ? QString("gridpages sheet") : QString::fromStdString(title);

    QTemporaryFile file(QDir::tempPath() + "/gridpages-job-XXXXXX.pdf");
    if (!file.open()) return OutputResult::failed(what, "no room for the job: " + file.errorString().toStdString());
    file.close();
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file.fileName());
        printer.setPageLayout(layout);
        printer.setResolution(1440);  // painter units are twips
        printer.setDocName(name);
        printer.setCreator("gridpages");
        // Without full-page mode the painter's origin is the corner of the
        // printable area, which is where the pages put theirs.
        paintSheet(printer, page, printableWidth, printableHeight, 0.0);
    }
    if (QFileInfo(file.fileName()).size() == 0)
        return OutputResult::failed(what, "the sheet could not be drawn for it");

    std::string error;
    const CupsLibrary* cups = CupsLibrary::get(error);
    if (!cups) return OutputResult::failed(what, error);
    cups_option_t* options = nullptr;
    int count = cups->addOption("media", layout.pageSize().key().toUtf8().constData(), 0, &options);
    if (target.copies > 1)
        count = cups->addOption("copies", QByteArray::number(target.copies).constData(), count, &options);
    const int job = cups->printFile(cupsQueueName(target.queue).constData(),
                                    QFile::encodeName(file.fileName()).constData(), name.toUtf8().constData(),
                                    count, options);
    cups->freeOptions(count, options);
    if (job == 0) return OutputResult::failed(what, cups->lastErrorString());
    return OutputResult::written();
}

} // namespace gp
