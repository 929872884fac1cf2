#pragma once
// Shared helpers of the template tests: a form's preview or print at a typed
// side, and where each copy starts, read back from the recorded strokes.
#include <string>
#include <utility>
#include <vector>
#include "support/test_app.h"

namespace gp::test {

using Point = std::pair<float, float>;
using Points = std::vector<Point>;

// The start of the first stroke of each copy, for a figure of n strokes.
inline Points CopyStarts(const std::vector<Stroke>& lines, size_t n) {
    Points out;
    for (size_t i = 0; i + n <= lines.size(); i += n) out.push_back({lines[i].x1, lines[i].y1});
    return out;
}

inline Points Grid(std::vector<float> xs, std::vector<float> ys) {  // row by row
    Points out;
    for (float y : ys)
        for (float x : xs) out.push_back({x, y});
    return out;
}

inline std::string TextOf(Form& f) { return static_cast<TextBox*>(f.find("txtLeng"))->Text(); }

// Types the text (one Change), then prints or not: what the print or the Change drew.
inline std::vector<Stroke> DrawAt(TestApp& t, const std::string& form, const std::string& text, bool print) {
    Form& f = t.show(form);
    t.clear();
    t.edit(f, "txtLeng", text);
    if (!print) return t.lines(form);
    t.clear();
    t.fire(f, "cmdPrintIt", Event::Click);
    return t.lines("Printer");
}

// The preview of the next opening after Exit with the text: no range test.
inline std::vector<Stroke> ReopenedWith(TestApp& t, const std::string& form, const std::string& text) {
    Form& f = t.show(form);
    t.edit(f, "txtLeng", text);
    t.fire(f, "cmdExit", Event::Click);
    t.clear();
    t.show(form);
    return t.lines(form);
}

} // namespace gp::test
