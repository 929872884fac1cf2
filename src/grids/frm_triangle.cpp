#include "grids/frm_triangle.h"

#include <cmath>

#include "shell/form_set.h"

namespace gp {

FormDesign FrmTriangle::Design() {
    FormDesign d;
    d.name = "frmTriangle";
    d.caption = "Triangle grids";
    d.clientWidth = 4680;
    d.clientHeight = 3195;
    d.backColor = RGB(192, 255, 192);
    d.font = FontSpec{"Arial", 12, false, false};
    d.controls = {
        LabelDesign("Label1", "Length (inches)").at(240, 240, 2175, 375),
        TextBoxDesign("txtLeng", "1").at(2640, 180, 1215, 435),
        LabelDesign("Label2", "Angle (degrees)").at(240, 840, 2175, 375),
        TextBoxDesign("txtAngle", "60").at(2640, 780, 1215, 435),
        LabelDesign("Label3", "Thickness (points)").at(240, 1440, 2175, 375),
        TextBoxDesign("txtThick", "2").at(2640, 1380, 1215, 435),
        ButtonDesign("cmdPrintIt", "Print It").at(480, 2160, 1575, 615),
        ButtonDesign("cmdExit", "E&xit").at(2520, 2160, 1575, 615),
    };
    return d;
}

FrmTriangle::FrmTriangle(FormSet& app)
    : Form(app, Design()),
      txtLeng(textBox("txtLeng")),
      txtAngle(textBox("txtAngle")),
      txtThick(textBox("txtThick")) {
    on("cmdPrintIt", Event::Click, [this](const EventArgs&) { cmdPrintIt_Click(); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
    on(kFormEvents, Event::QueryUnload, [this](const EventArgs&) { Form_QueryUnload(); });
}

std::string FrmTriangle::sheetName() const { return "Triangles " + Trim(txtLeng.Text()) + " in"; }

void FrmTriangle::cmdPrintIt_Click() {
    Printer().setDrawWidth(Int(Val(txtThick.Text())));
    const Integer base = Int(Val(txtLeng.Text()) * 1440);
    // The degrees are cut to a whole number before they become radians.
    const Double degrees = Int(Val(txtAngle.Text()));
    if (base < 1 || degrees <= 0 || degrees >= 90)
        throwInvalid("Nothing was printed: the length must be more than 0 inches and the angle "
                     "more than 0 and less than 90 degrees.");
    PrintTriangleSheet(Printer(), base, degrees * 3.141592653 / 180);
}

void PrintTriangleSheet(DrawingSurface& P, Integer base, Double angle) {
    const Integer rise = Int(base / 2.0 * std::tan(angle));
    const Integer pageW = CInt(P.ScaleWidth());
    const Integer pageH = CInt(P.ScaleHeight());
    if (rise < 1)
        throwInvalid("Nothing was printed: these triangles are too flat to draw. "
                     "Please use a longer length or a larger angle.");
    // Rows times cells times five strokes; refuse a sheet that no printer
    // could take before drawing any of it.
    const Double rows = std::max(0.0, (pageH - rise) / Double(rise) + 1);
    const Double cells = std::max(0.0, pageW / Double(base) + 2);
    if (rows * cells * 5 > WorkMeter::kDefaultLimit) throwWorkLimit();

    Integer y = 0;
    Integer row = 0;
    while (y <= pageH - rise) {
        // x is kept wide: the step past the last cell of a row may pass an
        // Integer on a sheet near 22 inches wide, though every drawn cell fits.
        long x = (row % 2 == 0) ? long(CInt(base / 2.0)) : 0L;
        // A cell is drawn while its apex lies at most a third of a base
        // beyond the right edge.
        while (pageW - base / 3.0 >= x) {
            P.Line(x, y, x + base, y);
            P.Line(x, y, base / 2.0 + x, rise + y);
            P.Line(x, y, x - base / 2.0, rise + y);
            P.LineStep(base, 0);
            if (x > 0) P.LineStep(base / 2.0, -rise);
            x += base;
        }
        row += 1;
        y += rise;
    }
    P.EndDoc();
}

void FrmTriangle::cmdExit_Click() { Hide(); }

void FrmTriangle::Form_QueryUnload() { cmdExit_Click(); }

} // namespace gp
