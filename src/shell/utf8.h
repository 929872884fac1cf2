#pragma once
// UTF-8, the one decoder of the program: text boxes may hold any bytes a
// script or a file gives them, and what is typed, traced or shown must never
// split a character or pass on bytes that are not one.

#include <cstddef>
#include <string>

namespace gp {

// Length of the valid UTF-8 sequence that starts at s[i], or 0 where the
// bytes there are not one.
inline std::size_t utf8Length(const std::string& s, std::size_t i) {
    const auto c = static_cast<unsigned char>(s[i]);
    const std::size_t n = c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : (c >> 3) == 0x1E ? 4 : 0;
    if (n == 0 || i + n > s.size()) return 0;
    for (std::size_t k = 1; k < n; ++k)
        if ((static_cast<unsigned char>(s[i + k]) >> 6) != 0x2) return 0;
    return n;
}

} // namespace gp
