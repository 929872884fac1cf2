#pragma once
// The script language: one row a command, its name and what it does. This is
// the only place where a command is defined; the session looks each line's
// first word up here.

#include <string>

namespace gp {

class ScriptedSession;
class ScriptLine;

struct ScriptCommand {
    const char* name;
    void (*run)(ScriptedSession& session, const ScriptLine& line);
};

// The command of that name, or nullptr.
const ScriptCommand* findScriptCommand(const std::string& name);

} // namespace gp
