#include "templates/frm_half_cube.h"

#include <cmath>

namespace gp {

TemplateDescription FrmHalfCube::Description() {
    TemplateDescription t;
    t.name = "frmHalfCube";
    t.caption = "Folding Half Cube Template";
    t.sheetTitle = "Half Cube";
    t.backColor = RGB(0, 192, 192);
    t.defaultLength = "1";
    t.infoCaption = "&Info";
    t.hasQueryUnload = true;
    t.labels = {
        LabelDesign("lblLeng", "Side Length : (inches)").at(120, 120, 1335, 615).back(RGB(255, 255, 128))
            .withFont("Arial", 9.75, true),
        LabelDesign("lblwhatit",
                    "This makes a template for the folding puzzle which forms a cube and a stellated solid.")
            .at(120, 3120, 2535, 1335).withFont("Arial", 9.75),
        LabelDesign("lblInfo", "Cut on solid lines, fold on the dashed lines.  Tape where the edges meet.")
            .at(120, 4680, 2535, 1095).withFont("Arial", 9.75, true),
    };
    t.infoBoxes = {
        {"Info #1",
         "You should see 6 congruent shapes here.  They are made up of 3 squares and 6 triangles.  Some lines "
         "overlap.  Cut on all the solid lines to cut them out.  Fold on the dotted to get a shape which is half "
         "of a cube.  The triangle vertexes will all meet at what would be the center of the cube.  Two of these "
         "shapes will form a cube."},
        {"8 half cubes forms a Cube and Stellated shape",
         "You can place 8 of these together to form a large cube.  The large cube has a large hole in it which is "
         "a stellated shape.  You may also place 8 half-cubes together to get the stellated solid.  If you tape "
         "the half-cubes together just right (8 symmetrical unions), you may bend or fold the half cubes from the "
         "cube to the Stellated shape and back."},
    };
    t.rangeTop = 4;
    t.rangeTopIncluded = false;
    return t;
}

FrmHalfCube::FrmHalfCube(FormSet& app) : TemplateForm(app, Description()) {}

void DrawHalfCube(DrawingSurface& P, Integer tileX, Integer tileY, Integer side, Double flapHeight,
                  Integer halfSide) {
    P.setDrawStyle(0);
    P.LineStep(tileX, tileY, -flapHeight, halfSide);
    P.LineStep(flapHeight, halfSide);
    P.LineStep(-flapHeight, halfSide);
    P.LineStep(flapHeight, halfSide);
    P.LineStep(halfSide, flapHeight);
    P.LineStep(halfSide, -flapHeight);
    P.LineStep(halfSide, flapHeight);
    P.LineStep(halfSide, -flapHeight);
    P.LineStep(flapHeight, -halfSide);
    P.LineStep(-flapHeight, -halfSide);
    // The notch of the L goes by whole sides while the flaps go by halves,
    // so an odd side leaves the walk one unit off its start.
    P.LineStep(-side, 0);
    P.LineStep(0, -side);
    P.LineStep(-halfSide, -flapHeight);
    P.LineStep(-halfSide, flapHeight);

    P.setDrawStyle(1);
    const Integer twoSides = IMul(2, side);
    P.LineStep(tileX, tileY, side, 0);
    P.LineStep(tileX, tileY, 0, twoSides);
    P.LineStep(twoSides, 0);
    P.LineStep(0, -side);
    P.LineStep(tileX, tileY + side, side, 0);
    P.LineStep(0, side);
    P.setDrawStyle(0);
}

void FrmHalfCube::DrawFigure(DrawingSurface& P, Integer side, bool preview) {
    const Integer surfaceW = CInt(P.ScaleWidth());
    const Integer surfaceH = CInt(P.ScaleHeight());
    // The product first, then the halving: the floor is of the half diagonal.
    const Double flapHeight = Int(side * std::sqrt(2.0) / 2);
    const Integer halfSide = Int(side / 2.0);
    // The preview always draws its first copy, whose 2 * side would leave
    // the Integer range past 16383. On the sheet such a side never passes
    // the tests, which come first, and the sheet comes out empty.
    if (preview && side > 16383) leavePreviewBlank();

    // The stair of one row goes down by halfSide per copy and the row step
    // takes back rowCount * side / 2.
    auto stepCopy = [&](Integer& tileX, Integer& tileY, Integer& rowCount) {
        tileX = Int(side * 2.707 + tileX);
        tileY = CInt(Int(side / 2.0) + tileY);
        rowCount = rowCount + 1;
    };
    auto stepRow = [&](Integer& tileY, Integer rowCount) {
        tileY = Int(side * 3.414 + tileY - IMul(rowCount, side) / 2.0);
    };

    // The preview tests after the body, so a figure too large for the canvas
    // still shows one copy; the print tests before it, so such a figure
    // prints nothing.
    auto tiling = [&](TileSink& sink) {
        Integer tileX, tileY, rowCount;
        if (preview) {
            tileY = CInt(flapHeight);
            do {
                sink.row();
                tileX = CInt(kPreviewLeft + flapHeight);
                rowCount = 0;
                do {
                    sink.copy(tileX, tileY);
                    stepCopy(tileX, tileY, rowCount);
                } while (!(surfaceW - side * 2.71 < tileX));
                stepRow(tileY, rowCount);
            } while (!(surfaceH - side * 2.71 < tileY));
        } else {
            tileY = flapHeight;
            while (!(surfaceH - side * 2.71 < tileY)) {
                sink.row();
                rowCount = 0;
                tileX = flapHeight;
                while (!(surfaceW - side * 2.71 < tileX)) {
                    sink.copy(tileX, tileY);
                    stepCopy(tileX, tileY, rowCount);
                }
                stepRow(tileY, rowCount);
            }
        }
    };

    checkTiling(preview, side, 20, tiling);

    CopyDrawer drawer([&](Integer tileX, Integer tileY) {
        DrawHalfCube(P, tileX, tileY, side, flapHeight, halfSide);
    });
    tiling(drawer);
}

} // namespace gp
