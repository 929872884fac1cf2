#pragma once
// Sheets as SVG documents at true size, for cutting machines, laser cutters
// and Inkscape. The document's width and height are the paper's in inches
// (or millimetres where inches would not be exact); the drawing is in twips
// through the viewBox, with the printable area offset by the margin and
// clipped to it, as on the PDF.
//
// Strokes go into Inkscape layers by line style, so a cutter can cut one and
// score the other: "Fold (dashed lines)" first, so that machines working in
// document order score the folds while the piece still lies flat, then
// "Cut (solid lines)", which also holds dots and text. A sheet of one style
// has one layer; an empty sheet has one empty cut layer.
//
// Each layer keeps the drawing order. Consecutive strokes of one pen share a
// <path>, and a solid stroke that starts where the last one ended continues
// its polyline, so a cutter follows one outline without lifting the blade.
// Strokes reaching past the printable area are cut back to it (cutters do not
// honour clip paths); those wholly outside are left out.

#include <string>

#include "platform/sheet_frame.h"
#include "shell/page.h"
#include "shell/sheet_folder.h"

namespace gp {

// printableWidth/Height: the drawable area in twips in the page's
// orientation. Needs a QGuiApplication where the page has text (fonts).
std::string svgSheet(const Page& page, Single printableWidth, Single printableHeight, const SheetFrame& frame);

// A length in twips as an SVG length: "8.5in", "210mm"; exact to a
// thousandth of a millimetre, well inside a twip.
std::string svgLength(double twips);

// DIR/sheet-0001.svg, sheet-0002.svg, ... one file a sheet.
class SvgSheetSink : public PageSink {
public:
    explicit SvgSheetSink(const std::string& directory, SheetPaper paper = {})
        : folder_(directory, "svg"), paper_(paper) {}
    OutputResult emitPage(const Page& page, Single printableWidth, Single printableHeight) override {
        return folder_.write(
            svgSheet(page, printableWidth, printableHeight, paper_.frameFor(page.orientation, printableWidth, printableHeight)));
    }

private:
    SheetFolder folder_;
    SheetPaper paper_;
};

} // namespace gp
