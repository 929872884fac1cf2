#pragma once
// A whole program for logic tests, with no Qt: the scripted session with a
// log that keeps every drawing call and dialog to look at. A modal Show
// returns at once (no script lines wait), so a test drives the shown form
// itself.

#include <memory>
#include <string>
#include <vector>

#include "shell/script/scripted_session.h"

namespace gp::test {

struct Op {
    std::string surface;
    std::string op;  // line, pset, print, cls, enddoc, orientation
    Stroke stroke{};  // line; pset uses x1, y1, width, color
    std::string text;
    FontSpec font;
    int value = 0;
};

struct DialogRecord {
    std::string kind;  // msgbox, inputbox, fault
    std::string title, prompt, defaultText;
    int buttons = 0;
};

// Keeps what the session tells: drawing calls in order, dialogs, faults.
class TestLog : public SessionLog {
public:
    std::vector<Op> ops;
    std::vector<DialogRecord> dialogs;

    void line(const std::string& s, const Stroke& st) override { ops.push_back({s, "line", st, "", {}, 0}); }
    void pset(const std::string& s, Single x, Single y, int width, long color) override {
        ops.push_back({s, "pset", Stroke{x, y, x, y, 0, width, color}, "", {}, 0});
    }
    void print(const std::string& s, Single x, Single y, const std::string& text, const FontSpec& font) override {
        ops.push_back({s, "print", Stroke{x, y, x, y, 0, 0, -1}, text, font, 0});
    }
    void cls(const std::string& s) override { ops.push_back({s, "cls", {}, "", {}, 0}); }
    void enddoc(const std::string& s) override { ops.push_back({s, "enddoc", {}, "", {}, 0}); }
    void orientation(const std::string& s, int v) override { ops.push_back({s, "orientation", {}, "", {}, v}); }
    void msgbox(const std::string& title, const std::string& prompt, int buttons, int) override {
        dialogs.push_back({"msgbox", title, prompt, "", buttons});
    }
    void inputbox(const std::string& title, const std::string& prompt, const std::string& defaultText,
                  const std::string&) override {
        dialogs.push_back({"inputbox", title, prompt, defaultText, 0});
    }
    void error(const std::string& message) override { dialogs.push_back({"fault", "", message, "", 0}); }
};

class TestApp {
public:
    // Printer of the default printable area, 11520 by 15120 twips.
    TestApp(Single printerWidth = 11520, Single printerHeight = 15120);

    FormSet& app() { return session_->forms(); }
    ScriptedSession& session() { return *session_; }
    DrawingSurface& printer() { return session_->printer(); }
    std::vector<Op>& ops() { return log_.ops; }
    std::vector<DialogRecord>& dialogs() { return log_.dialogs; }

    // Queue answers: numbers for message boxes, text for input boxes.
    void answer(const std::string& a) { session_->queueAnswer(a, 0); }

    // Loads and shows a form as the menu would (Form_Activate runs).
    Form& show(const std::string& name);
    template <typename T>
    T& show(const std::string& name) { return static_cast<T&>(show(name)); }

    // Raises an event through the guard, as a click or a keystroke does.
    void fire(Form& form, const std::string& control, Event event, const EventArgs& args = {});
    void edit(Form& form, const std::string& control, const std::string& text);

    std::vector<Op> opsOf(const std::string& surface, const std::string& op = "") const;
    std::vector<Stroke> lines(const std::string& surface) const;
    int count(const std::string& surface, const std::string& op) const;
    std::vector<std::string> faults() const;
    void clear() { log_.ops.clear(); log_.dialogs.clear(); }
    bool ended() const { return session_->ended(); }

private:
    TestLog log_;
    std::unique_ptr<ScriptedSession> session_;
};

} // namespace gp::test
