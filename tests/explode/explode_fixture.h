#pragma once
// A shown frmExplodeIt driven by a user's steps, with the strokes of the frame
// on show and the counters printed.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "explode/frm_explode_it.h"
#include "support/test_app.h"

namespace explode_test {
using namespace gp;
using gp::test::Op;
constexpr const char* kForm = "frmExplodeIt";

struct Explode {
    gp::test::TestApp t;
    explicit Explode(const std::string& interval = "500") { open(interval); }
    void open(const std::string& interval = "500") { t.answer(interval); t.show(kForm); }
    FrmExplodeIt* form() { return static_cast<FrmExplodeIt*>(t.app().loaded(kForm)); }
    FrmExplodeIt& f() { return *form(); }
    std::string text(const std::string& box, int i = -1) { return static_cast<TextBox*>(f().find(box, i))->Text(); }
    TimerControl& timer() { return *static_cast<TimerControl*>(f().find("Timer1")); }
    // Blank-separated steps: "txtSteps=3" or "txtX(0)=9" types, "optUp" picks,
    // "t5" ticks five times as the platform does (only while the timer is on
    // with an interval above 0), "@6000,5000" clicks the graph, "clear"
    // forgets what was recorded, any other name is clicked.
    Explode& operator()(const std::string& steps) {
        std::istringstream in(steps);
        for (std::string w; in >> w;) {
            const auto eq = w.find('='), p = w.find('(');
            if (eq != std::string::npos) {
                auto* b = static_cast<TextBox*>(f().find(w.substr(0, std::min(eq, p)), p < eq ? std::stoi(w.substr(p + 1)) : -1));
                t.app().guarded(f(), [&] { b->userEdit(w.substr(eq + 1)); });
            } else if (w.rfind("opt", 0) == 0) {
                static_cast<OptionButton*>(f().find(w))->select();
            } else if (w[0] == 't' && isdigit(w[1])) {
                for (int i = std::stoi(w.substr(1)); i > 0 && form() && timer().Enabled() && timer().Interval() > 0; --i)
                    t.fire(f(), "Timer1", Event::Timer);
            } else if (w[0] == '@') {
                EventArgs a;
                a.button = 1, a.x = std::stof(w.substr(1)), a.y = std::stof(w.substr(w.find(',') + 1));
                t.fire(f(), kFormEvents, Event::MouseDown, a);
            } else if (w == "clear") {
                t.clear();
            } else {
                t.fire(f(), w, Event::Click);
            }
        }
        return *this;
    }
    std::vector<Stroke> frame() const {  // the strokes since the last Cls
        std::vector<Stroke> out;
        for (const Op& o : t.opsOf(kForm)) {
            if (o.op == "cls") out.clear();
            if (o.op == "line") out.push_back(o.stroke);
        }
        return out;
    }
    float x1() const { return frame().at(0).x1; }
    float y1() const { return frame().at(0).y1; }
    std::string counters() const {  // the counters printed, in order: " 1  0 "
        std::string out;
        for (const Op& o : t.opsOf(kForm, "print")) out += o.text;
        return out;
    }
    std::string row(const std::string& box) {  // boxes 0 to 10, each with a blank after it
        std::string out;
        for (int i = 0; i <= 10; ++i) out += text(box, i) + " ";
        return out;
    }
};

inline std::vector<float> ends(const Stroke& s) { return {s.x1, s.y1, s.x2, s.y2}; }
// Form position of graph point (x, y), a Single as a stroke's end is.
inline float formX(double x) { return static_cast<float>(6000 + 240 * x); }
inline float formY(double y) { return static_cast<float>(5400 - 240 * y); }
} // namespace explode_test
