#include "shell/form_design.h"

namespace gp {

namespace {
ControlDesign make(ControlKind kind, const std::string& name, const std::string& caption) {
    ControlDesign d;
    d.kind = kind;
    d.name = name;
    d.caption = caption;
    return d;
}
} // namespace

ControlDesign TextBoxDesign(const std::string& name, const std::string& text) {
    return make(ControlKind::TextBox, name, text);
}
ControlDesign ButtonDesign(const std::string& name, const std::string& caption) {
    return make(ControlKind::Button, name, caption);
}
ControlDesign LabelDesign(const std::string& name, const std::string& caption) {
    return make(ControlKind::Label, name, caption);
}
ControlDesign CheckBoxDesign(const std::string& name, const std::string& caption) {
    return make(ControlKind::CheckBox, name, caption);
}
ControlDesign OptionDesign(const std::string& name, const std::string& caption) {
    return make(ControlKind::Option, name, caption);
}
ControlDesign FrameDesign(const std::string& name, const std::string& caption) {
    return make(ControlKind::Frame, name, caption);
}
ControlDesign ShapeDesign(const std::string& name) { return make(ControlKind::Shape, name, ""); }

ControlDesign LineDesign(const std::string& name, int x1, int y1, int x2, int y2) {
    ControlDesign d = make(ControlKind::Line, name, "");
    d.left = x1;
    d.top = y1;
    d.width = x2;
    d.height = y2;
    return d;
}

ControlDesign TimerDesign(const std::string& name, int interval, bool enabled) {
    ControlDesign d = make(ControlKind::Timer, name, "");
    d.interval = interval;
    d.enabled = enabled;
    d.visible = false;
    return d;
}

ControlDesign MenuDesign(const std::string& name, const std::string& caption,
                         const std::string& parent) {
    ControlDesign d = make(ControlKind::Menu, name, caption);
    d.container = parent;
    return d;
}

ControlDesign MenuSeparator(const std::string& name, const std::string& parent) {
    ControlDesign d = make(ControlKind::Menu, name, "-");
    d.container = parent;
    d.separator = true;
    return d;
}

} // namespace gp
