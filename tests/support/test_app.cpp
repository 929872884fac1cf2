#include "support/test_app.h"

#include <stdexcept>

#include "all_forms.h"

namespace gp::test {

namespace {
SessionSettings settingsFor(Single w, Single h) {
    SessionSettings s;
    s.printerWidth = w;
    s.printerHeight = h;
    s.seeded = true;
    s.seed = 1;
    return s;
}
} // namespace

TestApp::TestApp(Single printerWidth, Single printerHeight)
    : session_(std::make_unique<ScriptedSession>(gridpagesProgram(), log_, nullptr,
                                                 settingsFor(printerWidth, printerHeight))) {}

Form& TestApp::show(const std::string& name) {
    app().Show1(name);
    Form* f = app().loaded(name);
    if (!f) throw std::logic_error("form " + name + " did not load");
    return *f;
}

void TestApp::fire(Form& form, const std::string& control, Event event, const EventArgs& args) {
    app().dispatch(form, control, event, args);
}

void TestApp::edit(Form& form, const std::string& control, const std::string& text) {
    auto* box = dynamic_cast<TextBox*>(form.find(control));
    if (!box) throw std::logic_error("no text box " + control);
    session_->edit(*box, text);
}

std::vector<Op> TestApp::opsOf(const std::string& surface, const std::string& op) const {
    std::vector<Op> out;
    for (const Op& o : log_.ops)
        if (o.surface == surface && (op.empty() || o.op == op)) out.push_back(o);
    return out;
}

std::vector<Stroke> TestApp::lines(const std::string& surface) const {
    std::vector<Stroke> out;
    for (const Op& o : log_.ops)
        if (o.surface == surface && o.op == "line") out.push_back(o.stroke);
    return out;
}

int TestApp::count(const std::string& surface, const std::string& op) const {
    int n = 0;
    for (const Op& o : log_.ops)
        if (o.surface == surface && o.op == op) ++n;
    return n;
}

std::vector<std::string> TestApp::faults() const {
    std::vector<std::string> out;
    for (const DialogRecord& d : log_.dialogs)
        if (d.kind == "fault") out.push_back(d.prompt);
    return out;
}

} // namespace gp::test
