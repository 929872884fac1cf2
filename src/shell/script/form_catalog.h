#pragma once
// What a script writer needs to know of a program: its forms with the menu
// button that opens each, and for one form every control with its kind,
// caption or default text, the events it handles and the command that
// drives it. Learnt by opening the forms, so it is never out of date.

#include <optional>
#include <string>
#include <vector>

#include "shell/program.h"

namespace gp {

struct FormEntry {
    std::string name;
    std::string caption;
    std::string openedBy;  // the start-up form's button, or "" for that form
};

// Every form, the start-up form first, then in the order of its buttons.
std::vector<FormEntry> listForms(const Program& program);

// The description of one form as text, or nothing where the program has no
// form of that name.
std::optional<std::string> describeForm(const Program& program, const std::string& formName);

} // namespace gp
