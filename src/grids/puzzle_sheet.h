#pragma once
// The "Puzzle Shape Thing" sheet: copies of one fixed 14-sided outline in
// columns over the printable area, ready to be cut out. Both squares forms
// print it from their cmdStart button; it reads no control.

#include "shell/drawing_surface.h"

namespace gp {

void PrintPuzzleSheet(DrawingSurface& surface);

} // namespace gp
