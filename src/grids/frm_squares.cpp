#include "grids/frm_squares.h"

#include "grids/cell_size.h"
#include "grids/multiplication_table.h"
#include "grids/puzzle_sheet.h"
#include "shell/form_set.h"

namespace gp {

FormDesign FrmSquares::Design() {
    FormDesign d;
    d.name = "frmSquares";
    d.caption = "Squares";
    d.clientWidth = 6615;
    d.clientHeight = 4485;
    d.backColor = RGB(128, 255, 128);
    d.font = FontSpec{"Arial", 12, false, false};
    d.controls = {
        LabelDesign("Label1", "Width (inches)").at(360, 360, 2175, 375),
        TextBoxDesign("txtWidth", ".5").at(2640, 300, 1215, 435),
        LabelDesign("Label2", "Height (inches)").at(360, 960, 2175, 375),
        TextBoxDesign("txtHigh", ".5").at(2640, 900, 1215, 435),
        LabelDesign("lblThick", "Line thick").at(360, 1560, 2175, 375),
        TextBoxDesign("txtThick", "2").at(2640, 1500, 1215, 435),
        CheckBoxDesign("chkMult", "Multiplication table").at(360, 2220, 3255, 435),
        ButtonDesign("cmdPrintIt", "Print It").at(360, 3000, 1815, 735),
        ButtonDesign("cmdStart", "Puzzle Shape Thing").at(2400, 3000, 1935, 735),
        ButtonDesign("cmdExit", "E&xit").at(4560, 3000, 1695, 735),
    };
    return d;
}

FrmSquares::FrmSquares(FormSet& app)
    : Form(app, Design()),
      txtWidth(textBox("txtWidth")),
      txtHigh(textBox("txtHigh")),
      txtThick(textBox("txtThick")),
      chkMult(checkBox("chkMult")) {
    on("cmdPrintIt", Event::Click, [this](const EventArgs&) { cmdPrintIt_Click(); });
    on("cmdStart", Event::Click, [this](const EventArgs&) { cmdStart_Click(); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
}

void FrmSquares::cmdPrintIt_Click() {
    Printer().setDrawWidth(Int(Val(txtThick.Text())));
    // The cells are checked before the sheet is turned, so a refused value
    // never leaves the Printer in landscape.
    const Integer cellW = CellTwips(txtWidth.Text());
    const Integer cellH = CellTwips(txtHigh.Text());
    PrintSquaresSheet(Printer(), cellW, cellH, chkMult.Value() == 1);
}

namespace {

void DrawGrid(DrawingSurface& P, const GridBounds& g) {
    // The first cell height of the sheet stays free: the chart's heading
    // goes there. Positions are kept wide so that the step past the last
    // line cannot overflow.
    for (long x = 1; x <= g.maxX; x += g.cellW) P.Line(x, g.cellH + 1, x, g.maxY);
    for (long y = g.cellH + 1; y <= g.maxY; y += g.cellH) P.Line(1, y, g.maxX, y);
}

} // namespace

void PrintSquaresSheet(DrawingSurface& P, Integer cellW, Integer cellH, bool table) {
    if (table) P.setOrientation(2);
    try {
        const Integer pageW = CInt(P.ScaleWidth());
        const Integer pageH = CInt(P.ScaleHeight());
        // Whole cells only: the edges land exactly on a line of each loop.
        GridBounds g{cellW, cellH, CInt(Int(pageW / Double(cellW)) * cellW + 1),
                     CInt(Int(pageH / Double(cellH)) * cellH + 1)};
        if (table) CheckMultiplicationTable(P, g);
        DrawGrid(P, g);
        if (table) PrintMultiplicationTable(P, g);
        P.EndDoc();
    } catch (...) {
        // The Printer keeps its orientation across pages: a chart that
        // stops half way must not leave the next sheet in landscape.
        if (table) P.setOrientation(1);
        throw;
    }
    if (table) P.setOrientation(1);
}

void FrmSquares::cmdStart_Click() { PrintPuzzleSheet(Printer()); }

void FrmSquares::cmdExit_Click() { Hide(); }

} // namespace gp
