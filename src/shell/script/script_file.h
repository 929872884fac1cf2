#pragma once
// A script read whole before it runs: the lines of a file or of standard
// input. A folder or a file that cannot be read is refused with the system's
// own words; a byte-order mark before the first line is no part of it.

#include <string>
#include <vector>

namespace gp {

// "-" reads standard input. Returns false with the reason on failure.
bool readScript(const std::string& path, std::vector<std::string>& lines, std::string& error);

} // namespace gp
