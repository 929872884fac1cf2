#include "fuzz/json_line.h"

namespace gp::fuzz {

namespace {

class Parser {
public:
    explicit Parser(std::string_view s) : s_(s) {}

    std::string check() {
        space();
        if (peek() != '{') return fail("the line is not an object");
        if (!value(0)) return error_;
        space();
        if (at_ != s_.size()) return fail("text after the object");
        return "";
    }

private:
    char peek() const { return at_ < s_.size() ? s_[at_] : '\0'; }
    bool more() const { return at_ < s_.size(); }
    void space() {
        while (more() && (peek() == ' ' || peek() == '\t' || peek() == '\r' || peek() == '\n')) ++at_;
    }
    std::string fail(const std::string& why) {
        if (error_.empty()) error_ = why + " at byte " + std::to_string(at_);
        return error_;
    }
    bool bad(const std::string& why) {
        fail(why);
        return false;
    }
    bool literal(std::string_view word) {
        if (s_.substr(at_, word.size()) != word) return bad("an unknown word");
        at_ += word.size();
        return true;
    }

    bool value(int depth) {
        if (depth > 64) return bad("nesting too deep");
        space();
        switch (peek()) {
        case '{': return object(depth);
        case '[': return array(depth);
        case '"': return string();
        case 't': return literal("true");
        case 'f': return literal("false");
        case 'n': return literal("null");
        default: return number();
        }
    }

    bool object(int depth) {
        ++at_;
        space();
        if (peek() == '}') return ++at_, true;
        for (;;) {
            space();
            if (peek() != '"') return bad("a key that is not a string");
            if (!string()) return false;
            space();
            if (peek() != ':') return bad("no colon after a key");
            ++at_;
            if (!value(depth + 1)) return false;
            space();
            if (peek() == ',') { ++at_; continue; }
            if (peek() == '}') return ++at_, true;
            return bad("an object not closed");
        }
    }

    bool array(int depth) {
        ++at_;
        space();
        if (peek() == ']') return ++at_, true;
        for (;;) {
            if (!value(depth + 1)) return false;
            space();
            if (peek() == ',') { ++at_; continue; }
            if (peek() == ']') return ++at_, true;
            return bad("an array not closed");
        }
    }

    static bool digit(char c) { return c >= '0' && c <= '9'; }
    static bool hex(char c) { return digit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

    bool number() {
        const size_t start = at_;
        if (peek() == '-') ++at_;
        if (peek() == '0') ++at_;
        else if (digit(peek())) while (digit(peek())) ++at_;
        else return bad(at_ == start ? "no value" : "a sign with no digits");
        if (peek() == '.') {
            ++at_;
            if (!digit(peek())) return bad("a point with no digits after it");
            while (digit(peek())) ++at_;
        }
        if (peek() == 'e' || peek() == 'E') {
            ++at_;
            if (peek() == '+' || peek() == '-') ++at_;
            if (!digit(peek())) return bad("an exponent with no digits");
            while (digit(peek())) ++at_;
        }
        return true;
    }

    // One UTF-8 sequence, shortest form, no surrogates, at most U+10FFFF.
    bool utf8() {
        const auto b = [&](size_t i) { return static_cast<unsigned char>(at_ + i < s_.size() ? s_[at_ + i] : 0); };
        const unsigned c = b(0);
        int n = 0;
        unsigned cp = 0;
        if (c >= 0xC2 && c <= 0xDF) n = 1, cp = c & 0x1F;
        else if (c >= 0xE0 && c <= 0xEF) n = 2, cp = c & 0x0F;
        else if (c >= 0xF0 && c <= 0xF4) n = 3, cp = c & 0x07;
        else return bad("a byte that is not UTF-8");
        for (int i = 1; i <= n; ++i) {
            if ((b(i) & 0xC0) != 0x80) return bad("a broken UTF-8 sequence");
            cp = (cp << 6) | (b(i) & 0x3F);
        }
        if ((n == 2 && cp < 0x800) || (n == 3 && cp < 0x10000) || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
            return bad("an overlong or out-of-range UTF-8 sequence");
        at_ += static_cast<size_t>(n) + 1;
        return true;
    }

    bool string() {
        ++at_;
        for (;;) {
            if (!more()) return bad("a string not closed");
            const unsigned char c = static_cast<unsigned char>(peek());
            if (c == '"') return ++at_, true;
            if (c < 0x20) return bad("a raw control character in a string");
            if (c >= 0x80) {
                if (!utf8()) return false;
                continue;
            }
            ++at_;
            if (c != '\\') continue;
            const char e = peek();
            ++at_;
            if (e == 'u') {
                for (int i = 0; i < 4; ++i, ++at_)
                    if (!hex(peek())) return bad("a \\u escape without four hex digits");
            } else if (std::string_view("\"\\/bfnrt").find(e) == std::string_view::npos) {
                return bad("an unknown escape");
            }
        }
    }

    std::string_view s_;
    size_t at_ = 0;
    std::string error_;
};

} // namespace

std::string checkJsonLine(std::string_view line) { return Parser(line).check(); }

} // namespace gp::fuzz
