#include "explode/explode_forms.h"

#include "explode/frm_explode_it.h"
#include "shell/form_set.h"

namespace gp {

void registerExplodeForms(FormSet& app) {
    app.registerForm("frmExplodeIt", [](FormSet& a) { return std::make_unique<FrmExplodeIt>(a); });
}

} // namespace gp
