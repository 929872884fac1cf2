#pragma once
// Files written whole or not at all: the bytes go to a temporary file in the
// same folder, which is flushed to the disk and only then moved into place.
// A full disk, a folder that refuses the file or a crash half way leaves the
// old file as it was and no temporary behind.

#include <string>
#include <string_view>

namespace gp {

// Writes `bytes` to `path`. With `replace` a file already at `path` is
// replaced in one step; without it nothing already there (a file, a link, a
// folder) is ever replaced or written through, and the call fails. On
// failure `error` holds the system's own words ("No space left on device")
// and `code`, where given, the errno value.
bool writeFileSafely(const std::string& path, std::string_view bytes, bool replace, std::string& error,
                     int* code = nullptr);

} // namespace gp
