#include "stringart/stringart_forms.h"

#include "shell/form_set.h"
#include "stringart/frm_stick_curves.h"
#include "stringart/frm_string2.h"

namespace gp {

void registerStringArtForms(FormSet& app) {
    app.registerForm("frmStickCurves", [](FormSet& a) { return std::make_unique<FrmStickCurves>(a); });
    app.registerForm("frmString2", [](FormSet& a) { return std::make_unique<FrmString2>(a); });
}

} // namespace gp
