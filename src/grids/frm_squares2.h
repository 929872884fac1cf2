#pragma once
// frmSquares2, "Squares": rectangular graph paper centred on the printable
// area, with no free strip at the top. Also the puzzle sheet button.

#include "shell/form.h"

namespace gp {

class FrmSquares2 : public Form {
public:
    explicit FrmSquares2(FormSet& app);
    static FormDesign Design();

    void cmdPrintIt_Click();
    void cmdStart_Click();
    void cmdExit_Click();

private:
    TextBox& txtWidth;
    TextBox& txtHigh;
    TextBox& txtThick;
};

// The centred grid of whole cells, then EndDoc.
void PrintCenteredSquaresSheet(DrawingSurface& surface, Integer cellW, Integer cellH);

} // namespace gp
