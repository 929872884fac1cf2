#pragma once
// frmString2, "String Art Point Plotting": a chain of points laid down by
// clicks, typed coordinates, preset shapes or a file; every corner of the
// chain becomes a fan of strings between the tics of its two segments.
//
// Points are kept in plot coordinates: x from the canvas edge at 1560, y
// upwards from the bottom of the form. The handlers are split over three
// files: this form's canvas (frm_string2.cpp), print (string2_print.cpp),
// the Shapes menu (string_shapes.cpp) and the File menu (string_files.cpp).

#include <string>

#include "shell/form.h"

namespace gp {

struct ShapePoint;  // one row of a preset table (string_shapes.h)
struct ShapeTable;  // a whole preset table (string_shapes.h)

class FrmString2 : public Form {
public:
    explicit FrmString2(FormSet& app);
    static FormDesign Design();

    static constexpr int kMaxPoint = 200;  // PointX(0 To 200)

    // Canvas (frm_string2.cpp)
    void Form_Activate();
    void Form_MouseDown(int Button, int Shift, Single X, Single Y);
    void Form_MouseMove(int Button, int Shift, Single X, Single Y);
    void lblSetPos_Click();
    void Command1_Click();
    void cmdCycle_Click();
    void cmdExit_Click();
    void mnuAbout_Click();
    void mnuEnd_Click();
    void ConnectEm();
    void Lin(Integer a, Integer b, Integer c, Integer d);
    void Colorize();

    std::string canvasDescription() const override {
        return "String art plotting area: each click sets a point, and from the third point on strings join them";
    }

    // Print (string2_print.cpp)
    void cmdPrintIt_Click();
    void PrintLin(Integer a, Integer b, Integer c, Integer d);
    void PrintConnectEm();
    void PrintEmColor();
    // The Tics + 1 strings of the corner at NextPoint on the page, in the
    // colour given or in the foreground.
    void PrintCorner(Integer Tics, long colour);

    // Shapes menu (string_shapes.cpp)
    void mnuCube_Click();
    void mnuTriangle1_Click();
    void mnuTriangle2_Click();
    void mnuTetra1_Click();
    void mnutetra2_Click();
    void mnuOcta1_Click();
    void mnuOcta2_Click();
    void mnuOcta3_Click();

    // File menu (string_files.cpp)
    void mnuSave_Click();
    void mnuOpen_Click();

    // Read access for tests and tools.
    int pointX(int i) const { return PointX[checkedIndex(i)]; }
    int pointY(int i) const { return PointY[checkedIndex(i)]; }
    int nextPoint() const { return NextPoint; }
    int lastPoint() const { return LastPoint; }
    int areaHigh() const { return AreaHigh; }
    int areaWide() const { return AreaWide; }
    const std::string& stringFileName() const { return StringFileName; }

private:
    static int checkedIndex(long i);
    Integer& PX(long i) { return PointX[checkedIndex(i)]; }
    Integer& PY(long i) { return PointY[checkedIndex(i)]; }

    // The redraw sequence: Lin for points 1-2 and 2-3, then ConnectEm for
    // NextPoint from 3 to LastPoint; NextPoint comes out at LastPoint + 1.
    void Redraw();
    // The tic count of txtTics as the string loops read it, refused where
    // it would divide by zero or run the loop counter past 16 bits.
    Integer TicsToDraw() const;
    // Refuses, before anything is drawn, a figure ending at `last` whose
    // strings would be far too many for `passes` redraws.
    void CheckFigure(long last, long passes, bool printing = false) const;
    // LineRed, LineGreen, LineBlue for one Lin or one corner.
    void PickColour();
    void StoreShape(const ShapePoint* table, int count, Integer cx, Integer cy);
    void LoadShape(const ShapeTable& table, Double lo = 0, Double span = 0);
    void Tetrahedron(Integer last);

    TextBox& txtTics;
    TextBox& txtX;
    TextBox& txtY;
    Label& lblXY;
    CheckBox& chkColorIt;

    Integer PointX[kMaxPoint + 1];
    Integer PointY[kMaxPoint + 1];
    Integer NextPoint = 0;
    Integer LastPoint = 0;
    Integer TicIndex = 0;
    Integer AreaHigh = 0;
    Integer AreaWide = 0;
    Integer LineRed = 0, LineGreen = 0, LineBlue = 0;
    std::string StringFileName;
};

} // namespace gp
