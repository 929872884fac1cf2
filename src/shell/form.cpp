#include "shell/form.h"

#include <stdexcept>

#include "shell/form_set.h"
#include "shell/reach_count.h"

namespace gp {

namespace {
std::unique_ptr<Control> makeControl(Form& form, const ControlDesign& d) {
    switch (d.kind) {
    case ControlKind::TextBox: return std::make_unique<TextBox>(form, d);
    case ControlKind::Button: return std::make_unique<CommandButton>(form, d);
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Menu: return std::make_unique<Label>(form, d);
    case ControlKind::CheckBox: return std::make_unique<CheckBox>(form, d);
    case ControlKind::Option: return std::make_unique<OptionButton>(form, d);
    case ControlKind::Timer: return std::make_unique<TimerControl>(form, d);
    case ControlKind::Shape:
    case ControlKind::Line: break;
    }
    return std::make_unique<PlainControl>(form, d);
}

std::string withArticle(const std::string& noun) {
    return (noun.find_first_of("aeiou") == 0 ? "an " : "a ") + noun;
}

// A handler bound to a misspelt name or to an event that never comes would
// simply never run; the form refuses it while it is being built.
void checkBinding(const FormDesign& design, const std::string& control, Event event) {
    const std::string what = design.name + " cannot bind " + control + "_" + eventName(event) + ": ";
    if (control == kFormEvents) {
        if (!raisedOnForm(event)) throw std::logic_error(what + "a form raises no " + eventName(event));
        return;
    }
    for (const ControlDesign& d : design.controls) {
        if (d.name != control) continue;
        if (!raises(d.kind, event))
            throw std::logic_error(what + withArticle(kindName(d.kind)) + " raises no " + eventName(event));
        return;
    }
    throw std::logic_error(what + "it has no control " + control);
}
} // namespace

Form::Form(FormSet& app, FormDesign design)
    : app_(app),
      design_(std::move(design)),
      canvas_(DrawingSurface::Kind::Canvas, design_.name, design_.canvasWidth(), design_.canvasHeight()) {
    canvas_.setFont(design_.font);
    canvas_.setWorkMeter(&app_.meter());
    for (const ControlDesign& d : design_.controls) controls_.push_back(makeControl(*this, d));
}

Form::~Form() = default;

DrawingSurface& Form::Printer() { return app_.printer(); }

Control* Form::find(const std::string& name, int index) const {
    for (const auto& c : controls_)
        if (c->name() == name && c->index() == index) return c.get();
    return nullptr;
}

TimerControl* Form::formTimer() const {
    for (const auto& c : controls_)
        if (auto* t = dynamic_cast<TimerControl*>(c.get())) return t;
    return nullptr;
}

template <typename T>
T& Form::typed(const std::string& name, int index) const {
    Control* c = find(name, index);
    T* t = dynamic_cast<T*>(c);
    if (!t) throw std::logic_error(design_.name + " has no control " + name);
    return *t;
}

TextBox& Form::textBox(const std::string& name, int index) const { return typed<TextBox>(name, index); }
Label& Form::label(const std::string& name, int index) const { return typed<Label>(name, index); }
CheckBox& Form::checkBox(const std::string& name) const { return typed<CheckBox>(name, -1); }
OptionButton& Form::option(const std::string& name) const { return typed<OptionButton>(name, -1); }
TimerControl& Form::timer(const std::string& name) const { return typed<TimerControl>(name, -1); }

void Form::on(const std::string& control, Event event, Handler handler) {
    checkBinding(design_, control, event);
    handlers_[{control, event}] = std::move(handler);
}

bool Form::handles(const std::string& control, Event event) const {
    return handlers_.count({control, event}) != 0;
}

void Form::raise(const std::string& control, Event event, const EventArgs& args) {
    auto it = handlers_.find({control, event});
    if (it == handlers_.end()) return;
    countReach(name(), control, event);
    Handler h = it->second;  // a copy: the handler may unload its own form
    h(args);
}

std::string Form::sheetName() const { return design_.caption; }

std::string Form::canvasDescription() const { return design_.caption; }

void Form::Hide() { app_.hide(*this); }
void Form::UnloadMe() { app_.unload(*this); }
void Form::End() { app_.end(); }

int Form::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    return app_.dialogs().MsgBox(prompt, buttons, title);
}

std::string Form::InputBox(const std::string& prompt, const std::string& title,
                           const std::string& defaultText) {
    return app_.dialogs().InputBox(prompt, title, defaultText);
}

std::string Form::InputBox(const std::string& prompt, const std::string& title,
                           const std::string& defaultText, int x, int y) {
    return app_.dialogs().InputBox(prompt, title, defaultText, x, y);
}

Single Form::Rnd() { return app_.random().Rnd(); }
void Form::RandomizeTimer() { app_.random().Randomize(Timer()); }
Single Form::Timer() const { return app_.clock().Timer(); }
void Form::work(std::uint64_t amount) { app_.meter().tick(amount); }

} // namespace gp
