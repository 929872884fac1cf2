#pragma once
// The window that the five fold-up template forms share: a side length box,
// "Print It", "E&xit", three labels and an Info menu. The frame owns when and
// how a figure is drawn (preview at 800 units to the inch from x = 3000 on the
// form's canvas, print at 1440 to the inch on the Printer with one EndDoc);
// each form supplies only its description and one drawing procedure.
//
// What a figure form implements:
//
//   void DrawFigure(DrawingSurface& surface, Integer side, bool preview);
//
//   Called with DrawWidth already 1 and `side` already worked out (> 0, in
//   the Integer range). It reads surfaceW / surfaceH from `surface` itself,
//   works out its derived lengths, runs its tiling loops and draws the copies.
//   `preview` is true on the form's canvas (tiling starts at kPreviewLeft)
//   and false on the Printer. It must not call EndDoc: the frame does that
//   once after it returns. Before drawing it calls refuse() for a side whose
//   derived quantities would leave the Integer range, and checkTiling() for
//   its tiling loops written over a TileSink, so that nothing is drawn at
//   all for a side that cannot be laid out.

#include <functional>
#include <string>
#include <vector>

#include "shell/form.h"

namespace gp {

struct InfoBox {
    std::string title;
    std::string prompt;
};

// Where a tiling loop hands each copy: the drawing of the copy, or, in the
// dry run of checkTiling, only a count.
class TileSink {
public:
    virtual ~TileSink() = default;
    virtual void copy(Integer tileX, Integer tileY) = 0;
    // Called once per turn of the row loop, so that rows with no copies
    // are counted as work too.
    virtual void row() {}
};

// The sink of a real run: each copy is drawn by the figure's own routine.
class CopyDrawer : public TileSink {
public:
    explicit CopyDrawer(std::function<void(Integer, Integer)> draw) : draw_(std::move(draw)) {}
    void copy(Integer tileX, Integer tileY) override { draw_(tileX, tileY); }

private:
    std::function<void(Integer, Integer)> draw_;
};

struct TemplateDescription {
    std::string name;
    std::string caption;
    // A printed sheet's name before its side length: "Half Cube".
    std::string sheetTitle;
    int clientWidth = 9405;
    int clientHeight = 8400;
    long backColor = 0;
    std::string defaultLength = "1";
    std::string infoCaption = "&Info";
    bool hasQueryUnload = false;
    // The three labels, in tab order; the first is the side length label,
    // which stands above txtLeng.
    std::vector<ControlDesign> labels;
    // Places of the frame's own controls, in twips.
    int txtLengLeft = 1560, txtLengTop = 240, txtLengWidth = 975, txtLengHeight = 495;
    int printLeft = 240, printTop = 1080, printWidth = 2055, printHeight = 855;
    int exitLeft = 480, exitTop = 2160, exitWidth = 1455, exitHeight = 735;
    std::vector<InfoBox> infoBoxes;
    // txtLeng_Change redraws for 0 < v < rangeTop, or v <= rangeTop when
    // rangeTopIncluded.
    Double rangeTop = 4;
    bool rangeTopIncluded = false;
    // A canvas scale of the form's own (0: twips).
    Single scaleWidth = 0;
    Single scaleHeight = 0;
};

class TemplateForm : public Form {
public:
    TemplateForm(FormSet& app, const TemplateDescription& description);

    static FormDesign BuildDesign(const TemplateDescription& description);

    void Form_Activate();
    void txtLeng_Change();
    void cmdPrintIt_Click();
    void mnuInfo_Click();
    void cmdExit_Click();
    void Form_QueryUnload();

    // "Half Cube 2 in": the side length as typed.
    std::string sheetName() const override;
    // "Preview of the half cube template, 2 inch sides", as typed.
    std::string canvasDescription() const override;

    // Whether txtLeng_Change redraws for the value v.
    bool InRange(Double v) const;

    // Where the preview's tiling begins, right of the controls.
    static constexpr int kPreviewLeft = 3000;
    // Strokes a preview may take, about a second of drawing on the canvas,
    // so typing stays fluid; below the handler's own work limit, so that a
    // preview too dense to see stays blank instead of stopping with a fault.
    static constexpr Double kPreviewStrokeLimit = 1'500'000;

protected:
    virtual void DrawFigure(DrawingSurface& surface, Integer side, bool preview) = 0;

    // Stops the routine before anything is drawn: silently on the canvas
    // (the preview is simply missing, as for any side out of range), with
    // the message on the Printer, where the user pressed "Print It" and
    // must learn why no sheet came.
    [[noreturn]] void refuse(bool preview, const std::string& message);
    // Ends the preview routine with nothing drawn and no message.
    [[noreturn]] void leavePreviewBlank();
    // Runs a figure's tiling loops once without drawing: the loops' own
    // Integer arithmetic faults where a position leaves the Integer range,
    // and the copies are counted, so that a side whose sheet cannot be laid
    // out (or needs millions of strokes) is refused before the first stroke.
    // The preview has the smaller budget and stays blank past it, silently:
    // each keystroke redraws, and typing must not stall on a grey smear of
    // copies too small to see. `tiling` must run the very loops that the
    // drawing runs.
    void checkTiling(bool preview, Integer side, int strokesPerCopy,
                     const std::function<void(TileSink&)>& tiling);
    // Where a figure's rows of copies may go: the surface's own ScaleWidth
    // and ScaleHeight as Integers, and the x where a row starts
    // (kPreviewLeft on the canvas, 0 on paper).
    struct TileArea {
        Integer surfaceW, surfaceH;
        int rowStart;
    };
    using Tiling = std::function<void(TileSink&, const TileArea&)>;
    // The whole of a tiled figure: checkTiling() runs the loops of `tiling`
    // dry over the surface's area, then the same loops run again with each
    // copy drawn by `drawCopy`.
    void drawTiling(DrawingSurface& surface, bool preview, Integer side, int strokesPerCopy,
                    const Tiling& tiling, const std::function<void(Integer, Integer)>& drawCopy);
    // Runs `work` (derived quantities stored in Integers) and turns an
    // Integer overflow in it into refuse(), with a message that fits `side`.
    void checkRange(bool preview, Integer side, const std::function<void()>& work);

    TextBox& txtLeng;

private:
    void PreviewRoutine();
    void PrintRoutine();
    // Int(Val(txtLeng) * scale) as an Integer side, or refuse().
    Integer SideFromText(Double scale, bool preview);

    TemplateDescription description_;
};

} // namespace gp
