#include "shell/frm_grids.h"

#include "shell/form_set.h"

namespace gp {

namespace {
struct MenuButton {
    const char* name;
    const char* caption;
    const char* opens;  // nullptr for Exit
    int left, top, width, height;
    const char* face;
    double size;
};

// In tab order.
const MenuButton kButtons[] = {
    {"cmdExit", "E&xit", nullptr, 360, 4320, 1455, 735, "Arial", 12},
    {"cmdSquares", "Multiplication Table and Squares", "frmSquares", 240, 120, 1815, 975, "Arial", 12},
    {"cmdTriangle", "Triangles", "frmTriangle", 2880, 120, 1815, 975, "Arial", 12},
    {"cmdHexagon", "Hexagons", "frmHexagon", 2880, 1440, 1815, 975, "Arial", 12},
    {"cmdParabola", "Parabola", "frmParabola", 2880, 5400, 1815, 735, "Arial", 12},
    {"cmdRhomb", "RhombusCube Template", "frmRhombiCube", 5520, 360, 1695, 855, "Arial Narrow", 12},
    {"cmdHalfCube", "Folding Half Cube Template", "frmHalfCube", 5520, 1320, 1695, 855, "Arial Narrow", 12},
    {"cmdDodecaRombus", "Rhombus Dodecahedron Template", "frmRhombiDodec", 5520, 2280, 1695, 855, "Arial", 9.75},
    {"cmdGreatDodeca", "Great Dodecagon Template", "frmGreatDodeca", 5520, 3240, 1695, 855, "Arial", 9.75},
    {"cmdSquares2", "Centered Squares", "frmSquares2", 240, 1440, 1815, 975, "Arial", 12},
    {"cmdStickCurves", "String Art", "frmStickCurves", 240, 2760, 1815, 855, "Arial", 12},
    {"cmdString2", "String Art 2", "frmString2", 2880, 2760, 1815, 855, "Arial", 12},
    {"cmdAnimate", "Explode It", "frmExplodeIt", 2880, 3960, 1815, 855, "Arial", 12},
    {"Command1", "Pyramid = 1/6 Cube", "frmOneSixthCube", 5520, 4320, 1695, 735, "Arial", 9.75},
};
} // namespace

FormDesign FrmGrids::Design() {
    FormDesign d;
    d.name = "frmGrids";
    d.caption = "Types of Grid Pages";
    d.clientWidth = 9000;
    d.clientHeight = 7245;
    d.backColor = RGB(0, 192, 192);
    for (const MenuButton& b : kButtons) {
        const bool exit = b.opens == nullptr;
        ControlDesign c = ButtonDesign(b.name, b.caption).at(b.left, b.top, b.width, b.height)
                              .withFont(b.face, b.size, !exit);
        if (!exit) c.back(RGB(255, 255, 0));
        d.controls.push_back(c);
    }
    return d;
}

FrmGrids::FrmGrids(FormSet& app) : Form(app, Design()) {
    for (const MenuButton& b : kButtons) {
        if (b.opens == nullptr) {
            on(b.name, Event::Click, [this](const EventArgs&) { End(); });
        } else {
            const std::string target = b.opens;
            on(b.name, Event::Click, [this, target](const EventArgs&) { this->app().Show1(target); });
        }
    }
}

void registerMenuForm(FormSet& app) {
    app.registerForm("frmGrids", [](FormSet& a) { return std::make_unique<FrmGrids>(a); });
}

} // namespace gp
