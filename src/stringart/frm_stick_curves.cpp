#include "stringart/frm_stick_curves.h"

#include <algorithm>
#include <cmath>

#include "shell/form_set.h"

namespace gp {

FormDesign FrmStickCurves::Design() {
    const long white = RGB(255, 255, 255);
    FormDesign d;
    d.name = "frmStickCurves";
    d.caption = "Stick Curves";
    d.clientWidth = 13875;
    d.clientHeight = 9495;
    // The canvas has a scale of its own; every coordinate of the figures
    // is in these units.
    d.scaleWidth = 14000;
    d.scaleHeight = 10000;
    d.backColor = white;
    d.font = FontSpec{"Arial", 12, true, false};
    d.controls = {
        LabelDesign("lblAngle", "Angle =").at(120, 240, 1095, 375).back(white)
            .tip("Left press: 5 degrees more. Right press: 5 degrees less."),
        TextBoxDesign("txtAngle", "54").at(1260, 180, 975, 435),
        LabelDesign("lblTics", "Distance=").at(120, 840, 1095, 375).back(white),
        TextBoxDesign("txtTics", ".5").at(1260, 780, 975, 435)
            .tip("Inches between two marks"),
        ButtonDesign("cmdDrawIt", "Draw It").at(240, 1440, 1935, 495),
        ButtonDesign("cmdAnimate", "MultiDrawing1").at(240, 2040, 1935, 495),
        ButtonDesign("cmdPrintIt", "Print It").at(240, 2640, 1935, 495),
        CheckBoxDesign("chkDouble", "Double side it").at(240, 3300, 1995, 375).back(white),
        ButtonDesign("cmdExit", "Exit").at(240, 3840, 1935, 495),
        FrameDesign("frmColor", "Fill-in Color").at(120, 4560, 2175, 1635).back(white),
        OptionDesign("optRandColor", "Random Color").in("frmColor").at(120, 360, 1935, 375)
            .back(white).selected(),
        OptionDesign("optSame", "Both Sides = ").in("frmColor").at(120, 780, 1935, 375).back(white),
        OptionDesign("optNoColor", "No Color").in("frmColor").at(120, 1200, 1935, 375).back(white),
    };
    return d;
}

FrmStickCurves::FrmStickCurves(FormSet& app)
    : Form(app, Design()), txtAngle(textBox("txtAngle")), txtTics(textBox("txtTics")) {
    on("cmdDrawIt", Event::Click, [this](const EventArgs&) { cmdDrawIt_Click(); });
    on("cmdPrintIt", Event::Click, [this](const EventArgs&) { cmdPrintIt_Click(); });
    on("cmdAnimate", Event::Click, [this](const EventArgs&) { cmdAnimate_Click(); });
    on("lblAngle", Event::MouseDown, [this](const EventArgs& e) { lblAngle_MouseDown(e.button); });
    on("txtAngle", Event::LostFocus, [this](const EventArgs&) { txtAngle_LostFocus(); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
}

StickInputs FrmStickCurves::readInputs() const {
    StickInputs in;
    in.degrees = Val(txtAngle.Text());
    in.distance = CSng(Val(txtTics.Text()));
    in.doubled = checkBox("chkDouble").Value() == 1;
    if (option("optRandColor").Value())
        in.fill = StickFill::RandomColor;
    else if (option("optSame").Value())
        in.fill = StickFill::Same;
    else
        in.fill = StickFill::NoColor;
    return in;
}

void FrmStickCurves::cmdDrawIt_Click() {
    Me().Cls();
    const StickInputs in = readInputs();
    StickAngle = in.radians();
    StickDistance = in.distance;
    DrawStickCurves(Me(), in, start_, app().random());
}

void FrmStickCurves::cmdPrintIt_Click() {
    const StickInputs in = readInputs();
    StickAngle = in.radians();
    StickDistance = in.distance;
    PrintStickCurves(Printer(), in, start_, app().random(), Timer());
}

void FrmStickCurves::cmdAnimate_Click() {
    Me().Cls();
    DrawStickMulti(Me(), txtAngle.Text(), txtTics.Text(), start_, StickAngle, StickDistance);
}

void FrmStickCurves::lblAngle_MouseDown(int Button) {
    // The result is always clipped to 10..170, so a number far outside the
    // Integer range clips the same way instead of overflowing.
    const Double typed = std::clamp(Val(txtAngle.Text()), -40000.0, 40000.0);
    long A = CLng(typed);
    if (Button == 1) A = A + 5;
    if (Button == 2) A = A - 5;
    if (A > 170) A = 170;
    if (A < 10) A = 10;
    txtAngle.setText(Str(A));
}

void FrmStickCurves::txtAngle_LostFocus() {
    // 10 and 170 themselves pass, as they do for the angle label.
    const Double A = Val(txtAngle.Text());
    if (A < 10 || A > 170) {
        MsgBox("You must enter an angle >10 and < 170", vbCritical, "Angle Error");
        txtAngle.SetFocus();
    }
}

void FrmStickCurves::cmdExit_Click() { Hide(); }

void CheckStickAngle(Double StickAngle) {
    // The form's limits of 10 and 170 act only as the angle is typed or
    // stepped; a drawing takes any angle whose leg has a height.
    if (std::sin(StickAngle) == 0)
        throwInvalid("Nothing was drawn: an angle of 0 degrees gives no figure. Please enter an "
                     "angle from 10 to 170 degrees.");
}

void CheckStickLeng(Integer Leng) {
    if (Leng == 0)
        throwInvalid("Nothing was drawn: please enter a distance between the marks of at least "
                     "1/1440 inch, such as .5");
}

void CheckStickCount(Integer Count, int bound) {
    if (Count > bound)
        throwInvalid("Nothing was drawn: this distance gives " + std::to_string(int(Count)) +
                     " marks on a leg, and the colour fill works with at most " +
                     std::to_string(bound) +
                     ". Please use a longer distance or choose \"No Color\".");
}

} // namespace gp
