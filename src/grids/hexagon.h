#pragma once
// One regular hexagon with flat top and bottom, as a walk of six strokes
// from the left end of its top edge. The half side goes on unrounded, so
// the side points may lie on half twips.

#include "shell/drawing_surface.h"

namespace gp {

inline void DrawHexagon(DrawingSurface& P, Integer x, Integer y, Integer side, Integer rise) {
    P.LineStep(x, y, side, 0);
    P.LineStep(side / 2.0, rise);
    P.LineStep(-side / 2.0, rise);
    P.LineStep(-side, 0);
    P.LineStep(-side / 2.0, -rise);
    P.LineStep(side / 2.0, -rise);
}

} // namespace gp
