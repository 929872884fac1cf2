#include "templates/frm_rhombi_dodec.h"

#include "templates/rhombi_dodec.h"

namespace gp {

TemplateDescription FrmRhombiDodec::Description() {
    TemplateDescription t;
    t.name = "frmRhombiDodec";
    t.caption = "Rhombus Dodecahedron Template";
    t.sheetTitle = "Rhombus Dodecahedron";
    t.backColor = RGB(0, 192, 192);
    t.defaultLength = "1.45";
    t.infoCaption = "&Info";
    t.hasQueryUnload = true;
    t.labels = {
        LabelDesign("lblLength", "Side Length : (inches)").at(120, 120, 1335, 615).back(RGB(255, 255, 128))
            .withFont("Arial", 9.75, true),
        LabelDesign("lblInfo", "Cut on the solid lines.  Fold on the dashed lines.")
            .at(120, 3120, 2535, 855).withFont("Arial", 9.75, true),
        LabelDesign("lblInfo2",
                    "If you print more than one template, you will cut out a smaller rhombi.  Remove them.   "
                    "The template only contains large rhombi.")
            .at(120, 4080, 2535, 1695).withFont("Arial", 9.75).hidden(),
    };
    t.infoBoxes = {
        {"Info",
         "This shape is formed by 12 faces.  It can also be made up using 4 rhombi-cubes.  This shape is a "
         "packing solid.  It packs space without gaps and Bees use something similar."},
    };
    t.rangeTop = 4;
    t.rangeTopIncluded = false;
    return t;
}

FrmRhombiDodec::FrmRhombiDodec(FormSet& app) : TemplateForm(app, Description()), lblInfo2(label("lblInfo2")) {}

void FrmRhombiDodec::DrawFigure(DrawingSurface& S, Integer side, bool preview) {
    // Shown once the side is known, before anything is drawn, and never
    // hidden again while the form is loaded.
    if (RhombiDodecWantsWarning(side, preview ? 800 : 1440)) lblInfo2.setVisible(true);

    // side * 6 of the row test is the first sum to overflow as the side
    // grows, and a tiny side would need millions of copies; the dry run
    // finds either before anything is drawn.
    drawTiling(
        S, preview, side, kRhombiDodecStrokes,
        [&](TileSink& sink, const TileArea& a) { TileRhombiDodec(sink, side, a.surfaceW, a.surfaceH, a.rowStart); },
        [&](Integer tileX, Integer tileY) { DrawRhombiDodecCopy(S, side, tileX, tileY); });
}

} // namespace gp
