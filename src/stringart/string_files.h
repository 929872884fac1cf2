#pragma once
// String art files: plain text of whole numbers, one value a line, written
// the way a 16-bit Integer is printed to a file (a blank or a minus sign,
// the digits, one trailing blank, CR LF). The reader is looser: whole
// numbers separated by blanks, tabs, commas or line ends, in any layout.

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
