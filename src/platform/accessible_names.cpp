#include "platform/accessible_names.h"

namespace gp {

namespace {
// How far a label may stand from its box, in twips: a label beside a box
// ends at most a sixth of an inch before it, and one above ends at most a
// third of an inch over it. Anything further off is a heading of something
// else (the "Matrix for points:" heading sits on the row of the Start box).
constexpr int kBesideGap = 240;
constexpr int kAboveGap = 480;
// Design tables round to whole twips of 15 a pixel; a label may overlap its
// box by that much.
constexpr int kSlack = 60;

int right(const ControlDesign& c) { return c.left + c.width; }
int bottom(const ControlDesign& c) { return c.top + c.height; }
// On one row: the middle of one lies within the other's height. A label
// that only grazes a box's top edge heads the row above it.
bool within(int v, int from, int to) { return from <= v && v <= to; }
bool sameRow(const ControlDesign& a, const ControlDesign& b) {
    return within(a.top + a.height / 2, b.top, bottom(b)) || within(b.top + b.height / 2, a.top, bottom(a));
}
bool sameColumn(const ControlDesign& a, const ControlDesign& b) {
    return within(a.left + a.width / 2, b.left, right(b)) || within(b.left + b.width / 2, a.left, right(a));
}

const ControlDesign* labelBeside(const FormDesign& form, const ControlDesign& box) {
    const ControlDesign* best = nullptr;
    for (const ControlDesign& l : form.controls) {
        if (l.kind != ControlKind::Label || l.container != box.container || !sameRow(l, box)) continue;
        const int gap = box.left - right(l);
        if (gap < -kSlack || gap > kBesideGap) continue;
        if (!best || right(l) > right(*best)) best = &l;
    }
    return best;
}

const ControlDesign* labelAbove(const FormDesign& form, const ControlDesign& box) {
    const ControlDesign* best = nullptr;
    for (const ControlDesign& l : form.controls) {
        if (l.kind != ControlKind::Label || l.container != box.container || !sameColumn(l, box)) continue;
        const int gap = box.top - bottom(l);
        if (gap < -kSlack || gap > kAboveGap) continue;
        if (!best || bottom(l) > bottom(*best)) best = &l;
    }
    return best;
}

QString spoken(const std::string& caption) {
    QString s = QString::fromStdString(caption);
    s.replace("&&", QString(QChar(0x1)));
    s.remove('&');
    s.replace(QChar(0x1), "&");
    s = s.simplified();
    while (!s.isEmpty() && (s.endsWith(':') || s.endsWith('='))) s = s.chopped(1).trimmed();
    return s;
}
} // namespace

QString accessibleNameOf(const FormDesign& form, const ControlDesign& box) {
    if (!box.accessibleName.empty()) return QString::fromStdString(box.accessibleName);
    const ControlDesign* label = labelBeside(form, box);
    if (!label) label = labelAbove(form, box);
    return label ? spoken(label->caption) : QString();
}

} // namespace gp
