#pragma once
// The rhombic dodecahedron net: a spine of six rhombi stacked one on the
// other, three rhombi hinged on its right side and three on its left, tiled
// over the surface as far as room allows. Preview and print run the same
// strokes; they differ only in the scale of `side` and where a row starts.

#include "templates/template_form.h"

namespace gp {

// Strokes of one copy: one walk of 27 solid strokes and 11 dashed folds.
constexpr int kRhombiDodecStrokes = 38;

// Copies standing side by side leave thin waste rhombi between them; the
// form warns of them below this size. The test looks at `side` after its
// floor, at the scale of the surface (800 or 1440 to the inch).
bool RhombiDodecWantsWarning(Integer side, int unitsPerInch);

// One copy, its first spine rhombus's top left corner at (tileX, tileY).
void DrawRhombiDodecCopy(DrawingSurface& S, Integer side, Integer tileX, Integer tileY);

// The tiling loops, both testing before the body: each copy's place goes to
// `sink`. `rowStart` is the x where a row's leftmost tip stands (3000 on the
// form, 0 on paper). The loops' 16-bit sums fault where they overflow.
void TileRhombiDodec(TileSink& sink, Integer side, Integer surfaceW, Integer surfaceH, int rowStart);

} // namespace gp
