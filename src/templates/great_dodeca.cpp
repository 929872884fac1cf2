#include "templates/great_dodeca.h"

#include <cmath>

namespace gp {

namespace {

constexpr int kStrokesPerArm = 13;

enum Length { Long, Short };

// The offsets of one stroke along `heading` (a multiple of 36 degrees,
// clockwise from growing x, y down), from the floored parts only.
GridPoint Step(const GreatDodecaParts& p, int heading, Length length) {
    const bool lg = length == Long;
    const int full = lg ? p.side : p.shortSide;
    const int cos36 = lg ? p.sideCos36 : p.shortCos36, sin36 = lg ? p.sideSin36 : p.shortSin36;
    const int cos72 = lg ? p.sideCos72 : p.shortCos72, sin72 = lg ? p.sideSin72 : p.shortSin72;
    switch (heading % 360) {
        case 0: return {full, 0};
        case 36: return {cos36, sin36};
        case 72: return {cos72, sin72};
        case 108: return {-cos72, sin72};
        case 144: return {-cos36, sin36};
        case 180: return {-full, 0};
        case 216: return {-cos36, -sin36};
        case 252: return {-cos72, -sin72};
        case 288: return {cos72, -sin72};
        default: return {cos36, -sin36};  // 324
    }
}

// The walk of arm 0; arm j turns every heading by 72 j degrees. Inside the
// outline long edges are solid (fold forward) and short ones dashed (fold
// back).
struct ArmStroke {
    Length length;
    int heading;
    int style;
};

constexpr ArmStroke kArm[kStrokesPerArm] = {
    {Long, 288, 0},  {Short, 72, 0},  {Short, 144, 1}, {Long, 0, 0},    {Long, 252, 0},
    {Short, 108, 1}, {Short, 36, 1},  {Long, 252, 0},  {Short, 36, 0},  {Short, 108, 1},
    {Long, 324, 0},  {Short, 180, 1}, {Short, 252, 1},
};

} // namespace

GreatDodecaParts GreatDodecaPartsFor(Integer side) {
    const Double angle36 = 3.141592653 / 5;
    const Double angle72 = angle36 + angle36;
    GreatDodecaParts p;
    p.side = side;
    // The short edge is the long one over the golden ratio, 1.618.
    p.shortSide = Int(side / (std::cos(angle72) + std::cos(angle72) + 1));
    p.sideCos36 = Int(side * std::cos(angle36));
    p.sideSin36 = Int(side * std::sin(angle36));
    p.sideCos72 = Int(side * std::cos(angle72));
    p.sideSin72 = Int(side * std::sin(angle72));
    p.shortCos36 = Int(p.shortSide * std::cos(angle36));
    p.shortSin36 = Int(p.shortSide * std::sin(angle36));
    p.shortCos72 = Int(p.shortSide * std::cos(angle72));
    p.shortSin72 = Int(p.shortSide * std::sin(angle72));
    for (int arm = 0; arm < kGreatDodecaArms; ++arm)
        for (int k = 0; k < kStrokesPerArm; ++k) {
            const ArmStroke& st = kArm[k];
            const GridPoint d = Step(p, st.heading + 72 * arm, st.length);
            p.walk[static_cast<size_t>(arm * kStrokesPerArm + k)] = {d.x, d.y, st.style};
        }
    return p;
}

std::array<GridPoint, kGreatDodecaArms> GreatDodecaArmStarts(const GreatDodecaParts& p, Integer tileX,
                                                             Integer tileY) {
    std::array<GridPoint, kGreatDodecaArms> start;
    start[0] = {tileX, tileY};
    start[1] = {Integer(start[0].x + (p.sideCos72 + 2 * p.shortCos72)),
                Integer(start[0].y - (p.sideSin72 + 2 * p.shortSin72))};
    start[2] = {Integer(start[1].x + (p.side + 2 * p.shortSide)), start[1].y};
    start[3] = {Integer(start[2].x + (p.sideCos72 + 2 * p.shortCos72)),
                Integer(start[2].y + (p.sideSin72 + 2 * p.shortSin72))};
    start[4] = {Integer(start[3].x - (p.sideCos36 + 2 * p.shortCos36)),
                Integer(start[3].y + (p.sideSin36 + 2 * p.shortSin36))};
    return start;
}

void DrawGreatDodecaCopy(DrawingSurface& S, const GreatDodecaParts& p, Integer tileX, Integer tileY) {
    // Each arm starts anew from its corner, so the drift of one arm's floors
    // does not carry into the next.
    const auto start = GreatDodecaArmStarts(p, tileX, tileY);
    for (int arm = 0; arm < kGreatDodecaArms; ++arm) {
        for (int k = 0; k < kStrokesPerArm; ++k) {
            const GreatDodecaStroke& st = p.walk[static_cast<size_t>(arm * kStrokesPerArm + k)];
            S.setDrawStyle(st.style);
            if (k == 0)
                S.LineStep(start[arm].x, start[arm].y, st.dx, st.dy);
            else if (k == 2 && arm == 0)
                S.LineTo(tileX, tileY);  // closes on the start exactly
            else
                S.LineStep(st.dx, st.dy);
        }
        S.setDrawStyle(0);
    }
}

void TileGreatDodeca(TileSink& sink, const GreatDodecaParts& p, Integer surfaceW, Integer surfaceH,
                     int rowStart) {
    // The first row's arms 1 and 2 start on y = 0.
    Integer tileY = 2 * p.shortSin72 + p.sideSin72;
    do {
        sink.row();
        Integer tileX = rowStart;
        do {
            sink.copy(tileX, tileY);
            // The next copy is placed from where arm 4 started: the pitch
            // 4 shortSide + side plus what the floors leave of the pentagon.
            const GridPoint arm4 = GreatDodecaArmStarts(p, tileX, tileY)[4];
            tileY = arm4.y - p.sideSin36 - 2 * p.shortSin36;
            tileX = arm4.x - p.sideCos36 - 2 * p.shortCos36 + 4 * p.shortSide + p.side;
        } while (tileX <= surfaceW - 4 * p.shortSide - p.side);
        tileY = tileY + 2 * p.sideSin72 + p.shortSin36 + 2 * p.shortSin72;
        // A row is begun only if its lowest corner fits.
    } while (tileY <= surfaceH - p.shortSin72 - 2 * p.shortSin36);
}

} // namespace gp
