#include "platform/svg_markup.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QImage>
#include <algorithm>

#include "platform/qt_drawing.h"
#include "shell/utf8.h"

namespace gp {

namespace {

// Where the code point at s[i] may stand in an XML document; n is its
// length from utf8Length.
bool xmlChar(const std::string& s, std::size_t i, std::size_t n) {
    const auto b = [&](std::size_t k) { return static_cast<unsigned char>(s[i + k]); };
    unsigned long cp = n == 2 ? b(0) & 0x1F : n == 3 ? b(0) & 0x0F : b(0) & 0x07;
    for (std::size_t k = 1; k < n; ++k) cp = (cp << 6) | (b(k) & 0x3F);
    const unsigned long least[] = {0, 0, 0x80, 0x800, 0x10000};  // shorter forms are not UTF-8
    if (cp < least[n] || cp > 0x10FFFF) return false;
    return !(cp >= 0xD800 && cp <= 0xDFFF) && cp != 0xFFFE && cp != 0xFFFF;
}

} // namespace

void appendSvgColor(std::string& out, long rgb) {
    static const char kHex[] = "0123456789abcdef";
    const unsigned long v = rgb < 0 ? 0 : static_cast<unsigned long>(rgb);
    out += '#';
    for (int shift : {0, 8, 16}) {  // r, g, b
        const unsigned byte = (v >> shift) & 0xFF;
        out += kHex[byte >> 4];
        out += kHex[byte & 0xF];
    }
}

void appendXmlText(std::string& out, const std::string& s) {
    static const char kReplacement[] = "\xEF\xBF\xBD";
    for (std::size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        if (c >= 0x80) {
            const std::size_t n = utf8Length(s, i);
            if (n > 0 && xmlChar(s, i, n)) out.append(s, i, n);
            else out += kReplacement;
            i += std::max<std::size_t>(n, 1);
            continue;
        }
        switch (c) {
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '&': out += "&amp;"; break;
        case '"': out += "&quot;"; break;
        case '\t': out += "&#9;"; break;
        case '\n': out += "&#10;"; break;
        case '\r': out += "&#13;"; break;
        default:
            if (c < 0x20) out += kReplacement;
            else out += static_cast<char>(c);
        }
        ++i;
    }
}

const SvgFaces::Face& SvgFaces::of(const FontSpec& font) {
    for (const Face& f : faces_)
        if (f.font.name == font.name && f.font.size == font.size && f.font.bold == font.bold &&
            f.font.italic == font.italic)
            return f;
    // An image at 1440 dots to the inch measures in twips, as the PDF does.
    static QImage probe = [] {
        QImage img(1, 1, QImage::Format_RGB32);
        img.setDotsPerMeterX(56693);
        img.setDotsPerMeterY(56693);
        return img;
    }();
    const QFont qfont = toQFont(font);
    // The named face first, then the one the PDF really used in its place,
    // then the kind of face, for a reader that has neither.
    std::string families;
    auto addFamily = [&](const std::string& name) {
        std::string clean;
        for (char c : name)
            if (c != '\'' && c != '\\' && c != ',' && c != ';') clean += c;
        if (clean.empty()) return;
        families += '\'';
        appendXmlText(families, clean);
        families += "', ";
    };
    addFamily(font.name);
    const std::string used = QFontInfo(qfont).family().toStdString();
    if (used != font.name) addFamily(used);
    families += qfont.styleHint() == QFont::Serif ? "serif" : "sans-serif";

    Face face{font, " font-family=\"" + families + "\" font-size=\"", QFontMetricsF(qfont, &probe).ascent()};
    appendSvgNumber(face.attributes, qfont.pointSizeF() * 20);  // twips
    face.attributes += '"';
    if (font.bold) face.attributes += " font-weight=\"bold\"";
    if (font.italic) face.attributes += " font-style=\"italic\"";
    faces_.push_back(std::move(face));
    return faces_.back();
}

} // namespace gp
