// The figure on the form's canvas: "Draw It".

#include <cmath>

#include "shell/random.h"
#include "stringart/frm_stick_curves.h"
#include "stringart/stick_fill.h"

namespace gp {

namespace {

// The fill's tables run to 100 on the screen.
constexpr int kScreenFillBound = 100;

struct ScreenFigure {
    DrawingSurface& M;
    Integer Leng, Count;
    Single StepX, StepY;
    StickVertex& start;

    // Stick k of the first side: mark Count - k of the base to mark k of the
    // leg. The base end is whole (16-bit sums); the leg end is a Single.
    void stick(int k) const {
        const Integer x1 = Integer(start.StartX + IMul(Integer(Count - k), Leng));
        M.Line(x1, start.StartY, start.StartX + k * Double(StepX), start.StartY + k * Double(StepY));
    }
    // The same stick of the side turned through a half turn.
    void turnedStick(int k) const {
        const Integer x1 = Integer(start.StartX - IMul(Integer(Count - k), Leng));
        M.Line(x1, start.StartY, start.StartX - k * Double(StepX), start.StartY - k * Double(StepY));
    }

    // sign +1 paints the first side, -1 the turned one.
    void fill(const StickInputs& in, Double StickAngle, int sign, bool fresh, StickColour& colour,
              RandomSource& random) const {
        StickCrossings table(kScreenFillBound);
        table.build(Leng, Count, StepX, -StepY, in.degrees == 90, StickAngle);
        M.setDrawWidth(1);
        if (fresh) colour = FreshStickColour(random);
        const long rgb = RGB(colour.red, colour.green, colour.blue);
        const Integer X = start.StartX, Y = start.StartY;
        table.hatch(Count, colour.Parity, [&](Integer a, Integer b, Integer c, Integer d) {
            if (sign > 0)
                M.Line(Integer(X + c), Integer(Y - a), Integer(X + d), Integer(Y - b), rgb);
            else
                M.Line(Integer(X - c), Integer(Y + a), Integer(X - d), Integer(Y + b), rgb);
        });
    }
};

} // namespace

void DrawStickCurves(DrawingSurface& M, const StickInputs& in, StickVertex& start,
                     RandomSource& random) {
    const Single Wide = M.ScaleWidth();
    const Single High = M.ScaleHeight();
    const Double StickAngle = in.radians();
    CheckStickAngle(StickAngle);
    const Integer Leng = Int(in.distance * 1440.0);
    CheckStickLeng(Leng);
    const Single StepY = CSng(-Leng * std::sin(StickAngle));
    const Single StepX = CSng(Leng * std::cos(StickAngle));

    start.StartX = 2400;
    start.StartY = CInt(High - 500.0f);

    // The leg length that reaches the top edge.
    const Single Limit = CSng((High - 500.0) / std::sin(StickAngle));
    Integer Count;
    if (in.degrees > 90) {
        // The leg leans left: the vertex moves right so that it ends near
        // the panel.
        Single Length = CSng((Wide - Double(start.StartX)) / (1 - std::cos(StickAngle)));
        if (Limit < Length) Length = Limit;
        Count = Int(Double(Length) / Leng);
        start.StartX = CInt(Int(Length * std::cos(Double(kStickPi) - StickAngle)) + start.StartX);
    } else if (!in.doubled) {
        Count = CInt((Wide - Double(start.StartX)) / Leng);
        if (IMul(Leng, Count) * std::sin(StickAngle) > start.StartY)
            Count = CInt(start.StartY / (Leng * std::sin(StickAngle)));
    } else {
        // A rhombus is as wide as Length * (1 + cos).
        Single Length = CSng((Wide - Double(start.StartX)) / (1 + std::cos(StickAngle)));
        if (Limit < Length) Length = Limit;
        Count = Int(Double(Length) / Leng);
    }
    if (in.filled()) CheckStickCount(Count, kScreenFillBound);

    ScreenFigure fig{M, Leng, Count, StepX, StepY, start};
    StickColour colour{};

    if (!in.doubled) {
        // The base is as long as the canvas is high, whatever the marks.
        M.LineStep(start.StartX, start.StartY, High, 0);
        M.setDrawWidth(1);
        for (int k = 1; k <= Count; ++k) fig.stick(k);
        if (in.filled()) fig.fill(in, StickAngle, +1, true, colour, random);
        return;
    }

    M.LineStep(start.StartX, start.StartY, IMul(Leng, Count), 0);
    M.LineStep(start.StartX, start.StartY, StepX, StepY);
    for (Integer Mark = 2; Mark < Count && start.StartX > 100; ++Mark) M.LineStep(StepX, StepY);
    for (int k = 0; k <= Count; ++k) fig.stick(k);
    if (in.filled()) fig.fill(in, StickAngle, +1, true, colour, random);

    // The second side: the vertex goes to the opposite corner of the rhombus.
    start.StartX = CInt((1 + std::cos(StickAngle)) * IMul(Leng, Count) + start.StartX);
    start.StartY = CInt(start.StartY - IMul(Leng, Count) * std::sin(StickAngle));
    M.LineStep(start.StartX, start.StartY, -IMul(Leng, Count), 0);
    M.LineStep(start.StartX, start.StartY, -StepX, -StepY);
    for (Integer Mark = 2; Mark <= Count && start.StartX > 100; ++Mark) M.LineStep(-StepX, -StepY);
    for (int k = 0; k <= Count; ++k) fig.turnedStick(k);
    if (in.filled())
        fig.fill(in, StickAngle, -1, in.fill == StickFill::RandomColor, colour, random);
}

} // namespace gp
