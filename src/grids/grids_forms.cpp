#include "grids/grids_forms.h"

#include "grids/frm_hexagon.h"
#include "grids/frm_parabola.h"
#include "grids/frm_squares.h"
#include "grids/frm_squares2.h"
#include "grids/frm_triangle.h"
#include "shell/form_set.h"

namespace gp {

void registerGridForms(FormSet& app) {
    app.registerForm("frmTriangle", [](FormSet& a) { return std::make_unique<FrmTriangle>(a); });
    app.registerForm("frmSquares", [](FormSet& a) { return std::make_unique<FrmSquares>(a); });
    app.registerForm("frmSquares2", [](FormSet& a) { return std::make_unique<FrmSquares2>(a); });
    app.registerForm("frmHexagon", [](FormSet& a) { return std::make_unique<FrmHexagon>(a); });
    app.registerForm("frmParabola", [](FormSet& a) { return std::make_unique<FrmParabola>(a); });
}

} // namespace gp
