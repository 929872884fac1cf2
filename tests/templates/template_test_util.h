#pragma once
// Shared helpers of the template tests: where each copy of a figure starts,
// read back from the recorded strokes.

#include <string>
#include <utility>
#include <vector>

#include "support/test_app.h"

namespace gp::test {

using Point = std::pair<float, float>;

// The start of the first stroke of each copy, for a figure of n strokes.
inline std::vector<Point> CopyStarts(const std::vector<Stroke>& lines, size_t n) {
    std::vector<Point> out;
    for (size_t i = 0; i + n <= lines.size(); i += n) out.push_back({lines[i].x1, lines[i].y1});
    return out;
}

// Shows a form, then sets its text (one Change) and prints, keeping only
// what the print drew.
inline std::vector<Stroke> PrintAt(TestApp& t, const std::string& form, const std::string& text) {
    Form& f = t.show(form);
    t.edit(f, "txtLeng", text);
    t.clear();
    t.fire(f, "cmdPrintIt", Event::Click);
    return t.lines("Printer");
}

// Shows a form and sets its text: the preview as txtLeng_Change leaves it.
inline std::vector<Stroke> PreviewAt(TestApp& t, const std::string& form, const std::string& text) {
    Form& f = t.show(form);
    t.clear();
    t.edit(f, "txtLeng", text);
    return t.lines(form);
}

} // namespace gp::test
