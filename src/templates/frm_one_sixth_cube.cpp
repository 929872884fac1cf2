#include "templates/frm_one_sixth_cube.h"

#include <cmath>

namespace gp {

TemplateDescription FrmOneSixthCube::Description() {
    TemplateDescription t;
    t.name = "frmOneSixthCube";
    t.caption = "Folding One-Sixth Cube Pyramid";
    t.sheetTitle = "One-Sixth Cube Pyramid";
    t.backColor = RGB(0, 192, 192);
    t.defaultLength = "1";
    t.infoCaption = "Info";
    t.hasQueryUnload = true;
    t.labels = {
        LabelDesign("lblSize", "Side Length: (inches)").at(120, 120, 1335, 615).back(RGB(255, 255, 0))
            .withFont("Arial", 9.75, true),
        LabelDesign("lblInfo",
                    "This makes a pyramid which is one-sixth of a cube. Use it to make the stellated octahedron "
                    "which folds.  You need 24 of them.")
            .at(120, 3120, 2535, 1575).withFont("Arial", 9.75),
        LabelDesign("lblInstruct", "Cut on the solid and fold on the dotted lines.  Tape where the edges meet.")
            .at(120, 4920, 2535, 1095).withFont("Arial", 9.75, true),
    };
    t.infoBoxes = {
        {"Info #1",
         "You should see 4 congruent shapes here.  They are made up of 1 squares and 4 triangles.  Cut on all "
         "the solid lines to cut them out.  Fold on the dotted to get a shape which is one-sixth of a cube.  The "
         "triangle vertexes will all meet at what would be the center of the cube.  Six of these shapes will "
         "form a cube."},
        {"8 half cubes forms a Cube and Stellated shape",
         "You can place 3 of these together to form a half cube.  Use 8 of the half cubes to make a stellated "
         "shape.  If you tape the half-cubes together just right (8 symmetrical unions), you may bend or fold "
         "the half cubes from the cube to the Stellated shape and back to a cube."},
    };
    t.rangeTop = 5;
    t.rangeTopIncluded = false;
    // One unit down the canvas is 0.9392857 twips, one unit across one twip.
    t.scaleWidth = 9405;
    t.scaleHeight = Single(8400 / 0.9392857);
    return t;
}

FrmOneSixthCube::FrmOneSixthCube(FormSet& app) : TemplateForm(app, Description()) {}

SixthCubeCorners SixthCubeCornerTable(Integer side) {
    const Double apexAngle = 3.141592653 - (std::atan(std::sqrt(2.0)) + std::atan(std::sqrt(2.0)));
    const Double turnSeven = 3.141592653 - apexAngle * 2.5;
    const Double turnSix = 9.424777959 / 2 - apexAngle * 3.5;
    // Half a side stays a Double here: an odd side's .5 is rounded only as
    // the corner is stored, to the even neighbour.
    const Double half = side / 2.0;
    SixthCubeCorners c;
    c.cornerX[1] = 0;
    c.cornerY[1] = side;
    c.cornerX[2] = 0;
    c.cornerY[2] = 0;
    c.cornerX[3] = side;
    c.cornerY[3] = 0;
    c.cornerX[4] = side;
    c.cornerY[4] = side;
    c.cornerX[5] = half;
    c.cornerY[5] = half * std::sqrt(2.0) + side;
    c.cornerX[6] = half * std::sqrt(3.0) * std::cos(turnSix) + half;
    c.cornerY[6] = half * std::sqrt(2.0) + side + half * std::sqrt(3.0) * std::sin(turnSix);
    c.cornerX[7] = half - half * std::sqrt(3.0) * std::sin(turnSeven);
    c.cornerY[7] = half * std::sqrt(2.0) + side + half * std::sqrt(3.0) * std::cos(turnSeven);
    c.cornerX[8] = -side * std::cos(apexAngle);
    c.cornerY[8] = side * std::sin(apexAngle) + side;
    return c;
}

void DrawOneSixthCube(DrawingSurface& P, Integer tileX, Integer tileY, const SixthCubeCorners& c) {
    const auto X = [&](int i) { return c.cornerX[i] + tileX; };
    const auto Y = [&](int i) { return c.cornerY[i] + tileY; };
    P.setDrawStyle(0);
    P.Line(tileX, tileY, X(1), Y(1));
    for (int i = 1; i <= 7; ++i) P.Line(X(i), Y(i), X(i + 1), Y(i + 1));
    P.Line(X(8), Y(8), X(1), Y(1));
    P.setDrawStyle(1);
    P.Line(X(1), Y(1), X(4), Y(4));
    P.Line(X(5), Y(5), X(1), Y(1));
    P.Line(X(5), Y(5), X(8), Y(8));
    P.Line(X(5), Y(5), X(7), Y(7));
    P.setDrawStyle(0);
}

void FrmOneSixthCube::DrawFigure(DrawingSurface& P, Integer side, bool preview) {
    const Integer surfaceW = CInt(P.ScaleWidth());
    const Integer surfaceH = CInt(P.ScaleHeight());
    SixthCubeCorners c;
    checkRange(preview, side, [&] { c = SixthCubeCornerTable(side); });
    const auto& cornerX = c.cornerX;
    const auto& cornerY = c.cornerY;

    // The preview starts 100 units down and lets its last row run 400 past
    // the bottom; the sheet starts 300 down and keeps every row on it. The
    // column test sees only the square, so the fan of the last column may
    // be cut off at the right.
    const Integer top = preview ? 100 : 300;
    const Integer bottomSlack = preview ? 400 : 0;
    const Integer left = preview ? kPreviewLeft : 0;
    auto tiling = [&](TileSink& sink) {
        Integer tileY = cornerY[2] + top;
        while (!(tileY > surfaceH - cornerY[7] + bottomSlack)) {
            sink.row();
            Integer tileX = Abs(cornerX[8]) + left;
            while (!(tileX > surfaceW - cornerX[3])) {
                sink.copy(tileX, tileY);
                tileX = cornerX[6] + tileX - cornerX[8];
            }
            tileY = cornerY[7] + tileY;
        }
    };
    checkTiling(preview, side, 13, tiling);

    CopyDrawer drawer([&](Integer tileX, Integer tileY) { DrawOneSixthCube(P, tileX, tileY, c); });
    tiling(drawer);
}

} // namespace gp
