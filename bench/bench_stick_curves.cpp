// The filled, doubled stick-curve print: the heaviest sheet of the program,
// one hatch line for each page twip of cell height. Distances in thousandths
// of an inch: 500 is the default, 100 the short 0.1 inch. The cost must grow
// in step with the number of lines (look at strokes/s staying flat) and the
// PDF must stay a size a printer takes.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "platform/page_buffer.h"
#include "platform/pdf_sheets.h"
#include "platform/trace_writer.h"
#include "shell/random.h"
#include "stringart/frm_stick_curves.h"

using namespace gp;

namespace {

StickInputs FilledDouble(benchmark::State& state) {
    StickInputs in;
    in.degrees = 54;
    in.distance = static_cast<Single>(state.range(0) / 1000.0);
    in.doubled = state.range(1) != 0;
    in.fill = StickFill::RandomColor;
    return in;
}

class CountingDevice : public SurfaceDevice {
public:
    long strokes = 0;
    void line(const Stroke&) override { ++strokes; }
    void pset(Single, Single, int, long) override {}
    void print(Single, Single, const std::string&, const FontSpec&) override {}
};

void report(benchmark::State& state, const CountingDevice& counter) {
    state.counters["strokes"] = static_cast<double>(counter.strokes) / state.iterations();
    state.counters["strokes/s"] =
        benchmark::Counter(static_cast<double>(counter.strokes), benchmark::Counter::kIsRate);
}

void StickPrintToPdf(benchmark::State& state) {
    const StickInputs in = FilledDouble(state);
    QTemporaryDir dir;
    PdfSheetSink sink(dir.path());
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    PageBufferDevice pages(sink, printer);
    CountingDevice counter;
    printer.attach(&pages);
    printer.attach(&counter);
    RandomSource random;
    random.seed(1);
    StickVertex start;
    for (auto _ : state) PrintStickCurves(printer, in, start, random, 0);
    report(state, counter);
    state.counters["pdf_bytes"] = static_cast<double>(QFileInfo(sink.lastFile()).size());
}

void StickPrintToTrace(benchmark::State& state) {
    const StickInputs in = FilledDouble(state);
    std::FILE* devnull = std::fopen("/dev/null", "wb");
    TraceWriter trace(devnull);
    RecordingDevice rec(trace, "Printer");
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    CountingDevice counter;
    printer.attach(&rec);
    printer.attach(&counter);
    RandomSource random;
    random.seed(1);
    StickVertex start;
    for (auto _ : state) PrintStickCurves(printer, in, start, random, 0);
    trace.flush();
    std::fclose(devnull);
    report(state, counter);
}

// {distance in 1/1000 inch, doubled}
void Sizes(benchmark::internal::Benchmark* b) {
    for (int d : {500, 200, 100, 75}) b->Args({d, 1});
    b->Args({100, 0});
}

} // namespace

BENCHMARK(StickPrintToPdf)->Apply(Sizes)->Unit(benchmark::kMillisecond);
BENCHMARK(StickPrintToTrace)->Apply(Sizes)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
