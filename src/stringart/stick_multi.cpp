// "MultiDrawing1": one plain stick figure for each of 10, 20, 30 ... degrees
// up to the typed angle, all on top of each other from one vertex.

#include <cmath>

#include "stringart/frm_stick_curves.h"

namespace gp {

namespace {

// One figure's leg, stepping from the vertex (4000, 9500).
struct MultiLeg {
    Single StepX, StepY;

    // The walk goes on from mark to mark until it nears an edge of the form.
    bool goesOn(Integer Marks, Single scaleWidth) const {
        const Double x = 4000 + Marks * Double(StepX);
        return x < scaleWidth - 100.0 && x > 0 && 9500 + Marks * Double(StepY) > 200;
    }
};

MultiLeg LegAt(Integer Degrees, Integer Leng, Double& StickAngle) {
    StickAngle = CSng(Degrees * Double(kStickPi) / 180);
    return MultiLeg{CSng(Leng * std::cos(StickAngle)), CSng(-Leng * std::sin(StickAngle))};
}

} // namespace

void DrawStickMulti(DrawingSurface& M, const std::string& angleText, const std::string& ticsText,
                    StickVertex& start, Double& StickAngle, Single& StickDistance) {
    const Integer Last = Int(Val(angleText));
    if (Last < 10) return;  // no angle to draw: the canvas stays clear
    const Integer Leng = CInt(CSng(Val(ticsText)) * 1440.0);
    // A step of zero would walk the leg on the spot for ever.
    CheckStickLeng(Leng);
    // A leg that runs along the form's edge (straight down, for one) would
    // walk past the Integer range of its mark counter before it left the
    // form, and a great many angles make a job no window should wait for:
    // both are refused before the first stroke.
    double strokes = 0;
    for (long Degrees = 10; Degrees <= Last; Degrees += 10) {
        Double angle = 0;
        const MultiLeg leg = LegAt(Integer(Degrees), Leng, angle);
        long Marks = 2;
        for (; leg.goesOn(Integer(Marks), M.ScaleWidth()); ++Marks)
            if (Marks == 32767)
                throwInvalid("Nothing was drawn: at " + std::to_string(Degrees) +
                             " degrees the leg would never leave the form. Please enter an angle "
                             "from 10 to 170 degrees and a distance above 0.");
        strokes += 2.0 * Marks;
        if (strokes > WorkMeter::kDefaultLimit) throwWorkLimit();
    }
    for (long Degrees = 10; Degrees <= Last; Degrees += 10) {
        StickDistance = CSng(Val(ticsText));
        const MultiLeg leg = LegAt(Integer(Degrees), Leng, StickAngle);
        start.StartX = 4000;
        start.StartY = 9500;
        M.LineStep(4000, 9500, 9500, 0);
        M.LineStep(start.StartX, start.StartY, leg.StepX, leg.StepY);
        Integer Marks = 2;
        while (leg.goesOn(Marks, M.ScaleWidth())) {
            M.LineStep(leg.StepX, leg.StepY);
            Marks += 1;
        }
        // The base marks stay on the base.
        if (IMul(Leng, Marks) > 9500) Marks = Int(9500 / Double(Leng));
        for (int k = 1; k <= Marks; ++k)
            M.Line(Integer(start.StartX + IMul(Integer(Marks - k), Leng)), start.StartY,
                   start.StartX + k * Double(leg.StepX), start.StartY + k * Double(leg.StepY));
    }
}

} // namespace gp
