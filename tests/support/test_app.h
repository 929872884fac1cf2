#pragma once
// A whole program for logic tests, with no Qt: forms run their handlers
// against in-memory recorders, dialogs answer from a queue, and a modal Show
// returns at once so the test drives the shown form itself.

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "shell/form_set.h"

namespace gp::test {

struct Op {
    std::string surface;
    std::string op;  // line, pset, print, cls, enddoc, orientation
    Stroke stroke{};  // line; pset uses x1, y1, width, color
    std::string text;
    FontSpec font;
    int value = 0;
};

// Keeps every call made to one surface.
class Recorder : public SurfaceDevice {
public:
    Recorder(std::string name, std::vector<Op>& ops) : name_(std::move(name)), ops_(ops) {}
    void line(const Stroke& s) override { ops_.push_back({name_, "line", s, "", {}, 0}); }
    void pset(Single x, Single y, int width, long color) override {
        ops_.push_back({name_, "pset", Stroke{x, y, x, y, 0, width, color}, "", {}, 0});
    }
    void print(Single x, Single y, const std::string& text, const FontSpec& font) override {
        ops_.push_back({name_, "print", Stroke{x, y, x, y, 0, 0, -1}, text, font, 0});
    }
    void cls() override { ops_.push_back({name_, "cls", {}, "", {}, 0}); }
    void endDoc() override { ops_.push_back({name_, "enddoc", {}, "", {}, 0}); }
    void orientation(int v) override { ops_.push_back({name_, "orientation", {}, "", {}, v}); }

private:
    std::string name_;
    std::vector<Op>& ops_;
};

struct DialogRecord {
    std::string kind;  // msgbox, inputbox, fault, missing
    std::string title, prompt, defaultText;
    int buttons = 0;
};

class TestApp : public Dialogs, public FormHost, public Clock {
public:
    // Printer of the default printable area, 11520 by 15120 twips.
    TestApp(Single printerWidth = 11520, Single printerHeight = 15120);
    ~TestApp() override;

    FormSet& app() { return *app_; }
    DrawingSurface& printer() { return printer_; }
    std::vector<Op>& ops() { return ops_; }
    std::vector<DialogRecord>& dialogs() { return dialogs_; }

    // Queue answers: numbers for message boxes, text for input boxes.
    void answer(const std::string& a) { answers_.push_back(a); }

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
    void clear() { ops_.clear(); dialogs_.clear(); }

    // Dialogs
    int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText,
                         std::optional<int> x, std::optional<int> y) override;
    void showFault(const std::string& message) override;
    void formMissing(const std::string& formName) override;
    // FormHost
    void formLoaded(Form& form) override;
    void formShown(Form&, bool) override {}
    void formHidden(Form&) override {}
    void formUnloading(Form&) override {}
    void runModal(Form&) override {}
    void endProgram() override { ended_ = true; }
    // Clock
    Single Timer() const override { return 43200.0f; }

    bool ended() const { return ended_; }

private:
    std::vector<Op> ops_;
    std::vector<DialogRecord> dialogs_;
    std::deque<std::string> answers_;
    DrawingSurface printer_;
    Recorder printerRecorder_;
    std::vector<std::unique_ptr<Recorder>> canvasRecorders_;
    RandomSource random_;
    std::unique_ptr<FormSet> app_;
    bool ended_ = false;
};

} // namespace gp::test
