#include "support/test_app.h"

#include "all_forms.h"

namespace gp::test {

TestApp::TestApp(Single printerWidth, Single printerHeight)
    : printer_(DrawingSurface::Kind::Printer, "Printer", printerWidth, printerHeight),
      printerRecorder_("Printer", ops_) {
    printer_.attach(&printerRecorder_);
    random_.seed(1);
    app_ = std::make_unique<FormSet>(*this, *this, printer_, random_, *this);
    registerAllForms(*app_);
}

TestApp::~TestApp() { app_.reset(); }

Form& TestApp::show(const std::string& name) {
    app_->Show1(name);
    Form* f = app_->loaded(name);
    if (!f) throw std::logic_error("form " + name + " did not load");
    return *f;
}

void TestApp::fire(Form& form, const std::string& control, Event event, const EventArgs& args) {
    app_->dispatch(form, control, event, args);
}

void TestApp::edit(Form& form, const std::string& control, const std::string& text) {
    auto* box = dynamic_cast<TextBox*>(form.find(control));
    if (!box) throw std::logic_error("no text box " + control);
    app_->guarded(form, [&] { box->userEdit(text); });
}

std::vector<Op> TestApp::opsOf(const std::string& surface, const std::string& op) const {
    std::vector<Op> out;
    for (const Op& o : ops_)
        if (o.surface == surface && (op.empty() || o.op == op)) out.push_back(o);
    return out;
}

std::vector<Stroke> TestApp::lines(const std::string& surface) const {
    std::vector<Stroke> out;
    for (const Op& o : ops_)
        if (o.surface == surface && o.op == "line") out.push_back(o.stroke);
    return out;
}

int TestApp::count(const std::string& surface, const std::string& op) const {
    int n = 0;
    for (const Op& o : ops_)
        if (o.surface == surface && o.op == op) ++n;
    return n;
}

std::vector<std::string> TestApp::faults() const {
    std::vector<std::string> out;
    for (const DialogRecord& d : dialogs_)
        if (d.kind == "fault") out.push_back(d.prompt);
    return out;
}

int TestApp::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    dialogs_.push_back({"msgbox", title, prompt, "", buttons});
    if (!answers_.empty()) {
        int a = std::stoi(answers_.front());
        answers_.pop_front();
        return a;
    }
    return (buttons == vbYesNo || buttons == vbYesNoCancel) ? vbYes : vbOK;
}

std::string TestApp::InputBox(const std::string& prompt, const std::string& title,
                              const std::string& defaultText, std::optional<int>, std::optional<int>) {
    dialogs_.push_back({"inputbox", title, prompt, defaultText, 0});
    if (!answers_.empty()) {
        std::string a = answers_.front();
        answers_.pop_front();
        return a;
    }
    return defaultText;
}

void TestApp::showFault(const std::string& message) { dialogs_.push_back({"fault", "", message, "", 0}); }

void TestApp::formMissing(const std::string& formName) {
    dialogs_.push_back({"missing", "", formName, "", 0});
}

void TestApp::formLoaded(Form& form) {
    canvasRecorders_.push_back(std::make_unique<Recorder>(form.name(), ops_));
    form.Me().attach(canvasRecorders_.back().get());
}

} // namespace gp::test
