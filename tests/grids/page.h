// A grid page on a printer of a given printable area: boxes filled in (a
// check box takes its value and is passed over on a page without it), one
// button clicked.
#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "support/test_app.h"

namespace gp::test {
using Boxes = std::initializer_list<std::pair<const char*, std::string>>;

struct GridPage {
    TestApp t;
    Form* f;
    GridPage(const std::string& form, Boxes boxes, const std::string& button, Single w = 11520, Single h = 15120)
        : t(w, h), f(&t.show(form)) { click(boxes, button); }
    void click(Boxes boxes, const std::string& button) {
        for (const auto& [box, text] : boxes) {
            if (auto* c = dynamic_cast<CheckBox*>(f->find(box))) c->setValue(std::stoi(text));
            else if (std::string(box).rfind("chk", 0) != 0) t.edit(*f, box, text);  // a page may lack the box
        }
        t.fire(*f, button, Event::Click);
    }
    std::vector<Stroke> lines() const { return t.lines("Printer"); }
    std::vector<Op> dots() const { return t.opsOf("Printer", "pset"); }
    std::string text(const std::string& box) const { return dynamic_cast<TextBox*>(f->find(box))->Text(); }
};
}  // namespace gp::test
