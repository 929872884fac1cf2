#pragma once
// String art files: plain text of whole numbers, one value a line, written
// the way a 16-bit Integer is printed to a file (a blank or a minus sign,
// the digits, one trailing blank, CR LF). The reader is looser: whole
// numbers separated by blanks, tabs, commas or line ends, in any layout.

#include <cstddef>
#include <istream>
#include <stdexcept>
#include <string>

namespace gp {

// A file that cannot be read as a chain of points.
class StringArtFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One line of a file: StringArtLine(6000) is " 6000 \r\n".
std::string StringArtLine(int value);

// The most of a file that Open reads. A file of 200 points as Save writes it
// is under 4 KB; a hand-made one may be spaced out far more widely, but no
// chain of points needs more than this.
constexpr size_t kStringArtFileCap = 64 * 1024;

// The text of the file at `path` for StringArtReader: at most
// kStringArtFileCap bytes, and where the file goes on beyond them, only up to
// the last separator, so that no value is taken cut in two. StringArtFileError
// for a name that is not a plain file (a folder, a pipe, a device), without
// ever waiting for one.
std::string ReadStringArtFile(const std::string& path);

// Takes the values of a file one at a time, as a 16-bit Integer each.
class StringArtReader {
public:
    explicit StringArtReader(std::istream& in) : in_(in) {}
    // The next value; StringArtFileError where the file ends, holds text
    // or a value outside -32768 to 32767.
    int next();

private:
    std::istream& in_;
};

} // namespace gp
