#include "explode/frm_explode_it.h"

#include <cmath>
#include <optional>

#include "explode/graph_points.h"

namespace gp {

namespace {
const char* const kIntervalPrompt = "Enter the interval in thousandths of seconds";
const char* const kIntervalTitle = "Time interval";
constexpr int kDefaultInterval = 500;

// CInt of the whole reply, where it is an interval the timer can take.
std::optional<int> IntervalOf(const std::string& reply) {
    if (Trim(reply).empty()) return std::nullopt;
    Double value = 0;
    try {
        value = CDbl(reply);
    } catch (const Fault&) {
        return std::nullopt;  // no number: the caller explains and goes on
    }
    const Double rounded = std::nearbyint(value);  // half to even, as CInt
    if (rounded < 0 || rounded > 32767) return std::nullopt;
    return static_cast<int>(CInt(rounded));
}
} // namespace

FrmExplodeIt::FrmExplodeIt(FormSet& app)
    : Form(app, Design()),
      txtStart(textBox("txtStart")),
      txtEnd(textBox("txtEnd")),
      txtSteps(textBox("txtSteps")),
      txtr11(textBox("txtr11")),
      txtr12(textBox("txtr12")),
      txtr21(textBox("txtr21")),
      txtr22(textBox("txtr22")),
      optScalar(option("optScalar")),
      optRight(option("optRight")),
      optUp(option("optUp")),
      optMultiplier(option("optMultiplier")),
      Timer1(timer("Timer1")) {
    for (int i = 0; i <= 10; ++i) {
        txtX[i] = &textBox("txtX", i);
        txtY[i] = &textBox("txtY", i);
    }
    on(kFormEvents, Event::Load, [this](const EventArgs&) { Form_Load(); });
    on(kFormEvents, Event::Activate, [this](const EventArgs&) { Form_Activate(); });
    on(kFormEvents, Event::KeyDown, [this](const EventArgs&) { Form_KeyDown(); });
    on(kFormEvents, Event::QueryUnload, [this](const EventArgs&) { Form_QueryUnload(); });
    on(kFormEvents, Event::MouseDown, [this](const EventArgs& a) { Form_MouseDown(a.x, a.y); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
    on("cmdPlotPoints", Event::Click, [this](const EventArgs&) { cmdPlotPoints_Click(); });
    on("cmdClear", Event::Click, [this](const EventArgs&) { cmdClear_Click(); });
    on("cmdBegin", Event::Click, [this](const EventArgs&) { cmdBegin_Click(); });
    on("cmdQuit", Event::Click, [this](const EventArgs&) { cmdQuit_Click(); });
    on("Timer1", Event::Timer, [this](const EventArgs&) { Timer1_Timer(); });
    on("mnuExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
    on("mnuRunner", Event::Click, [this](const EventArgs&) { mnuRunner_Click(); });
    on("mnuSquares", Event::Click, [this](const EventArgs&) { mnuSquares_Click(); });
    on("mnuTriangles", Event::Click, [this](const EventArgs&) { mnuTriangles_Click(); });
}

// ---------------------------------------------------------------- drawing

void FrmExplodeIt::PlotIt(const Integer& k) {
    StartValue = CSng(Val(txtStart.Text()));
    EndValue = CSng(Val(txtEnd.Text()));
    const Double steps = Val(txtSteps.Text());
    // No step size without a number of steps: the frame stays empty. The
    // handlers that the user starts by hand have said why already; a tick
    // draws nothing while the box is being retyped.
    if (steps == 0) return;
    StepSize = CSng((Double(EndValue) - Double(StartValue)) / steps);

    enum class Mode { None, Multiplier, Scalar, Right, Up };
    const Mode mode = optMultiplier.Value() ? Mode::Multiplier
                      : optScalar.Value()   ? Mode::Scalar
                      : optRight.Value()    ? Mode::Right
                      : optUp.Value()       ? Mode::Up
                                            : Mode::None;
    if (mode == Mode::None) return;

    if (mode == Mode::Multiplier) {
        // Both new values come from the old ones; the table keeps the product,
        // so every Multiplier frame builds on the one before.
        for (int i = 1; i <= PointCount; ++i) {
            const Single x = CSng(Double(PtX[i]) * R11 + Double(PtY[i]) * R12);
            const Single y = CSng(Double(PtX[i]) * R21 + Double(PtY[i]) * R22);
            PtX[i] = x;
            PtY[i] = y;
        }
    }

    // The run value of frame k: the factor in Scalar mode, the shift in Right and Up.
    const Double v = Double(k) * StepSize + StartValue;
    struct Placed {
        Double formX, formY;    // where the stroke goes, in twips
        Double shownX, shownY;  // the graph values that the boxes show
    };
    auto place = [&](int j) -> Placed {
        const Double x = PtX[j], y = PtY[j];
        switch (mode) {
        case Mode::Scalar:
            return {kGraphOriginX + kGraphUnit * (v * x), kGraphOriginY - kGraphUnit * (v * y), v * x, v * y};
        case Mode::Right:
            return {kGraphOriginX + kGraphUnit * (x + v), kGraphOriginY - kGraphUnit * y, x + v, y};
        case Mode::Up:
            // k * 240 is a 16-bit product here: it limits Up mode to frame 136.
            return {kGraphOriginX + kGraphUnit * x,
                    kGraphOriginY - kGraphUnit * y - Double(IMul(k, kGraphUnit)) * StepSize -
                        kGraphUnit * Double(StartValue),
                    x, y + v};
        default:
            return {kGraphOriginX + kGraphUnit * x, kGraphOriginY - kGraphUnit * y, x, y};
        }
    };

    for (int i = 1; i <= PointCount - 1; ++i) {
        const Placed a = place(i);
        const Placed b = place(i + 1);
        Me().Line(a.formX, a.formY, b.formX, b.formY);
        if (i < 12) ShowPoint(i, a.shownX, a.shownY);
    }
}

void FrmExplodeIt::PlotLoadedTable() {
    const Integer zero = 0;
    // Once Begin has read the user's matrix, a Multiplier frame multiplies the
    // loaded shape in place like any other frame.
    if (matrixTaken_) {
        PlotIt(zero);
        return;
    }
    const PointTable kept = Table;
    try {
        PlotIt(zero);
    } catch (const Fault&) {
        Table = kept;
        throw;
    }
    // The matrix is still all zeros: the frame shows that product, but the
    // shape stays as loaded, so that the next Begin does not start from a
    // table wiped out to the origin.
    Table = kept;
}

void FrmExplodeIt::ShowPoint(int i, Double x, Double y) {
    txtX[i - 1]->setText(TenthsText(x));
    txtY[i - 1]->setText(TenthsText(y));
}

void FrmExplodeIt::PrintCounter() {
    Me().CurrentX = 8700;
    Me().CurrentY = 1100;
    Me().Print(StepIndex);
}

bool FrmExplodeIt::StepsReadZero() const { return Val(txtSteps.Text()) == 0; }

void FrmExplodeIt::RefuseZeroSteps(const std::string& what) const {
    if (StepsReadZero())
        throwInvalid(what + ": Steps reads as 0, and the shape moves by (End - Start) / Steps. "
                            "Please type a number of steps other than 0.");
}

// ---------------------------------------------------------------- opening and ways out

void FrmExplodeIt::Form_Load() {
    // A new instance starts its click and frame counters afresh; showing the
    // form again does not reset them.
    ClickCount = 0;
    StepIndex = 0;
}

void FrmExplodeIt::Form_Activate() {
    Table.load(RunnerShape());
    PointCount = 24;
    savedIsTable_ = false;
    for (int i = 1; i <= 11; ++i) ShowPoint(i, PtX[i], PtY[i]);
    SetIntervalFromReply(InputBox(kIntervalPrompt, kIntervalTitle, std::to_string(kDefaultInterval), 6000, 6000));
    PlotLoadedTable();
}

void FrmExplodeIt::SetIntervalFromReply(const std::string& reply) {
    if (const std::optional<int> interval = IntervalOf(reply)) {
        Timer1.setInterval(*interval);
        return;
    }
    // Cancel or a reply the timer cannot take: say so once and use the
    // interval that the question proposed.
    const std::string why = Trim(reply).empty()
                                ? std::string("No interval was given")
                                : "\"" + reply + "\" is not a whole number of thousandths of seconds from 0 to 32767";
    MsgBox(why + ", so the shape will change every " + std::to_string(kDefaultInterval) +
               " thousandths of a second.",
           0, kIntervalTitle);
    Timer1.setInterval(kDefaultInterval);
}

void FrmExplodeIt::Form_KeyDown() { UnloadMe(); }

void FrmExplodeIt::Form_QueryUnload() { cmdExit_Click(); }

// Hides the form and leaves Timer1 alone: a run goes on while the form is away.
void FrmExplodeIt::cmdExit_Click() { Hide(); }

// ---------------------------------------------------------------- the table

void FrmExplodeIt::cmdPlotPoints_Click() {
    RefuseZeroSteps("Nothing was plotted");
    const bool scalar = optScalar.Value();
    const std::string keptStart = txtStart.Text();
    const PointTable kept = Table;
    // Scalar mode shows the shape at its plain size, whatever Start says.
    if (scalar) txtStart.setText("1");
    try {
        Me().Cls();
        const Integer zero = 0;
        PlotIt(zero);
    } catch (const Fault&) {
        Table = kept;
        if (scalar) txtStart.setText(keptStart);
        throw;
    }
    // Take back what a Multiplier frame did: from the shape of the last Begin
    // while that is the shape on show, else from the table as it stood.
    Table.takePoints(savedIsTable_ ? Saved : kept, PointCount);
    for (int i = 1; i <= PointCount && i < 12; ++i) ShowPoint(i, PtX[i], PtY[i]);
    if (scalar) txtStart.setText(keptStart);
}

void FrmExplodeIt::cmdClear_Click() {
    Me().Cls();
    ClickCount = 1;
}

void FrmExplodeIt::Form_MouseDown(Single X, Single Y) {
    // Only the graph area below the control strip takes points; all four
    // limits are strict.
    if (!(X > 0 && X < 12200 && Y > 1540 && Y < 9300)) return;
    if (ClickCount >= 2 && ClickCount < 200) {
        const int i = ClickCount;
        PtX[i] = CSng((Double(X) - kGraphOriginX) / kGraphUnit);
        PtY[i] = CSng((kGraphOriginY - Double(Y)) / kGraphUnit);
        Me().PSet(X, Y);
        // From the stored point before, not from the last click's pixel.
        Me().Line(kGraphOriginX + kGraphUnit * Double(PtX[i - 1]),
                  kGraphOriginY - kGraphUnit * Double(PtY[i - 1]), X, Y);
        if (i < 12) ShowPoint(i, PtX[i], PtY[i]);
        ClickCount += 1;
        savedIsTable_ = false;
    } else if (ClickCount == 1) {
        PtX[1] = CSng((Double(X) - kGraphOriginX) / kGraphUnit);
        PtY[1] = CSng((kGraphOriginY - Double(Y)) / kGraphUnit);
        ShowPoint(1, PtX[1], PtY[1]);
        Me().PSet(X, Y);
        ClickCount += 1;
        savedIsTable_ = false;
    }
    // Before any New Graph this makes the table empty (-1); a click on a full
    // table stores nothing and leaves the saved shape the one on show.
    PointCount = ClickCount - 1;
}

// ---------------------------------------------------------------- the run

void FrmExplodeIt::cmdBegin_Click() {
    RefuseZeroSteps("The run did not start");
    const Double steps = Int(Val(txtSteps.Text()));
    if (steps < -32768 || steps > 32767)
        throwInvalid("The run did not start: Steps must lie between -32768 and 32767.");
    StepCount = steps;
    if (optMultiplier.Value()) {
        const Single r11 = CSng(Val(txtr11.Text())), r12 = CSng(Val(txtr12.Text()));
        const Single r21 = CSng(Val(txtr21.Text())), r22 = CSng(Val(txtr22.Text()));
        R11 = r11;
        R12 = r12;
        R21 = r21;
        R22 = r22;
        matrixTaken_ = true;
    }
    Saved.takePoints(Table, PointCount);
    savedIsTable_ = true;
    Timer1.setEnabled(true);
}

void FrmExplodeIt::Timer1_Timer() {
    // Frame 137 and on cannot be placed in Up mode. At the end of a cycle the
    // frame would be wiped in this same tick, so it is left out and the cycle
    // wraps as usual.
    const bool cannotPlace = optUp.Value() && PointCount >= 2 && StepIndex >= kUpLastFrame;
    const bool wrapsNow = StepIndex >= StepCount;
    if (cannotPlace && !wrapsNow) {
        // A frame that would stay on show: stop once, with the last frame
        // left on show, rather than fail on every tick; the counter starts
        // again so that the next Begin can run.
        StopRun();
        StepIndex = 0;
        throwInvalid("The run has stopped: in Up mode the shape can slide for 136 frames at most. "
                     "Please use fewer Steps, then press Begin to run again from frame 1.");
    }
    try {
        StepIndex += 1;
        Me().Cls();
        PrintCounter();
        if (!cannotPlace) PlotIt(StepIndex);
        if (StepIndex <= StepCount) return;
        // The cycle is over: frame 0 replaces the frame just drawn, in the same tick.
        StepIndex = 0;
        Me().Cls();
        PrintCounter();
        if (optMultiplier.Value()) Table.takePoints(Saved, PointCount);
        PlotIt(StepIndex);
    } catch (const Fault&) {
        // What failed now would fail again at every tick: one message, and
        // the run stops as Quit stops it.
        StopRun();
        throw;
    }
}

void FrmExplodeIt::StopRun() { cmdQuit_Click(); }

void FrmExplodeIt::cmdQuit_Click() {
    Timer1.setEnabled(false);
    // Before any Begin, or once a sample, clicks or the opening have loaded
    // another table, the saved arrays hold nothing of the shape on show:
    // keep the table as it is then.
    if (!savedIsTable_) return;
    Table.takePoints(Saved, PointCount);
}

// ---------------------------------------------------------------- samples

void FrmExplodeIt::LoadSample(const SampleShape& shape) {
    Me().Cls();
    Table.load(shape);
    PointCount = static_cast<int>(shape.size());
    savedIsTable_ = false;
    for (int i = 1; i <= 11; ++i) ShowPoint(i, PtX[i], PtY[i]);
    RefuseZeroSteps("The shape is loaded but not drawn");
    PlotLoadedTable();
}

void FrmExplodeIt::mnuRunner_Click() { LoadSample(RunnerShape()); }
void FrmExplodeIt::mnuSquares_Click() { LoadSample(SquaresShape()); }
void FrmExplodeIt::mnuTriangles_Click() { LoadSample(TrianglesShape()); }

} // namespace gp
