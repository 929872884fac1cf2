// The canvas against the floor: a template's preview recorded once, then
// painted by the form's canvas (recorded and rasterised, as a keystroke
// does) and by the plainest QPainter loop over the same strokes onto an
// image of the same size. The table gives their ratio, in processor time
// (a shared machine inflates the wall clock of both alike), the median of
// five runs each.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>
#include <cstdio>
#include <map>

#include "all_forms.h"
#include "bench_support.h"
#include "platform/canvas_device.h"
#include "platform/qt_drawing.h"
#include "shell/script/scripted_session.h"

using namespace gp;

namespace {

struct Preview {
    const char* form;
    const char* side;
};
const Preview kPreviews[] = {{"frmRhombiCube", ".05"}, {"frmHalfCube", ".05"}, {"frmGreatDodeca", ".05"}};

class Recorder : public SurfaceDevice {
public:
    Page page;
    void line(const Stroke& s) override { page.addLine(s); }
    void pset(Single x, Single y, int width, long color) override { page.addDot(x, y, width, color); }
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override {
        page.addText(x, y, text, font);
    }
    void cls() override { page.clear(); }
};

struct Recorded {
    Page page;
    int width = 0, height = 0;
    Single unitsWide = 0, unitsHigh = 0;
    long back = 0xFFFFFF;
};

const Recorded& recorded(const Preview& p) {
    static std::map<std::string, Recorded> cache;
    auto found = cache.find(p.form);
    if (found != cache.end()) return found->second;
    SessionLog quiet;
    QtTextMeasurer measurer;
    ScriptedSession session(gridpagesProgram(), quiet, &measurer);
    Recorder recorder;
    session.onFormLoaded([&](Form& f) { f.Me().attach(&recorder); });
    session.forms().Show1(p.form);
    Form& f = *session.forms().loaded(p.form);
    session.edit(*dynamic_cast<TextBox*>(f.find("txtLeng")), p.side);
    f.Me().detach(&recorder);
    const FormDesign& d = f.design();
    Recorded r{recorder.page, d.clientWidth / 15, d.clientHeight / 15, d.canvasWidth(), d.canvasHeight(),
               d.backColor < 0 ? 0xFFFFFF : d.backColor};
    return cache.emplace(p.form, std::move(r)).first->second;
}

void Canvas(benchmark::State& state, const Preview& p) {
    const Recorded& r = recorded(p);
    CanvasDevice canvas(r.width, r.height, r.unitsWide, r.unitsHigh, r.back, 1.0);
    for (auto _ : state) {
        canvas.cls();
        replay(r.page, canvas);
        benchmark::DoNotOptimize(canvas.image().constBits());
    }
    state.counters["strokes"] = static_cast<double>(r.page.ops.size());
}

// A pen set where the stroke's pen differs from the last one, one
// drawLine (or drawPoint) a stroke: what any program drawing these strokes
// must at least do.
void Floor(benchmark::State& state, const Preview& p) {
    const Recorded& r = recorded(p);
    QImage image(r.width, r.height, QImage::Format_RGB32);
    const double sx = r.width / static_cast<double>(r.unitsWide), sy = r.height / static_cast<double>(r.unitsHigh);
    for (auto _ : state) {
        image.fill(toQColor(r.back));
        QPainter painter(&image);
        int style = -1, width = -1;
        long color = -2;
        for (const PageOp& op : r.page.ops) {
            const Stroke& s = op.stroke;
            if (op.kind == PageOp::DotOp) {
                drawDot(painter, s.x1 * sx, s.y1 * sy, s.width, s.color, PenScale{1.0, sx});
                width = -1;
                continue;
            }
            if (op.kind == PageOp::TextOp) {
                const PageText& t = r.page.texts[static_cast<size_t>(op.textIndex)];
                drawText(painter, t.x * sx, t.y * sy, t.text, t.font);
                width = -1;
                continue;
            }
            if (s.style != style || s.width != width || s.color != color) {
                painter.setPen(makePen(s.style, s.width, s.color, PenScale{1.0, sx}));
                style = s.style;
                width = s.width;
                color = s.color;
            }
            const QPointF a(s.x1 * sx, s.y1 * sy), b(s.x2 * sx, s.y2 * sy);
            if (a == b)
                painter.drawPoint(a);
            else
                painter.drawLine(a, b);
        }
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["strokes"] = static_cast<double>(r.page.ops.size());
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication app(argc, argv);
    for (const Preview& p : kPreviews) {
        const std::string name = std::string(p.form) + "/" + p.side;
        benchmark::RegisterBenchmark((name + "/canvas").c_str(), [&p](benchmark::State& s) { Canvas(s, p); })
            ->Unit(benchmark::kMillisecond)->Repetitions(5);
        benchmark::RegisterBenchmark((name + "/floor").c_str(), [&p](benchmark::State& s) { Floor(s, p); })
            ->Unit(benchmark::kMillisecond)->Repetitions(5);
    }
    benchmark::Initialize(&argc, argv);
    gp::bench::MedianCpuTimes table;
    benchmark::RunSpecifiedBenchmarks(&table);
    const std::map<std::string, double>& msOf = table.ms;
    benchmark::Shutdown();

    std::printf("\nThe canvas painting a preview against a bare QPainter loop.\n\n"
                "| Preview | Canvas | Floor | Canvas / floor |\n|---|---:|---:|---:|\n");
    for (const Preview& p : kPreviews) {
        const std::string name = std::string(p.form) + "/" + p.side;
        const auto c = msOf.find(name + "/canvas"), f = msOf.find(name + "/floor");
        if (c == msOf.end() || f == msOf.end()) continue;
        std::printf("| %s | %.2f ms | %.2f ms | %.2f |\n", name.c_str(), c->second, f->second, c->second / f->second);
    }
    return 0;
}
