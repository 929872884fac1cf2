#include "shell/script/form_catalog.h"

#include <cstdio>

#include "shell/script/scripted_session.h"

namespace gp {

namespace {

std::string handled(const Form& form, const std::string& control) {
    std::string out;
    for (Event e : kAllEvents)
        if (form.handles(control, e)) out += (out.empty() ? "" : ", ") + std::string(eventName(e));
    return out;
}

// The script command that drives a control of this kind.
std::string commandFor(const Control& c) {
    const std::string& n = c.displayName();
    switch (c.kind()) {
    case ControlKind::TextBox: return "text " + n + " VALUE | type " + n + " VALUE";
    case ControlKind::Button: return "click " + n;
    case ControlKind::Label: return "click " + n + " | mousedown " + n + " X Y B";
    case ControlKind::CheckBox: return "check " + n + " 0|1";
    case ControlKind::Option: return "option " + n;
    case ControlKind::Timer: return "tick [N]";
    case ControlKind::Menu: return c.design().separator ? "" : "menu " + n;
    default: return "";
    }
}

std::string number(double v) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%g", v);
    return buf;
}

// A session of its own for each look, so that no button's click (Exit
// ends the program) spoils the next.
template <typename Look>
void withSession(const Program& program, Look look) {
    SessionLog quiet;
    ScriptedSession session(program, quiet, nullptr);
    session.start();
    look(session);
}

} // namespace

std::vector<FormEntry> listForms(const Program& program) {
    std::vector<FormEntry> out;
    std::vector<std::string> buttons;
    withSession(program, [&](ScriptedSession& s) {
        Form& menu = *s.forms().loaded(program.startForm);
        out.push_back({menu.name(), menu.design().caption, ""});
        for (const auto& c : menu.controls())
            if (c->kind() == ControlKind::Button) buttons.push_back(c->displayName());
    });
    for (const std::string& button : buttons) {
        withSession(program, [&](ScriptedSession& s) {
            Form& menu = *s.forms().loaded(program.startForm);
            s.dispatch(*menu.find(button), Event::Click);
            for (Form* f : s.forms().loadedForms())
                if (f != &menu && f->visible()) out.push_back({f->name(), f->design().caption, button});
        });
    }
    return out;
}

std::optional<std::string> describeForm(const Program& program, const std::string& formName) {
    std::optional<FormEntry> entry;
    for (const FormEntry& e : listForms(program))
        if (e.name == formName) entry = e;
    if (!entry) return std::nullopt;
    std::string out;
    withSession(program, [&](ScriptedSession& s) {
        if (!entry->openedBy.empty())
            s.dispatch(*s.forms().loaded(program.startForm)->find(entry->openedBy), Event::Click);
        const Form& f = *s.forms().loaded(formName);
        const FormDesign& d = f.design();
        out += f.name() + " \"" + d.caption + "\"";
        out += entry->openedBy.empty() ? " (the start-up form)\n" : " (click " + entry->openedBy + " on " +
                                                                      program.startForm + ")\n";
        out += "canvas " + number(d.canvasWidth()) + " x " + number(d.canvasHeight()) +
               (d.scaleWidth > 0 ? " units of the form's own scale\n" : " twips\n");
        const std::string formEvents = handled(f, kFormEvents);
        if (!formEvents.empty()) out += "form events: " + formEvents + "\n";
        for (const auto& c : f.controls()) {
            const ControlDesign& cd = c->design();
            if (cd.separator) continue;
            std::string row = "  ";
            if (cd.kind == ControlKind::Menu && !cd.container.empty()) row += "  ";
            row += kindName(cd.kind);
            row += " " + c->displayName();
            if (!cd.caption.empty()) row += " \"" + cd.caption + "\"";
            const std::string events = handled(f, c->name());
            if (!events.empty()) row += " [" + events + "]";
            const std::string command = commandFor(*c);
            // Boxes take a value whether or not a handler watches them;
            // anything else is worth a command only where it does something.
            const bool input = cd.kind == ControlKind::TextBox || cd.kind == ControlKind::CheckBox ||
                               cd.kind == ControlKind::Option;
            if (!command.empty() && (input || !events.empty())) row += ": " + command;
            out += row + "\n";
        }
    });
    return out;
}

} // namespace gp
