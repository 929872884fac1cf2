#pragma once
// Sheets saved as PDF files at true size: a page of the printable area plus
// a quarter inch of margin on every side, drawn in twips at 1440 dots to the
// inch, so one inch on the sheet is 72 points in the file.

#include <QString>

#include "shell/page.h"

class QPagedPaintDevice;

namespace gp {

// Paints one page on a paged device already set up at 1440 dots to the inch
// with `margin` twips around the printable area.
void paintSheet(QPagedPaintDevice& device, const Page& page, Single printableWidth,
                Single printableHeight, double margin);

// Writes DIR/sheet-0001.pdf, sheet-0002.pdf, ... one file a sheet.
class PdfSheetSink : public PageSink {
public:
    explicit PdfSheetSink(QString directory);
    OutputResult emitPage(const Page& page, Single printableWidth, Single printableHeight) override;
    int sheets() const { return count_; }
    QString lastFile() const { return last_; }

private:
    QString dir_;
    int count_ = 0;
    QString last_;
};

bool writeSheetPdf(const QString& path, const Page& page, Single printableWidth, Single printableHeight);

} // namespace gp
