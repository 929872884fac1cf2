#pragma once
// The small pieces of an SVG sheet's markup: numbers, colours, text made
// safe for XML, and the fonts of Print with the ascent that places them.

#include <charconv>
#include <string>
#include <vector>

#include "shell/drawing_surface.h"

namespace gp {

// Numbers in plain decimals (a cutter's importer may not read exponents),
// in the shortest form that reads back to the same value, so a coordinate in
// the file is the Single the page drew.
template <typename T>
void appendSvgNumber(std::string& out, T v) {
    char buf[400];  // room for any finite double written out in full
    const auto r = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed);
    if (r.ec == std::errc()) out.append(buf, r.ptr);
    else out += '0';
}

// "#rrggbb" from r + 256 g + 65536 b; the foreground (-1) is black.
void appendSvgColor(std::string& out, long rgb);

// Text as XML character data or an attribute value. Bytes that are not
// UTF-8, and characters XML cannot hold, become the replacement character,
// as they do on paper; tabs and line ends are kept as references so that
// no reader folds them away.
void appendXmlText(std::string& out, const std::string& s);

// The fonts of one sheet as the PDF sets them. Needs a QGuiApplication.
class SvgFaces {
public:
    struct Face {
        FontSpec font;
        std::string attributes;  // font-family, font-size, weight and style
        double ascent;           // twips from the top of the text to its baseline
    };
    // Valid until the next call.
    const Face& of(const FontSpec& font);

private:
    std::vector<Face> faces_;
};

} // namespace gp
