#include "grids/grids_forms.h"

#include "grids/frm_triangle.h"
#include "shell/form_set.h"

namespace gp {

void registerGridForms(FormSet& app) {
    app.registerForm("frmTriangle", [](FormSet& a) { return std::make_unique<FrmTriangle>(a); });
}

} // namespace gp
