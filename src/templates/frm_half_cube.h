#pragma once
// frmHalfCube, "Folding Half Cube Template": three squares in an L with six
// triangular flaps, in interlocking stairs of copies.

#include "templates/template_form.h"

namespace gp {

class FrmHalfCube : public TemplateForm {
public:
    explicit FrmHalfCube(FormSet& app);
    static TemplateDescription Description();

protected:
    void DrawFigure(DrawingSurface& surface, Integer side, bool preview) override;
};

// One copy: the outline walk and the dashed folds, twenty strokes, with
// (tileX, tileY) the top left corner of the first square.
void DrawHalfCube(DrawingSurface& P, Integer tileX, Integer tileY, Integer side, Double flapHeight,
                  Integer halfSide);

} // namespace gp
