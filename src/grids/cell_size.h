#pragma once
// The cell sizes of the squares pages: inches typed in a box, as twips.

#include <string>

#include "shell/numbers.h"

namespace gp {

// Int(Val(text) * 1440), refusing a cell the grid loops could not step over
// or an Integer could not hold.
Integer CellTwips(const std::string& text);

} // namespace gp
