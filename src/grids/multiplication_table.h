#pragma once
// The chart that turns a squares sheet into a multiplication table: the
// heading "Name this chart: " and in each cell the product of its column and
// row numbers, centred by the number's own measured size.

#include "shell/drawing_surface.h"

namespace gp {

struct GridBounds {
    Integer cellW, cellH;  // twips
    Integer maxX, maxY;    // right and bottom edges of the grid
};

// Refuses, before anything is drawn, a chart whose largest product would not
// fit an Integer. Sets the chart's number font so that it measures what it
// will print.
void CheckMultiplicationTable(DrawingSurface& surface, const GridBounds& grid);

void PrintMultiplicationTable(DrawingSurface& surface, const GridBounds& grid);

} // namespace gp
