#pragma once
// frmOneSixthCube, "Folding One-Sixth Cube Pyramid": a square and a fan of
// four triangles round the point that folds to the cube's centre, in a plain
// grid of copies. Its canvas has a scale of its own: one unit down the form
// is 0.9392857 twips.

#include <array>

#include "templates/template_form.h"

namespace gp {

// The eight corners of one copy relative to the top left corner of its
// square, indexes 1 to 8 (element 0 unused).
struct SixthCubeCorners {
    std::array<Integer, 9> cornerX{};
    std::array<Integer, 9> cornerY{};
};

SixthCubeCorners SixthCubeCornerTable(Integer side);

class FrmOneSixthCube : public TemplateForm {
public:
    explicit FrmOneSixthCube(FormSet& app);
    static TemplateDescription Description();

protected:
    void DrawFigure(DrawingSurface& surface, Integer side, bool preview) override;
};

// One copy, thirteen strokes between absolute corners.
void DrawOneSixthCube(DrawingSurface& P, Integer tileX, Integer tileY, const SixthCubeCorners& c);

} // namespace gp
