#include "stringart/stick_fill.h"

#include <algorithm>
#include <cmath>

#include "shell/random.h"

namespace gp {

StickColour FreshStickColour(RandomSource& random) {
    StickColour c;
    c.red = CInt(random.Rnd() * 255.0);
    c.green = CInt(random.Rnd() * 255.0);
    c.blue = CInt(random.Rnd() * 255.0);
    c.Parity = Int(random.Rnd() * 2.0);
    return c;
}

StickCrossings::StickCrossings(int bound)
    : n_(bound),
      baseTic_(bound + 1),
      legTicX_(bound + 1),
      legTicY_(bound + 1),
      slope_(bound + 1),
      crossX_((bound + 1) * (bound + 1)),
      crossY_((bound + 1) * (bound + 1)) {}

void StickCrossings::sameHeight() {
    throwInvalid("The fill stopped: two crossings of the sticks fall at the same height, so a cell "
                 "has no height to paint. Please use a longer distance or choose \"No Color\".");
}

void StickCrossings::build(Integer Leng, Integer Count, Single legStepX, Single legStepY,
                           bool rightAngle, Double StickAngle) {
    // The leg's own slope comes from the angle, the others from their marks;
    // a right angle is taken as exactly upright, whatever the tangent says.
    slope_[at(0)] = rightAngle ? 0.0f : CSng(-1 / std::tan(StickAngle));
    for (int k = 0; k <= Count; ++k) {
        baseTic_[at(k)] = IMul(Leng, k);
        legTicX_[at(k)] = CSng(k * Double(legStepX));
        legTicY_[at(k)] = CSng(Double(legStepY) * k);
    }
    for (int i = 1; i <= Count - 1; ++i) {
        // Worked in Double, stored as a Single.
        slope_[at(i)] = CSng(Div(BaseTic(i) - Double(LegTicX(Count - i)), LegTicY(Count - i)));
    }
    for (int i = 0; i <= Count; ++i) {
        crossX_[cell(i, Count)] = Single(BaseTic(i));
        crossY_[cell(i, Count)] = 0;
        crossX_[cell(0, i)] = LegTicX(Count - i);
        crossY_[cell(0, i)] = LegTicY(Count - i);
    }
    // Each crossing is rounded to whole units: first its height T, then its
    // x from that rounded height.
    for (int i = 1; i <= Count - 2; ++i) {
        for (int j = i + 1; j <= Count - 1; ++j) {
            const Double apart = Double(StickSlope(i)) - StickSlope(j);
            const Integer T = CInt(Div(Double(CrossX(j, Count)) - CrossX(i, Count), apart));
            crossX_[cell(i, j)] = Single(CInt(T * Double(StickSlope(i)) + CrossX(i, Count)));
            crossY_[cell(i, j)] = Single(-T);
        }
    }
}

double StickCrossings::hatchLines(Integer Count) const {
    double lines[2] = {0, 0};
    for (int i = 1; i <= Count - 1; ++i)
        for (int j = i + 2; j <= Count; ++j) {
            const double rows = std::floor(-(CrossY(i - 1, j) - CrossY(i - 1, j - 1)));
            if (rows > 0) lines[(i + j) % 2] += rows + 1;
        }
    return std::max(lines[0], lines[1]);
}

} // namespace gp
