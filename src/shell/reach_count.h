#pragma once
// How often each handler ran, for the robustness harness: a build made with
// GRIDPAGES_REACH counts every handler call and, at exit, appends one line
// "FORM CONTROL EVENT COUNT" a handler to the file named by the
// GRIDPAGES_REACH_FILE variable. Other builds count nothing.

#include <string>

namespace gp {

enum class Event;

#ifdef GRIDPAGES_REACH
void countReach(const std::string& form, const std::string& control, Event event);
#else
inline void countReach(const std::string&, const std::string&, Event) {}
#endif

} // namespace gp
