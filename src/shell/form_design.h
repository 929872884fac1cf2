#pragma once
// Design tables: what a form looks like before any code runs. Each control is
// one row (kind, name, caption or default text, place and size in twips,
// colours, font); the generic view builds real widgets from the rows, and the
// form builds its control objects from the same rows, so a window and a
// batch run always agree on what exists.

#include <optional>
#include <string>
#include <vector>

#include "shell/drawing_surface.h"

namespace gp {

enum class ControlKind { TextBox, Button, Label, CheckBox, Option, Frame, Shape, Line, Timer, Menu };

constexpr long kDefaultColor = -1;            // the platform's own colour
constexpr long kSystem3DHighlight = -2;       // the platform's 3D highlight colour
constexpr long kTransparent = -3;             // a label that lets the form show through

struct ControlDesign {
    ControlKind kind = ControlKind::Label;
    std::string name;
    int index = -1;           // >= 0 for a member of a control array
    std::string caption;      // caption, or a text box's default text
    int left = 0, top = 0, width = 0, height = 0;  // a Line's x1, y1, x2, y2
    long backColor = kDefaultColor;
    long foreColor = kDefaultColor;
    std::optional<FontSpec> font;
    std::string toolTip;
    bool visible = true;
    bool enabled = true;
    int value = 0;            // check box 0/1; option button 1 when selected
    int interval = 0;         // timer, in thousandths of a second
    std::string container;    // frame of an option button, parent of a menu entry
    bool separator = false;   // a menu separator line
    // What a screen reader calls a text box where no label of its own
    // stands beside or above it (one heading over a row of boxes).
    std::string accessibleName;

    ControlDesign& at(int l, int t, int w, int h) { left = l; top = t; width = w; height = h; return *this; }
    ControlDesign& back(long colour) { backColor = colour; return *this; }
    ControlDesign& fore(long colour) { foreColor = colour; return *this; }
    ControlDesign& withFont(const std::string& face, double size, bool isBold = false) {
        font = FontSpec{face, size, isBold, false};
        return *this;
    }
    ControlDesign& tip(const std::string& text) { toolTip = text; return *this; }
    ControlDesign& hidden() { visible = false; return *this; }
    ControlDesign& in(const std::string& parent) { container = parent; return *this; }
    ControlDesign& selected() { value = 1; return *this; }
    ControlDesign& element(int i) { index = i; return *this; }
    ControlDesign& spoken(const std::string& name) { accessibleName = name; return *this; }
};

ControlDesign TextBoxDesign(const std::string& name, const std::string& text);
ControlDesign ButtonDesign(const std::string& name, const std::string& caption);
ControlDesign LabelDesign(const std::string& name, const std::string& caption);
ControlDesign CheckBoxDesign(const std::string& name, const std::string& caption);
ControlDesign OptionDesign(const std::string& name, const std::string& caption);
ControlDesign FrameDesign(const std::string& name, const std::string& caption);
ControlDesign ShapeDesign(const std::string& name);  // a filled rectangle
ControlDesign LineDesign(const std::string& name, int x1, int y1, int x2, int y2);
ControlDesign TimerDesign(const std::string& name, int interval, bool enabled);
ControlDesign MenuDesign(const std::string& name, const std::string& caption,
                         const std::string& parent = "");
ControlDesign MenuSeparator(const std::string& name, const std::string& parent);

struct FormDesign {
    std::string name;
    std::string caption;
    int clientWidth = 0;   // twips
    int clientHeight = 0;  // twips
    long backColor = kDefaultColor;
    FontSpec font;
    // A scale of the form's own: the canvas is scaleWidth x scaleHeight units
    // over the client area. Zero means twips.
    Single scaleWidth = 0;
    Single scaleHeight = 0;
    std::vector<ControlDesign> controls;  // in tab order
    // The most strokes one handler may draw on the canvas, where that runs
    // to a million or more (a template's preview at a small side): the
    // window keeps memory ready for them. 0 where it is never more than a
    // few thousand.
    size_t previewStrokeLimit = 0;

    Single canvasWidth() const { return scaleWidth > 0 ? scaleWidth : Single(clientWidth); }
    Single canvasHeight() const { return scaleHeight > 0 ? scaleHeight : Single(clientHeight); }
};

} // namespace gp
