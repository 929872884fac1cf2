#pragma once
// frmGreatDodeca, "Great Dodecagon Template": the five-armed net of which
// two make the solid with raised five-pointed stars on each face.

#include "templates/template_form.h"

namespace gp {

class FrmGreatDodeca : public TemplateForm {
public:
    explicit FrmGreatDodeca(FormSet& app);
    static TemplateDescription Description();

protected:
    void DrawFigure(DrawingSurface& surface, Integer side, bool preview) override;
};

} // namespace gp
