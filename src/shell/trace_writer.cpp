#include "shell/trace_writer.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "shell/utf8.h"

namespace gp {

namespace {
constexpr size_t kFlushAt = 1 << 16;
}

TraceWriter::TraceWriter(std::FILE* out) : out_(out) { buf_.reserve(kFlushAt + 1024); }

TraceWriter::~TraceWriter() { flush(); }

void TraceWriter::writeOut() {
    errno = 0;
    if (!buf_.empty() && std::fwrite(buf_.data(), 1, buf_.size(), out_) != buf_.size() && !writeError_)
        writeError_ = errno ? errno : EIO;
    buf_.clear();
}

void TraceWriter::flush() {
    if (!out_) return;
    writeOut();
    errno = 0;
    if (std::fflush(out_) != 0 && !writeError_) writeError_ = errno ? errno : EIO;
}

namespace {
// Room for any number putNumber or putInteger writes, with its key.
constexpr size_t kNumberRoom = 48;

template <size_t N>
char* put(char* at, const char (&text)[N]) {
    std::memcpy(at, text, N - 1);
    return at + N - 1;
}

char* putInteger(char* at, long v) { return std::to_chars(at, at + kNumberRoom, v).ptr; }

// The shortest digits that read back to the same Single, written out in
// plain decimals (1247, 720.5, -0.3333333, 100000) unless the value is very
// large or very small, where 1e+21 or 1e-7 is the only sane way.
char* putNumber(char* at, Single v) {
    if (!std::isfinite(v)) return put(at, "null");  // not JSON; the surface never passes one on
    // Whole twips, nearly every coordinate of a sheet: below 2^24 the
    // shortest digits of a whole Single are those of the whole number.
    if (std::fabs(v) < 16777216.0f && v == std::trunc(v) && !(v == 0 && std::signbit(v)))
        return putInteger(at, static_cast<long>(v));
    char sci[32];
    const char* end = std::to_chars(sci, sci + sizeof sci, v, std::chars_format::scientific).ptr;
    const char* e = std::find(static_cast<const char*>(sci), end, 'e');
    int exponent = 0;
    for (const char* p = e + 2; p < end; ++p) exponent = exponent * 10 + (*p - '0');
    if (e[1] == '-') exponent = -exponent;
    if (exponent < -7 || exponent >= 21) return std::to_chars(at, at + kNumberRoom, v).ptr;
    char digits[16];
    size_t n = 0;
    for (const char* p = sci; p < e; ++p)
        if (*p >= '0' && *p <= '9') digits[n++] = *p;
    if (sci[0] == '-') *at++ = '-';
    if (exponent < 0) {
        at = put(at, "0.");
        at = std::fill_n(at, -exponent - 1, '0');
        return std::copy_n(digits, n, at);
    }
    const size_t whole = static_cast<size_t>(exponent) + 1;
    if (n <= whole) {
        at = std::copy_n(digits, n, at);
        return std::fill_n(at, whole - n, '0');
    }
    at = std::copy_n(digits, whole, at);
    *at++ = '.';
    return std::copy_n(digits + whole, n - whole, at);
}
// A key, then its value.
template <size_t N>
char* field(char* at, const char (&key)[N], Single v) {
    return putNumber(put(at, key), v);
}
template <size_t N>
char* field(char* at, const char (&key)[N], long v) {
    return putInteger(put(at, key), v);
}
} // namespace

void TraceWriter::appendNumber(std::string& out, Single v) {
    char room[kNumberRoom];
    out.append(room, putNumber(room, v));
}

void TraceWriter::appendString(std::string& out, const std::string& s) {
    // Names and most texts need no escape: copied whole.
    bool plain = true;
    for (const char ch : s) {
        const auto c = static_cast<unsigned char>(ch);
        if (c < 0x20 || c >= 0x80 || c == '"' || c == '\\') {
            plain = false;
            break;
        }
    }
    out += '"';
    if (plain) {
        out += s;
        out += '"';
        return;
    }
    for (size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        if (c >= 0x80) {
            const size_t n = utf8Length(s, i);
            if (n == 0) {
                out += "\\ufffd";  // not UTF-8: the replacement character
                ++i;
            } else {
                out.append(s, i, n);
                i += n;
            }
            continue;
        }
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        case '\b': out += "\\b"; break;
        case '\f': out += "\\f"; break;
        default:
            if (c < 0x20) {
                char esc[8];
                std::snprintf(esc, sizeof esc, "\\u%04x", c);
                out += esc;
            } else {
                out += static_cast<char>(c);
            }
        }
        ++i;
    }
    out += '"';
}

void TraceWriter::begin(const std::string& surface, const char* op) {
    // A run draws on one surface after another thousands of times: the
    // start of its lines is made once.
    if (surfaceStart_.empty() || surface != surface_) {
        surface_ = surface;
        surfaceStart_ = "{\"s\":";
        appendString(surfaceStart_, surface);
        surfaceStart_ += ",\"op\":\"";
    }
    buf_ += surfaceStart_;
    buf_ += op;
    buf_ += '"';
}

void TraceWriter::beginOp(const char* op) {
    buf_ += "{\"op\":\"";
    buf_ += op;
    buf_ += '"';
}

void TraceWriter::key(const char* name) {
    buf_ += ",\"";
    buf_ += name;
    buf_ += "\":";
}

void TraceWriter::num(const char* name, Single v) {
    key(name);
    appendNumber(buf_, v);
}

void TraceWriter::integer(const char* name, long v) {
    key(name);
    char digits[24];
    buf_.append(digits, std::to_chars(digits, digits + sizeof digits, v).ptr);
}

void TraceWriter::str(const char* name, const std::string& v) {
    key(name);
    appendString(buf_, v);
}

void TraceWriter::end() {
    buf_ += "}\n";
    if (buf_.size() >= kFlushAt && out_) writeOut();
    if (!out_) buf_.clear();
}

void TraceWriter::line(const std::string& surface, const Stroke& s) {
    ++strokes_;
    if (!out_) return;
    begin(surface, "line");
    // Keys and numbers only: made on the stack and added in one piece.
    char row[7 * kNumberRoom];
    char* p = field(row, ",\"x1\":", s.x1);
    p = field(p, ",\"y1\":", s.y1);
    p = field(p, ",\"x2\":", s.x2);
    p = field(p, ",\"y2\":", s.y2);
    p = field(p, ",\"style\":", static_cast<long>(s.style));
    p = field(p, ",\"width\":", static_cast<long>(s.width));
    p = field(p, ",\"color\":", s.color);
    buf_.append(row, p);
    end();
}

void TraceWriter::pset(const std::string& surface, Single x, Single y, int width, long color) {
    ++strokes_;
    if (!out_) return;
    begin(surface, "pset");
    num("x", x);
    num("y", y);
    integer("width", width);
    integer("color", color);
    end();
}

void TraceWriter::print(const std::string& surface, Single x, Single y, const std::string& text,
                        const FontSpec& font) {
    ++strokes_;
    if (!out_) return;
    begin(surface, "print");
    num("x", x);
    num("y", y);
    str("text", text);
    str("font", font.name);
    num("size", static_cast<Single>(font.size));
    end();
}

void TraceWriter::cls(const std::string& surface) {
    if (!out_) return;
    begin(surface, "cls");
    end();
}

void TraceWriter::enddoc(const std::string& surface) {
    if (!out_) return;
    begin(surface, "enddoc");
    end();
}

void TraceWriter::orientation(const std::string& surface, int value) {
    if (!out_) return;
    begin(surface, "orientation");
    integer("value", value);
    end();
}

void TraceWriter::msgbox(const std::string& title, const std::string& prompt, int buttons, int answer) {
    if (!out_) return;
    beginOp("msgbox");
    str("title", title);
    str("prompt", prompt);
    integer("buttons", buttons);
    integer("answer", answer);
    end();
}

void TraceWriter::inputbox(const std::string& title, const std::string& prompt,
                           const std::string& defaultText, const std::string& answer) {
    if (!out_) return;
    beginOp("inputbox");
    str("title", title);
    str("prompt", prompt);
    str("default", defaultText);
    str("answer", answer);
    end();
}

void TraceWriter::valueText(const std::string& control, const std::string& value) {
    if (!out_) return;
    beginOp("value");
    str("control", control);
    str("value", value);
    end();
}

void TraceWriter::valueNumber(const std::string& control, long value) {
    if (!out_) return;
    beginOp("value");
    str("control", control);
    integer("value", value);
    end();
}

void TraceWriter::valueBool(const std::string& control, bool value) {
    if (!out_) return;
    beginOp("value");
    str("control", control);
    key("value");
    buf_ += value ? "true" : "false";
    end();
}

void TraceWriter::valueTimer(const std::string& control, bool enabled, int interval) {
    if (!out_) return;
    beginOp("value");
    str("control", control);
    key("value");
    buf_ += "{\"enabled\":";
    buf_ += enabled ? "true" : "false";
    buf_ += ",\"interval\":" + std::to_string(interval) + "}";
    end();
}

void TraceWriter::visible(const std::string& control, bool value) {
    if (!out_) return;
    beginOp("visible");
    str("control", control);
    key("value");
    buf_ += value ? "true" : "false";
    end();
}

void TraceWriter::error(const std::string& message) {
    if (!out_) return;
    beginOp("error");
    str("message", message);
    end();
}

} // namespace gp
