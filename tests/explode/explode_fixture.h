#pragma once
// A shown frmExplodeIt with helpers to read its boxes, fire its timer as the
// platform does (only while enabled, with an interval above 0) and pick out
// the strokes of the frame on show.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "explode/frm_explode_it.h"
#include "support/test_app.h"

namespace explode_test {

using gp::Event;
using gp::EventArgs;
using gp::Form;
using gp::FrmExplodeIt;
using gp::Single;
using gp::Stroke;
using gp::test::Op;
using gp::test::TestApp;

constexpr const char* kForm = "frmExplodeIt";

struct Explode {
    TestApp t;

    // Opens the form as the menu does; `interval` answers the question.
    explicit Explode(const std::string& interval = "500") { open(interval); }

    void open(const std::string& interval = "500") {
        t.answer(interval);
        t.show(kForm);
    }

    FrmExplodeIt* form() { return static_cast<FrmExplodeIt*>(t.app().loaded(kForm)); }
    FrmExplodeIt& f() { return *form(); }

    std::string text(const std::string& box, int index = -1) {
        return static_cast<gp::TextBox*>(f().find(box, index))->Text();
    }
    gp::TimerControl& timer() { return *static_cast<gp::TimerControl*>(f().find("Timer1")); }
    void edit(const std::string& box, const std::string& value) { t.edit(f(), box, value); }
    void editElement(const std::string& box, int index, const std::string& value) {
        auto* b = static_cast<gp::TextBox*>(f().find(box, index));
        t.app().guarded(f(), [&] { b->userEdit(value); });
    }
    void option(const std::string& name) { static_cast<gp::OptionButton*>(f().find(name))->select(); }
    void click(const std::string& control) { t.fire(f(), control, Event::Click); }
    void menu(const std::string& entry) { t.fire(f(), entry, Event::Click); }
    void mouse(Single x, Single y) {
        EventArgs a;
        a.button = 1;
        a.x = x;
        a.y = y;
        t.fire(f(), gp::kFormEvents, Event::MouseDown, a);
    }
    // The platform's tick: nothing while the timer is off or silent.
    void tick(int n = 1) {
        for (int i = 0; i < n; ++i) {
            FrmExplodeIt* fm = form();
            if (!fm) return;
            auto& tm = *static_cast<gp::TimerControl*>(fm->find("Timer1"));
            if (!tm.Enabled() || tm.Interval() <= 0) return;
            t.fire(*fm, "Timer1", Event::Timer);
        }
    }

    // Strokes drawn on the canvas since its last Cls.
    std::vector<Stroke> frame() const {
        std::vector<Stroke> out;
        for (const Op& o : t.opsOf(kForm)) {
            if (o.op == "cls") out.clear();
            if (o.op == "line") out.push_back(o.stroke);
        }
        return out;
    }
    // The counters printed so far, in order ("1", "0" ...).
    std::vector<std::string> counters() const {
        std::vector<std::string> out;
        for (const Op& o : t.opsOf(kForm, "print")) out.push_back(o.text);
        return out;
    }
    std::vector<std::string> xs() {
        std::vector<std::string> out;
        for (int i = 0; i <= 10; ++i) out.push_back(text("txtX", i));
        return out;
    }
    std::vector<std::string> ys() {
        std::vector<std::string> out;
        for (int i = 0; i <= 10; ++i) out.push_back(text("txtY", i));
        return out;
    }
};

// Form position of graph point (x, y), rounded to Single as a stroke's end is.
inline float formX(double x) { return static_cast<float>(6000 + 240 * x); }
inline float formY(double y) { return static_cast<float>(5400 - 240 * y); }

} // namespace explode_test
