#include "grids/puzzle_sheet.h"

namespace gp {

namespace {

// One copy of the outline as a walk from the current point; its offsets sum
// to zero, so the last stroke closes on the corner where the first began.
void DrawOutline(DrawingSurface& P, Double unitX, Integer unitY) {
    P.LineStep(P.CurrentX, P.CurrentY, 0, unitY * 3);
    P.LineStep(unitX, 0);
    P.LineStep(0, -unitY / 2.0);
    P.LineStep(-unitX / 2.0, 0);
    P.LineStep(0, -unitY);
    P.LineStep(unitX / 2.0, 0);
    P.LineStep(0, -unitY / 2.0);
    P.LineStep(2 * unitX, 0);
    P.LineStep(0, unitY / 2.0);
    P.LineStep(unitX / 2.0, 0);
    P.LineStep(0, -unitY);
    P.LineStep(unitX * -2.5, 0);
    P.LineStep(0, -unitY / 2.0);
    P.LineStep(-unitX, 0);
}

} // namespace

void PrintPuzzleSheet(DrawingSurface& P) {
    const Double unitX = 1440;
    const Integer unitY = 1440;
    const Integer startX = 800;
    const Integer startY = 800;
    const Integer stepX = 5184;            // 3.6 units
    const Integer stepY = CInt(unitY * 3.1);  // 4464

    // Only the corner of a copy is tested: it must stand an inch inside the
    // right and bottom edges, and the rest of the copy may be clipped.
    const Integer limitX = CInt(P.ScaleWidth() - 1440);
    // The loop positions are kept wide so that the step past the last copy
    // cannot overflow on a very large sheet.
    for (long X = startX; X <= limitX; X += stepX) {
        const Integer limitY = CInt(P.ScaleHeight() - 1440);
        for (long Y = startY; Y <= limitY; Y += stepY) {
            P.CurrentX = Single(X);
            P.CurrentY = Single(Y);
            DrawOutline(P, unitX, unitY);
        }
    }
    P.EndDoc();
}

} // namespace gp
