#include "shell/form_events.h"

namespace gp {

const char* eventName(Event event) {
    switch (event) {
    case Event::Click: return "Click";
    case Event::Change: return "Change";
    case Event::LostFocus: return "LostFocus";
    case Event::MouseDown: return "MouseDown";
    case Event::MouseMove: return "MouseMove";
    case Event::KeyDown: return "KeyDown";
    case Event::Timer: return "Timer";
    case Event::Load: return "Load";
    case Event::Activate: return "Activate";
    case Event::QueryUnload: return "QueryUnload";
    }
    return "event";
}

const char* kindName(ControlKind kind) {
    switch (kind) {
    case ControlKind::TextBox: return "text box";
    case ControlKind::Button: return "button";
    case ControlKind::Label: return "label";
    case ControlKind::CheckBox: return "check box";
    case ControlKind::Option: return "option";
    case ControlKind::Frame: return "frame";
    case ControlKind::Shape: return "shape";
    case ControlKind::Line: return "line";
    case ControlKind::Timer: return "timer";
    case ControlKind::Menu: return "menu";
    }
    return "control";
}

// What the window sends each kind: a text box its edits (Change) and losing
// the focus; a label a press of any button and a click; buttons, boxes,
// options and menu entries a click; a timer its tick. Keys and the mouse
// over the canvas go to the form. Frames, shapes and lines are never sent
// anything.
bool raises(ControlKind kind, Event event) {
    switch (kind) {
    case ControlKind::TextBox: return event == Event::Change || event == Event::LostFocus;
    case ControlKind::Label: return event == Event::Click || event == Event::MouseDown;
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::Option:
    case ControlKind::Menu: return event == Event::Click;
    case ControlKind::Timer: return event == Event::Timer;
    case ControlKind::Frame:
    case ControlKind::Shape:
    case ControlKind::Line: return false;
    }
    return false;
}

bool raisedOnForm(Event event) {
    switch (event) {
    case Event::Load:
    case Event::Activate:
    case Event::QueryUnload:
    case Event::MouseDown:
    case Event::MouseMove:
    case Event::KeyDown: return true;
    default: return false;
    }
}

} // namespace gp
