#include "shell/controls.h"

#include "shell/form.h"

namespace gp {

Control::Control(Form& form, const ControlDesign& design)
    : form_(form), design_(design), visible_(design.visible) {}

std::string Control::displayName() const {
    if (design_.index < 0) return design_.name;
    return design_.name + "(" + std::to_string(design_.index) + ")";
}

void Control::changed(ControlProperty property) {
    if (ControlObserver* o = form_.observer()) o->controlChanged(*this, property);
}

void Control::setVisible(bool v) {
    visible_ = v;
    changed(ControlProperty::Visible);
}

TextBox::TextBox(Form& form, const ControlDesign& design) : Control(form, design), text_(design.caption) {}

void TextBox::setText(const std::string& text) {
    if (text == text_) return;
    userEdit(text);
}

void TextBox::userEdit(const std::string& text) {
    text_ = text;
    changed(ControlProperty::Text);
    EventArgs args;
    args.index = index();
    form().raise(name(), Event::Change, args);
}

void TextBox::SetFocus() { changed(ControlProperty::Focus); }

Label::Label(Form& form, const ControlDesign& design) : Control(form, design), caption_(design.caption) {}

void Label::setCaption(const std::string& caption) {
    caption_ = caption;
    changed(ControlProperty::Caption);
}

CheckBox::CheckBox(Form& form, const ControlDesign& design) : Control(form, design), value_(design.value) {}

void CheckBox::setValue(int value) {
    value_ = value;
    changed(ControlProperty::Value);
}

OptionButton::OptionButton(Form& form, const ControlDesign& design)
    : Control(form, design), value_(design.value != 0) {}

void OptionButton::select() {
    for (const auto& c : form().controls()) {
        if (c->kind() != ControlKind::Option || c.get() == this) continue;
        if (c->design().container != design().container) continue;
        static_cast<OptionButton&>(*c).setValueSilently(false);
    }
    setValueSilently(true);
}

void OptionButton::setValueSilently(bool value) {
    if (value_ == value) return;
    value_ = value;
    changed(ControlProperty::Value);
}

TimerControl::TimerControl(Form& form, const ControlDesign& design)
    : Control(form, design), enabled_(design.enabled), interval_(design.interval) {}

void TimerControl::setEnabled(bool enabled) {
    enabled_ = enabled;
    changed(ControlProperty::Enabled);
}

void TimerControl::setInterval(Integer interval) {
    // A negative interval is no interval: the timer stays silent, as at 0.
    interval_ = interval < 0 ? 0 : static_cast<int>(interval);
    changed(ControlProperty::Interval);
}

} // namespace gp
