#pragma once
// The Printer of the windowed program: each EndDoc is one print job of one
// sheet on the system's default printer, at true size. Where no printer is
// installed the sheet is saved as a PDF in a folder that the user is told
// about once.

#include <QString>

#include "shell/page.h"
#include "shell/sheet_folder.h"

namespace gp {

class SystemPrinterSink : public PageSink {
public:
    SystemPrinterSink();
    OutputResult emitPage(const Page& page, Single printableWidth, Single printableHeight) override;

    bool hasPrinter() const { return hasPrinter_; }
    // The portrait printable area of the default printer, in twips.
    Single printableWidth() const { return width_; }
    Single printableHeight() const { return height_; }
    static QString fallbackFolder();

private:
    OutputResult saveAsPdf(const Page& page, Single printableWidth, Single printableHeight);

    SheetFolder fallback_;

    bool hasPrinter_ = false;
    bool told_ = false;
    Single width_ = 11520;
    Single height_ = 15120;
};

} // namespace gp
