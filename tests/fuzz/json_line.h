#pragma once
// A strict check of one trace line: a single JSON object (RFC 8259) and
// nothing after it. Strict where a trace could go wrong: numbers in JSON's
// own grammar (no inf, nan, leading zeros or bare points), strings with
// valid escapes, no raw control characters, and only well-formed UTF-8.

#include <string>
#include <string_view>

namespace gp::fuzz {

// "" for a good line, else what is wrong and at which byte.
std::string checkJsonLine(std::string_view line);

} // namespace gp::fuzz
