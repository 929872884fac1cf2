#pragma once
// Every form of the program, registered under its name, and the program
// they make: the menu first.

#include "shell/program.h"

namespace gp {
class FormSet;
void registerAllForms(FormSet& app);
Program gridpagesProgram();
} // namespace gp
