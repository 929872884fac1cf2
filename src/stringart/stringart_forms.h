#pragma once

namespace gp {
class FormSet;
// Registers the forms of this module with the program.
void registerStringArtForms(FormSet& app);
} // namespace gp
