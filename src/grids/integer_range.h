#pragma once
// Whether a value would fit an Integer once rounded as a store rounds it.
// Pages use it to leave out a point or a step that lies far beyond the sheet
// instead of stopping on an overflow.

#include <cmath>

#include "shell/numbers.h"

namespace gp {

inline bool FitsInteger(Double v) {
    if (!std::isfinite(v)) return false;
    const Double r = std::nearbyint(v);  // ties to even, as CInt
    return r >= -32768 && r <= 32767;
}

} // namespace gp
