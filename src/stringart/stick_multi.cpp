// "MultiDrawing1": one plain stick figure for each of 10, 20, 30 ... degrees
// up to the typed angle, all on top of each other from one vertex.

#include <cmath>

#include "stringart/frm_stick_curves.h"

namespace gp {

void DrawStickMulti(DrawingSurface& M, const std::string& angleText, const std::string& ticsText,
                    StickVertex& start, Double& StickAngle, Single& StickDistance) {
    const Double lastDegrees = Int(Val(angleText));
    // Past a half turn the leg would walk down or back along the base, and
    // straight down it would never leave the form.
    if (lastDegrees >= 180)
        throwInvalid("Nothing was drawn: MultiDrawing1 draws the angles 10, 20, 30 ... up to 170 "
                     "degrees. Please enter an angle from 10 to 170.");
    if (lastDegrees < 10) return;  // no angle to draw: the canvas stays clear
    const Integer Last = lastDegrees;
    for (Integer Degrees = 10; Degrees <= Last; Degrees += 10) {
        const Single radians = Single(Degrees) * kStickPi / 180.0f;
        StickAngle = radians;
        StickDistance = CSng(Val(ticsText));
        const Integer Leng = CInt(StickDistance * 1440.0f);
        // A step of zero would walk the leg on the spot for ever.
        CheckStickLeng(Leng);
        const Single StepY = CSng(-Leng * std::sin(StickAngle));
        const Single StepX = CSng(Leng * std::cos(StickAngle));
        start.StartX = 4000;
        start.StartY = 9500;
        M.LineStep(4000, 9500, 9500, 0);
        M.LineStep(start.StartX, start.StartY, StepX, StepY);
        // The leg goes on from mark to mark until it nears an edge of the form.
        Integer Marks = 2;
        while (Single(start.StartX) + Single(Marks) * StepX < M.ScaleWidth() - 100.0f &&
               Single(start.StartX) + Single(Marks) * StepX > 0 &&
               Single(start.StartY) + Single(Marks) * StepY > 200) {
            M.LineStep(StepX, StepY);
            Marks += 1;
        }
        // The base marks stay on the base.
        if (IMul(Leng, Marks) > 9500) Marks = Int(9500 / Double(Leng));
        for (int k = 1; k <= Marks; ++k)
            M.Line(Integer(start.StartX + IMul(Integer(Marks - k), Leng)), start.StartY,
                   Single(start.StartX) + Single(k) * StepX, Single(start.StartY) + Single(k) * StepY);
    }
}

} // namespace gp
