// Every page kind, driven through the real forms as the batch runner drives
// them, timed to the recording surface (the trace) and to a PDF sheet. At
// the end one table: page, strokes, time to trace, time to PDF, PDF size.
// Sizes in steps (triangles at 1, 0.2 and 0.05 inch; stick curves at 0.5,
// 0.2 and 0.1) show that the cost grows in step with the strokes.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "all_forms.h"
#include "platform/pdf_sheets.h"
#include "platform/qt_drawing.h"
#include "shell/script/scripted_session.h"
#include "shell/trace_writer.h"

namespace {

struct PageCase {
    std::string page;
    std::vector<std::string> setup;  // script lines before the timed one
    std::string action;              // the timed script line
    std::vector<std::string> answers;  // queued before each timed line
};

const std::vector<PageCase> kCases = {
    {"Triangles, 1 inch", {"click cmdTriangle"}, "click cmdPrintIt", {}},
    {"Triangles, 0.2 inch", {"click cmdTriangle", "text txtLeng .2"}, "click cmdPrintIt", {}},
    {"Triangles, 0.05 inch", {"click cmdTriangle", "text txtLeng .05"}, "click cmdPrintIt", {}},
    {"Squares, 0.5 inch", {"click cmdSquares"}, "click cmdPrintIt", {}},
    {"Squares, 0.05 inch", {"click cmdSquares", "text txtWidth .05", "text txtHigh .05"}, "click cmdPrintIt", {}},
    {"Multiplication chart", {"click cmdSquares", "check chkMult 1"}, "click cmdPrintIt", {}},
    {"Puzzle sheet", {"click cmdSquares"}, "click cmdStart", {}},
    {"Centered squares", {"click cmdSquares2"}, "click cmdPrintIt", {}},
    {"Hexagons", {"click cmdHexagon"}, "click cmdPrintIt", {}},
    {"Inscribed hexagons", {"click cmdHexagon"}, "click cmdHexInscribed", {}},
    {"Target", {"click cmdHexagon"}, "click cmdTarget", {}},
    {"Parabola", {"click cmdParabola"}, "click cmdGraph", {}},
    {"Half cube, 1 inch", {"click cmdHalfCube"}, "click cmdPrintIt", {}},
    {"Half cube, 0.1 inch", {"click cmdHalfCube", "text txtLeng .1"}, "click cmdPrintIt", {}},
    {"Rhombic cube", {"click cmdRhomb"}, "click cmdPrintIt", {}},
    {"One-sixth cube pyramid", {"click Command1"}, "click cmdPrintIt", {}},
    {"Rhombic dodecahedron", {"click cmdDodecaRombus"}, "click cmdPrintIt", {}},
    {"Great dodecagon", {"click cmdGreatDodeca"}, "click cmdPrintIt", {}},
    {"Stick curves, double, filled", {"click cmdStickCurves", "check chkDouble 1"}, "click cmdPrintIt", {}},
    {"Stick curves, 0.2 inch, double, filled",
     {"click cmdStickCurves", "check chkDouble 1", "text txtTics .2"}, "click cmdPrintIt", {}},
    {"Stick curves, 0.1 inch, double, filled",
     {"click cmdStickCurves", "check chkDouble 1", "text txtTics .1"}, "click cmdPrintIt", {}},
    {"String art Octagon3, 200 tics, scaled",
     {"click cmdString2", "click Command1", "text txtTics 200", "menu mnuOcta3"}, "click cmdPrintIt", {"6", "7"}},
    {"Explode It, one tick of the runner", {"click cmdAnimate", "click cmdBegin"}, "tick", {}},
};

struct Result {
    double traceMs = -1, pdfMs = -1, strokes = 0, pdfBytes = 0;
};
std::map<std::string, Result> results;

std::FILE* devNull() {
    static std::FILE* f = std::fopen("/dev/null", "wb");
    return f;
}

void runCase(benchmark::State& state, const PageCase& c, bool pdf) {
    QTemporaryDir dir;
    gp::TraceWriter trace(devNull());
    gp::QtTextMeasurer measurer;
    gp::SessionSettings settings;
    settings.seeded = true;
    settings.seed = 1;
    gp::ScriptedSession session(gp::gridpagesProgram(), trace, &measurer, settings);
    gp::PdfSheetSink sheets(dir.path().toStdString());
    if (pdf) session.addSheetSink(sheets);
    try {
        session.start();
        for (const std::string& line : c.setup) session.execute(line);
    } catch (const gp::ScriptError& e) {
        state.SkipWithError(e.reason.c_str());
        return;
    }
    long strokes = 0;
    for (auto _ : state) {
        for (const std::string& a : c.answers) session.execute("answer " + a);
        const long before = trace.strokes();
        session.execute(c.action);
        strokes = trace.strokes() - before;
    }
    state.counters["strokes"] = static_cast<double>(strokes);
    if (pdf) state.counters["pdf_bytes"] = static_cast<double>(QFileInfo(sheets.lastFile()).size());
}

// Collects the runs quietly; the table at the end is the output.
class TableReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        std::fputc('.', stderr);
        for (const Run& r : runs) {
            const std::string name = r.benchmark_name();
            const size_t slash = name.rfind('/');
            const std::string page = name.substr(0, slash), surface = name.substr(slash + 1);
            Result& res = results[page];
            const double ms = r.GetAdjustedRealTime() * 1e3 /
                              benchmark::GetTimeUnitMultiplier(r.time_unit);
            auto counter = [&](const char* k) {
                auto it = r.counters.find(k);
                return it == r.counters.end() ? 0.0 : static_cast<double>(it->second);
            };
            if (surface == "trace") {
                res.traceMs = ms;
                res.strokes = counter("strokes");
            } else {
                res.pdfMs = ms;
                res.pdfBytes = counter("pdf_bytes");
            }
        }
    }
};

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    for (const PageCase& c : kCases) {
        for (bool pdf : {false, true}) {
            benchmark::RegisterBenchmark((c.page + (pdf ? "/pdf" : "/trace")).c_str(),
                                         [&c, pdf](benchmark::State& s) { runCase(s, c, pdf); })
                ->Unit(benchmark::kMillisecond);
        }
    }
    benchmark::Initialize(&argc, argv);
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    std::fputc('\n', stderr);
    std::printf("| Page | Strokes | Time to trace | Time to PDF | PDF size |\n|---|---:|---:|---:|---:|\n");
    for (const PageCase& c : kCases) {
        auto it = results.find(c.page);
        if (it == results.end()) continue;  // filtered out
        const Result& r = it->second;
        if (r.pdfBytes > 0)
            std::printf("| %s | %.0f | %.2f ms | %.2f ms | %.1f KB |\n", c.page.c_str(), r.strokes, r.traceMs,
                        r.pdfMs, r.pdfBytes / 1024.0);
        else  // a page that prints nothing: only the canvas is drawn
            std::printf("| %s | %.0f | %.2f ms | - | - |\n", c.page.c_str(), r.strokes, r.traceMs);
    }
    return 0;
}
