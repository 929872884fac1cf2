#pragma once
// The checkerboard fill of a stick figure. Stick i runs from mark i of the
// base to mark Count - i of the leg, so stick 0 is the leg and stick Count
// the base. The crossing of every pair of sticks is worked out once, rounded
// to whole units, and the cells between neighbouring sticks are then painted,
// every other one, by lines one unit apart from one long side to the other.
//
// All coordinates here are relative to the vertex, with y upwards; the
// screen and the page place them differently, so the hatch hands each line's
// four numbers to the caller.

#include <vector>

#include "shell/numbers.h"

namespace gp {

class RandomSource;

// The colour and the parity of the board of one side.
struct StickColour {
    Integer red, green, blue;
    Integer Parity;  // which colour of the board is filled: 0 or 1
};

// red, green, blue, then Parity, in that order from the one random sequence.
StickColour FreshStickColour(RandomSource& random);

class StickCrossings {
public:
    // Every array runs from 0 To bound (in both dimensions for the crossings).
    explicit StickCrossings(int bound);
    int bound() const { return n_; }

    // The crossing tables of one figure. Mark k of the leg lies at
    // (k * legStepX, legStepY * k) from the vertex, y upwards.
    void build(Integer Leng, Integer Count, Single legStepX, Single legStepY, bool rightAngle,
               Double StickAngle);

    // Every line of the hatched cells in turn: emit(a, b, c, d), a and c the
    // height and offset of the start on stick i - 1, b and d of the end on
    // stick i.
    template <typename Emit>
    void hatch(Integer Count, Integer Parity, Emit&& emit) const;

    // How many lines hatch() would draw with the busier of the two
    // parities, worked out from the tables alone.
    double hatchLines(Integer Count) const;

    Single CrossX(int i, int j) const { return crossX_[cell(i, j)]; }
    Single CrossY(int i, int j) const { return crossY_[cell(i, j)]; }
    Single StickSlope(int i) const { return slope_[at(i)]; }
    Integer BaseTic(int k) const { return baseTic_[at(k)]; }
    Single LegTicX(int k) const { return legTicX_[at(k)]; }
    Single LegTicY(int k) const { return legTicY_[at(k)]; }

private:
    int at(int k) const {
        if (k < 0 || k > n_) throwSubscript(k);
        return k;
    }
    int cell(int i, int j) const { return at(i) * (n_ + 1) + at(j); }
    [[noreturn]] static void sameHeight();

    int n_;
    std::vector<Integer> baseTic_;
    std::vector<Single> legTicX_, legTicY_, slope_, crossX_, crossY_;
};

template <typename Emit>
void StickCrossings::hatch(Integer Count, Integer Parity, Emit&& emit) const {
    for (int i = 1; i <= Count - 1; ++i) {
        for (int j = i + 2; j <= Count; ++j) {
            if ((i + j) % 2 != Parity) continue;
            // The cell lies between sticks i - 1 and i, and between sticks
            // j - 1 and j; its height is measured on stick i - 1.
            const Integer Rows = Int((Double(CrossY(i - 1, j)) - CrossY(i - 1, j - 1)) / -1);
            if (Rows == 0) sameHeight();
            const Single Rise = CSng((Double(CrossY(i, j)) - CrossY(i, j - 1)) / -Rows);
            for (int t = 0; t <= Rows; ++t) {
                // Worked in Double from the Single tables, floored to whole units.
                const Integer a = Int(CrossY(i - 1, j - 1) - Double(t));
                const Integer b = Int(CrossY(i, j - 1) - t * Double(Rise));
                const Integer c = Int(-Double(StickSlope(i - 1)) * a + CrossX(i - 1, Count));
                const Integer d = Int(-Double(StickSlope(i)) * b + CrossX(i, Count));
                emit(a, b, c, d);
            }
        }
    }
}

} // namespace gp
