#include "templates/frm_rhombi_cube.h"

#include <cmath>

namespace gp {

namespace {
Double AcuteAngle() { return 3.141592653 - (std::atan(std::sqrt(2.0)) + std::atan(std::sqrt(2.0))); }
Double SlantAngle() { return std::atan(std::sqrt(2.0)) * 4 - 3.141592653; }
} // namespace

TemplateDescription FrmRhombiCube::Description() {
    TemplateDescription t;
    t.name = "frmRhombiCube";
    t.caption = "RhombusCube Layout Printing";
    t.sheetTitle = "Rhombus Cube";
    t.backColor = RGB(0, 192, 192);
    t.defaultLength = "1";
    t.infoCaption = "&Info";
    t.hasQueryUnload = false;
    t.labels = {
        LabelDesign("lblLengthRC", "Side Length (inches)").at(120, 120, 1335, 615).back(RGB(255, 255, 128))
            .withFont("Arial", 9.75, true),
        LabelDesign("lblwhatit",
                    "This makes a template for the folding puzzle to form four rhombus faced dodecahedrons.")
            .at(120, 3120, 2535, 1335).withFont("Arial", 9.75),
        LabelDesign("lblInfo", "Cut on the solid lines and fold on the dashed lines.")
            .at(120, 4680, 2535, 855).withFont("Arial", 9.75, true),
    };
    t.infoBoxes = {
        {"Info #1",
         "This is called a rhombi-cube because it has 6 congruent faces which are Rhombi.  Like taking a square "
         "and slide it to get a rhombus.  Take a cube and slide all its faces to get a 'rhombi-cube'.  Four of "
         "the rhombi-cubes form a packing dodecahedron.  You may note the Bee-hive like interfaces at each "
         "vertex."},
        {"Connecting them",
         "If you connect 16 of the rhombi-cubes in a particular orientation, you can fold them into 4 of the "
         "dodecahedrons.  The 4 dodecahedrons can be in different orientations to each other.  One certain "
         "connection will fold from one orientation of the dodecahedrons to another."},
    };
    t.rangeTop = 4;
    t.rangeTopIncluded = true;
    return t;
}

FrmRhombiCube::FrmRhombiCube(FormSet& app) : TemplateForm(app, Description()) {}

void DrawRhombiCube(DrawingSurface& P, Integer tileX, Integer tileY, Integer side) {
    const Double acuteAngle = AcuteAngle();
    const Double slantAngle = SlantAngle();
    const Double c1 = std::cos(acuteAngle), s1 = std::sin(acuteAngle);
    const Double c2 = std::cos(slantAngle), s2 = std::sin(slantAngle);
    const Integer twoSides = IMul(2, side);

    // The outline, A B C D (M) E F G H I J (N) K L and back to A.
    P.setDrawStyle(0);
    P.LineStep(tileX, tileY, side * c1, -side * s1);
    P.LineStep(side, 0);
    P.LineStep(-side * c1, side * s1);
    P.LineStep(twoSides * c2, -twoSides * s2);
    P.LineStep(side, 0);
    P.LineStep(side * c1, side * s1);
    P.LineStep(-side * c1, side * s1);
    P.LineStep(-side, 0);
    P.LineStep(side * c1, -side * s1);
    P.LineStep(-twoSides * c2, twoSides * s2);
    P.LineStep(-side, 0);
    P.LineStep(-side * c1, -side * s1);
    // Back along the folds AD, DK, NM, EJ, JG; the walk crosses from K to N
    // and from M to E over the outline, solid.
    P.setDrawStyle(1);
    P.LineStep(side, 0);
    P.LineStep(side * c1, side * s1);
    P.setDrawStyle(0);
    P.LineStep(side * c2, -side * s2);
    P.setDrawStyle(1);
    P.LineStep(-side * c1, -side * s1);
    P.setDrawStyle(0);
    P.LineStep(side * c2, -side * s2);
    P.setDrawStyle(1);
    P.LineStep(side * c1, side * s1);
    P.LineStep(side, 0);
    P.setDrawStyle(0);
}

void FrmRhombiCube::DrawFigure(DrawingSurface& P, Integer side, bool preview) {
    const Integer surfaceW = CInt(P.ScaleWidth());
    const Integer surfaceH = CInt(P.ScaleHeight());
    Integer rowPitchHalf;
    // 2 * side of the copy's walk cannot overflow: a side past 16383 never
    // passes the row test of a surface that an Integer can measure, and
    // such a sheet comes out empty.
    checkRange(preview, side, [&] { rowPitchHalf = Int(side * std::sin(AcuteAngle())); });

    // Both loops test before the body, with the whole reach of a copy, so
    // no copy is ever cut off at the right or the bottom.
    auto tiling = [&](TileSink& sink) {
        Integer tileY = CInt(side * 1.3);
        while (!(tileY > surfaceH - side)) {
            sink.row();
            Integer tileX = preview ? kPreviewLeft : 0;
            while (!(tileX > surfaceW - IMul(4, side))) {
                sink.copy(tileX, tileY);
                tileX = IMul(4, side) + tileX;
            }
            tileY = IMul(2, rowPitchHalf) + tileY;
        }
    };
    checkTiling(preview, side, 19, tiling);

    CopyDrawer drawer([&](Integer tileX, Integer tileY) { DrawRhombiCube(P, tileX, tileY, side); });
    tiling(drawer);
}

} // namespace gp
