// What a pupil feels in the window: the real forms shown offscreen, driven by
// key and mouse events that go through the event loop as a user's do.
//
//   stall_ms    the longest time one event kept the event loop busy (a key,
//               a click, a timer tick, a paint, a finished image handed
//               over): while it lasts the window cannot answer. Typing
//               stays fluid at 16 ms or less.
//   stall_cpu_ms  the same for the processor time the loop's thread spent
//               on its busiest event, which other programs on a shared
//               machine do not inflate.
//   preview_ms  the longest time from an event being posted until the
//               window shows everything its handler drew.
//
// At the end one table of every case, also written by `make bench`.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <chrono>
#include <ctime>
#include <cstdio>
#include <functional>
#include <map>

#include "all_forms.h"
#include "bench_support.h"
#include "platform/canvas_device.h"
#include "platform/form_view.h"
#include "platform/qt_drawing.h"
#include "shell/script/scripted_session.h"

using namespace gp;

namespace {

using Clock = std::chrono::steady_clock;

// Times every event delivered from the event loop itself (not those sent
// from inside a handler, which belong to the event that sent them).
class TimedApplication : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        if (depth_ > 0) return QApplication::notify(receiver, event);
        ++depth_;
        const Clock::time_point t0 = Clock::now();
        const double cpu0 = threadCpuMs();
        bool handled = false;
        try {
            handled = QApplication::notify(receiver, event);
        } catch (...) {
            --depth_;
            throw;
        }
        --depth_;
        longest_ = std::max(longest_, Clock::now() - t0);
        longestCpuMs_ = std::max(longestCpuMs_, threadCpuMs() - cpu0);
        return handled;
    }
    static double threadCpuMs() {
        timespec ts;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
        return ts.tv_sec * 1e3 + ts.tv_nsec / 1e6;
    }
    void reset() {
        longest_ = Clock::duration::zero();
        longestCpuMs_ = 0;
    }
    double takeLongestCpuMs() {
        const double ms = longestCpuMs_;
        longestCpuMs_ = 0;
        return ms;
    }
    double takeLongestMs() {
        const double ms = std::chrono::duration<double, std::milli>(longest_).count();
        longest_ = Clock::duration::zero();
        return ms;
    }

private:
    int depth_ = 0;
    Clock::duration longest_{};
    double longestCpuMs_ = 0;
};

TimedApplication* timedApp() { return static_cast<TimedApplication*>(qApp); }

using gp::bench::FaultLog;

// One page form in its real window, over the scripted session (dialogs are
// answered from a queue, so nothing waits for a person).
class Window {
public:
    explicit Window(const std::string& form, const std::string& answer = "") {
        SessionSettings settings;
        settings.seeded = true;
        settings.seed = 1;
        session_ = std::make_unique<ScriptedSession>(gridpagesProgram(), log_, &measurer_, settings);
        if (!answer.empty()) session_->queueAnswer(answer, 0);
        session_->forms().Show1(form);
        form_ = session_->forms().loaded(form);
        view_ = std::make_unique<FormView>(session_->forms(), *form_);
        view_->show();
        settle();
    }
    ~Window() {
        view_->detach();
        view_.reset();
        session_.reset();
    }

    Form& form() { return *form_; }
    FormView& view() { return *view_; }
    QWidget* canvasWidget() { return view_->clientArea(); }
    template <typename W>
    W* widget(const QString& text) {
        for (W* w : view_->findChildren<W*>())
            if (w->text() == text) return w;
        return nullptr;
    }

    // Runs the loop until the screen shows every op drawn so far and the
    // loop has nothing left to do; the time it took in ms, or -1 after 20 s.
    double settle(const Clock::time_point& since = Clock::now()) {
        QElapsedTimer guard;
        guard.start();
        for (;;) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            if (view_->canvas()->screenUpToDate()) break;
            if (guard.elapsed() > 20000) return -1;
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        }
        return std::chrono::duration<double, std::milli>(Clock::now() - since).count();
    }
    // Lets the loop run for `ms`, timers included.
    void runFor(int ms) {
        QElapsedTimer t;
        t.start();
        while (t.elapsed() < ms) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1);
    }

    const std::vector<std::string>& faults() const { return log_.faults; }

private:
    FaultLog log_;
    QtTextMeasurer measurer_;
    std::unique_ptr<ScriptedSession> session_;
    Form* form_ = nullptr;
    std::unique_ptr<FormView> view_;
};

void postKey(QWidget* w, int key, const QString& text) {
    QCoreApplication::postEvent(w, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
    QCoreApplication::postEvent(w, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, text));
}

void postClick(QWidget* w, QPointF at) {
    const QPointF global = w->mapToGlobal(at);
    QCoreApplication::postEvent(
        w, new QMouseEvent(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    QCoreApplication::postEvent(
        w, new QMouseEvent(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier));
}

struct Row {
    double stallMs = 0, stallCpuMs = 0, previewMs = 0;
};
std::map<std::string, Row> rows;
std::vector<std::string> order;
std::string currentCase;

// The worst of every interaction of the run, as counters and for the table.
class Worst {
public:
    void add(double stallMs, double previewMs) {
        stall_ = std::max(stall_, stallMs);
        stallCpu_ = std::max(stallCpu_, timedApp()->takeLongestCpuMs());
        preview_ = std::max(preview_, previewMs);
        if (previewMs < 0) timedOut_ = true;
    }
    void report(benchmark::State& state, Window& w) {
        if (timedOut_) state.SkipWithError("the window did not show the preview within 20 s");
        if (!w.faults().empty()) state.SkipWithError(w.faults().front().c_str());
        state.counters["stall_ms"] = stall_;
        state.counters["stall_cpu_ms"] = stallCpu_;
        state.counters["preview_ms"] = preview_;
        Row& r = rows[currentCase];
        r.stallMs = stall_;
        r.stallCpuMs = stallCpu_;
        r.previewMs = preview_;
    }

private:
    double stall_ = 0, stallCpu_ = 0, preview_ = 0;
    bool timedOut_ = false;
};

// Sends `event` (already posted) through the loop; adds its stall and the
// time until the screen is complete.
void measure(Window& w, Worst& worst, Clock::time_point posted) {
    const double preview = w.settle(posted);
    const double stall = timedApp()->takeLongestMs();
    worst.add(stall, preview);
}

// The keystroke that leaves `side` in the side box, and the Backspace that
// takes it out again. The second character is the one typed, so that the
// box never holds a side much smaller than the one measured.
void TemplateKeystroke(benchmark::State& state, const char* formName, const char* side) {
    Window w(formName);
    const std::string target = side;
    const size_t at = target.size() > 1 ? 1 : 0;
    std::string base = target;
    base.erase(at, 1);
    static_cast<TextBox*>(w.form().find("txtLeng"))->setText(base);
    QLineEdit* box = w.view().findChild<QLineEdit*>();
    w.settle();
    Worst worst;
    const QString typed = QString::fromStdString(target.substr(at, 1));
    for (auto _ : state) {
        box->setCursorPosition(static_cast<int>(at));
        timedApp()->reset();
        Clock::time_point t0 = Clock::now();
        postKey(box, Qt::Key_0 + (typed[0].unicode() - '0'), typed);
        measure(w, worst, t0);
        t0 = Clock::now();
        postKey(box, Qt::Key_Backspace, QString());
        measure(w, worst, t0);
    }
    if (box->text().toStdString() != base) state.SkipWithError("the keystrokes did not reach the side box");
    worst.report(state, w);
}

// Octagon3 chosen from the Shapes menu with 200 tics a corner, then points
// clicked on the canvas, each joined to the figure with 200 strings.
void StringArtClicks(benchmark::State& state) {
    Window w("frmString2");
    static_cast<TextBox*>(w.form().find("txtTics"))->setText("200");
    QAction* octagon = nullptr;
    for (QAction* a : w.view().findChildren<QAction*>())
        if (a->text() == "Octagon3") octagon = a;
    if (!octagon) {
        state.SkipWithError("no Octagon3 in the Shapes menu");
        return;
    }
    QWidget* canvas = w.canvasWidget();
    Worst worst;
    for (auto _ : state) {
        timedApp()->reset();
        Clock::time_point t0 = Clock::now();
        QMetaObject::invokeMethod(octagon, &QAction::trigger, Qt::QueuedConnection);
        measure(w, worst, t0);
        for (int i = 0; i < 10; ++i) {
            const QPointF at(canvas->width() * (0.45 + 0.05 * i), canvas->height() * (i % 2 ? 0.3 : 0.7));
            t0 = Clock::now();
            postClick(canvas, at);
            measure(w, worst, t0);
        }
    }
    worst.report(state, w);
}

// A run of Explode It with a tick every millisecond: Begin clicked, the
// frames run for a quarter of a second, Quit clicked.
void ExplodeRun(benchmark::State& state) {
    Window w("frmExplodeIt", "1");
    QPushButton* begin = w.widget<QPushButton>("Begin");
    QPushButton* quit = w.widget<QPushButton>("Quit");
    if (!begin || !quit) {
        state.SkipWithError("no Begin or Quit button");
        return;
    }
    Worst worst;
    for (auto _ : state) {
        timedApp()->reset();
        postClick(begin, QPointF(begin->width() / 2.0, begin->height() / 2.0));
        w.runFor(250);
        const double ticking = timedApp()->takeLongestMs();
        const Clock::time_point t0 = Clock::now();
        postClick(quit, QPointF(quit->width() / 2.0, quit->height() / 2.0));
        const double preview = w.settle(t0);
        worst.add(std::max(ticking, timedApp()->takeLongestMs()), preview);
    }
    worst.report(state, w);
}

void addCase(const std::string& name, std::function<void(benchmark::State&)> run, int iterations) {
    order.push_back(name);
    benchmark::RegisterBenchmark(name.c_str(), [name, run](benchmark::State& s) {
        currentCase = name;
        run(s);
    })->Unit(benchmark::kMillisecond)->Iterations(iterations)->UseRealTime();
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    TimedApplication app(argc, argv);
    const char* templates[] = {"frmHalfCube", "frmRhombiCube", "frmOneSixthCube", "frmRhombiDodec",
                               "frmGreatDodeca"};
    const char* sides[] = {"1", ".1", ".05", ".02", ".015"};
    for (const char* t : templates)
        for (const char* s : sides)
            addCase(std::string(t) + "/" + s, [t, s](benchmark::State& st) { TemplateKeystroke(st, t, s); }, 3);
    addCase("frmString2/200 tics, Octagon3, 10 clicks", StringArtClicks, 3);
    addCase("frmExplodeIt/1 ms ticks", ExplodeRun, 3);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    std::printf("\nThe window after one key or click (worst of the run).\n\n"
                "| Case | stall_ms | stall_cpu_ms | preview_ms |\n|---|---:|---:|---:|\n");
    for (const std::string& name : order) {
        auto it = rows.find(name);
        if (it == rows.end()) continue;
        const Row& r = it->second;
        std::printf("| %s | %.1f | %.1f | %.1f |\n", name.c_str(), r.stallMs, r.stallCpuMs, r.previewMs);
    }
    return 0;
}
