// The densest sheets saved as SVG and as PDF: the same recorded page, drawn
// through the real forms once, then written to a file each way. At the end
// one table: strokes, time and size of each file, and their ratios.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <map>

#include "bench_support.h"
#include "platform/pdf_sheets.h"
#include "platform/svg_sheet.h"

namespace {

struct SheetCase {
    std::string name, form, box, text, check;
};

const std::vector<SheetCase> kCases = {
    {"Triangles, 0.05 inch", "frmTriangle", "txtLeng", ".05", ""},
    {"Stick curves, 0.1 inch, double, filled", "frmStickCurves", "txtTics", ".1", "chkDouble"},
    {"Rhombic cube, 0.03 inch", "frmRhombiCube", "txtLeng", ".03", ""},
    {"Half cube, 0.1 inch", "frmHalfCube", "txtLeng", ".1", ""},
};

constexpr gp::Single kWidth = 11520, kHeight = 15120;

// Keeps the Printer's last sheet.
class LastSheet : public gp::PageSink, public gp::OutputFailures {
public:
    gp::Page page;
    std::string failure;
    gp::OutputResult emitPage(const gp::Page& p, gp::Single, gp::Single) override {
        page = p;
        return gp::OutputResult::written();
    }
    void outputFailed(const std::string& message) override { failure = message; }
};

// One program for every case: each sheet is drawn once and kept.
std::map<std::string, gp::Page>& sheets() {
    static std::map<std::string, gp::Page> pages;
    return pages;
}

const gp::Page* sheetFor(const SheetCase& c, benchmark::State& state) {
    auto found = sheets().find(c.name);
    if (found != sheets().end()) return &found->second;
    gp::bench::BenchProgram program;
    LastSheet last;
    gp::PrinterPages pages(program.printer(), last);
    pages.addSink(last);
    program.printer().attach(&pages);
    gp::Form& f = program.open(c.form);
    if (!c.check.empty()) static_cast<gp::CheckBox*>(f.find(c.check))->setValue(1);
    program.edit(f, c.box, c.text);
    program.click(f, "cmdPrintIt");
    program.printer().detach(&pages);
    if (program.failed(state)) return nullptr;
    return &sheets().emplace(c.name, last.page).first->second;
}

double strokesOf(const gp::Page& page) {
    double n = 0;
    for (const gp::PageOp& op : page.ops) n += op.kind != gp::PageOp::TextOp;
    return n;
}

struct Result {
    double ms = 0, bytes = 0;
};
std::map<std::string, Result> results;  // "case/svg", "case/pdf"
std::map<std::string, double> strokes;

void toSvg(benchmark::State& state, const SheetCase& c) {
    const gp::Page* page = sheetFor(c, state);
    if (!page) return;
    QTemporaryDir dir;
    const std::string path = dir.filePath("sheet.svg").toStdString();
    for (auto _ : state) {
        const std::string svg = gp::svgSheet(*page, kWidth, kHeight, gp::SheetFrame::around(kWidth, kHeight));
        std::FILE* f = std::fopen(path.c_str(), "wb");
        if (!f || std::fwrite(svg.data(), 1, svg.size(), f) != svg.size() || std::fclose(f) != 0) {
            state.SkipWithError("the SVG could not be written");
            return;
        }
    }
    state.counters["bytes"] = static_cast<double>(QFileInfo(QString::fromStdString(path)).size());
    state.counters["strokes"] = strokesOf(*page);
}

void toPdf(benchmark::State& state, const SheetCase& c) {
    const gp::Page* page = sheetFor(c, state);
    if (!page) return;
    QTemporaryDir dir;
    const std::string path = dir.filePath("sheet.pdf").toStdString();
    for (auto _ : state) {
        const QByteArray pdf = gp::sheetPdf(*page, kWidth, kHeight, gp::SheetFrame::around(kWidth, kHeight));
        std::FILE* f = std::fopen(path.c_str(), "wb");
        const size_t n = static_cast<size_t>(pdf.size());
        if (!f || std::fwrite(pdf.constData(), 1, n, f) != n || std::fclose(f) != 0) {
            state.SkipWithError("the PDF could not be written");
            return;
        }
    }
    state.counters["bytes"] = static_cast<double>(QFileInfo(QString::fromStdString(path)).size());
    state.counters["strokes"] = strokesOf(*page);
}

class TableReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        std::fputc('.', stderr);
        for (const Run& r : runs) {
            if (r.error_occurred) continue;
            Result& res = results[r.benchmark_name()];
            res.ms = r.GetAdjustedCPUTime() * 1e3 / benchmark::GetTimeUnitMultiplier(r.time_unit);
            res.bytes = r.counters.at("bytes");
            const std::string name = r.benchmark_name();
            strokes[name.substr(0, name.rfind('/'))] = r.counters.at("strokes");
        }
    }
};

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    for (const SheetCase& c : kCases) {
        benchmark::RegisterBenchmark((c.name + "/svg").c_str(), [&c](benchmark::State& s) { toSvg(s, c); })
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((c.name + "/pdf").c_str(), [&c](benchmark::State& s) { toPdf(s, c); })
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    std::fputc('\n', stderr);
    std::printf("CPU time to make and write one file.\n\n| Sheet | Strokes | SVG | PDF | PDF time / SVG time | SVG size | PDF size | SVG size / PDF size |\n"
                "|---|---:|---:|---:|---:|---:|---:|---:|\n");
    // A cell of the table, "-" where its benchmark was filtered out or failed.
    auto cell = [](bool known, double v, const char* format) {
        char buf[64] = "-";
        if (known) std::snprintf(buf, sizeof buf, format, v);
        return std::string(buf);
    };
    for (const SheetCase& c : kCases) {
        const auto svg = results.find(c.name + "/svg"), pdf = results.find(c.name + "/pdf");
        const bool s = svg != results.end(), p = pdf != results.end();
        if (!s && !p) continue;
        const Result none;
        const Result &sr = s ? svg->second : none, &pr = p ? pdf->second : none;
        std::printf("| %s | %.0f | %s | %s | %s | %s | %s | %s |\n", c.name.c_str(), strokes[c.name],
                    cell(s, sr.ms, "%.1f ms").c_str(), cell(p, pr.ms, "%.1f ms").c_str(),
                    cell(s && p, pr.ms / sr.ms, "%.1f").c_str(), cell(s, sr.bytes / 1024, "%.0f KB").c_str(),
                    cell(p, pr.bytes / 1024, "%.0f KB").c_str(), cell(s && p, sr.bytes / pr.bytes, "%.1f").c_str());
    }
    return 0;
}
