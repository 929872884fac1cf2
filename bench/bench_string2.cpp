// Octagon3 (99 points, 97 corners) at 200 tics: drawn on the form's canvas
// image and printed scaled to the page through the PDF surface.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <memory>

#include "platform/canvas_device.h"
#include "platform/page_buffer.h"
#include "platform/pdf_sheets.h"
#include "shell/form_set.h"
#include "stringart/frm_string2.h"

using namespace gp;

namespace {

class CountingDevice : public SurfaceDevice {
public:
    long strokes = 0;
    void line(const Stroke&) override { ++strokes; }
    void pset(Single, Single, int, long) override {}
    void print(Single, Single, const std::string&, const FontSpec&) override {}
};

// The program around one form: its canvas on a real image, the Printer on
// the PDF surface, and dialogs that answer "scale: Yes", colours as asked.
class BenchProgram : public Dialogs, public FormHost, public Clock {
public:
    explicit BenchProgram(bool colours)
        : colours_(colours),
          printer_(DrawingSurface::Kind::Printer, "Printer", 11520, 15120),
          sink_(dir_.path()),
          pages_(sink_, printer_) {
        printer_.attach(&pages_);
        printer_.attach(&printed_);
        random_.seed(1);
        app_ = std::make_unique<FormSet>(*this, *this, printer_, random_, *this);
        app_->registerForm("frmString2", [](FormSet& a) { return std::make_unique<FrmString2>(a); });
        app_->Show1("frmString2");
        form_ = app_->loaded("frmString2");
    }
    ~BenchProgram() override { app_.reset(); }

    Form& form() { return *form_; }
    FormSet& app() { return *app_; }
    long canvasStrokes() const { return drawn_.strokes; }
    long printedStrokes() const { return printed_.strokes; }
    QString lastPdf() const { return sink_.lastFile(); }
    std::string faults;

    int MsgBox(const std::string&, int buttons, const std::string&) override {
        if (buttons == vbYesNoCancel) return vbYes;
        if (buttons == vbYesNo) return colours_ ? vbYes : vbNo;
        return vbOK;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string& d, std::optional<int>,
                         std::optional<int>) override {
        return d;
    }
    void showFault(const std::string& message) override { faults += message; }
    void formMissing(const std::string&) override {}
    void formLoaded(Form& form) override {
        const FormDesign& d = form.design();
        canvas_ = std::make_unique<CanvasDevice>(d.clientWidth / 15, d.clientHeight / 15, d.canvasWidth(),
                                                 d.canvasHeight(), d.backColor, 1.0);
        form.Me().attach(canvas_.get());
        form.Me().attach(&drawn_);
    }
    void formShown(Form&, bool) override {}
    void formHidden(Form&) override {}
    void formUnloading(Form& form) override { form.Me().detach(canvas_.get()); }
    void runModal(Form&) override {}
    void endProgram() override {}
    Single Timer() const override { return 43200.0f; }

    const QImage& image() { return canvas_->image(); }

private:
    bool colours_;
    QTemporaryDir dir_;
    DrawingSurface printer_;
    PdfSheetSink sink_;
    PageBufferDevice pages_;
    CountingDevice printed_, drawn_;
    std::unique_ptr<CanvasDevice> canvas_;
    RandomSource random_;
    std::unique_ptr<FormSet> app_;
    Form* form_ = nullptr;
};

void setTics(BenchProgram& p, const std::string& tics) {
    auto* box = static_cast<TextBox*>(p.form().find("txtTics"));
    p.app().guarded(p.form(), [&] { box->userEdit(tics); });
}

void Octagon3OnCanvas(benchmark::State& state) {
    BenchProgram p(false);
    setTics(p, std::to_string(state.range(0)));
    const long before = p.canvasStrokes();
    for (auto _ : state) {
        p.app().dispatch(p.form(), "mnuOcta3", Event::Click);
        benchmark::DoNotOptimize(p.image().constBits());  // the painter has finished
    }
    if (!p.faults.empty()) state.SkipWithError(p.faults.c_str());
    state.counters["strokes"] = static_cast<double>(p.canvasStrokes() - before) / state.iterations();
}

void Octagon3PrintedScaledToPdf(benchmark::State& state) {
    BenchProgram p(state.range(1) != 0);
    setTics(p, std::to_string(state.range(0)));
    p.app().dispatch(p.form(), "mnuOcta3", Event::Click);
    const long before = p.printedStrokes();
    for (auto _ : state) p.app().dispatch(p.form(), "cmdPrintIt", Event::Click);
    if (!p.faults.empty()) state.SkipWithError(p.faults.c_str());
    state.counters["strokes"] = static_cast<double>(p.printedStrokes() - before) / state.iterations();
    state.counters["pdf_bytes"] = static_cast<double>(QFileInfo(p.lastPdf()).size());
}

} // namespace

BENCHMARK(Octagon3OnCanvas)->Arg(25)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(Octagon3PrintedScaledToPdf)
    ->Args({25, 0})
    ->Args({200, 0})
    ->Args({200, 1})
    ->ArgNames({"tics", "colours"})
    ->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
