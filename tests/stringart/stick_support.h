#pragma once
// A stick-curve form in a test program, with its inputs set in one call.

#include <string>
#include <vector>

#include "stringart/frm_stick_curves.h"
#include "support/test_app.h"

namespace stick_test {

using namespace gp;

struct StickForm {
    test::TestApp t;
    FrmStickCurves* f = &t.show<FrmStickCurves>("frmStickCurves");

    StickForm& set(const std::string& angle, const std::string& tics, bool doubled = false,
                   const std::string& fill = "optRandColor") {
        t.edit(*f, "txtAngle", angle);
        t.edit(*f, "txtTics", tics);
        static_cast<CheckBox*>(f->find("chkDouble"))->setValue(doubled ? 1 : 0);
        static_cast<OptionButton*>(f->find(fill))->select();
        return *this;
    }
    void click(const std::string& button) { t.fire(*f, button, Event::Click); }
    std::vector<Stroke> canvas() const { return t.lines("frmStickCurves"); }
    std::vector<Stroke> page() const { return t.lines("Printer"); }
};

// Strokes in the foreground colour (bases, legs, sticks), or the hatch.
inline std::vector<Stroke> pick(const std::vector<Stroke>& all, bool hatched) {
    std::vector<Stroke> out;
    for (const Stroke& s : all)
        if ((s.color != kForeground) == hatched) out.push_back(s);
    return out;
}
inline std::vector<Stroke> black(const std::vector<Stroke>& all) { return pick(all, false); }
inline std::vector<Stroke> hatch(const std::vector<Stroke>& all) { return pick(all, true); }

inline Double radians(Double degrees) { return degrees * Double(kStickPi) / 180; }

} // namespace stick_test
