#pragma once

namespace gp {
class FormSet;
// Registers the forms of this module with the program.
void registerTemplateForms(FormSet& app);
} // namespace gp
