#include "stringart/stringart_forms.h"

#include "shell/form_set.h"

namespace gp {

void registerStringArtForms(FormSet& /*app*/) {}

} // namespace gp
