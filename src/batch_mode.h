#pragma once
// Batch mode: a script read whole, run in a scripted session, its trace and
// its sheets written; and the listings a script writer asks for.

#include "command_line.h"
#include "shell/program.h"

namespace gp {

// Returns the exit status: 0 when the script ran to its end, 1 when output
// could not be written, 2 for a script or an option that cannot be
// understood.
int runBatch(const CommandLine& options, const Program& program);

int printFormList(const Program& program);
int printFormDescription(const Program& program, const std::string& form);

} // namespace gp
