#include "grids/cell_size.h"

namespace gp {

Integer CellTwips(const std::string& text) {
    const Double twips = Int(Val(text) * 1440);
    // A cell under one twip would never step the grid loops forward.
    if (twips < 1)
        throwInvalid("Nothing was printed: the width and the height of a cell must be at "
                     "least 0.001 inches.");
    if (twips > 32767)
        throwInvalid("Nothing was printed: a cell can be at most 22 inches wide or high.");
    return twips;
}

} // namespace gp
