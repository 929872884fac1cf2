#pragma once
// frmGrids, "Types of Grid Pages": the menu. Each page button opens one form
// modally and waits; Exit ends the program.

#include "shell/form.h"

namespace gp {

class FrmGrids : public Form {
public:
    explicit FrmGrids(FormSet& app);
    static FormDesign Design();
};

void registerMenuForm(FormSet& app);

} // namespace gp
