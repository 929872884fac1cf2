#pragma once
// The whole program for benchmarks, with no window: the scripted session,
// each canvas painted on a real image at 15 twips to the pixel, the Printer
// on the PDF surface, dialogs answered from its queue.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "all_forms.h"
#include "platform/canvas_device.h"
#include "platform/pdf_sheets.h"
#include "shell/script/scripted_session.h"

namespace gp::bench {

class StrokeCounter : public SurfaceDevice {
public:
    long strokes = 0;
    void line(const Stroke&) override { ++strokes; }
    void pset(Single, Single, int, long) override { ++strokes; }
    void print(Single, Single, const std::string&, const FontSpec&) override {}
};

// Keeps only the faults, to report them as benchmark errors.
class FaultLog : public SessionLog {
public:
    std::vector<std::string> faults;
    // As in the window, no surface tells its strokes to a log.
    bool wantsDrawing() const override { return false; }
    void error(const std::string& message) override { faults.push_back(message); }
};

class BenchProgram {
public:
    BenchProgram() : sink_(dir_.path().toStdString()) {
        SessionSettings settings;
        settings.seeded = true;
        settings.seed = 1;
        session_ = std::make_unique<ScriptedSession>(gridpagesProgram(), log_, nullptr, settings);
        session_->addSheetSink(sink_);
        session_->onFormLoaded([this](Form& form) {
            const FormDesign& d = form.design();
            const long back = d.backColor < 0 ? 0xFFFFFF : d.backColor;
            canvases_.push_back(std::make_unique<CanvasDevice>(d.clientWidth / 15, d.clientHeight / 15,
                                                               d.canvasWidth(), d.canvasHeight(), back, 1.0));
            form.Me().attach(canvases_.back().get());
        });
    }
    ~BenchProgram() { session_.reset(); }

    // Opens a page form as its menu button does; counts what its canvas draws.
    Form& open(const std::string& name) {
        app().Show1(name);
        Form& f = *app().loaded(name);
        f.Me().attach(&drawn);
        return f;
    }
    void click(Form& f, const std::string& control) { app().dispatch(f, control, Event::Click); }
    void edit(Form& f, const std::string& box, const std::string& text) {
        session_->edit(*dynamic_cast<TextBox*>(f.find(box)), text);
    }
    void answer(const std::string& a) { session_->queueAnswer(a, 0); }
    const QImage& canvasImage() { return canvases_.back()->image(); }
    // The first fault shown, or a sheet not written, as a benchmark error.
    bool failed(benchmark::State& state) {
        std::vector<std::string> all = log_.faults;
        for (const std::string& f : session_->outputFailures()) all.push_back(f);
        if (all.empty()) return false;
        state.SkipWithError(all.front().c_str());
        return true;
    }

    FormSet& app() { return session_->forms(); }
    DrawingSurface& printer() { return session_->printer(); }
    QString lastSheet() const { return sink_.lastFile(); }
    StrokeCounter drawn;

private:
    QTemporaryDir dir_;
    PdfSheetSink sink_;
    FaultLog log_;
    std::vector<std::unique_ptr<CanvasDevice>> canvases_;
    std::unique_ptr<ScriptedSession> session_;
};

// Prints every run as the console does and keeps each benchmark's CPU time
// in ms (the median of its repetitions, where it has several), for a table
// of ratios at the end.
class MedianCpuTimes : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> ms;

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred) continue;
            const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (median || run.run_type == Run::RT_Iteration)
                ms[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
    }
};

// Fonts and images need a GUI application, with no screen.
inline int runBenchmarks(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

} // namespace gp::bench
