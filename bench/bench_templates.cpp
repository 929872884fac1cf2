// The half cube, rhombi-cube and one-sixth cube forms: one keystroke's
// redraw of the preview (Cls, dry run, strokes) on the form's canvas image,
// and one "Print It" through the page buffer to a PDF sheet, at the default
// length and, for the half cube, at a tenth of an inch (870 preview copies);
// the rhombi-cube and one-sixth cube previews also at a hundredth of an inch,
// the densest that a keystroke still draws (2.3 and 2.8 million strokes).
// The forms run through a FormSet, as in the program, with a host that gives
// each canvas a real canvas device at 15 twips to the pixel.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <memory>
#include <vector>

#include "all_forms.h"
#include "platform/canvas_device.h"
#include "platform/page_buffer.h"
#include "platform/pdf_sheets.h"
#include "shell/form_set.h"

using namespace gp;

namespace {

class BenchHost : public Dialogs, public FormHost, public Clock {
public:
    int MsgBox(const std::string&, int, const std::string&) override { return vbOK; }
    std::string InputBox(const std::string&, const std::string&, const std::string& d, std::optional<int>,
                         std::optional<int>) override {
        return d;
    }
    void showFault(const std::string& message) override { faults.push_back(message); }
    void formMissing(const std::string& name) override { faults.push_back("missing " + name); }
    void formLoaded(Form& form) override {
        const FormDesign& d = form.design();
        canvases.push_back(std::make_unique<CanvasDevice>(d.clientWidth / 15, d.clientHeight / 15,
                                                          d.canvasWidth(), d.canvasHeight(), d.backColor, 1.0));
        form.Me().attach(canvases.back().get());
    }
    void formShown(Form&, bool) override {}
    void formHidden(Form&) override {}
    void formUnloading(Form& form) override {
        for (auto& c : canvases) form.Me().detach(c.get());
    }
    void runModal(Form&) override {}
    void endProgram() override {}
    Single Timer() const override { return 0; }

    std::vector<std::unique_ptr<CanvasDevice>> canvases;
    std::vector<std::string> faults;
};

class CountingDevice : public SurfaceDevice {
public:
    long strokes = 0;
    void line(const Stroke&) override { ++strokes; }
    void pset(Single, Single, int, long) override {}
    void print(Single, Single, const std::string&, const FontSpec&) override {}
};

struct Program {
    BenchHost host;
    QTemporaryDir dir;
    PdfSheetSink sink{dir.path()};
    DrawingSurface printer{DrawingSurface::Kind::Printer, "Printer", 11520, 15120};
    PageBufferDevice pages{sink, printer};
    CountingDevice counter;
    RandomSource random;
    FormSet app{host, host, printer, random, host};
    Program() {
        printer.attach(&pages);
        registerAllForms(app);
    }
};

TextBox& LengthBox(Form& f) { return *dynamic_cast<TextBox*>(f.find("txtLeng")); }

// One keystroke that leaves `text` in the box: txtLeng_Change clears the
// canvas and draws the preview again.
void PreviewRedraw(benchmark::State& state, const char* form, const char* text) {
    Program p;
    p.app.Show1(form);
    Form& f = *p.app.loaded(form);
    TextBox& box = LengthBox(f);
    p.app.guarded(f, [&] { box.userEdit(text); });
    f.Me().attach(&p.counter);
    for (auto _ : state) {
        p.app.guarded(f, [&] { box.userEdit(text); });
        benchmark::DoNotOptimize(p.host.canvases.back()->image());
    }
    state.counters["strokes"] = double(p.counter.strokes) / state.iterations();
    if (!p.host.faults.empty()) state.SkipWithError(p.host.faults.front().c_str());
}

void PrintToPdf(benchmark::State& state, const char* form, const char* text) {
    Program p;
    p.app.Show1(form);
    Form& f = *p.app.loaded(form);
    TextBox& box = LengthBox(f);
    p.app.guarded(f, [&] { box.userEdit(text); });
    p.printer.attach(&p.counter);
    for (auto _ : state) p.app.dispatch(f, "cmdPrintIt", Event::Click);
    state.counters["strokes"] = double(p.counter.strokes) / state.iterations();
    state.counters["pdf_bytes"] = double(QFileInfo(p.sink.lastFile()).size());
    if (!p.host.faults.empty()) state.SkipWithError(p.host.faults.front().c_str());
}

} // namespace

BENCHMARK_CAPTURE(PreviewRedraw, frmHalfCube, "frmHalfCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PreviewRedraw, frmRhombiCube, "frmRhombiCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PreviewRedraw, frmOneSixthCube, "frmOneSixthCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PreviewRedraw, frmHalfCube_0_1in, "frmHalfCube", "0.1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PreviewRedraw, frmRhombiCube_0_01in, "frmRhombiCube", "0.01")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(PreviewRedraw, frmOneSixthCube_0_01in, "frmOneSixthCube", "0.01")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(PrintToPdf, frmHalfCube, "frmHalfCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PrintToPdf, frmRhombiCube, "frmRhombiCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PrintToPdf, frmOneSixthCube, "frmOneSixthCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PrintToPdf, frmHalfCube_0_1in, "frmHalfCube", "0.1")->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
