#pragma once
// The whole program for benchmarks, with no window: every form registered,
// each canvas painted on a real image at 15 twips to the pixel, the Printer
// on the PDF surface, dialogs answered from a queue.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <deque>
#include <memory>
#include <vector>

#include "all_forms.h"
#include "platform/canvas_device.h"
#include "platform/pdf_sheets.h"
#include "shell/form_set.h"

namespace gp::bench {

class StrokeCounter : public SurfaceDevice {
public:
    long strokes = 0;
    void line(const Stroke&) override { ++strokes; }
    void pset(Single, Single, int, long) override { ++strokes; }
    void print(Single, Single, const std::string&, const FontSpec&) override {}
};

class BenchProgram : public Dialogs, public FormHost, public Clock, public OutputFailures {
public:
    BenchProgram() : sink_(dir_.path()), pages_(printer_, *this) {
        pages_.addSink(sink_);
        printer_.attach(&pages_);
        random_.seed(1);
        app_ = std::make_unique<FormSet>(*this, *this, printer_, random_, *this);
        registerAllForms(*app_);
    }
    ~BenchProgram() override { app_.reset(); }

    // Opens a page form as its menu button does; counts what its canvas draws.
    Form& open(const std::string& name) {
        app_->Show1(name);
        Form& f = *app_->loaded(name);
        f.Me().attach(&drawn);
        return f;
    }
    void click(Form& f, const std::string& control) { app_->dispatch(f, control, Event::Click); }
    void edit(Form& f, const std::string& box, const std::string& text) {
        auto* t = dynamic_cast<TextBox*>(f.find(box));
        app_->guarded(f, [&] { t->userEdit(text); });
    }
    void answer(const std::string& a) { answers_.push_back(a); }
    const QImage& canvasImage() { return canvases_.back()->image(); }
    // The first fault shown, as a benchmark error.
    bool failed(benchmark::State& state) {
        if (faults_.empty()) return false;
        state.SkipWithError(faults_.front().c_str());
        return true;
    }

    FormSet& app() { return *app_; }
    DrawingSurface& printer() { return printer_; }
    QString lastSheet() const { return sink_.lastFile(); }
    StrokeCounter drawn;

    int MsgBox(const std::string&, int buttons, const std::string&) override {
        if (!answers_.empty()) {
            const int a = std::atoi(answers_.front().c_str());
            answers_.pop_front();
            return a;
        }
        return buttons == vbYesNo || buttons == vbYesNoCancel ? vbYes : vbOK;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string& d, std::optional<int>,
                         std::optional<int>) override {
        return d;
    }
    void showFault(const std::string& message) override { faults_.push_back(message); }
    void formMissing(const std::string& name) override { faults_.push_back("no form " + name); }
    void formLoaded(Form& form) override {
        const FormDesign& d = form.design();
        const long back = d.backColor < 0 ? 0xFFFFFF : d.backColor;
        canvases_.push_back(std::make_unique<CanvasDevice>(d.clientWidth / 15, d.clientHeight / 15,
                                                           d.canvasWidth(), d.canvasHeight(), back, 1.0));
        form.Me().attach(canvases_.back().get());
    }
    void formShown(Form&, bool) override {}
    void formHidden(Form&) override {}
    void formUnloading(Form&) override {}
    void runModal(Form&) override {}
    void endProgram() override {}
    Single Timer() const override { return 43200.0f; }
    void outputFailed(const std::string& message) override { faults_.push_back(message); }

private:
    QTemporaryDir dir_;
    PdfSheetSink sink_;
    DrawingSurface printer_{DrawingSurface::Kind::Printer, "Printer", 11520, 15120};
    PrinterPages pages_;
    RandomSource random_;
    std::vector<std::unique_ptr<CanvasDevice>> canvases_;
    std::deque<std::string> answers_;
    std::vector<std::string> faults_;
    std::unique_ptr<FormSet> app_;
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
