#include "templates/templates_forms.h"

#include "shell/form_set.h"

namespace gp {

void registerTemplateForms(FormSet& /*app*/) {}

} // namespace gp
