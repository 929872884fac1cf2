#include "grids/hexagon_series.h"

#include <cmath>

#include "grids/hexagon.h"
#include "grids/integer_range.h"

namespace gp {

namespace {

const Double kAngle = 3.141592653 / 3;

// Half the height of a hexagon of this side.
Integer RiseOf(Integer side) { return Int(side * std::sin(kAngle)); }

[[noreturn]] void RefuseEndless() {
    throwInvalid("Nothing was printed: with this scaling factor the hexagons stop changing "
                 "size, so the series would never end. Please use a factor further from 1, "
                 "such as 0.5.");
}

// The side after one scaling, or nothing when it leaves the Integer range:
// such a side is far past half a page (or far below 0), so the series ends
// there in any case.
bool NextSide(Integer side, Double factor, Integer& next) {
    const Double scaled = side * factor;
    if (!FitsInteger(scaled)) return false;
    next = CInt(scaled);
    return true;
}

// A series can hold no more hexagons than there are sides in an Integer.
constexpr std::size_t kMostHexagons = 65536;

} // namespace

std::vector<HexagonPlace> InscribedSeries(Integer side, Integer pageW, Double factor) {
    std::vector<HexagonPlace> series;
    const Integer x = CInt(side / 2.0);
    while (pageW / 2.0 >= side && side >= 36) {
        series.push_back({x, 0, side, RiseOf(side)});
        Integer next;
        if (!NextSide(side, factor, next)) break;
        // The rounding gives the same side back: the loop would run for ever.
        if (next == side || series.size() > kMostHexagons) RefuseEndless();
        side = next;
    }
    return series;
}

std::vector<HexagonPlace> TargetSeries(Integer side, Integer pageW, Double factor) {
    std::vector<HexagonPlace> series;
    Integer y = 0;
    Integer x = CInt(side / 2.0);
    while (pageW / 2.0 >= side && side >= 72) {
        series.push_back({x, y, side, RiseOf(side)});
        Integer next;
        if (!NextSide(side, factor, next)) break;
        if (next == side || series.size() > kMostHexagons) RefuseEndless();
        // The loop ends on this side: the corner it would have moved to is
        // never used.
        if (!(pageW / 2.0 >= next && next >= 72)) break;
        // The new corner keeps the centre, and is worked out from the old side.
        x = CInt((1 - factor) * side / 2 + x);
        y = CInt((1 - factor) * side * std::sin(kAngle) + y);
        side = next;
    }
    return series;
}

void PrintHexagonSeries(DrawingSurface& P, const std::vector<HexagonPlace>& series) {
    for (const HexagonPlace& h : series) DrawHexagon(P, h.x, h.y, h.side, h.rise);
    P.EndDoc();
}

} // namespace gp
