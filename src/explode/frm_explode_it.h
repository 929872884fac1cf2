#pragma once
// frmExplodeIt, "Explode It": a table of up to 200 points joined in order on
// a fixed pair of axes, enlarged (Scalar), slid (Right, Up) or multiplied by
// a 2 by 2 matrix (Multiplier), frame by frame on Timer1.

#include <array>
#include <string>

#include "explode/point_table.h"
#include "explode/sample_shapes.h"
#include "shell/form.h"

namespace gp {

class FrmExplodeIt : public Form {
public:
    explicit FrmExplodeIt(FormSet& app);
    static FormDesign Design();

    // Up mode works out k * 240 as a 16-bit product: the last frame it can draw.
    static constexpr int kUpLastFrame = 136;

    void Form_Load();
    void Form_Activate();
    void Form_KeyDown();
    void Form_QueryUnload();
    void Form_MouseDown(Single X, Single Y);
    void cmdExit_Click();
    void cmdPlotPoints_Click();
    void cmdClear_Click();
    void cmdBegin_Click();
    void cmdQuit_Click();
    void Timer1_Timer();
    void mnuRunner_Click();
    void mnuSquares_Click();
    void mnuTriangles_Click();

    std::string canvasDescription() const override {
        return "Graph of the shape on x and y axes, one unit a tick; after New Graph each click adds a point";
    }

    // Read-only views for tests and benchmarks.
    int pointCount() const { return PointCount; }
    int clickCount() const { return ClickCount; }
    int stepIndex() const { return StepIndex; }
    int stepCount() const { return StepCount; }
    Single ptX(int i) const { return PtX.at(i); }
    Single ptY(int i) const { return PtY.at(i); }

private:
    // One frame of the table on the canvas, without clearing it first.
    void PlotIt(const Integer& k);
    // The first frame of a table just loaded by a sample or the opening. In
    // Multiplier mode before any matrix was read the table is kept as loaded.
    void PlotLoadedTable();
    void LoadSample(const SampleShape& shape);
    void ShowPoint(int i, Double x, Double y);
    void PrintCounter();
    // Ends a run as Quit does, for a tick that cannot draw its frame.
    void StopRun();
    bool StepsReadZero() const;
    void RefuseZeroSteps(const std::string& what) const;
    void SetIntervalFromReply(const std::string& reply);

    TextBox& txtStart;
    TextBox& txtEnd;
    TextBox& txtSteps;
    TextBox& txtr11;
    TextBox& txtr12;
    TextBox& txtr21;
    TextBox& txtr22;
    OptionButton& optScalar;
    OptionButton& optRight;
    OptionButton& optUp;
    OptionButton& optMultiplier;
    TimerControl& Timer1;
    std::array<TextBox*, 11> txtX{};
    std::array<TextBox*, 11> txtY{};

    PointTable Table;  // the shape on show
    PointTable Saved;  // the shape of the last Begin
    // The table's columns under the names the formulas use.
    std::array<Single, PointTable::kLastPoint + 1>& PtX = Table.PtX;
    std::array<Single, PointTable::kLastPoint + 1>& PtY = Table.PtY;
    Integer PointCount = 0;
    Integer ClickCount = 0;
    Integer StepIndex = 0;
    Integer StepCount = 0;
    Single StartValue = 0, EndValue = 0, StepSize = 0;
    Single R11 = 0, R12 = 0, R21 = 0, R22 = 0;
    // True while Saved holds the table that is on show, that is after
    // a Begin with no sample, clicks or opening loaded since. Plot Points and
    // Quit bring the table back from them only then.
    bool savedIsTable_ = false;
    // True once a Begin in Multiplier mode has read R11 to R22.
    bool matrixTaken_ = false;
};

} // namespace gp
