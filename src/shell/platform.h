#pragma once
// What forms need of the platform: blocking dialogs, the window lifecycle and
// a clock. The windowed session answers with Qt dialogs and windows, the
// batch runner with its script, the tests with whatever they queue.

#include <optional>
#include <string>

#include "shell/numbers.h"

namespace gp {

class Form;

// Button sets of MsgBox and the answers.
enum MsgBoxButtons { vbOKOnly = 0, vbYesNoCancel = 3, vbYesNo = 4, vbCritical = 16 };
enum MsgBoxResult { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual int MsgBox(const std::string& prompt, int buttons, const std::string& title) = 0;
    // The typed text, or the empty text for Cancel. x and y place the box in
    // twips where the caller gives them.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText,
                                 std::optional<int> x = std::nullopt,
                                 std::optional<int> y = std::nullopt) = 0;
    // A handler was stopped by a fault: tell the user why.
    virtual void showFault(const std::string& message) = 0;
    // A page button whose form does not exist in this build.
    virtual void formMissing(const std::string& formName) = 0;
};

// Where a loaded form lives on screen (or in the script). FormSet drives it.
class FormHost {
public:
    virtual ~FormHost() = default;
    virtual void formLoaded(Form& form) = 0;    // build the window, attach devices
    virtual void formShown(Form& form, bool modal) = 0;  // make it visible
    virtual void formHidden(Form& form) = 0;    // make it invisible, end its modal loop
    virtual void formUnloading(Form& form) = 0; // tear the window down
    // Block until the form is hidden or unloaded (or the program ends).
    virtual void runModal(Form& form) = 0;
    virtual void endProgram() = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual Single Timer() const = 0;  // seconds since midnight
};

} // namespace gp
