#include "stringart/frm_string2.h"

#include "shell/form_set.h"

namespace gp {

namespace {
// The control panel ends at the line lne1; the canvas starts here.
constexpr int kPanel = 1560;

// More strokes than this in one event would freeze the window.
constexpr double kStrokeLimit = static_cast<double>(WorkMeter::kDefaultLimit);

// The cube seen corner-on that stands on the canvas whenever the form comes up.
constexpr int kDefaultFigure[14][2] = {
    {6000, 500},  {6000, 4250}, {4125, 6125}, {6000, 8000}, {7875, 6125}, {6000, 4250}, {6000, 500},
    {7875, 2375}, {7875, 6125}, {6000, 4250}, {4125, 6125}, {4125, 2375}, {6000, 500},  {6000, 4250},
};
} // namespace

FormDesign FrmString2::Design() {
    FormDesign d;
    d.name = "frmString2";
    d.caption = "String Art Point Plotting";
    d.clientWidth = 13890;
    d.clientHeight = 8985;
    d.backColor = RGB(255, 255, 255);
    d.font = FontSpec{"Arial", 8.25, false, false};
    const long paleYellow = RGB(255, 255, 192);
    const long paleGreen = RGB(192, 255, 192);
    d.controls = {
        ButtonDesign("Command1", "Clear It").at(120, 120, 1335, 495),
        LabelDesign("lbTics", "Number of tics on each line:").at(120, 720, 1335, 435).back(kTransparent),
        TextBoxDesign("txtTics", "15").at(360, 1200, 855, 375),
        LabelDesign("lblInstructions",
                    "Click in the area.  After the third point is set the Strings will be connected.")
            .at(60, 1740, 1455, 1935)
            .back(kTransparent)
            .tip("The area is anywhereat the right, click with longer segments"),
        ShapeDesign("Shape1").at(0, 3840, 1575, 1095).back(paleYellow),
        LabelDesign("lblSetPos", " Set Position  X    ,   Y")
            .at(60, 3900, 1455, 495)
            .back(kTransparent)
            .tip("Click here to use the point you enter."),
        TextBoxDesign("txtX", "100").at(120, 4440, 615, 375).spoken("Set Position X"),
        TextBoxDesign("txtY", "100").at(840, 4440, 615, 375).spoken("Set Position Y"),
        ShapeDesign("ShpCurrentPos").at(0, 5160, 1575, 855).back(paleGreen),
        LabelDesign("lblCurrentPosition", "Current Position").at(60, 5220, 1455, 255).back(kTransparent),
        LabelDesign("lblXY", "(100,100)").at(60, 5580, 1455, 315).back(kTransparent),
        CheckBoxDesign("chkColorIt", "Color lines").at(120, 6180, 1335, 375),
        ButtonDesign("cmdCycle", "Change Colors").at(120, 6660, 1335, 495)
            .tip("Start or stop the line to change colors"),
        ButtonDesign("cmdExit", "Exit").at(120, 7260, 1335, 495),
        ButtonDesign("cmdPrintIt", "Print It").at(120, 7860, 1335, 495)
            .tip("Your points will be put on Paper."),
        LineDesign("lne1", kPanel, 0, kPanel, 9000),
        MenuDesign("mnuFile", "&File"),
        MenuDesign("mnuAbout", "About", "mnuFile"),
        MenuSeparator("mnuSep1", "mnuFile"),
        MenuDesign("mnuOpen", "&Open", "mnuFile"),
        MenuDesign("mnuSave", "&Save", "mnuFile"),
        MenuSeparator("mnuSep2", "mnuFile"),
        MenuDesign("mnuEnd", "End", "mnuFile"),
        MenuDesign("mnuShapes", "&Shapes"),
        MenuDesign("mnuCube", "&Cube", "mnuShapes"),
        MenuDesign("mnuTriangle1", "&Triangle1", "mnuShapes"),
        MenuDesign("mnuTriangle2", "Triangle2", "mnuShapes"),
        MenuDesign("mnuTetra1", "Tetrahedron1", "mnuShapes"),
        MenuDesign("mnutetra2", "Tetrahedron2", "mnuShapes"),
        MenuDesign("mnuOcta1", "&Octagon1", "mnuShapes"),
        MenuDesign("mnuOcta2", "Octagon2", "mnuShapes"),
        MenuDesign("mnuOcta3", "Octagon3", "mnuShapes"),
    };
    return d;
}

FrmString2::FrmString2(FormSet& app)
    : Form(app, Design()),
      txtTics(textBox("txtTics")),
      txtX(textBox("txtX")),
      txtY(textBox("txtY")),
      lblXY(label("lblXY")),
      chkColorIt(checkBox("chkColorIt")) {
    auto bind = [this](const std::string& control, void (FrmString2::*handler)()) {
        on(control, Event::Click, [this, handler](const EventArgs&) { (this->*handler)(); });
    };
    on(kFormEvents, Event::Activate, [this](const EventArgs&) { Form_Activate(); });
    on(kFormEvents, Event::MouseDown,
       [this](const EventArgs& a) { Form_MouseDown(a.button, a.shift, a.x, a.y); });
    on(kFormEvents, Event::MouseMove,
       [this](const EventArgs& a) { Form_MouseMove(a.button, a.shift, a.x, a.y); });
    bind("lblSetPos", &FrmString2::lblSetPos_Click);
    bind("Command1", &FrmString2::Command1_Click);
    bind("cmdCycle", &FrmString2::cmdCycle_Click);
    bind("cmdExit", &FrmString2::cmdExit_Click);
    bind("cmdPrintIt", &FrmString2::cmdPrintIt_Click);
    bind("mnuAbout", &FrmString2::mnuAbout_Click);
    bind("mnuOpen", &FrmString2::mnuOpen_Click);
    bind("mnuSave", &FrmString2::mnuSave_Click);
    bind("mnuEnd", &FrmString2::mnuEnd_Click);
    bind("mnuCube", &FrmString2::mnuCube_Click);
    bind("mnuTriangle1", &FrmString2::mnuTriangle1_Click);
    bind("mnuTriangle2", &FrmString2::mnuTriangle2_Click);
    bind("mnuTetra1", &FrmString2::mnuTetra1_Click);
    bind("mnutetra2", &FrmString2::mnutetra2_Click);
    bind("mnuOcta1", &FrmString2::mnuOcta1_Click);
    bind("mnuOcta2", &FrmString2::mnuOcta2_Click);
    bind("mnuOcta3", &FrmString2::mnuOcta3_Click);
}

int FrmString2::checkedIndex(long i) {
    if (i < 0 || i > kMaxPoint) throwSubscript(i);
    return static_cast<int>(i);
}

Integer FrmString2::TicsToDraw() const {
    const Double tics = Int(Val(txtTics.Text()));
    // A negative count simply draws no strings; 0 would divide the segments
    // by zero, and the loop counter must be able to step past the last tic.
    if (tics == 0 || tics > 32766 || tics < -32768)
        throwInvalid("The number of tics on each line must be a whole number from 1 to 32766. "
                     "Please type another number in \"Number of tics on each line:\".");
    return Integer(tics);
}

void FrmString2::CheckFigure(long last, long passes, bool printing) const {
    if (last < 3) return;  // no corner is drawn, only the first two segments
    if (last > kMaxPoint)
        throwInvalid("This figure has more points than the form can hold (" + std::to_string(kMaxPoint) +
                     "). Please use \"Clear It\" and start a new figure.");
    const Double tics = TicsToDraw();
    const Double perCorner = printing ? tics + 1 : tics;
    const Double strokes = (2.0 + (last - 2) * (perCorner > 0 ? perCorner : 0.0)) * passes;
    if (strokes > kStrokeLimit)
        throwInvalid("This figure would need " + Trim(Str(strokes)) +
                     " strings at this number of tics, far too many to draw. "
                     "Please type a smaller number of tics.");
}

void FrmString2::PickColour() {
    if (chkColorIt.Value() == 1) {
        LineRed = Int(Rnd() * 255.0);
        LineGreen = Int(Rnd() * 255.0);
        LineBlue = Int(Rnd() * 255.0);
    } else {
        LineRed = 0;
        LineGreen = 0;
        LineBlue = 0;
    }
}

void FrmString2::Lin(Integer a, Integer b, Integer c, Integer d) {
    PickColour();
    // Plot to screen: the sums are 16-bit, as the point values are.
    Me().Line(Integer(a + kPanel), Integer(AreaHigh - b), Integer(c + kPanel), Integer(AreaHigh - d),
              RGB(LineRed, LineGreen, LineBlue));
}

void FrmString2::ConnectEm() {
    const Integer Tics = TicsToDraw();
    PickColour();
    const Integer Px = PX(NextPoint - 2) + kPanel, Py = AreaHigh - PY(NextPoint - 2);
    const Integer Qx = PX(NextPoint - 1) + kPanel, Qy = AreaHigh - PY(NextPoint - 1);
    const Integer Rx = PX(NextPoint) + kPanel, Ry = AreaHigh - PY(NextPoint);
    const Single StepPx = CSng(Integer(Qx - Px) / Double(Tics));
    const Single StepPy = CSng(Integer(Qy - Py) / Double(Tics));
    const Single StepQx = CSng(Integer(Rx - Qx) / Double(Tics));
    const Single StepQy = CSng(Integer(Ry - Qy) / Double(Tics));
    const long colour = RGB(LineRed, LineGreen, LineBlue);
    // k = 0 would lie on the older segment; k = Tics lies on the newer one.
    for (TicIndex = 1; TicIndex <= Tics; ++TicIndex) {
        const Double k = TicIndex;
        Me().Line(Int(k * StepPx + Px), Int(k * StepPy + Py), Int(k * StepQx + Qx), Int(k * StepQy + Qy),
                  colour);
    }
}

void FrmString2::Redraw() {
    CheckFigure(LastPoint, 1);
    NextPoint = 3;
    Lin(PX(1), PY(1), PX(2), PY(2));
    Lin(PX(2), PY(2), PX(3), PY(3));
    const Integer last = LastPoint;  // a counted loop takes its end once
    for (NextPoint = 3; NextPoint <= last; ++NextPoint) ConnectEm();
}

void FrmString2::Form_Activate() {
    AreaHigh = CInt(Me().ScaleHeight());
    AreaWide = CInt(Me().ScaleWidth());
    NextPoint = 3;
    LastPoint = 14;
    for (int i = 0; i < 14; ++i) {
        PointX[i + 1] = kDefaultFigure[i][0];
        PointY[i + 1] = kDefaultFigure[i][1];
    }
    Redraw();
}

void FrmString2::Form_MouseDown(int /*Button*/, int /*Shift*/, Single X, Single Y) {
    // Only a click strictly inside the canvas counts.
    if (!(X > kPanel && X < AreaWide && Y > 0 && Y < AreaHigh)) return;
    if (NextPoint >= 3 && NextPoint <= 199) {
        CheckFigure(3, 1);  // one corner: refuse a bad tic count before the point is taken
        PX(NextPoint) = CInt(Int(X) - kPanel);
        PY(NextPoint) = CInt(AreaHigh - Int(Y));
        Me().PSet(X, Y);
        Me().Line(Integer(PX(NextPoint - 1) + kPanel), Integer(AreaHigh - PY(NextPoint - 1)), X, Y);
        ConnectEm();
        NextPoint += 1;
    } else if (NextPoint == 2) {
        PX(2) = CInt(Int(X) - kPanel);
        PY(2) = CInt(AreaHigh - Int(Y));
        Me().PSet(X, Y);
        Me().Line(Integer(PX(1) + kPanel), Integer(AreaHigh - PY(1)), X, Y);
        NextPoint = 3;
    } else if (NextPoint == 1) {
        PX(1) = CInt(Int(X) - kPanel);
        PY(1) = CInt(AreaHigh - Int(Y));
        Me().PSet(X, Y);
        NextPoint = 2;
    }
    LastPoint = NextPoint - 1;
}

void FrmString2::Form_MouseMove(int /*Button*/, int /*Shift*/, Single X, Single Y) {
    // Int gives a Double: far off the form the text keeps all its digits.
    const Double x = Int(X) - kPanel;
    const Double y = AreaHigh - Int(Y);
    lblXY.setCaption("(" + Trim(Str(x)) + "," + Trim(Str(y)) + ")");
}

void FrmString2::lblSetPos_Click() {
    // Compared before the store, so that a number past 16 bits is simply
    // a point outside the area.
    const Double x = Int(Val(txtX.Text()));
    const Double y = Int(Val(txtY.Text()));
    if (!(x >= 0 && x < AreaWide && y >= 0 && y < AreaHigh)) {
        MsgBox("Your point is outside the area. X can not be greater than " + std::to_string(AreaWide) +
                   " and Y can not be greater than " + std::to_string(AreaHigh) + " .",
               vbOKOnly, "Coordinate Error");
        return;
    }
    if (NextPoint >= 3 && NextPoint <= 99) {
        CheckFigure(3, 1);
        PX(NextPoint) = x;
        PY(NextPoint) = y;
        Lin(PX(NextPoint - 1), PY(NextPoint - 1), PX(NextPoint), PY(NextPoint));
        ConnectEm();
        NextPoint += 1;
    } else if (NextPoint == 2) {
        PX(2) = x;
        PY(2) = y;
        Lin(PX(1), PY(1), PX(2), PY(2));
        NextPoint = 3;
    } else if (NextPoint == 1) {
        PX(1) = x;
        PY(1) = y;
        Me().PSet(Integer(PX(1) + kPanel), Integer(AreaHigh - PY(1)));
        NextPoint = 2;
    }
    LastPoint = NextPoint - 1;
}

void FrmString2::Command1_Click() {
    Me().Cls();
    NextPoint = 1;
    LastPoint = 1;
    for (int i = 1; i <= kMaxPoint; ++i) {
        PointX[i] = 0;
        PointY[i] = 0;
    }
}

void FrmString2::Colorize() {
    const int remembered = chkColorIt.Value();
    CheckFigure(LastPoint, 15);
    chkColorIt.setValue(1);
    try {
        for (int pass = 1; pass <= 15; ++pass) Redraw();
    } catch (...) {
        chkColorIt.setValue(remembered);
        throw;
    }
    chkColorIt.setValue(remembered);
}

void FrmString2::cmdCycle_Click() { Colorize(); }

void FrmString2::cmdExit_Click() { Hide(); }

void FrmString2::mnuEnd_Click() { cmdExit_Click(); }

void FrmString2::mnuAbout_Click() {
    MsgBox("Click around on the area at the right or enter a coordinate and click in the set position.  "
           "Your strings will start forming.  Change the tic marks to 25 or more for the Shapes menu.  "
           "These are set shapes.  You may print them also.",
           vbOKOnly, "Info About Program");
}

} // namespace gp
