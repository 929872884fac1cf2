#include "grids/frm_parabola.h"

#include <limits>

#include "grids/integer_range.h"
#include "shell/form_set.h"

namespace gp {

FormDesign FrmParabola::Design() {
    FormDesign d;
    d.name = "frmParabola";
    d.caption = "Draw a Parabola";
    d.clientWidth = 4680;
    d.clientHeight = 3195;
    d.backColor = RGB(192, 255, 192);
    d.font = FontSpec{"Arial", 12, false, false};
    d.controls = {
        LabelDesign("Label1", "Width (a x^2)  a=").at(240, 300, 2175, 375),
        TextBoxDesign("txtWid", "1").at(2520, 240, 1215, 435),
        LabelDesign("lblThick", "Thickness (points)").at(240, 900, 2175, 375),
        TextBoxDesign("txtThick", "3").at(2520, 840, 1215, 435),
        ButtonDesign("cmdGraph", "Graph It").at(240, 1560, 1815, 615),
        ButtonDesign("cmdExit", "E&xit").at(2880, 2400, 1575, 615),
    };
    return d;
}

FrmParabola::FrmParabola(FormSet& app)
    : Form(app, Design()), txtWid(textBox("txtWid")), txtThick(textBox("txtThick")) {
    on("cmdGraph", Event::Click, [this](const EventArgs&) { cmdGraph_Click(); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
}

namespace {

// y of the horizontal axis: one inch above the bottom of the printable area.
Integer AxisY(DrawingSurface& P) { return CInt(P.ScaleHeight() - 1441); }

} // namespace

void FrmParabola::cmdGraph_Click() {
    // The ticks are one thinner than the curve and must keep at least 1.
    // Nothing but this box sees the change, so it may come before the axes.
    if (Val(txtThick.Text()) < 2) txtThick.setText("2");
    const Double a = Val(txtWid.Text());
    if (Abs(a) > std::numeric_limits<Single>::max())
        throwInvalid("Nothing was printed: the factor a is too large. Please type a smaller number.");
    PrintParabolaSheet(Printer(), CSng(a), txtWid.Text(), Val(txtThick.Text()));
}

void PrintParabolaSheet(DrawingSurface& P, Single a, const std::string& aText, Double thick) {
    // Both widths are worked out first, so a thickness no Integer holds
    // stops the sheet before anything is drawn.
    const Integer tickWidth = Int(thick - 1);
    const Integer curveWidth = Int(thick);
    // Both axes take the DrawWidth the Printer holds now.
    const Integer axisY = AxisY(P);
    const Integer pageW = CInt(P.ScaleWidth());
    const Integer midX = CInt(pageW / 2.0);
    P.Line(midX, axisY + 1440, midX, 0);
    P.Line(0, axisY, pageW, axisY);
    DrawParabolaTicks(P, tickWidth);
    P.setDrawWidth(curveWidth);
    DrawParabolaCurve(P, a);
    P.CurrentX = 700;
    P.CurrentY = 100;
    // The equation holds the text exactly as typed.
    P.Print("y = ", aText, "x^2");
    P.EndDoc();
}

void DrawParabolaTicks(DrawingSurface& P, Integer tickWidth) {
    const Integer axisY = AxisY(P);
    const Integer midX = CInt(CInt(P.ScaleWidth()) / 2.0);
    P.setDrawWidth(tickWidth);
    for (int n = 1; n <= 4; ++n) {
        P.LineStep(midX - n * 1440, axisY - 70, 0, 140);
        P.LineStep(n * 1440 + midX, axisY - 70, 0, 140);
    }
    // From one inch below the horizontal axis to ten above it; the tick at
    // 0 lies on the origin.
    for (int n = -1; n <= 10; ++n) P.LineStep(midX - 70, axisY - n * 1440, 140, 0);
}

void DrawParabolaCurve(DrawingSurface& P, Single a) {
    const Integer axisY = AxisY(P);
    const Integer pageW = CInt(P.ScaleWidth());
    const Integer midX = CInt(pageW / 2.0);
    // No dot on the vertex itself: i starts at 1.
    for (int i = 1; i <= 5760; ++i) {
        const Integer px = midX + i;
        // Single arithmetic throughout: i * a * i / 1440 twips above the axis.
        const Single si = Single(i);
        const Single up = si * a * si / 1440.0f;
        const Single height = Single(axisY) - up;
        // A dot whose y leaves the Integer range lies far off the sheet.
        if (!FitsInteger(height)) continue;
        const Integer py = CInt(height);
        if (py >= 0 && px >= 0 && px <= pageW) P.PSet(px, py);
        if (py >= 0 && midX - i >= 0 && midX - i <= pageW) P.PSet(midX - i, py);
    }
}

void FrmParabola::cmdExit_Click() { Hide(); }

} // namespace gp
