#pragma once
// frmSquares, "Squares": rectangular graph paper with a free strip along the
// top; with "Multiplication table" ticked, a landscape chart with a heading
// and the products in the cells. Also the puzzle sheet button.

#include "shell/form.h"

namespace gp {

class FrmSquares : public Form {
public:
    explicit FrmSquares(FormSet& app);
    static FormDesign Design();

    void cmdPrintIt_Click();
    void cmdStart_Click();
    void cmdExit_Click();

private:
    TextBox& txtWidth;
    TextBox& txtHigh;
    TextBox& txtThick;
    CheckBox& chkMult;
};

// The grid from (1, cellH + 1) to whole cells of the printable area, then
// EndDoc. With `table` the sheet is turned to landscape first, gets the
// chart, and the Printer is turned back to portrait after its EndDoc.
void PrintSquaresSheet(DrawingSurface& surface, Integer cellW, Integer cellH, bool table);

} // namespace gp
