#include "platform/system_printer.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "platform/pdf_sheets.h"
#include "platform/sheet_files.h"
#include "platform/svg_sheet.h"
#include "shell/safe_file.h"

namespace gp {

namespace {
TwipsSize areaInside(const QPageSize& paper) {
    const PrintableArea a = printableInside(paper);
    return {double(a.width), double(a.height)};
}

QString documentsFolder() {
    const QString docs = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return docs.isEmpty() ? QDir::homePath() : docs;
}
} // namespace

SheetPlan planSheets(const SheetSettings& s) {
    SheetPlan plan;
    plan.paper = s.paper ? *s.paper : systemPaper();
    if (s.destination != SheetSettings::Destination::Printer) {
        plan.kind = s.destination == SheetSettings::Destination::SvgFile ? SheetPlan::Kind::SvgFile
                                                                         : SheetPlan::Kind::PdfFile;
        plan.area = areaInside(plan.paper);
        return plan;
    }
    // A printer chosen in an earlier run may have been taken away since:
    // then the default printer stands in for it.
    QString queue = !s.printer.isEmpty() && !QPrinterInfo::printerInfo(s.printer).isNull() ? s.printer : defaultQueue();
    plan.kind = SheetPlan::Kind::Printer;
    if (queue.isEmpty()) {
        const QStringList all = QPrinterInfo::availablePrinterNames();
        if (all.isEmpty()) {
            plan.kind = SheetPlan::Kind::NoPrinter;
            plan.area = areaInside(plan.paper);
            return plan;
        }
        // Pages are laid out for the printer that the dialog will offer.
        plan.kind = SheetPlan::Kind::AskForPrinter;
        queue = all.first();
    }
    plan.target = PrintTarget{queue, s.paper, s.copies};
    const std::optional<TwipsSize> area = queuePrintableArea(plan.target);
    plan.area = area ? *area : areaInside(plan.paper);
    return plan;
}

std::string sheetFileBytes(bool svg, const Page& page, Single printableWidth, Single printableHeight,
                           const QPageSize& paper) {
    const TwipsSize size = paperTwips(paper);
    const SheetFrame frame = SheetPaper{true, size.width, size.height}.frameFor(page.orientation, printableWidth,
                                                                               printableHeight);
    if (svg) return svgSheet(page, printableWidth, printableHeight, frame);
    const QByteArray pdf = sheetPdf(page, printableWidth, printableHeight, frame);
    return std::string(pdf.constData(), static_cast<size_t>(pdf.size()));
}

SystemPrinterSink::SystemPrinterSink(SheetSettings& settings, std::function<std::string()> sheetName,
                                     std::function<bool()> askForPrinter, std::function<void()> afterSheet)
    : settings_(settings),
      sheetName_(std::move(sheetName)),
      askForPrinter_(std::move(askForPrinter)),
      afterSheet_(std::move(afterSheet)) {}

QString SystemPrinterSink::fallbackFolder() { return QDir(documentsFolder()).filePath("gridpages sheets"); }

OutputResult SystemPrinterSink::emitPage(const Page& page, Single printableWidth, Single printableHeight) {
    const OutputResult result = send(page, printableWidth, printableHeight);
    if (afterSheet_) afterSheet_();
    return result;
}

OutputResult SystemPrinterSink::send(const Page& page, Single printableWidth, Single printableHeight) {
    SheetPlan plan = planSheets(settings_);
    if (plan.kind == SheetPlan::Kind::AskForPrinter) {
        // Closing the dialog is the user's answer: no sheet, and no message.
        if (!askForPrinter_ || !askForPrinter_()) return OutputResult::written();
        plan = planSheets(settings_);
    }
    switch (plan.kind) {
    case SheetPlan::Kind::Printer:
        return printSheet(page, printableWidth, printableHeight, plan.target, sheetName_ ? sheetName_() : "");
    case SheetPlan::Kind::PdfFile:
    case SheetPlan::Kind::SvgFile: return saveAs(plan, page, printableWidth, printableHeight);
    case SheetPlan::Kind::NoPrinter: return saveWithoutPrinter(plan, page, printableWidth, printableHeight);
    case SheetPlan::Kind::AskForPrinter: break;
    }
    return OutputResult::written();
}

OutputResult SystemPrinterSink::saveAs(const SheetPlan& plan, const Page& page, Single printableWidth,
                                       Single printableHeight) {
    const bool svg = plan.kind == SheetPlan::Kind::SvgFile;
    const QString extension = svg ? "svg" : "pdf";
    QString folder = settings_.lastFolder;
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) folder = documentsFolder();

    QFileDialog dialog(QApplication::activeWindow(), svg ? "Save the sheet as an SVG file" : "Save the sheet as a PDF file");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(svg ? "SVG drawings (*.svg)" : "PDF documents (*.pdf)");
    dialog.setDefaultSuffix(extension);
    dialog.setDirectory(folder);
    dialog.selectFile(nextSheetFile(folder, sheetName_ ? sheetName_() : "", extension));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return OutputResult::written();
    const QString path = dialog.selectedFiles().first();

    // The dialog has asked before a file already there is replaced; a file
    // that turns up only after it had asked is left alone.
    const QFileInfo target(path);
    const bool replace = target.exists() || target.isSymLink();
    const std::string bytes = sheetFileBytes(svg, page, printableWidth, printableHeight, plan.paper);
    std::string error;
    if (!writeFileSafely(QFile::encodeName(path).toStdString(), bytes, replace, error))
        return OutputResult::failed(path.toStdString(), error);
    settings_.lastFolder = target.absolutePath();
    return OutputResult::written();
}

OutputResult SystemPrinterSink::saveWithoutPrinter(const SheetPlan& plan, const Page& page, Single printableWidth,
                                                   Single printableHeight) {
    const std::string bytes = sheetFileBytes(false, page, printableWidth, printableHeight, plan.paper);
    QString file;
    const OutputResult saved =
        writeNumberedSheet(fallbackFolder(), sheetName_ ? sheetName_() : "", "pdf", bytes, file);
    if (!saved.ok()) return saved;
    QMessageBox::information(QApplication::activeWindow(), "Saved as a PDF file",
                             "No printer is installed, so this sheet was saved as a PDF file:\n\n" +
                                 QDir::toNativeSeparators(file));
    return saved;
}

} // namespace gp
