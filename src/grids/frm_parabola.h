#pragma once
// frmParabola, "Draw a Parabola": y = a x squared on inch axes, the curve
// dot by dot, and the equation as typed in the top left corner.

#include "shell/form.h"

namespace gp {

class FrmParabola : public Form {
public:
    explicit FrmParabola(FormSet& app);
    static FormDesign Design();

    void cmdGraph_Click();
    void cmdExit_Click();

private:
    TextBox& txtWid;
    TextBox& txtThick;
};

// Axes with their ticks at each inch: the axes in the Printer's present
// DrawWidth, the ticks one thinner than `thick`.
void DrawParabolaAxes(DrawingSurface& surface, Integer thick);

// The curve: for each twip i out to four inches, a dot on either side of the
// vertical axis, leaving out those above the sheet or beyond its sides.
void DrawParabolaCurve(DrawingSurface& surface, Single a);

} // namespace gp
