#include "shell/numbers.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace gp {

namespace {
bool skipped(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads "[sign] digits [. digits] [e|E|d|D [sign] digits]" from text that
// has already lost its blanks. Returns the number of characters taken (0 when
// no digit was seen) and the canonical text in `out`.
size_t scanNumber(const std::string& s, std::string& out) {
    size_t i = 0;
    out.clear();
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) out += s[i++];
    size_t digits = 0;
    while (i < s.size() && isDigit(s[i])) { out += s[i++]; ++digits; }
    if (i < s.size() && s[i] == '.') {
        out += s[i++];
        while (i < s.size() && isDigit(s[i])) { out += s[i++]; ++digits; }
    }
    if (digits == 0) return 0;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
        size_t j = i + 1;
        std::string exp = "e";
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) exp += s[j++];
        size_t expDigits = 0;
        while (j < s.size() && isDigit(s[j])) { exp += s[j++]; ++expDigits; }
        if (expDigits > 0) { out += exp; i = j; }
    }
    return i;
}

double parseCanonical(const std::string& canonical) {
    // Exponents of thousands of digits would only waste strtod's time; a
    // result beyond the Double range is an overflow, as it is on a store.
    double v = std::strtod(canonical.c_str(), nullptr);
    if (std::isinf(v)) throwOverflow();
    return v;
}
} // namespace

Double Val(const std::string& text) {
    std::string packed;
    packed.reserve(text.size());
    for (char c : text)
        if (!skipped(c)) packed += c;
    std::string canonical;
    if (scanNumber(packed, canonical) == 0) return 0.0;
    return parseCanonical(canonical);
}

Double CDbl(const std::string& text) {
    std::string t = Trim(text);
    std::string canonical;
    size_t used = scanNumber(t, canonical);
    if (used == 0 || used != t.size()) throwTypeMismatch(text);
    return parseCanonical(canonical);
}

Double Abs(Double x) { return std::fabs(x); }

Long IDiv(Double a, Double b) {
    long long ia = detail::roundHalfEven(a), ib = detail::roundHalfEven(b);
    if (ib == 0) throwDivisionByZero();
    return Long(ia / ib);
}

Long Mod(Double a, Double b) {
    long long ia = detail::roundHalfEven(a), ib = detail::roundHalfEven(b);
    if (ib == 0) throwDivisionByZero();
    return Long(ia % ib);
}

Double Div(Double a, Double b) {
    if (b == 0.0) throwDivisionByZero();
    return a / b;
}

Integer IMul(Integer a, Integer b) {
    return Integer(static_cast<long long>(a.value()) * b.value());
}

namespace {
// Writes x with at most `precision` significant digits, in fixed notation
// for decimal exponents from -4 up to precision - 1 and as 1.5E+20 otherwise,
// with no 0 before the point and a leading blank for a value not negative.
std::string formatStr(double x, int precision) {
    // No arithmetic of the pages can leave an infinity or a NaN in a number
    // without overflowing first: one that arrives here is that overflow.
    if (!std::isfinite(x)) throwOverflow();
    if (x == 0.0) return " 0";  // also -0: there is no negative zero in text
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*e", precision - 1, x);
    // buf: [-]d.ddddde[+-]xx
    std::string s(buf);
    bool negative = s[0] == '-';
    if (negative) s.erase(0, 1);
    size_t ePos = s.find('e');
    int exponent = std::atoi(s.c_str() + ePos + 1);
    std::string digits;
    for (size_t i = 0; i < ePos; ++i)
        if (isDigit(s[i])) digits += s[i];
    while (digits.size() > 1 && digits.back() == '0') digits.pop_back();

    std::string body;
    if (exponent >= -4 && exponent < precision) {
        if (exponent < 0) {
            body = "." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
        } else if (static_cast<int>(digits.size()) <= exponent + 1) {
            body = digits + std::string(static_cast<size_t>(exponent + 1) - digits.size(), '0');
        } else {
            body = digits.substr(0, static_cast<size_t>(exponent + 1)) + "." +
                   digits.substr(static_cast<size_t>(exponent + 1));
        }
    } else {
        body = digits.substr(0, 1);
        if (digits.size() > 1) body += "." + digits.substr(1);
        char e[16];
        std::snprintf(e, sizeof e, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
        body += e;
    }
    return (negative ? "-" : " ") + body;
}
} // namespace

std::string Str(Double x) { return formatStr(x, 15); }
std::string Str(Single x) { return formatStr(static_cast<double>(x), 7); }
std::string Str(long long x) {
    return (x < 0 ? "" : " ") + std::to_string(x);
}

std::string Trim(const std::string& s) {
    size_t a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    size_t b = s.find_last_not_of(' ');
    return s.substr(a, b - a + 1);
}

Long RGB(int r, int g, int b) {
    return Long(static_cast<long long>(r) + 256LL * g + 65536LL * b);
}

} // namespace gp
