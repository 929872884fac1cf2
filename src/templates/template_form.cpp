#include "templates/template_form.h"

#include <cctype>

#include "shell/form_set.h"

namespace gp {

namespace {
// Thrown by refuse() in the preview and caught by the preview routine: the
// canvas simply stays as it is, with no message, as for a side out of range.
struct PreviewBlank {};

constexpr Double kPreviewScale = 800;
constexpr Double kPrintScale = 1440;
} // namespace

FormDesign TemplateForm::BuildDesign(const TemplateDescription& t) {
    FormDesign d;
    d.name = t.name;
    d.caption = t.caption;
    d.clientWidth = t.clientWidth;
    d.clientHeight = t.clientHeight;
    d.backColor = t.backColor;
    d.font = FontSpec{"Arial", 9.75, false, false};
    d.scaleWidth = t.scaleWidth;
    d.scaleHeight = t.scaleHeight;
    d.previewStrokeLimit = static_cast<size_t>(kPreviewStrokeLimit);
    if (!t.labels.empty()) d.controls.push_back(t.labels.front());
    d.controls.push_back(TextBoxDesign("txtLeng", t.defaultLength)
                             .at(t.txtLengLeft, t.txtLengTop, t.txtLengWidth, t.txtLengHeight)
                             .withFont("Arial", 12));
    d.controls.push_back(ButtonDesign("cmdPrintIt", "Print It")
                             .at(t.printLeft, t.printTop, t.printWidth, t.printHeight)
                             .back(RGB(255, 255, 0))
                             .withFont("Arial", 12, true));
    d.controls.push_back(ButtonDesign("cmdExit", "E&xit")
                             .at(t.exitLeft, t.exitTop, t.exitWidth, t.exitHeight)
                             .withFont("Arial", 12));
    for (size_t i = 1; i < t.labels.size(); ++i) d.controls.push_back(t.labels[i]);
    d.controls.push_back(MenuDesign("mnuInfo", t.infoCaption));
    return d;
}

TemplateForm::TemplateForm(FormSet& app, const TemplateDescription& description)
    : Form(app, BuildDesign(description)), txtLeng(textBox("txtLeng")), description_(description) {
    on(kFormEvents, Event::Activate, [this](const EventArgs&) { Form_Activate(); });
    on("txtLeng", Event::Change, [this](const EventArgs&) { txtLeng_Change(); });
    on("cmdPrintIt", Event::Click, [this](const EventArgs&) { cmdPrintIt_Click(); });
    on("mnuInfo", Event::Click, [this](const EventArgs&) { mnuInfo_Click(); });
    on("cmdExit", Event::Click, [this](const EventArgs&) { cmdExit_Click(); });
    if (description_.hasQueryUnload)
        on(kFormEvents, Event::QueryUnload, [this](const EventArgs&) { Form_QueryUnload(); });
}

std::string TemplateForm::sheetName() const {
    return description_.sheetTitle + " " + Trim(txtLeng.Text()) + " in";
}

std::string TemplateForm::canvasDescription() const {
    std::string figure = description_.sheetTitle;
    for (char& c : figure) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    const std::string preview = "Preview of the " + figure + " template";
    const std::string side = Trim(txtLeng.Text());
    // An empty box keeps the last preview; a side out of range clears it.
    if (side.empty()) return preview;
    if (!InRange(Val(side))) return preview + ", empty: the side length is out of range";
    return preview + ", " + side + " inch sides";
}

bool TemplateForm::InRange(Double v) const {
    if (!(v > 0)) return false;
    return description_.rangeTopIncluded ? v <= description_.rangeTop : v < description_.rangeTop;
}

void TemplateForm::Form_Activate() { PreviewRoutine(); }

void TemplateForm::txtLeng_Change() {
    // Deleting the whole text keeps the last preview on show.
    if (txtLeng.Text().empty()) return;
    Me().Cls();
    if (InRange(Val(txtLeng.Text()))) PreviewRoutine();
}

void TemplateForm::cmdPrintIt_Click() { PrintRoutine(); }

void TemplateForm::mnuInfo_Click() {
    for (const InfoBox& box : description_.infoBoxes) MsgBox(box.prompt, 0, box.title);
}

void TemplateForm::cmdExit_Click() { Hide(); }

void TemplateForm::Form_QueryUnload() { cmdExit_Click(); }

Integer TemplateForm::SideFromText(Double scale, bool preview) {
    const Double side = Int(Val(txtLeng.Text()) * scale);
    if (side < 1)
        refuse(preview, "Nothing was printed: the side length is too small. "
                        "Please type a side length in inches greater than 0.");
    if (side > 32767)
        refuse(preview, "Nothing was printed: the side length is too large for a sheet. "
                        "Please type a smaller side length in inches.");
    return side;
}

void TemplateForm::PreviewRoutine() {
    DrawingSurface& canvas = Me();
    canvas.setDrawWidth(1);
    try {
        const Integer side = SideFromText(kPreviewScale, true);
        DrawFigure(canvas, side, true);
    } catch (const PreviewBlank&) {
        // Nothing was drawn; the canvas keeps what it had.
    }
}

void TemplateForm::PrintRoutine() {
    DrawingSurface& P = Printer();
    P.setDrawWidth(1);
    const Integer side = SideFromText(kPrintScale, false);
    DrawFigure(P, side, false);
    P.EndDoc();
}

void TemplateForm::refuse(bool preview, const std::string& message) {
    if (preview) leavePreviewBlank();
    throwInvalid(message);
}

void TemplateForm::leavePreviewBlank() { throw PreviewBlank{}; }

void TemplateForm::checkTiling(bool preview, Integer side, int strokesPerCopy,
                               const std::function<void(TileSink&)>& tiling) {
    struct TooMany {};
    class Counter : public TileSink {
    public:
        Counter(int strokes, Double limit) : strokes_(strokes), limit_(limit) {}
        void copy(Integer, Integer) override { charge(strokes_); }
        void row() override { charge(1); }

    private:
        void charge(int amount) {
            used_ += amount;
            if (used_ > limit_) throw TooMany{};
        }
        int strokes_;
        Double limit_;
        Double used_ = 0;
    };
    Counter counter(strokesPerCopy, preview ? kPreviewStrokeLimit : Double(WorkMeter::kDefaultLimit));
    try {
        checkRange(preview, side, [&] { tiling(counter); });
    } catch (const TooMany&) {
        if (preview) leavePreviewBlank();
        throwWorkLimit();
    }
}

void TemplateForm::drawTiling(DrawingSurface& surface, bool preview, Integer side, int strokesPerCopy,
                              const Tiling& tiling, const std::function<void(Integer, Integer)>& drawCopy) {
    // A surface too large for an Integer faults here, outside checkRange:
    // that is no fault of the side.
    const TileArea area{CInt(surface.ScaleWidth()), CInt(surface.ScaleHeight()), preview ? kPreviewLeft : 0};
    checkTiling(preview, side, strokesPerCopy, [&](TileSink& sink) { tiling(sink, area); });
    CopyDrawer drawer(drawCopy);
    tiling(drawer, area);
}

void TemplateForm::checkRange(bool preview, Integer side, const std::function<void()>& work) {
    try {
        work();
    } catch (const Fault& f) {
        if (f.kind() != FaultKind::Overflow) throw;
        // Small sides fail here only by a tiling that never moves on.
        if (side < 100)
            refuse(preview, "Nothing was printed: the side length is too small to lay out "
                            "the template. Please type a larger side length in inches.");
        refuse(preview, "Nothing was printed: the side length is too large for a sheet. "
                        "Please type a smaller side length in inches.");
    }
}

} // namespace gp
