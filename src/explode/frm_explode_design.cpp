// The design table of frmExplodeIt: the control strip along the top, the
// axes and their ticks as fixed lines (Cls leaves them in place), and the
// menus.

#include <string>

#include "explode/frm_explode_it.h"

namespace gp {

namespace {
const long kGreen = RGB(0, 255, 0);
const long kLightGreen = RGB(192, 255, 192);
const long kCyan = RGB(0, 255, 255);
const long kLightRed = RGB(255, 128, 128);
const long kLightBlue = RGB(128, 255, 255);
const long kRed = RGB(255, 0, 0);

// Element i shows point i + 1 of the table; its row head says only "x" or
// "y", so each box is called by its point.
void addPointBoxes(std::vector<ControlDesign>& controls) {
    for (int i = 0; i <= 10; ++i)
        controls.push_back(TextBoxDesign("txtX", "2").element(i).at(1920 + 480 * i, 720, 375, 285)
                               .spoken("x of point " + std::to_string(i + 1)));
    for (int i = 0; i <= 10; ++i)
        controls.push_back(TextBoxDesign("txtY", "5").element(i).at(1920 + 480 * i, 1080, 375, 285)
                               .spoken("y of point " + std::to_string(i + 1)));
}

void addAxes(std::vector<ControlDesign>& controls) {
    controls.push_back(LineDesign("Line1", 0, 1320, 12360, 1320));
    controls.push_back(LineDesign("Line2", 6000, 1440, 6000, 9360));
    controls.push_back(LineDesign("Line3", 120, 5400, 12120, 5400));
    // Ticks one graph unit apart, seven each way from the origin.
    int next = 4;
    for (int n = -7; n <= 7; ++n) {
        if (n == 0) continue;
        const int x = 6000 + 240 * n;
        controls.push_back(LineDesign("Line" + std::to_string(next++), x, 5280, x, 5520).fore(kRed));
    }
    for (int n = -7; n <= 7; ++n) {
        if (n == 0) continue;
        const int y = 5400 - 240 * n;
        controls.push_back(LineDesign("Line" + std::to_string(next++), 5880, y, 6120, y).fore(kRed));
    }
}
} // namespace

FormDesign FrmExplodeIt::Design() {
    FormDesign d;
    d.name = "frmExplodeIt";
    d.caption = "Explode It";
    d.clientWidth = 12375;
    d.clientHeight = 9390;
    d.backColor = kSystem3DHighlight;
    d.font = FontSpec{"Arial", 8.25, false, false};

    auto& c = d.controls;
    c.push_back(ButtonDesign("cmdExit", "Exit").at(120, 120, 1095, 615));
    c.push_back(ButtonDesign("cmdPlotPoints", "Plot Points").at(0, 840, 1335, 375).back(kGreen));
    c.push_back(LabelDesign("lblMatrix", "Matrix for points:").at(1800, 360, 1815, 255));
    c.push_back(LabelDesign("lblx", "x").at(1440, 720, 255, 255));
    c.push_back(LabelDesign("lbly", "y").at(1440, 1080, 255, 255));
    addPointBoxes(c);
    c.push_back(FrameDesign("fraChoice", "Choice").at(3720, 0, 2775, 735).back(kLightGreen));
    c.push_back(OptionDesign("optScalar", "Scalar").in("fraChoice").at(120, 240, 1095, 195)
                    .back(kLightGreen).selected());
    c.push_back(OptionDesign("optRight", "Right").in("fraChoice").at(120, 480, 1095, 195).back(kLightGreen));
    c.push_back(OptionDesign("optUp", "Up").in("fraChoice").at(1440, 240, 1095, 195).back(kLightGreen));
    c.push_back(OptionDesign("optMultiplier", "Multiplier").in("fraChoice").at(1440, 480, 1215, 195)
                    .back(kLightGreen));
    c.push_back(LabelDesign("lblStart", "Start").at(6600, 0, 495, 255));
    c.push_back(LabelDesign("labelEnd", "End").at(7320, 0, 495, 255));
    c.push_back(LabelDesign("lblSteps", "Steps").at(8040, 0, 495, 255));
    c.push_back(TextBoxDesign("txtStart", ".5").at(6600, 240, 495, 285));
    c.push_back(TextBoxDesign("txtEnd", "3").at(7320, 240, 495, 285));
    c.push_back(TextBoxDesign("txtSteps", "10").at(8040, 240, 495, 285));
    c.push_back(ShapeDesign("shpMatx").at(9000, 240, 1335, 1095).back(kLightGreen));
    c.push_back(LabelDesign("Label1", "Multiplier").at(9000, 0, 1335, 255)
                    .tip("This is a matrix multiplier which will change the shape.  "
                         "The Steps number is the only part used."));
    c.push_back(TextBoxDesign("txtr11", "1").at(9120, 360, 495, 375)
                    .spoken("Multiplier, row 1, column 1"));
    c.push_back(TextBoxDesign("txtr12", "1").at(9720, 360, 495, 375)
                    .spoken("Multiplier, row 1, column 2"));
    c.push_back(TextBoxDesign("txtr21", "0").at(9120, 840, 495, 375)
                    .spoken("Multiplier, row 2, column 1"));
    c.push_back(TextBoxDesign("txtr22", "1").at(9720, 840, 495, 375)
                    .spoken("Multiplier, row 2, column 2"));
    c.push_back(ButtonDesign("cmdBegin", "Begin").at(10560, 0, 855, 495).back(kCyan));
    c.push_back(ButtonDesign("cmdQuit", "Quit").at(10560, 720, 855, 495).back(kLightRed));
    c.push_back(ButtonDesign("cmdClear", "New Graph").at(11520, 120, 855, 735).back(kLightBlue)
                    .tip("You may click on the screen to create your own shape which will then "
                         "move or enlarge."));
    c.push_back(TimerDesign("Timer1", 500, false));
    addAxes(c);
    c.push_back(MenuDesign("mnuFile", "File"));
    c.push_back(MenuDesign("mnuExit", "Exit", "mnuFile"));
    c.push_back(MenuDesign("mnuSamples", "Samples"));
    c.push_back(MenuDesign("mnuRunner", "Runner", "mnuSamples"));
    c.push_back(MenuDesign("mnuSquares", "Squares", "mnuSamples"));
    c.push_back(MenuDesign("mnuTriangles", "Triangles", "mnuSamples"));
    return d;
}

} // namespace gp
