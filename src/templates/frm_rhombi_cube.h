#pragma once
// frmRhombiCube, "RhombusCube Layout Printing": the net of six congruent
// rhombi (70.53 / 109.47 degrees), in rows that interlock edge on edge.

#include "templates/template_form.h"

namespace gp {

class FrmRhombiCube : public TemplateForm {
public:
    explicit FrmRhombiCube(FormSet& app);
    static TemplateDescription Description();

protected:
    void DrawFigure(DrawingSurface& surface, Integer side, bool preview) override;
};

// One copy, nineteen strokes in one walk, from its leftmost tip (tileX, tileY).
void DrawRhombiCube(DrawingSurface& P, Integer tileX, Integer tileY, Integer side);

} // namespace gp
