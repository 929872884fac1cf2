#pragma once
// frmParabola, "Draw a Parabola": y = a x squared on inch axes, the curve
// dot by dot, and the equation as typed in the top left corner.

#include <string>

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

// The whole sheet: axes, ticks, curve and the equation "y = " aText "x^2",
// then EndDoc. `thick` is the thickness as read, at least 2.
void PrintParabolaSheet(DrawingSurface& surface, Single a, const std::string& aText, Double thick);

// The ticks at each inch on both axes, in `tickWidth`.
void DrawParabolaTicks(DrawingSurface& surface, Integer tickWidth);

// The curve: for each twip i out to four inches, a dot on either side of the
// vertical axis, leaving out those above the sheet or beyond its sides.
void DrawParabolaCurve(DrawingSurface& surface, Single a);

} // namespace gp
