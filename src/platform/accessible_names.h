#pragma once
// What a screen reader says for a form's text boxes: the caption of the
// label beside the box or just above it in the design table, or the name
// the box's own row gives where one label heads several boxes.

#include <QString>

#include "shell/form_design.h"

namespace gp {

// The label's caption as it would be read: no access key marks, blanks run
// together, no trailing ":" or "=". Empty when no label stands by the box.
QString accessibleNameOf(const FormDesign& form, const ControlDesign& box);

} // namespace gp
