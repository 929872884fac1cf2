#pragma once
// The running program: the registered forms, their default instances, the
// one Printer, and the guard around every event. Each event from the outside
// (a click, a keystroke, a tick) passes through dispatch(), which stops a
// handler that faults with a message and drops a half-made printer page, so
// the form stays open and usable.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/drawing_surface.h"
#include "shell/form.h"
#include "shell/platform.h"
#include "shell/random.h"
#include "shell/work_meter.h"

namespace gp {

class FormSet {
public:
    using Factory = std::function<std::unique_ptr<Form>(FormSet&)>;

    FormSet(Dialogs& dialogs, FormHost& host, DrawingSurface& printer, RandomSource& random,
            const Clock& clock);
    ~FormSet();

    void registerForm(const std::string& name, Factory factory);
    bool knows(const std::string& name) const { return factories_.count(name) != 0; }
    std::vector<std::string> formNames() const;

    // The loaded instance, or nullptr.
    Form* loaded(const std::string& name) const;
    std::vector<Form*> loadedForms() const;
    Form& load(const std::string& name);

    // Loads and shows the start-up form, not modally.
    Form& start(const std::string& name);
    // frmX.Show 1: blocks until the form is hidden or unloaded.
    void Show1(const std::string& name);
    void hide(Form& form);
    // Unload: Form_QueryUnload first where the form has it, then the form
    // is hidden and its instance dropped; the next Show loads it anew.
    void unload(Form& form);
    // The user closes a form by its frame.
    void closeByFrame(Form& form);
    void end();
    bool ended() const { return ended_; }

    // One event from the outside, inside the guard.
    void dispatch(Form& form, const std::string& control, Event event, const EventArgs& args = {});
    // Any other work from the outside that may run handlers (an edit that
    // raises Change), inside the same guard.
    void guarded(Form& form, const std::function<void()>& work);

    // The form whose handler runs now (the innermost, inside a modal
    // Show), or nullptr between events: what a printed sheet came from.
    Form* activeForm() const { return active_; }

    Dialogs& dialogs() { return dialogs_; }
    FormHost& host() { return host_; }
    DrawingSurface& printer() { return printer_; }
    RandomSource& random() { return random_; }
    WorkMeter& meter() { return meter_; }
    const Clock& clock() const { return clock_; }

private:
    void collectUnloaded();

    Dialogs& dialogs_;
    FormHost& host_;
    DrawingSurface& printer_;
    RandomSource& random_;
    const Clock& clock_;
    WorkMeter meter_;
    std::map<std::string, Factory> factories_;
    std::map<std::string, std::unique_ptr<Form>> instances_;
    std::vector<std::unique_ptr<Form>> unloadedForms_;  // dropped when no handler runs
    std::string startName_;
    int depth_ = 0;
    Form* active_ = nullptr;
    bool ended_ = false;
};

} // namespace gp
