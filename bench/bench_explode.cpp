// One tick of an Explode It run on the form's real canvas image: the runner
// (24 points) and a clicked shape of 199 points, in Scalar and Multiplier
// mode. A tick must stay far below the shortest interval a user is likely
// to type (20 thousandths of a second) for the run to look smooth.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <memory>

#include "explode/frm_explode_it.h"
#include "platform/canvas_device.h"
#include "shell/form_set.h"

using namespace gp;

namespace {

class BenchProgram : public Dialogs, public FormHost, public Clock {
public:
    BenchProgram() : printer_(DrawingSurface::Kind::Printer, "Printer", 11520, 15120) {
        app_ = std::make_unique<FormSet>(*this, *this, printer_, random_, *this);
        app_->registerForm("frmExplodeIt", [](FormSet& a) { return std::make_unique<FrmExplodeIt>(a); });
        app_->Show1("frmExplodeIt");
        form_ = app_->loaded("frmExplodeIt");
    }
    ~BenchProgram() override { app_.reset(); }

    Form& form() { return *form_; }
    FormSet& app() { return *app_; }
    std::string faults;

    int MsgBox(const std::string&, int, const std::string&) override { return vbOK; }
    std::string InputBox(const std::string&, const std::string&, const std::string& d, std::optional<int>,
                         std::optional<int>) override {
        return d;
    }
    void showFault(const std::string& message) override { faults += message; }
    void formMissing(const std::string&) override {}
    void formLoaded(Form& form) override {
        const FormDesign& d = form.design();
        canvas_ = std::make_unique<CanvasDevice>(d.clientWidth / 15, d.clientHeight / 15, d.canvasWidth(),
                                                 d.canvasHeight(), 0xFFFFFF, 1.0);
        form.Me().attach(canvas_.get());
    }
    void formShown(Form&, bool) override {}
    void formHidden(Form&) override {}
    void formUnloading(Form& form) override { form.Me().detach(canvas_.get()); }
    void runModal(Form&) override {}
    void endProgram() override {}
    Single Timer() const override { return 43200.0f; }

    const QImage& image() { return canvas_->image(); }

private:
    DrawingSurface printer_;
    std::unique_ptr<CanvasDevice> canvas_;
    RandomSource random_;
    std::unique_ptr<FormSet> app_;
    Form* form_ = nullptr;
};

void ExplodeTick(benchmark::State& state) {
    BenchProgram p;
    Form& f = p.form();
    const bool clicked = state.range(0) != 0;
    if (clicked) {
        p.app().dispatch(f, "cmdClear", Event::Click);
        for (int i = 0; i < 199; ++i) {
            EventArgs a;
            a.button = 1;
            a.x = static_cast<Single>(3000 + 30 * i);
            a.y = static_cast<Single>(3000 + (i % 2) * 2000);
            p.app().dispatch(f, kFormEvents, Event::MouseDown, a);
        }
    }
    if (state.range(1) != 0) static_cast<OptionButton*>(f.find("optMultiplier"))->select();
    p.app().dispatch(f, "cmdBegin", Event::Click);
    for (auto _ : state) {
        p.app().dispatch(f, "Timer1", Event::Timer);
        benchmark::DoNotOptimize(p.image().constBits());
    }
    if (!p.faults.empty()) state.SkipWithError(p.faults.c_str());
    state.counters["points"] = clicked ? 199 : 24;
}

} // namespace

BENCHMARK(ExplodeTick)->ArgNames({"clicked", "multiplier"})
    ->Args({0, 0})->Args({1, 0})->Args({0, 1})->Args({1, 1})->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    // The counter is printed with a real font on the canvas image.
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
