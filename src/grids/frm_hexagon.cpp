#include "grids/frm_hexagon.h"

#include <algorithm>
#include <cmath>

#include "grids/hexagon.h"
#include "grids/hexagon_series.h"
#include "shell/form_set.h"

namespace gp {

FormDesign FrmHexagon::Design() {
    FormDesign d;
    d.name = "frmHexagon";
    d.caption = "Hexagons";
    d.clientWidth = 4680;
    d.clientHeight = 3195;
    d.backColor = RGB(192, 255, 192);
    d.font = FontSpec{"Arial", 9.75, false, false};
    d.controls = {
        LabelDesign("lblSide", "Length (inches)").at(120, 300, 1815, 315),
        TextBoxDesign("txtLeng", "1").at(1950, 240, 555, 405),
        LabelDesign("lblThick", "Thickness (points)").at(120, 900, 1815, 315),
        TextBoxDesign("txtThick", "4").at(1950, 840, 555, 405),
        ButtonDesign("cmdPrintIt", "Print It").at(120, 1560, 2385, 615),
        ButtonDesign("cmdExit", "E&xit").at(120, 2400, 2385, 615),
        LabelDesign("lblscale", "Scaling Factor:").at(2700, 300, 1335, 315),
        TextBoxDesign("txtScale", "0.5").at(4020, 240, 555, 405),
        ButtonDesign("cmdHexInscribed", "Inscribed on edge").at(2700, 840, 1875, 615),
        ButtonDesign("cmdTarget", "Target").at(2700, 1560, 1875, 615),
    };
    return d;
}

FrmHexagon::FrmHexagon(FormSet& app)
    : Form(app, Design()),
      txtLeng(textBox("txtLeng")),
      txtThick(textBox("txtThick")),
      txtScale(textBox("txtScale")) {
    on("cmdPrintIt", Event::Click, [this](const EventArgs&) { cmdPrintIt_Click(); });
    on("cmdHexInscribed", Event::Click, [this](const EventArgs&) { cmdHexInscribed_Click(); });
    on("cmdTarget", Event::Click, [this](const EventArgs&) { cmdTarget_Click(); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
}

namespace {

// Int(Val(t) * 1440), lowered to four inches. Lengths beyond an Integer are
// lowered too: they are past four inches whatever they are.
Integer SideUpToFourInches(const std::string& text) {
    const Double side = Int(Val(text) * 1440);
    return side > 5760 ? Integer(5760) : Integer(std::max(side, -32768.0));
}

} // namespace

void FrmHexagon::cmdPrintIt_Click() {
    Printer().setDrawWidth(Int(Val(txtThick.Text())));
    // The text box keeps what was typed: the limit is silent.
    PrintHoneycombSheet(Printer(), SideUpToFourInches(txtLeng.Text()));
}

void PrintHoneycombSheet(DrawingSurface& P, Integer side) {
    const Double angle = 3.141592653 / 3;
    const Integer rise = Int(side / 2.0 * std::tan(angle));
    const Integer pageW = CInt(P.ScaleWidth());
    const Integer pageH = CInt(P.ScaleHeight());
    // A rise of 0 would never move down a column.
    if (rise < 1)
        throwInvalid("Nothing was printed: the length is too small for a hexagon. "
                     "Please type a length of at least 0.002 inches.");
    // Columns times hexagons times six strokes, refused before any is drawn.
    const Double columns = std::max(0.0, (pageW - side * 1.4) / (side * 1.5) + 1);
    const Double rows = std::max(0.0, (pageH - rise) / (2.0 * rise) + 1);
    if (columns * rows * 6 > WorkMeter::kDefaultLimit) throwWorkLimit();

    // Positions are kept wide so that the step past the last hexagon cannot
    // overflow on a very large sheet; every drawn one lies on the sheet.
    Integer col = 0;
    Long x = CInt(side / 2.0);
    // A column may start until 1.4 sides from the right edge, though its
    // hexagons reach 1.5 sides to the right; the rest is clipped.
    while (pageW - side * 1.4 > x) {
        long y = (col % 2 == 1) ? long(rise) : 0L;
        while (y < pageH - rise) {
            DrawHexagon(P, Integer(x), Integer(y), side, rise);
            y += 2 * rise;
        }
        col += 1;
        x = CLng(side * 1.5 + x);
    }
    P.EndDoc();
}

Integer FrmHexagon::ApplyWidthLimit(Double side, Integer pageW) {
    if (pageW / 2.0 < side) {
        const Integer narrower = Int(pageW / 2.0);
        // The new length in inches cut to two decimals, as Str writes it.
        txtLeng.setText(Str(Int(narrower / 1440.0 * 100) / 100));
        return narrower;
    }
    // What is left is at most half a page wide; far below 0 it draws nothing.
    return std::max(side, -32768.0);
}

Double FrmHexagon::FactorOrMessage() {
    try {
        return CDbl(txtScale.Text());
    } catch (const Fault& f) {
        if (f.kind() != FaultKind::TypeMismatch) throw;
        throwInvalid("Nothing was printed: the scaling factor \"" + txtScale.Text() +
                     "\" is not a number. Please type a number below 1, such as 0.5.");
    }
}

void FrmHexagon::cmdHexInscribed_Click() {
    Printer().setDrawWidth(Int(Val(txtThick.Text())));
    // A length beyond an Integer is wider than the page: the width limit
    // takes it, so it is read as a Double first.
    const Integer pageW = CInt(Printer().ScaleWidth());
    const Integer side = ApplyWidthLimit(Int(Val(txtLeng.Text()) * 1440), pageW);
    PrintHexagonSeries(Printer(), InscribedSeries(side, pageW, Val(txtScale.Text())));
}

void FrmHexagon::cmdTarget_Click() {
    // The rings must get smaller: a factor of 1 or more is replaced at once.
    if (FactorOrMessage() >= 1) txtScale.setText("0.99");
    Printer().setDrawWidth(Int(Val(txtThick.Text())));
    const Integer pageW = CInt(Printer().ScaleWidth());
    const Integer side = ApplyWidthLimit(SideUpToFourInches(txtLeng.Text()), pageW);
    PrintHexagonSeries(Printer(), TargetSeries(side, pageW, Val(txtScale.Text())));
}

void FrmHexagon::cmdExit_Click() { Hide(); }

} // namespace gp
