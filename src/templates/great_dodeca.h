#pragma once
// The great dodecagon net: five arms of 13 strokes about a five-pointed
// star, 30 triangles that fold into ten small pyramids, tiled over the
// surface. Preview and print run the same strokes; every length is floored
// anew from the surface's own `side`, and only where a row starts differs.

#include <array>

#include "templates/template_form.h"

namespace gp {

constexpr int kGreatDodecaArms = 5;
constexpr int kGreatDodecaStrokes = 5 * 13;

// One stroke of a copy's walk: its offsets, made of the parts below, and
// its DrawStyle.
struct GreatDodecaStroke {
    int dx, dy;
    int style;
};

// The eight floored parts of a long and a short stroke at 36 and 72 degrees.
// Every stroke of the net is made of them, so their floors are what the
// walks add up. Every copy walks the same 65 strokes from its own corners,
// so the walk is worked out once with the parts, not again for each copy.
struct GreatDodecaParts {
    Integer side, shortSide;
    Integer sideCos36, sideSin36, sideCos72, sideSin72;
    Integer shortCos36, shortSin36, shortCos72, shortSin72;
    std::array<GreatDodecaStroke, kGreatDodecaStrokes> walk;  // arm 0's 13 strokes, then arm 1's, ...
};

GreatDodecaParts GreatDodecaPartsFor(Integer side);

struct GridPoint {
    Integer x, y;
};

// Where the five arms start: the corners of a pentagon with sides of
// side + 2 shortSide, flat side up, arm 0 at (tileX, tileY), its leftmost
// point.
std::array<GridPoint, kGreatDodecaArms> GreatDodecaArmStarts(const GreatDodecaParts& p, Integer tileX,
                                                             Integer tileY);

// One copy, arm 0 to arm 4.
void DrawGreatDodecaCopy(DrawingSurface& S, const GreatDodecaParts& p, Integer tileX, Integer tileY);

// The tiling loops, both testing at their end so that one copy is always
// drawn: each copy's place goes to `sink`. A row starts at `rowStart` (3000
// on the form, 0 on paper). The loops' 16-bit sums fault where they overflow.
void TileGreatDodeca(TileSink& sink, const GreatDodecaParts& p, Integer surfaceW, Integer surfaceH,
                     int rowStart);

} // namespace gp
