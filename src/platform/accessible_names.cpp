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
// In line: the middle of one lies within the other's span. A label that
// only grazes a box's top edge heads the row above it.
bool within(int v, int from, int to) { return from <= v && v <= to; }
bool overlapping(int startA, int lengthA, int startB, int lengthB) {
    return within(startA + lengthA / 2, startB, startB + lengthB) ||
           within(startB + lengthB / 2, startA, startA + lengthA);
}

// The two ways a label heads a box: beside it on its row, or above it in
// its column. `end` is where a label stops towards the box, `start` where
// the box begins.
struct Approach {
    bool (*inLine)(const ControlDesign& label, const ControlDesign& box);
    int (*end)(const ControlDesign& c);
    int (*start)(const ControlDesign& c);
    int gap;
};
const Approach kBeside{[](const ControlDesign& l, const ControlDesign& b) {
                           return overlapping(l.top, l.height, b.top, b.height);
                       },
                       right, [](const ControlDesign& c) { return c.left; }, kBesideGap};
const Approach kAbove{[](const ControlDesign& l, const ControlDesign& b) {
                          return overlapping(l.left, l.width, b.left, b.width);
                      },
                      bottom, [](const ControlDesign& c) { return c.top; }, kAboveGap};

// The label in line with `box` that ends nearest before it, within the gap.
const ControlDesign* nearestLabel(const FormDesign& form, const ControlDesign& box, const Approach& a) {
    const ControlDesign* best = nullptr;
    for (const ControlDesign& l : form.controls) {
        if (l.kind != ControlKind::Label || l.container != box.container || !a.inLine(l, box)) continue;
        const int gap = a.start(box) - a.end(l);
        if (gap < -kSlack || gap > a.gap) continue;
        if (!best || a.end(l) > a.end(*best)) best = &l;
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
    const ControlDesign* label = nearestLabel(form, box, kBeside);
    if (!label) label = nearestLabel(form, box, kAbove);
    return label ? spoken(label->caption) : QString();
}

} // namespace gp
