// What the user waits for on screen: a template preview redrawn after one
// keystroke, a string art figure drawn, stick curves drawn with their fill,
// one tick of Explode It. Each on the form's real canvas image.
#include "bench/bench_support.h"

using namespace gp;
using gp::bench::BenchProgram;

namespace {

// One keystroke that leaves `text` in txtLeng: the canvas is cleared and the
// preview drawn again. Typing stays fluid while this is well under 16 ms.
void TemplatePreview(benchmark::State& state, const char* form, const char* text) {
    BenchProgram p;
    Form& f = p.open(form);
    p.drawn.strokes = 0;
    for (auto _ : state) {
        p.edit(f, "txtLeng", text);
        benchmark::DoNotOptimize(p.canvasImage().constBits());
    }
    state.counters["strokes"] = static_cast<double>(p.drawn.strokes) / state.iterations();
    p.failed(state);
}

void StringArtFigure(benchmark::State& state) {
    BenchProgram p;
    Form& f = p.open("frmString2");
    p.edit(f, "txtTics", std::to_string(state.range(0)));
    p.drawn.strokes = 0;
    for (auto _ : state) {
        p.click(f, "Command1");  // Clear It
        p.app().dispatch(f, "mnuOcta3", Event::Click);
        benchmark::DoNotOptimize(p.canvasImage().constBits());
    }
    state.counters["strokes"] = static_cast<double>(p.drawn.strokes) / state.iterations();
    p.failed(state);
}

void StickCurvesDrawIt(benchmark::State& state) {
    BenchProgram p;
    Form& f = p.open("frmStickCurves");
    static_cast<CheckBox*>(f.find("chkDouble"))->setValue(1);
    p.drawn.strokes = 0;
    for (auto _ : state) {
        p.click(f, "cmdDrawIt");
        benchmark::DoNotOptimize(p.canvasImage().constBits());
    }
    state.counters["strokes"] = static_cast<double>(p.drawn.strokes) / state.iterations();
    p.failed(state);
}

// A tick of a run: wipe, counter, one frame. Far below the 20 ms interval a
// teacher may choose, with the runner or with a clicked shape of 199 points.
void ExplodeTick(benchmark::State& state) {
    BenchProgram p;
    Form& f = p.open("frmExplodeIt");
    if (state.range(0) != 0) {
        p.click(f, "cmdClear");
        for (int i = 0; i < 199; ++i) {
            EventArgs a;
            a.button = 1;
            a.x = static_cast<Single>(3000 + 30 * i);
            a.y = static_cast<Single>(3000 + (i % 2) * 2000);
            p.app().dispatch(f, kFormEvents, Event::MouseDown, a);
        }
    }
    p.click(f, "cmdBegin");
    for (auto _ : state) {
        p.app().dispatch(f, "Timer1", Event::Timer);
        benchmark::DoNotOptimize(p.canvasImage().constBits());
    }
    p.failed(state);
}

} // namespace

BENCHMARK_CAPTURE(TemplatePreview, frmHalfCube, "frmHalfCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TemplatePreview, frmHalfCube_0_1in, "frmHalfCube", "0.1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TemplatePreview, frmRhombiCube, "frmRhombiCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TemplatePreview, frmOneSixthCube, "frmOneSixthCube", "1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TemplatePreview, frmRhombiDodec, "frmRhombiDodec", "1.45")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TemplatePreview, frmGreatDodeca, "frmGreatDodeca", "1.5")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TemplatePreview, frmRhombiCube_0_015in, "frmRhombiCube", "0.015")
    ->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(StringArtFigure)->ArgName("tics")->Arg(25)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(StickCurvesDrawIt)->Unit(benchmark::kMillisecond);
BENCHMARK(ExplodeTick)->ArgName("clicked")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) { return gp::bench::runBenchmarks(argc, argv); }
