#pragma once
// The events a form's handlers are bound to, and which of them each kind of
// control raises in the window and in a script. A binding to an event that
// never comes is refused when the form is built, instead of being found
// later as a button that does nothing.

#include "shell/form_design.h"

namespace gp {

enum class Event { Click, Change, LostFocus, MouseDown, MouseMove, KeyDown, Timer, Load, Activate, QueryUnload };

// Every event, in the order a form's description lists them.
inline constexpr Event kAllEvents[] = {
    Event::Click, Event::Change,   Event::LostFocus, Event::MouseDown, Event::MouseMove,
    Event::KeyDown, Event::Timer, Event::Load,      Event::Activate,  Event::QueryUnload,
};

const char* eventName(Event event);   // "Click", "LostFocus" ...
const char* kindName(ControlKind kind);  // "text box", "button" ...

// Whether a control of this kind is ever sent the event.
bool raises(ControlKind kind, Event event);
// Whether the form itself is (its handlers bound under "Form").
bool raisedOnForm(Event event);

} // namespace gp
