// "Print It" of frmString2. The page carries the figure with its axes
// exchanged: plot y runs along the page's x and plot x down the page, both
// from the top left corner, so the wide canvas lies along a portrait sheet.

#include "stringart/frm_string2.h"

namespace gp {

void FrmString2::PrintLin(Integer a, Integer b, Integer c, Integer d) {
    Printer().Line(b, a, d, c);
}

void FrmString2::PrintConnectEm() { PrintCorner(Integer(TicsToDraw()), kForeground); }

void FrmString2::PrintEmColor() {
    const Integer Tics = TicsToDraw();
    LineRed = Int(Rnd() * 255.0);
    LineGreen = Int(Rnd() * 255.0);
    LineBlue = Int(Rnd() * 255.0);
    PrintCorner(Tics, RGB(LineRed, LineGreen, LineBlue));
}

void FrmString2::PrintCorner(Integer Tics, long colour) {
    const Integer Px = PX(NextPoint - 2), Py = PY(NextPoint - 2);
    const Integer Qx = PX(NextPoint - 1), Qy = PY(NextPoint - 1);
    const Integer Rx = PX(NextPoint), Ry = PY(NextPoint);
    const Single StepPx = CSng(Integer(Qx - Px) / Double(Tics));
    const Single StepPy = CSng(Integer(Qy - Py) / Double(Tics));
    const Single StepQx = CSng(Integer(Rx - Qx) / Double(Tics));
    const Single StepQy = CSng(Integer(Ry - Qy) / Double(Tics));
    // Paper gets the k = 0 string too: Tics + 1 strings a corner.
    for (TicIndex = 0; TicIndex <= Tics; ++TicIndex) {
        const Double k = TicIndex;
        const Double x1 = Int(k * StepPy + Py), y1 = Int(k * StepPx + Px);
        const Double x2 = Int(k * StepQy + Qy), y2 = Int(k * StepQx + Qx);
        if (colour == kForeground)
            Printer().Line(x1, y1, x2, y2);
        else
            Printer().Line(x1, y1, x2, y2, colour);
    }
}

void FrmString2::cmdPrintIt_Click() {
    LastPoint = NextPoint - 1;
    if (LastPoint < 3) {
        MsgBox("You may not print a shape with less than three points", vbOKOnly, "Need More Points");
        return;
    }
    const Integer PageHigh = CInt(Printer().ScaleHeight());
    const Integer PageWide = CInt(Printer().ScaleWidth());
    const int ScaleAnswer = MsgBox(" Do you want the shape Scaled to the width and height of the paper?",
                                   vbYesNoCancel, "Make Width of paper?");
    if (ScaleAnswer == vbCancel) return;
    const int ColorAnswer = MsgBox("Do you want random colors?", vbYesNo, "Colors?");

    // Refused here, before a stroke is made or a point is moved.
    CheckFigure(LastPoint, 1, true);
    const bool scaled = ScaleAnswer == vbYes;
    Integer SaveX[kMaxPoint + 1];
    Integer SaveY[kMaxPoint + 1];
    if (scaled) {
        Integer MaxX = PX(1), MinX = PX(1), MaxY = PY(1), MinY = PY(1);
        for (int i = 2; i <= LastPoint; ++i) {
            if (PX(i) > MaxX) MaxX = PX(i);
            if (PX(i) < MinX) MinX = PX(i);
            if (PY(i) > MaxY) MaxY = PY(i);
            if (PY(i) < MinY) MinY = PY(i);
        }
        if (MaxX == MinX || MaxY == MinY)
            throwInvalid("This shape can not be scaled to the paper: all its points share one x or one y. "
                         "Answer No to the first question to print it at full size.");
        // The factor of the direction that fills first, so that a blank of
        // at least 100 stays on each side.
        const Single wideFactor = CSng((PageWide - 200) / Double(MaxY - MinY));
        const Single highFactor = CSng((PageHigh - 200) / Double(MaxX - MinX));
        const Single FitFactor = highFactor < wideFactor ? highFactor : wideFactor;
        const Long OffsetX = IDiv(CLng((MinX - MaxX) * Double(FitFactor) + PageHigh), 2);
        const Long OffsetY = IDiv(CLng((MinY - MaxY) * Double(FitFactor) + PageWide), 2);
        for (int i = 1; i <= LastPoint; ++i) {
            SaveX[i] = PX(i);
            SaveY[i] = PY(i);
        }
        try {
            for (int i = 1; i <= LastPoint; ++i) {
                PX(i) = Int((PX(i) - MinX) * Double(FitFactor) + OffsetX);
                PY(i) = Int((PY(i) - MinY) * Double(FitFactor) + OffsetY);
            }
        } catch (...) {
            for (int i = 1; i <= LastPoint; ++i) {
                PX(i) = SaveX[i];
                PY(i) = SaveY[i];
            }
            throw;
        }
    }

    // Whatever stops the page half way, the scaled values must not stay in
    // the arrays: the next click goes on from the figure on the screen.
    auto restore = [&] {
        if (!scaled) return;
        for (int i = 1; i <= LastPoint; ++i) {
            PX(i) = SaveX[i];
            PY(i) = SaveY[i];
        }
    };
    try {
        NextPoint = 3;
        PrintLin(PX(1), PY(1), PX(2), PY(2));
        PrintLin(PX(2), PY(2), PX(3), PY(3));
        const Integer last = LastPoint;
        for (NextPoint = 3; NextPoint <= last; ++NextPoint) {
            if (ColorAnswer == vbYes)
                PrintEmColor();
            else
                PrintConnectEm();
        }
        Printer().EndDoc();
    } catch (...) {
        restore();
        throw;
    }
    restore();
}

} // namespace gp
