#pragma once
// frmStickCurves, "Stick Curves": two legs meet at a vertex at a chosen
// angle, both are marked off at a chosen distance, and a stick joins mark k
// of one leg to mark Count - k of the other, so that the sticks envelop a
// parabola. "Double side it" adds the figure turned through a half turn,
// closing a rhombus; the cells between the sticks can be filled in a
// checkerboard. The form draws on its own canvas (14000 by 10000 units),
// prints the same figure with the page's axes exchanged, and overlays the
// figures of 10, 20, 30 ... degrees.

#include "shell/form.h"

namespace gp {

// The Single constant that turns degrees into radians on this form. It is
// not pi, and the figures depend on the difference.
constexpr Single kStickPi = 3.1415925f;

enum class StickFill { RandomColor, Same, NoColor };

// What a press reads from the form, as the handlers see it.
struct StickInputs {
    Double degrees = 0;        // Val(txtAngle.Text)
    Single distance = 0;       // Val(txtTics.Text), inches between marks
    bool doubled = false;      // chkDouble
    StickFill fill = StickFill::RandomColor;

    // StickAngle: the degrees in radians, by the form's own constant.
    Double radians() const { return degrees * Double(kStickPi) / 180; }
    bool filled() const { return fill != StickFill::NoColor; }
};

// The vertex of the figure being drawn.
struct StickVertex {
    Integer StartX, StartY;
};

class FrmStickCurves : public Form {
public:
    explicit FrmStickCurves(FormSet& app);
    static FormDesign Design();

    void cmdDrawIt_Click();
    void cmdPrintIt_Click();
    void cmdAnimate_Click();
    void lblAngle_MouseDown(int Button);
    void txtAngle_LostFocus();
    void cmdExit_Click();

    std::string canvasDescription() const override {
        return "Stick curves: strings between the marks on the two sides of an angle, drawn by Draw It";
    }

    // The form-level fields, for a look from outside (tests).
    const StickVertex& vertex() const { return start_; }
    Double stickAngle() const { return StickAngle; }
    Single stickDistance() const { return StickDistance; }

private:
    StickInputs readInputs() const;

    TextBox& txtAngle;
    TextBox& txtTics;

    StickVertex start_;
    Double StickAngle = 0;     // a number in a variant: degrees, at once radians
    Single StickDistance = 0;
};

// The figure of "Draw It" on a canvas of the form's scale; the caller has
// cleared the canvas.
void DrawStickCurves(DrawingSurface& M, const StickInputs& in, StickVertex& start,
                     RandomSource& random);

// One sheet of the figure on the Printer, ended by EndDoc. `timer` seeds the
// colours of a fill.
void PrintStickCurves(DrawingSurface& P, const StickInputs& in, StickVertex& start,
                      RandomSource& random, Single timer);

// The figures for 10, 20, 30 ... degrees up to the typed angle, on top of
// each other, on a canvas that was cleared by the caller.
void DrawStickMulti(DrawingSurface& M, const std::string& angleText, const std::string& ticsText,
                    StickVertex& start, Double& StickAngle, Single& StickDistance);

// Refusals shared by the three drawings: they stop a press before a stroke
// is drawn, where the figure would divide by zero, never end or run past
// the fill's tables.
void CheckStickAngle(Double StickAngle);
void CheckStickLeng(Integer Leng);
void CheckStickCount(Integer Count, int bound);

} // namespace gp
