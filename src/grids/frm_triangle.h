#pragma once
// frmTriangle, "Triangle grids": a sheet of rows of isosceles triangles from
// a base length, a base angle and a line thickness.

#include "shell/form.h"

namespace gp {

class FrmTriangle : public Form {
public:
    explicit FrmTriangle(FormSet& app);
    static FormDesign Design();

    // "Triangles 1 in": the base length as typed.
    std::string sheetName() const override;

    void cmdPrintIt_Click();
    void cmdExit_Click();
    void Form_QueryUnload();

private:
    TextBox& txtLeng;
    TextBox& txtAngle;
    TextBox& txtThick;
};

// The sheet itself: rows of triangles over the whole printable area of
// `surface`, then EndDoc.
void PrintTriangleSheet(DrawingSurface& surface, Integer base, Double angle);

} // namespace gp
