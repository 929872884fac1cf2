#pragma once
// frmHexagon, "Hexagons": honeycomb paper, and two sheets of a series of
// hexagons each scaled from the last: inscribed on one corner, or
// concentric as a target.

#include "shell/form.h"

namespace gp {

class FrmHexagon : public Form {
public:
    explicit FrmHexagon(FormSet& app);
    static FormDesign Design();

    void cmdPrintIt_Click();
    void cmdHexInscribed_Click();
    void cmdTarget_Click();
    void cmdExit_Click();

private:
    // Lowers side to half the page width when it is wider, and shows the
    // new length in txtLeng.
    Integer ApplyWidthLimit(Double side, Integer pageW);
    // The factor as CDbl reads it, with a message the user can act on.
    Double FactorOrMessage();

    TextBox& txtLeng;
    TextBox& txtThick;
    TextBox& txtScale;
};

// Honeycomb over the whole printable area, then EndDoc. `side` is in twips,
// already limited to four inches.
void PrintHoneycombSheet(DrawingSurface& surface, Integer side);

} // namespace gp
