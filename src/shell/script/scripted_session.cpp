#include "shell/script/scripted_session.h"

#include <algorithm>

#include "shell/script/script_commands.h"
#include "shell/script/script_line.h"
#include "shell/utf8.h"

namespace gp {

namespace {
// The buttons a message box of this set offers.
bool offers(int buttons, long long answer) {
    switch (buttons) {
    case vbYesNoCancel: return answer == vbYes || answer == vbNo || answer == vbCancel;
    case vbYesNo: return answer == vbYes || answer == vbNo;
    default: return answer == vbOK;
    }
}
} // namespace

ScriptedSession::ScriptedSession(const Program& program, SessionLog& log, const TextMeasurer* measurer,
                                 const SessionSettings& settings)
    : program_(program),
      log_(log),
      measurer_(measurer),
      printer_(DrawingSurface::Kind::Printer, "Printer", settings.printerWidth, settings.printerHeight),
      printerLog_(log, "Printer"),
      pages_(printer_, *this) {
    if (log.wantsDrawing()) printer_.attach(&printerLog_);
    printer_.attach(&pages_);
    printer_.setTextMeasurer(measurer_);
    if (settings.seeded) random_.seed(settings.seed);
    forms_ = std::make_unique<FormSet>(*this, *this, printer_, random_, *this);
    program_.registerForms(*forms_);
}

ScriptedSession::~ScriptedSession() { forms_.reset(); }

void ScriptedSession::start() { forms_->start(program_.startForm); }

void ScriptedSession::run(const std::vector<std::string>& lines) {
    lines_ = &lines;
    next_ = 0;
    runUntil(nullptr);
    lines_ = nullptr;
}

void ScriptedSession::runUntil(Form* modal) {
    while (lines_ && !ended_ && next_ < lines_->size()) {
        if (modal && (!modal->visible() || modal->unloaded())) return;
        lineNo_ = static_cast<int>(next_) + 1;
        execute((*lines_)[next_++]);
    }
}

void ScriptedSession::execute(const std::string& raw) {
    std::string line = raw;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    // Text stops at a NUL wherever it goes next: a line that holds one
    // cannot mean what it says.
    if (line.find('\0') != std::string::npos) refuse("the line holds a NUL byte");
    const size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#') return;
    std::string rest = line.substr(first);
    std::string command = nextWord(rest);
    const ScriptCommand* c = findScriptCommand(command);
    if (!c) refuse("unknown command " + quoted(command));
    c->run(*this, ScriptLine(*this, std::move(command), std::move(rest)));
}

void ScriptedSession::refuse(const std::string& reason) const { throw ScriptError{lineNo_, reason}; }

Form& ScriptedSession::current() {
    if (shown_.empty()) refuse("no form is on show");
    return *shown_.back();
}

Control& ScriptedSession::control(const std::string& word) {
    std::string name = word;
    int index = -1;
    const size_t open = word.find('(');
    if (open != std::string::npos && word.back() == ')') {
        long long i = 0;
        if (!parseWhole(word.substr(open + 1, word.size() - open - 2), i) || i < 0 || i > 32767)
            refuse("bad control index in " + quoted(word));
        name = word.substr(0, open);
        index = static_cast<int>(i);
    }
    Form& f = current();
    Control* c = f.find(name, index);
    if (!c && index < 0) {
        // A bare name of a control array means its first element.
        for (const auto& other : f.controls())
            if (other->name() == name) {
                c = other.get();
                break;
            }
    }
    if (!c) refuse("there is no control " + quoted(word) + " on " + f.name());
    return *c;
}

void ScriptedSession::dispatch(Control& control, Event event, EventArgs args) {
    args.index = control.index();
    forms_->dispatch(control.form(), control.name(), event, args);
}

void ScriptedSession::dispatchToForm(Event event, const EventArgs& args) {
    forms_->dispatch(current(), kFormEvents, event, args);
}

void ScriptedSession::edit(TextBox& box, const std::string& text) {
    forms_->guarded(box.form(), [&] { box.userEdit(text); });
}

void ScriptedSession::type(TextBox& box, const std::string& text) {
    Form& f = box.form();
    if (!box.Text().empty()) edit(box, "");
    std::string typed;
    // One character a keystroke, so that typing never leaves half a
    // character in a box; a byte that is no character is typed on its own.
    for (size_t i = 0; i < text.size();) {
        // A handler may unload the form between two keystrokes.
        if (f.unloaded() || ended_) break;
        const size_t n = std::max<size_t>(1, utf8Length(text, i));
        typed.append(text, i, n);
        i += n;
        edit(box, typed);
    }
}

void ScriptedSession::tick(long count) {
    for (long i = 0; i < count && !ended_; ++i) {
        // The timer of the form on show, or of a hidden form that still runs.
        TimerControl* timer = shown_.empty() ? nullptr : shown_.back()->formTimer();
        if (!timer || !timer->Enabled()) {
            timer = nullptr;
            for (Form* f : forms_->loadedForms()) {
                TimerControl* t = f->formTimer();
                if (t && t->Enabled()) {
                    timer = t;
                    break;
                }
            }
        }
        if (!timer || !timer->Enabled() || timer->Interval() <= 0) return;
        forms_->dispatch(timer->form(), timer->name(), Event::Timer);
    }
}

void ScriptedSession::closeCurrent() { forms_->closeByFrame(current()); }

void ScriptedSession::writeValue(Control& c) {
    const std::string name = c.displayName();
    if (auto* t = dynamic_cast<TextBox*>(&c)) log_.valueText(name, t->Text());
    else if (auto* k = dynamic_cast<CheckBox*>(&c)) log_.valueNumber(name, k->Value());
    else if (auto* o = dynamic_cast<OptionButton*>(&c)) log_.valueBool(name, o->Value());
    else if (auto* tm = dynamic_cast<TimerControl*>(&c)) log_.valueTimer(name, tm->Enabled(), tm->Interval());
    else if (auto* l = dynamic_cast<Label*>(&c)) log_.valueText(name, l->Caption());
    else refuse(c.displayName() + " has no value");
}

void ScriptedSession::queueAnswer(const std::string& answer, int line) { answers_.push_back({answer, line}); }

bool ScriptedSession::takeAnswer(Answer& answer) {
    if (answers_.empty()) return false;
    answer = answers_.front();
    answers_.pop_front();
    return true;
}

std::vector<std::string> ScriptedSession::answerWarnings() const {
    std::vector<std::string> out = misfits_;
    for (const Answer& a : answers_)
        out.push_back("line " + std::to_string(a.line) + ": no dialog took the answer " + quoted(a.text));
    return out;
}

int ScriptedSession::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    int answer = (buttons == vbYesNoCancel || buttons == vbYesNo) ? vbYes : vbOK;
    Answer given;
    if (takeAnswer(given)) {
        long long v = 0;
        if (parseWhole(given.text, v) && offers(buttons, v)) {
            answer = static_cast<int>(v);
        } else {
            misfits_.push_back("line " + std::to_string(given.line) + ": the answer " + quoted(given.text) +
                               " went to the message box " + quoted(title) + ", which has no such button");
        }
    }
    log_.msgbox(title, prompt, buttons, answer);
    return answer;
}

std::string ScriptedSession::InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& defaultText, std::optional<int>, std::optional<int>) {
    std::string answer = defaultText;
    Answer given;
    if (takeAnswer(given)) answer = given.text;
    log_.inputbox(title, prompt, defaultText, answer);
    return answer;
}

void ScriptedSession::showFault(const std::string& message) { log_.error(message); }

void ScriptedSession::formMissing(const std::string& formName) {
    log_.msgbox("gridpages", "This page (" + formName + ") is not part of this version yet.", vbOKOnly, vbOK);
}

void ScriptedSession::formLoaded(Form& form) {
    if (log_.wantsDrawing()) {
        canvasLogs_.push_back(std::make_unique<SurfaceLog>(log_, form.name()));
        form.Me().attach(canvasLogs_.back().get());
    }
    form.Me().setTextMeasurer(measurer_);
    form.setObserver(this);
    if (formLoadedHook_) formLoadedHook_(form);
}

void ScriptedSession::formShown(Form& form, bool) {
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
    shown_.push_back(&form);
}

void ScriptedSession::formHidden(Form& form) {
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
}

void ScriptedSession::formUnloading(Form& form) {
    formHidden(form);
    if (formUnloadingHook_) formUnloadingHook_(form);
    form.setObserver(nullptr);
    // The canvas goes with the form; its log device is kept, unattached, so
    // nothing dangles while the form's last handler unwinds.
}

void ScriptedSession::runModal(Form& form) { runUntil(&form); }

void ScriptedSession::endProgram() { ended_ = true; }

void ScriptedSession::controlChanged(Control& control, ControlProperty property) {
    if (property == ControlProperty::Visible) log_.visible(control.displayName(), control.Visible());
}

} // namespace gp
