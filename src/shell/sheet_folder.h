#pragma once
// A folder of numbered sheets, DIR/sheet-0001.pdf, sheet-0002.pdf, ... The
// numbering goes on after the highest sheet already there, so a second run
// into the same folder adds to it and never overwrites a sheet; a name that
// is taken (by a file, a link, anything) is never written through.

#include <string>
#include <string_view>

#include "shell/output.h"

namespace gp {

class SheetFolder {
public:
    // extension: "pdf", "svg".
    SheetFolder(std::string directory, std::string extension);

    // Writes the bytes as the next sheet, whole or not at all.
    OutputResult write(std::string_view bytes);
    const std::string& lastFile() const { return last_; }
    int written() const { return written_; }

private:
    // The folder made where it is missing, and the highest number in it.
    OutputResult open();

    std::string dir_;
    std::string extension_;
    long next_ = 0;  // 0 until the folder has been looked at
    int written_ = 0;
    std::string last_;
};

} // namespace gp
