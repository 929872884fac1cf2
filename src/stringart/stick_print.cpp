// The figure on the Printer: "Print It". The page shows the screen's figure
// with x and y exchanged: the base runs down the left of the page from the
// vertex and the leg leaves it to the right.

#include <cmath>

#include "shell/random.h"
#include "stringart/frm_stick_curves.h"
#include "stringart/stick_fill.h"

namespace gp {

namespace {

// The fill's tables run to 200 on paper.
constexpr int kPageFillBound = 200;

} // namespace

void PrintStickCurves(DrawingSurface& P, const StickInputs& in, StickVertex& start,
                      RandomSource& random, Single timer) {
    const Double StickAngle = in.radians();
    CheckStickAngle(StickAngle);
    // The page rounds the mark distance to nearest where the screen floors.
    const Integer Leng = CInt(in.distance * 1440.0);
    CheckStickLeng(Leng);
    const Single StepSin = CSng(Leng * std::sin(StickAngle));
    const Single StepCos = CSng(Leng * std::cos(StickAngle));
    start.StartX = 200;
    start.StartY = 200;

    // The leg length that reaches the page's right side.
    const Single Limit = CSng((P.ScaleWidth() - 200.0) / std::sin(StickAngle));
    const Double turned = std::cos(Double(kStickPi) - StickAngle);
    Single Length;
    if (!in.doubled && in.degrees > 90) {
        Length = CSng((P.ScaleHeight() - 200.0) / (1 - std::cos(StickAngle)));
        if (Limit < Length) Length = Limit;
        start.StartY = CInt(Int(Length * turned) + 200);
    } else if (!in.doubled) {
        Length = CSng(P.ScaleHeight() - 200.0);
        if (Limit < Length) Length = Limit;
    } else if (in.degrees > 90) {
        Length = CSng((P.ScaleHeight() - 300.0) / (1 - std::cos(StickAngle)));
        if (Limit < Length) Length = Limit;
        start.StartY = Int(Length * turned);
    } else {
        Length = CSng((P.ScaleHeight() - 300.0) / (1 + std::cos(StickAngle)));
        if (Limit < Length) Length = Limit;
    }
    // Count is a Double that holds a whole number; the loops run to CInt(Count).
    const Double Count = Int(Double(Length) / Leng);
    const Integer last = CInt(Count);
    StickCrossings table(in.filled() ? kPageFillBound : 0);
    if (in.filled()) {
        CheckStickCount(last, kPageFillBound);
        // The tables depend on nothing that the strokes change, so they are
        // worked out first: a sheet too big for any printer (a page of a
        // size far beyond paper) is refused before its first stroke.
        table.build(Leng, last, StepCos, StepSin, in.degrees == 90, StickAngle);
        const double sides = in.doubled ? 2 : 1;
        if (sides * (table.hatchLines(last) + last + 1) > WorkMeter::kDefaultLimit) throwWorkLimit();
    }

    for (int k = 0; k <= last; ++k)
        P.Line(start.StartX, (Count - k) * Leng + start.StartY, k * Double(StepSin) + start.StartX,
               k * Double(StepCos) + start.StartY);

    StickColour colour{};
    long rgb = 0;
    if (in.filled()) {
        P.setDrawWidth(2);
        random.Randomize(timer);
        colour = FreshStickColour(random);
        rgb = RGB(colour.red, colour.green, colour.blue);
        const Integer X = start.StartX, Y = start.StartY;
        table.hatch(last, colour.Parity, [&](Integer a, Integer b, Integer c, Integer d) {
            P.Line(Integer(X + a), Integer(Y + c), Integer(X + b), Integer(Y + d), rgb);
        });
    }
    if (!in.doubled) {
        P.EndDoc();
        return;
    }

    // The second side, turned through a half turn about the rhombus's centre.
    start.StartY = CInt((Leng * Count) * (1 + std::cos(StickAngle)) + start.StartY);
    start.StartX = CInt(Leng * Count * std::sin(StickAngle) + start.StartX);
    for (int k = 0; k <= last; ++k)
        P.Line(start.StartX, -(Count - k) * Leng + start.StartY, -Double(StepSin) * k + start.StartX,
               -Double(StepCos) * k + start.StartY);
    if (in.filled()) {
        // The crossings of the first side serve again; only the colour may
        // be drawn anew.
        if (in.fill == StickFill::RandomColor) {
            colour = FreshStickColour(random);
            rgb = RGB(colour.red, colour.green, colour.blue);
        }
        const Integer X = start.StartX, Y = start.StartY;
        table.hatch(last, colour.Parity, [&](Integer a, Integer b, Integer c, Integer d) {
            P.Line(Integer(X - a), Integer(Y - c), Integer(X - b), Integer(Y - d), rgb);
        });
    }
    P.EndDoc();
}

} // namespace gp
