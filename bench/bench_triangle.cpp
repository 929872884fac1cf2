// The densest triangle sheet (base 0.05 inch, about 200,000 strokes) through
// the recording surface and through the PDF surface.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "grids/frm_triangle.h"
#include "platform/page_buffer.h"
#include "platform/pdf_sheets.h"
#include "platform/trace_writer.h"

using namespace gp;

namespace {
constexpr double kDegrees60 = 60 * 3.141592653 / 180;

void TriangleSheetToTrace(benchmark::State& state) {
    const Integer base = static_cast<int>(state.range(0));
    std::FILE* devnull = std::fopen("/dev/null", "wb");
    TraceWriter trace(devnull);
    RecordingDevice rec(trace, "Printer");
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    printer.attach(&rec);
    for (auto _ : state) PrintTriangleSheet(printer, base, kDegrees60);
    trace.flush();
    std::fclose(devnull);
}

class CountingDevice : public SurfaceDevice {
public:
    long strokes = 0;
    void line(const Stroke&) override { ++strokes; }
    void pset(Single, Single, int, long) override {}
    void print(Single, Single, const std::string&, const FontSpec&) override {}
};

void TriangleSheetToPdf(benchmark::State& state) {
    const Integer base = static_cast<int>(state.range(0));
    QTemporaryDir dir;
    PdfSheetSink sink(dir.path());
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    PageBufferDevice pages(sink, printer);
    CountingDevice counter;
    printer.attach(&pages);
    printer.attach(&counter);
    for (auto _ : state) PrintTriangleSheet(printer, base, kDegrees60);
    state.counters["strokes"] = static_cast<double>(counter.strokes) / state.iterations();
    state.counters["pdf_bytes"] = static_cast<double>(QFileInfo(sink.lastFile()).size());
}
} // namespace

BENCHMARK(TriangleSheetToTrace)->Arg(1440)->Arg(288)->Arg(72)->Unit(benchmark::kMillisecond);
BENCHMARK(TriangleSheetToPdf)->Arg(1440)->Arg(288)->Arg(72)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
