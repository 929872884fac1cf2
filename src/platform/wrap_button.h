#pragma once
// A push button whose caption wraps onto as many lines as its width needs,
// centred, with its access key underlined: the menu's long captions
// ("Multiplication Table and Squares") must fit their buttons. Return and
// Enter click it as Space does, and its focus shows as a ring that stands
// out on its face.

#include <QFont>
#include <QPushButton>

class QAbstractButton;

namespace gp {

// `font`, or the largest size below it (down to 5 points) at which `caption`
// fits `area` wrapped as a button draws it (or on one line, without wrap).
QFont captionFont(const QFont& font, const QRect& area, const QString& caption, bool wrap = true);
// The same for the one-line caption of a check box or option button, which
// has its width less the box or circle before it.
QFont boxCaptionFont(const QAbstractButton& box, bool isOption);

class WrapButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    // Return or Enter is held down on this button.
    bool returnDown_ = false;
};

} // namespace gp
