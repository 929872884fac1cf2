#pragma once
// Every form of the program, registered under its name.

namespace gp {
class FormSet;
void registerAllForms(FormSet& app);
} // namespace gp
