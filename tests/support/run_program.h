#pragma once
// Runs the built program in batch mode on a script, for end-to-end tests.

#include <string>
#include <vector>

namespace gp::test {

struct RunResult {
    int status = -1;
    std::vector<std::string> trace;  // one JSON object a line
    std::string errors;              // standard error
    std::string dir;                 // a fresh folder holding script, trace, sheets
};

// `args` go after --script and --trace; "{dir}" in them is replaced by the
// run's folder (for --pdf {dir}/pdf).
RunResult runProgram(const std::string& program, const std::string& script,
                     const std::vector<std::string>& args = {});

// The text of a shell command's standard output.
std::string capture(const std::string& command);

} // namespace gp::test
