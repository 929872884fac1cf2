#include "templates/rhombi_dodec.h"

#include <cmath>

namespace gp {

namespace {

// The rhombus of the net has angles of 70.53 and 109.47 degrees; the outer
// edges of the side rhombi run at 38.94 degrees.
struct RhombiAngles {
    Double c1, s1, c2, s2;
};

RhombiAngles Angles() {
    const Double acuteAngle = 3.141592653 - (std::atan(std::sqrt(2.0)) + std::atan(std::sqrt(2.0)));
    const Double slantAngle = std::atan(std::sqrt(2.0)) * 4 - 3.141592653;
    return {std::cos(acuteAngle), std::sin(acuteAngle), std::cos(slantAngle), std::sin(slantAngle)};
}

} // namespace

bool RhombiDodecWantsWarning(Integer side, int unitsPerInch) {
    return side / Double(unitsPerInch) < 1.46;
}

void DrawRhombiDodecCopy(DrawingSurface& S, Integer side, Integer tileX, Integer tileY) {
    const RhombiAngles a = Angles();
    const Double c1 = a.c1, s1 = a.s1, c2 = a.c2, s2 = a.s2;

    S.setDrawStyle(0);
    S.LineStep(tileX, tileY, side, 0);
    // Down the right side: three sides of a right rhombus, then the right
    // edge of the spine rhombus below it.
    for (int i = 0; i < 3; ++i) {
        S.LineStep(side * c2, side * s2);
        S.LineStep(-side * c1, side * s1);
        S.LineStep(-side * c2, -side * s2);
        S.LineStep(side * c1, side * s1);
    }
    S.LineStep(-side, 0);
    // Up the left side, likewise.
    for (int i = 0; i < 3; ++i) {
        S.LineStep(-side * c2, side * s2);
        S.LineStep(-side * c1, -side * s1);
        S.LineStep(side * c2, -side * s2);
        S.LineStep(side * c1, -side * s1);
    }
    // Over the top edge once more, to the corner where the folds begin.
    S.LineStep(side, 0);
    // The eleven folds: a zigzag down the spine whose slanted strokes are the
    // hinges of the side rhombi.
    S.setDrawStyle(1);
    for (int i = 0; i < 3; ++i) {
        S.LineStep(-side * c1, side * s1);
        S.LineStep(-side, 0);
        S.LineStep(side * c1, side * s1);
        if (i < 2) S.LineStep(side, 0);
    }
    S.setDrawStyle(0);
}

void TileRhombiDodec(TileSink& sink, Integer side, Integer surfaceW, Integer surfaceH, int rowStart) {
    const RhombiAngles a = Angles();
    const Double c1 = a.c1, s1 = a.s1, c2 = a.c2;
    // side * 6, side * 2, side + tileX and surfaceW - side are 16-bit sums;
    // the rest is Double. The row test sees the spine only, the column test
    // the whole reach of a copy to the right.
    Integer tileY = 0;
    while (!(surfaceH - IMul(side, 6) * s1 < tileY)) {
        sink.row();
        Integer tileX = CInt(side * c1 + side * c2 + rowStart);
        while (!(Integer(surfaceW - side) - side * c2 < tileX)) {
            sink.copy(tileX, tileY);
            tileX = CInt(IMul(side, 2) * c2 + Integer(side + tileX));
        }
        tileY = CInt(IMul(side, 6) * s1 + tileY);
    }
}

} // namespace gp
