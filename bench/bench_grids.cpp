// The heaviest grid pages: the parabola sheet (over 8,800 dots) and a
// squares grid of 0.05 inch cells, through the recording surface and through
// the PDF surface.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "grids/frm_parabola.h"
#include "grids/frm_squares.h"
#include "platform/page_buffer.h"
#include "platform/pdf_sheets.h"
#include "platform/trace_writer.h"

using namespace gp;

namespace {

class CountingDevice : public SurfaceDevice {
public:
    long calls = 0;
    void line(const Stroke&) override { ++calls; }
    void pset(Single, Single, int, long) override { ++calls; }
    void print(Single, Single, const std::string&, const FontSpec&) override { ++calls; }
};

using Sheet = std::function<void(DrawingSurface&)>;

void ToTrace(benchmark::State& state, const Sheet& sheet) {
    std::FILE* devnull = std::fopen("/dev/null", "wb");
    TraceWriter trace(devnull);
    RecordingDevice rec(trace, "Printer");
    CountingDevice counter;
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    printer.attach(&rec);
    printer.attach(&counter);
    for (auto _ : state) sheet(printer);
    trace.flush();
    std::fclose(devnull);
    state.counters["calls"] = static_cast<double>(counter.calls) / state.iterations();
}

void ToPdf(benchmark::State& state, const Sheet& sheet) {
    QTemporaryDir dir;
    PdfSheetSink sink(dir.path());
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    PageBufferDevice pages(sink, printer);
    CountingDevice counter;
    printer.attach(&pages);
    printer.attach(&counter);
    for (auto _ : state) sheet(printer);
    state.counters["calls"] = static_cast<double>(counter.calls) / state.iterations();
    state.counters["pdf_bytes"] = static_cast<double>(QFileInfo(sink.lastFile()).size());
}

void ParabolaSheet(DrawingSurface& P) { PrintParabolaSheet(P, 1, "1", 3); }
void SmallSquaresSheet(DrawingSurface& P) { PrintSquaresSheet(P, 72, 72, false); }  // 0.05 inch

void ParabolaToTrace(benchmark::State& s) { ToTrace(s, ParabolaSheet); }
void ParabolaToPdf(benchmark::State& s) { ToPdf(s, ParabolaSheet); }
void SquaresToTrace(benchmark::State& s) { ToTrace(s, SmallSquaresSheet); }
void SquaresToPdf(benchmark::State& s) { ToPdf(s, SmallSquaresSheet); }

} // namespace

BENCHMARK(ParabolaToTrace)->Unit(benchmark::kMillisecond);
BENCHMARK(ParabolaToPdf)->Unit(benchmark::kMillisecond);
BENCHMARK(SquaresToTrace)->Unit(benchmark::kMillisecond);
BENCHMARK(SquaresToPdf)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
