#include "grids/frm_squares2.h"

#include "grids/cell_size.h"
#include "grids/puzzle_sheet.h"
#include "shell/form_set.h"

namespace gp {

FormDesign FrmSquares2::Design() {
    FormDesign d;
    d.name = "frmSquares2";
    d.caption = "Squares";
    d.clientWidth = 10620;
    d.clientHeight = 7605;
    d.backColor = RGB(128, 255, 128);
    d.font = FontSpec{"Arial", 12, false, false};
    d.controls = {
        LabelDesign("Label1", "Width (inches)").at(720, 720, 2175, 375),
        TextBoxDesign("txtWidth", ".5").at(3000, 660, 1215, 435),
        LabelDesign("Label2", "Height (inches)").at(720, 1440, 2175, 375),
        TextBoxDesign("txtHigh", ".5").at(3000, 1380, 1215, 435),
        LabelDesign("lblThick", "Line thick").at(720, 2160, 2175, 375),
        TextBoxDesign("txtThick", "2").at(3000, 2100, 1215, 435),
        ButtonDesign("cmdPrintIt", "Print It").at(720, 3240, 1815, 735),
        ButtonDesign("cmdStart", "Puzzle Shape Thing").at(2880, 3240, 1935, 735),
        ButtonDesign("cmdExit", "E&xit").at(5160, 3240, 1695, 735),
    };
    return d;
}

FrmSquares2::FrmSquares2(FormSet& app)
    : Form(app, Design()),
      txtWidth(textBox("txtWidth")),
      txtHigh(textBox("txtHigh")),
      txtThick(textBox("txtThick")) {
    on("cmdPrintIt", Event::Click, [this](const EventArgs&) { cmdPrintIt_Click(); });
    on("cmdStart", Event::Click, [this](const EventArgs&) { cmdStart_Click(); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
}

void FrmSquares2::cmdPrintIt_Click() {
    Printer().setDrawWidth(Int(Val(txtThick.Text())));
    const Integer cellW = CellTwips(txtWidth.Text());
    const Integer cellH = CellTwips(txtHigh.Text());
    PrintCenteredSquaresSheet(Printer(), cellW, cellH);
}

void PrintCenteredSquaresSheet(DrawingSurface& P, Integer cellW, Integer cellH) {
    const Integer pageW = CInt(P.ScaleWidth());
    const Integer pageH = CInt(P.ScaleHeight());
    const Double cellsW = Int(pageW / Double(cellW)) * cellW;
    const Double cellsH = Int(pageH / Double(cellH)) * cellH;
    // What is left over is measured against the unrounded printable size,
    // rounded to a Long and halved with the fraction cut.
    const Long startX = IDiv(CLng(P.ScaleWidth() - cellsW), 2);
    const Long startY = IDiv(CLng(P.ScaleHeight() - cellsH), 2);
    // One twip beyond the last line: the lines of the other direction
    // overshoot the last one by it.
    const Integer maxX = CInt(cellsW + startX + 1);
    const Integer maxY = CInt(cellsH + startY + 1);

    // Positions are kept wide so that the step past the last line cannot
    // overflow.
    for (long x = startX; x <= maxX; x += cellW) P.Line(x, startY, x, maxY);
    for (long y = startY; y <= maxY; y += cellH) P.Line(startX, y, maxX, y);
    P.EndDoc();
}

void FrmSquares2::cmdStart_Click() { PrintPuzzleSheet(Printer()); }

void FrmSquares2::cmdExit_Click() { Hide(); }

} // namespace gp
