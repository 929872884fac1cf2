#pragma once
// The control objects that handlers see. They hold the values (Text, Value,
// Caption, Visible, Enabled, Interval) and raise the form's events when code
// changes them; the window or the batch runner watches them through
// ControlObserver. No widget lives here.

#include <string>

#include "shell/form_design.h"

namespace gp {

class Form;
class Control;

enum class ControlProperty { Text, Caption, Value, Visible, Enabled, Interval, Focus };

class ControlObserver {
public:
    virtual ~ControlObserver() = default;
    virtual void controlChanged(Control& control, ControlProperty property) = 0;
};

class Control {
public:
    Control(Form& form, const ControlDesign& design);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return design_.name; }
    int index() const { return design_.index; }
    ControlKind kind() const { return design_.kind; }
    const ControlDesign& design() const { return design_; }
    Form& form() const { return form_; }
    // "txtX(3)" for a member of a control array, the plain name otherwise.
    std::string displayName() const;

    bool Visible() const { return visible_; }
    void setVisible(bool v);

protected:
    void changed(ControlProperty property);

private:
    Form& form_;
    ControlDesign design_;
    bool visible_;
};

class TextBox : public Control {
public:
    TextBox(Form& form, const ControlDesign& design);
    const std::string& Text() const { return text_; }
    // Code that assigns a different text raises Change, as typing does.
    void setText(const std::string& text);
    // One edit from the user (or the script's `text`): always one Change.
    void userEdit(const std::string& text);
    void SetFocus();

private:
    std::string text_;
};

class Label : public Control {
public:
    Label(Form& form, const ControlDesign& design);
    const std::string& Caption() const { return caption_; }
    void setCaption(const std::string& caption);

private:
    std::string caption_;
};

class CommandButton : public Label {  // a caption and a Click, like a label
public:
    using Label::Label;
};

class CheckBox : public Control {
public:
    CheckBox(Form& form, const ControlDesign& design);
    int Value() const { return value_; }
    void setValue(int value);

private:
    int value_;
};

class OptionButton : public Control {
public:
    OptionButton(Form& form, const ControlDesign& design);
    bool Value() const { return value_; }
    // Selecting one option clears the others of its container.
    void select();
    void setValueSilently(bool value);

private:
    bool value_;
};

class TimerControl : public Control {
public:
    TimerControl(Form& form, const ControlDesign& design);
    bool Enabled() const { return enabled_; }
    int Interval() const { return interval_; }
    void setEnabled(bool enabled);
    void setInterval(Integer interval);

private:
    bool enabled_;
    int interval_;
};

// Frames, shapes, lines and menu entries: nothing that code changes.
class PlainControl : public Control {
public:
    using Control::Control;
};

} // namespace gp
