#pragma once

namespace gp {
class FormSet;
// Registers the forms of this module with the program.
void registerGridForms(FormSet& app);
} // namespace gp
