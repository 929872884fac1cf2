// What the trace costs a batch run: the dense triangle sheet (.05 inch,
// about 194,000 strokes) made through the real forms into a PDF file, once
// with its trace written to a file beside it and once without a trace, in
// the same run. The table gives their ratio in processor time (the median
// of five runs each), which is what `--trace FILE` adds to `--pdf DIR`.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>

#include "bench_support.h"
#include "platform/pdf_sheets.h"
#include "platform/qt_drawing.h"
#include "shell/trace_writer.h"

using namespace gp;

namespace {

const char* const kScript[] = {"click cmdTriangle", "text txtLeng .05", "click cmdPrintIt"};

void Sheet(benchmark::State& state, bool traced) {
    QTemporaryDir dir;
    const std::string tracePath = dir.filePath("trace.jsonl").toStdString();
    long strokes = 0;
    for (auto _ : state) {
        std::FILE* out = traced ? std::fopen(tracePath.c_str(), "wb") : nullptr;
        if (traced && !out) {
            state.SkipWithError("cannot write the trace file");
            return;
        }
        {
            TraceWriter trace(out);
            QtTextMeasurer measurer;
            SessionSettings settings;
            settings.seeded = true;
            settings.seed = 1;
            ScriptedSession session(gridpagesProgram(), trace, &measurer, settings);
            PdfSheetSink pdf(dir.path().toStdString());
            session.addSheetSink(pdf);
            session.start();
            for (const char* line : kScript) session.execute(line);
            strokes = trace.strokes();
        }
        if (out) std::fclose(out);
    }
    state.counters["strokes"] = static_cast<double>(strokes);
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::RegisterBenchmark("triangles .05/pdf", [](benchmark::State& s) { Sheet(s, false); })
        ->Unit(benchmark::kMillisecond)->Repetitions(5)->MeasureProcessCPUTime();
    benchmark::RegisterBenchmark("triangles .05/pdf+trace", [](benchmark::State& s) { Sheet(s, true); })
        ->Unit(benchmark::kMillisecond)->Repetitions(5)->MeasureProcessCPUTime();
    benchmark::Initialize(&argc, argv);
    gp::bench::MedianCpuTimes table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();

    const auto plain = table.ms.find("triangles .05/pdf"), traced = table.ms.find("triangles .05/pdf+trace");
    if (plain == table.ms.end() || traced == table.ms.end()) return 1;
    std::printf("\nThe dense triangle sheet to PDF, with a trace and without.\n\n"
                "| Sheet | PDF | PDF and trace | Ratio |\n|---|---:|---:|---:|\n"
                "| Triangles, 0.05 inch | %.1f ms | %.1f ms | %.2f |\n",
                plain->second, traced->second, traced->second / plain->second);
    return 0;
}
