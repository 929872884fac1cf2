#include "explode/explode_forms.h"

#include "shell/form_set.h"

namespace gp {

void registerExplodeForms(FormSet& /*app*/) {}

} // namespace gp
