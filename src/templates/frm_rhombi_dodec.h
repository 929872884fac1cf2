#pragma once
// frmRhombiDodec, "Rhombus Dodecahedron Template": the net of the packing
// solid with 12 rhombic faces, and a warning label about the waste rhombi
// that lie between copies.

#include "templates/template_form.h"

namespace gp {

class FrmRhombiDodec : public TemplateForm {
public:
    explicit FrmRhombiDodec(FormSet& app);
    static TemplateDescription Description();

protected:
    void DrawFigure(DrawingSurface& surface, Integer side, bool preview) override;

private:
    Label& lblInfo2;
};

} // namespace gp
