#pragma once
// The Printer of the windowed program. Each EndDoc is one sheet, sent where
// the user's choice says: a print job on the chosen printer (the system's
// default until one is chosen) with the chosen paper and copies, or a PDF
// or SVG file through a save dialog. Where printers are installed but none
// is the default, the first sheet asks which one. Where no printer is
// installed at all, each sheet is saved as a PDF on the system's paper in
// a folder of the user's documents, and the user is told the file.

#include <QPageSize>
#include <QString>
#include <functional>

#include "platform/print_job.h"
#include "platform/sheet_settings.h"
#include "shell/page.h"

class QWidget;

namespace gp {

// Where the next sheet goes and what it may draw on.
struct SheetPlan {
    enum class Kind { Printer, AskForPrinter, PdfFile, SvgFile, NoPrinter };
    Kind kind = Kind::NoPrinter;
    PrintTarget target;          // Printer; AskForPrinter: the printer offered first
    QPageSize paper;             // the files' paper
    TwipsSize area{0, 0};        // the portrait printable area, in twips
};

// What the choice in `settings` means with the printers installed now.
SheetPlan planSheets(const SheetSettings& settings);

class SystemPrinterSink : public PageSink {
public:
    // `sheetName` names the sheet being printed; `askForPrinter` shows the
    // print dialog and returns whether the user chose a printer;
    // `afterSheet` runs after each sheet, which may have changed the
    // choice (a printer chosen, the last folder) or found other printers.
    SystemPrinterSink(SheetSettings& settings, std::function<std::string()> sheetName,
                      std::function<bool()> askForPrinter, std::function<void()> afterSheet);
    OutputResult emitPage(const Page& page, Single printableWidth, Single printableHeight) override;

    static QString fallbackFolder();

private:
    OutputResult send(const Page& page, Single printableWidth, Single printableHeight);
    OutputResult saveAs(const SheetPlan& plan, const Page& page, Single printableWidth, Single printableHeight);
    OutputResult saveWithoutPrinter(const SheetPlan& plan, const Page& page, Single printableWidth,
                                    Single printableHeight);

    SheetSettings& settings_;
    std::function<std::string()> sheetName_;
    std::function<bool()> askForPrinter_;
    std::function<void()> afterSheet_;
};

// The bytes of a sheet as a PDF or SVG file on `paper` (portrait; turned
// as the page is), its printable area a quarter inch inside the edges.
std::string sheetFileBytes(bool svg, const Page& page, Single printableWidth, Single printableHeight,
                           const QPageSize& paper);

} // namespace gp
