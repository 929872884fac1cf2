#pragma once
// The windowed session: real windows, modal loops, message and input boxes,
// and the system printer.

#include <QHash>
#include <QPointer>
#include <functional>
#include <memory>

#include "platform/form_view.h"
#include "platform/qt_drawing.h"
#include "platform/system_printer.h"
#include "shell/form_set.h"
#include "shell/program.h"

namespace gp {

class QtDialogs : public Dialogs {
public:
    int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText,
                         std::optional<int> x, std::optional<int> y) override;
    void showFault(const std::string& message) override;
    void formMissing(const std::string& formName) override;
};

class QtHost : public FormHost {
public:
    void setApp(FormSet* app) { app_ = app; }
    // Called with the start-up form's window when it is built: where the
    // session adds the menus of its own.
    void onStartFormView(const std::string& startForm, std::function<void(FormView&)> hook) {
        startForm_ = startForm;
        startHook_ = std::move(hook);
    }
    void formLoaded(Form& form) override;
    void formShown(Form& form, bool modal) override;
    void formHidden(Form& form) override;
    void formUnloading(Form& form) override;
    void runModal(Form& form) override;
    void endProgram() override;

private:
    void activateOther(FormView* gone);

    FormSet* app_ = nullptr;
    QHash<Form*, QPointer<FormView>> views_;
    QtTextMeasurer measurer_;
    std::string startForm_;
    std::function<void(FormView&)> startHook_;
};

// A sheet that could not be written: one message that says where and why.
class WindowedOutputFailures : public OutputFailures {
public:
    void outputFailed(const std::string& message) override;
};

class SystemClock : public Clock {
public:
    Single Timer() const override;
};

// Runs the program with its menu until the menu's Exit. Returns the exit
// code. Where sheets go is the user's choice, kept in the settings of
// organisation and application "gridpages" (the Printing menu).
int runWindowed(const Program& program);

} // namespace gp
