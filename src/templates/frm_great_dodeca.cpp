#include "templates/frm_great_dodeca.h"

#include "templates/great_dodeca.h"

namespace gp {

TemplateDescription FrmGreatDodeca::Description() {
    TemplateDescription t;
    t.name = "frmGreatDodeca";
    t.caption = "Great Dodecagon Template";
    t.sheetTitle = "Great Dodecagon";
    t.clientHeight = 8415;
    t.backColor = RGB(128, 255, 128);
    t.defaultLength = "1.5";
    t.infoCaption = "&Info";
    t.hasQueryUnload = false;
    t.labels = {
        LabelDesign("lblSideLeng", "Side Length (inches)").at(120, 120, 1335, 615).back(RGB(255, 255, 128))
            .withFont("Arial", 9.75, true),
        LabelDesign("lblInfo",
                    "This makes a template for a Great Dodecagon, raised five pointed stars on each face.")
            .at(120, 3720, 2415, 1695).back(RGB(192, 255, 192)).withFont("Arial", 9.75),
        LabelDesign("lblInfo2",
                    "Cut around the outer edge.  Fold the solid lines forward and the dotted line back.")
            .at(120, 5640, 2295, 855).withFont("Arial", 9.75, true),
    };
    t.exitTop = 2640;
    t.infoBoxes = {
        {"What is it?",
         "The you will print a template on paper like the one shown on this screen.  if you change the length "
         "of a side you must exit then return to refresh the screen to see the size.  You need two star like "
         "shapes to make the solid."},
        {"How do I put it together?",
         "Fold the dotted lines back and the solid lines forward.  Fold the triangles together to make small "
         "pyramids.  These pyramids fold into the solid.  When you get all the pyramids together you have a star "
         "with extra pyramids off each edge.  Once you get the two stars with extra pyramids off each edge done.  "
         "Tape the two of them together so the extra pyramids alternate around the middle of the solid."},
    };
    t.rangeTop = 3;
    t.rangeTopIncluded = true;
    return t;
}

FrmGreatDodeca::FrmGreatDodeca(FormSet& app) : TemplateForm(app, Description()) {}

void FrmGreatDodeca::DrawFigure(DrawingSurface& S, Integer side, bool preview) {
    const GreatDodecaParts p = GreatDodecaPartsFor(side);
    // The loops test at their end, so a side below 2 (row step 0) would
    // never end and a tiny one would need millions of copies; tileY of the
    // second row is the first sum to overflow as the side grows. The dry
    // run finds each case before anything is drawn.
    drawTiling(
        S, preview, side, kGreatDodecaStrokes,
        [&](TileSink& sink, const TileArea& a) { TileGreatDodeca(sink, p, a.surfaceW, a.surfaceH, a.rowStart); },
        [&](Integer tileX, Integer tileY) { DrawGreatDodecaCopy(S, p, tileX, tileY); });
}

} // namespace gp
