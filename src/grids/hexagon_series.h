#pragma once
// The series of hexagons of the "Inscribed on edge" and "Target" sheets:
// every hexagon is the last one scaled by a factor. The whole series is
// worked out before anything is drawn, so a factor that would never let
// the series end is refused with a message instead of hanging.

#include <vector>

#include "shell/drawing_surface.h"

namespace gp {

struct HexagonPlace {
    Integer x, y, side, rise;
};

// All hexagons share the corner (CInt(side / 2), 0) and the top edge; the
// smallest side drawn is 36.
std::vector<HexagonPlace> InscribedSeries(Integer side, Integer pageW, Double factor);

// All hexagons share (nearly) one centre; the smallest side drawn is 72.
std::vector<HexagonPlace> TargetSeries(Integer side, Integer pageW, Double factor);

// Draws the series and ends the sheet.
void PrintHexagonSeries(DrawingSurface& surface, const std::vector<HexagonPlace>& series);

} // namespace gp
