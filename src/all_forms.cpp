#include "all_forms.h"

#include "explode/explode_forms.h"
#include "grids/grids_forms.h"
#include "shell/form_set.h"
#include "shell/frm_grids.h"
#include "stringart/stringart_forms.h"
#include "templates/templates_forms.h"

namespace gp {

void registerAllForms(FormSet& app) {
    registerMenuForm(app);
    registerGridForms(app);
    registerTemplateForms(app);
    registerStringArtForms(app);
    registerExplodeForms(app);
}

} // namespace gp

namespace gp {

Program gridpagesProgram() { return Program{registerAllForms, FrmGrids::Design().name}; }

} // namespace gp
