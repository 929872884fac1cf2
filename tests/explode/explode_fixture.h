#pragma once
// A shown frmExplodeIt: its boxes, its timer fired as the platform does (only
// while enabled with an interval above 0) and the strokes of the frame on show.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "explode/frm_explode_it.h"
#include "support/test_app.h"

namespace explode_test {
using namespace gp;
using gp::test::Op;
using gp::test::TestApp;
constexpr const char* kForm = "frmExplodeIt";

struct Explode {
    TestApp t;
    explicit Explode(const std::string& interval = "500") { open(interval); }
    void open(const std::string& interval = "500") { t.answer(interval); t.show(kForm); }
    FrmExplodeIt* form() { return static_cast<FrmExplodeIt*>(t.app().loaded(kForm)); }
    FrmExplodeIt& f() { return *form(); }
    std::string text(const std::string& box, int i = -1) { return static_cast<TextBox*>(f().find(box, i))->Text(); }
    TimerControl& timer() { return *static_cast<TimerControl*>(f().find("Timer1")); }
    void mouse(Single x, Single y) {
        EventArgs a;
        a.button = 1, a.x = x, a.y = y;
        t.fire(f(), kFormEvents, Event::MouseDown, a);
    }
    // "txtX(0)" names one box of a control array.
    void edit(const std::string& box, const std::string& v) {
        const auto p = box.find('(');
        auto* b = static_cast<TextBox*>(f().find(box.substr(0, p), p == std::string::npos ? -1 : std::stoi(box.substr(p + 1))));
        t.app().guarded(f(), [&] { b->userEdit(v); });
    }
    void tick(int n = 1) {
        for (int i = 0; i < n && form() && timer().Enabled() && timer().Interval() > 0; ++i)
            t.fire(f(), "Timer1", Event::Timer);
    }
    // A user's steps, blank-separated: "txtSteps=3" or "txtX(0)=9" types, "optUp" picks,
    // "t5" ticks five times, "@6000,5000" clicks the graph, "clear" forgets
    // what was recorded, any other name is clicked.
    Explode& operator()(const std::string& steps) {
        std::istringstream in(steps);
        for (std::string w; in >> w;) {
            if (auto eq = w.find('='); eq != std::string::npos) edit(w.substr(0, eq), w.substr(eq + 1));
            else if (w.rfind("opt", 0) == 0) static_cast<OptionButton*>(f().find(w))->select();
            else if (w[0] == 't' && w.size() > 1 && isdigit(w[1])) tick(std::stoi(w.substr(1)));
            else if (w[0] == '@') mouse(std::stof(w.substr(1)), std::stof(w.substr(w.find(',') + 1)));
            else if (w == "clear") t.clear();
            else t.fire(f(), w, Event::Click);
        }
        return *this;
    }
    // Strokes drawn since the last Cls, and the first one's start.
    std::vector<Stroke> frame() const {
        std::vector<Stroke> out;
        for (const Op& o : t.opsOf(kForm)) {
            if (o.op == "cls") out.clear();
            if (o.op == "line") out.push_back(o.stroke);
        }
        return out;
    }
    float x1() const { return frame().at(0).x1; }
    float y1() const { return frame().at(0).y1; }
    std::vector<std::string> counters() const {
        std::vector<std::string> out;
        for (const Op& o : t.opsOf(kForm, "print")) out.push_back(o.text);
        return out;
    }
    std::string counter() const { return counters().empty() ? "" : counters().back(); }
    // Boxes 0 to 10 of txtX or txtY, each followed by a blank.
    std::string row(const std::string& box) {
        std::string out;
        for (int i = 0; i <= 10; ++i) out += text(box, i) + " ";
        return out;
    }
};

// Form position of graph point (x, y), a Single as a stroke's end is.
inline float formX(double x) { return static_cast<float>(6000 + 240 * x); }
inline float formY(double y) { return static_cast<float>(5400 - 240 * y); }
inline std::vector<std::string> texts(std::initializer_list<int> ns) {
    std::vector<std::string> out;
    for (int n : ns) out.push_back(Str(n) + " ");
    return out;
}
} // namespace explode_test
