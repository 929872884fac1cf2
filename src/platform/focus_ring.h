#pragma once
// The keyboard focus drawn so that a pupil sees it on any face: a ring two
// pixels wide inside the control's edge, black on a light face and white on
// a dark one (a high-contrast theme's black buttons get a white ring). The
// style's own focus mark is a faint change of shade that vanishes on the
// forms' yellow and cyan faces.

#include <QColor>
#include <QPainter>
#include <QPaintEvent>
#include <QRect>
#include <QWidget>

namespace gp {

// Black or white, whichever stands out more against `face`.
QColor focusRingColour(const QColor& face);
// The ring just inside `bounds`.
void drawFocusRing(QPainter& painter, const QRect& bounds, const QColor& face);

// A check box or option button that draws the ring around itself while it
// has the focus; its face is the background it stands on.
template <typename Box>
class RingedBox : public Box {
public:
    using Box::Box;

protected:
    void paintEvent(QPaintEvent* event) override {
        Box::paintEvent(event);
        if (!this->hasFocus()) return;
        QPainter p(this);
        drawFocusRing(p, this->rect(), this->palette().color(this->backgroundRole()));
    }
};

} // namespace gp
