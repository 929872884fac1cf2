#include "templates/templates_forms.h"

#include "shell/form_set.h"
#include "templates/frm_great_dodeca.h"
#include "templates/frm_half_cube.h"
#include "templates/frm_one_sixth_cube.h"
#include "templates/frm_rhombi_cube.h"
#include "templates/frm_rhombi_dodec.h"

namespace gp {

void registerTemplateForms(FormSet& app) {
    app.registerForm("frmHalfCube", [](FormSet& a) { return std::make_unique<FrmHalfCube>(a); });
    app.registerForm("frmRhombiCube", [](FormSet& a) { return std::make_unique<FrmRhombiCube>(a); });
    app.registerForm("frmOneSixthCube", [](FormSet& a) { return std::make_unique<FrmOneSixthCube>(a); });
    app.registerForm("frmRhombiDodec", [](FormSet& a) { return std::make_unique<FrmRhombiDodec>(a); });
    app.registerForm("frmGreatDodeca", [](FormSet& a) { return std::make_unique<FrmGreatDodeca>(a); });
}

} // namespace gp
