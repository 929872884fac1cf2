#include "platform/wrap_button.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "platform/focus_ring.h"

namespace gp {

namespace {
// Return, or Enter on the keypad, with no other modifier held: Ctrl+Return
// and the like stay free for whatever else may want them.
bool isClickKey(const QKeyEvent* e) {
    const auto mods = e->modifiers() & ~Qt::KeypadModifier;
    return (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) && mods == Qt::NoModifier;
}

constexpr int kCaptionFlags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
} // namespace

QFont boxCaptionFont(const QAbstractButton& box, bool isOption) {
    const QStyle* style = box.style();
    const int mark = style->pixelMetric(isOption ? QStyle::PM_ExclusiveIndicatorWidth : QStyle::PM_IndicatorWidth,
                                        nullptr, &box) +
                     style->pixelMetric(isOption ? QStyle::PM_RadioButtonLabelSpacing : QStyle::PM_CheckBoxLabelSpacing,
                                        nullptr, &box);
    const QString caption = box.text();
    const QRect area(0, 0, box.width() - mark - 2, box.height());
    return captionFont(box.font(), area, caption, false);
}

// The button keeps its design size; where a face draws wider or taller than
// the one the design was made with (another font standing in for Arial, a
// fractional scale), the caption takes a smaller size instead of running
// over the edge.
QFont captionFont(const QFont& font, const QRect& area, const QString& caption, bool wrap) {
    constexpr double kSmallest = 5.0, kStep = 0.5;
    const int flags = wrap ? kCaptionFlags : int(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic);
    QFont f = font;
    while (f.pointSizeF() - kStep >= kSmallest) {
        const QRect need = QFontMetrics(f).boundingRect(area, flags, caption);
        if (need.width() <= area.width() && need.height() <= area.height()) break;
        f.setPointSizeF(f.pointSizeF() - kStep);
    }
    return f;
}

void WrapButton::paintEvent(QPaintEvent*) {
    QStylePainter p(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    // The ring below replaces the style's own focus mark.
    const bool focused = option.state & QStyle::State_HasFocus;
    option.state &= ~QStyle::State_HasFocus;
    p.drawControl(QStyle::CE_PushButton, option);
    const QRect area = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    p.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    p.setFont(captionFont(font(), area, caption));
    p.drawText(area, kCaptionFlags, caption);
    if (focused) drawFocusRing(p, rect().adjusted(1, 1, -1, -1), palette().color(QPalette::Button));
}

// As with Space, the button goes down on the press and clicks on the
// release, once however long the key is held.
void WrapButton::keyPressEvent(QKeyEvent* event) {
    if (!isClickKey(event)) {
        QPushButton::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat() && isEnabled()) {
        returnDown_ = true;
        setDown(true);
    }
    event->accept();
}

void WrapButton::keyReleaseEvent(QKeyEvent* event) {
    if (!isClickKey(event)) {
        QPushButton::keyReleaseEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || !returnDown_) return;
    returnDown_ = false;
    setDown(false);
    click();
}

void WrapButton::focusOutEvent(QFocusEvent* event) {
    // Focus taken away while the key is down cancels the click, as it does
    // for Space.
    if (returnDown_) {
        returnDown_ = false;
        setDown(false);
    }
    QPushButton::focusOutEvent(event);
}

} // namespace gp
