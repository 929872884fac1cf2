#pragma once
// Graph coordinates of frmExplodeIt and the tenths text of its point boxes.
// One graph unit is 240 twips; the graph origin sits at form point
// (6000, 5400), X to the right, Y upward.

#include <string>

#include "shell/numbers.h"

namespace gp {

constexpr int kGraphUnit = 240;
constexpr int kGraphOriginX = 6000;
constexpr int kGraphOriginY = 5400;

// Str(Int(v * 10) / 10): the product is floored before anything is narrowed,
// so a Single just below a tenth shows the tenth below (the Single -1.2 is
// "-1.3"); the quotient becomes a Single before Str writes it.
std::string TenthsText(Double v);

} // namespace gp
