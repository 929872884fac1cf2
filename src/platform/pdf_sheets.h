#pragma once
// Sheets as PDF files at true size: a page of the printable area plus a
// quarter inch of margin on every side, drawn in twips at 1440 dots to the
// inch, so one inch on the sheet is 72 points in the file.

#include <QByteArray>
#include <QString>
#include <string>

#include "platform/sheet_frame.h"
#include "shell/page.h"
#include "shell/sheet_folder.h"

class QPagedPaintDevice;

namespace gp {

// Paints one page on a paged device already set up at 1440 dots to the inch
// with `margin` twips around the printable area.
void paintSheet(QPagedPaintDevice& device, const Page& page, Single printableWidth,
                Single printableHeight, double margin);

// The bytes of a one-page PDF file of the sheet, its page the frame's paper.
QByteArray sheetPdf(const Page& page, Single printableWidth, Single printableHeight, const SheetFrame& frame);

// DIR/sheet-0001.pdf, sheet-0002.pdf, ... one file a sheet.
class PdfSheetSink : public PageSink {
public:
    explicit PdfSheetSink(const std::string& directory, SheetPaper paper = {})
        : folder_(directory, "pdf"), paper_(paper) {}
    OutputResult emitPage(const Page& page, Single printableWidth, Single printableHeight) override;
    QString lastFile() const { return QString::fromStdString(folder_.lastFile()); }

private:
    SheetFolder folder_;
    SheetPaper paper_;
};

} // namespace gp
