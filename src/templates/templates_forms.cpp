#include "templates/templates_forms.h"

#include "shell/form_set.h"
#include "templates/frm_half_cube.h"
#include "templates/frm_one_sixth_cube.h"
#include "templates/frm_rhombi_cube.h"

namespace gp {

void registerTemplateForms(FormSet& app) {
    app.registerForm("frmHalfCube", [](FormSet& a) { return std::make_unique<FrmHalfCube>(a); });
    app.registerForm("frmRhombiCube", [](FormSet& a) { return std::make_unique<FrmRhombiCube>(a); });
    app.registerForm("frmOneSixthCube", [](FormSet& a) { return std::make_unique<FrmOneSixthCube>(a); });
}

} // namespace gp
