#pragma once
// A push button whose caption wraps onto as many lines as its width needs,
// centred, with its access key underlined: the menu's long captions
// ("Multiplication Table and Squares") must fit their buttons.

#include <QPushButton>

namespace gp {

class WrapButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace gp
