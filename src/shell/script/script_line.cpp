#include "shell/script/script_line.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <sstream>

#include "shell/script/scripted_session.h"
#include "shell/utf8.h"

namespace gp {

namespace {
constexpr size_t kQuoteLength = 60;

bool parseDecimal(const std::string& s, double& out) {
    if (s.empty()) return false;
    char* end = nullptr;
    errno = 0;
    out = std::strtod(s.c_str(), &end);
    return errno == 0 && end && *end == '\0' && std::isfinite(out);
}
} // namespace

std::string quoted(const std::string& text) {
    if (text.size() <= kQuoteLength) return "\"" + text + "\"";
    // Cut on a character's first byte, so that the message stays UTF-8.
    size_t cut = 0;
    while (cut < kQuoteLength) cut += std::max<size_t>(1, utf8Length(text, cut));
    return "\"" + text.substr(0, cut) + "...\" (" + std::to_string(text.size()) + " bytes)";
}

std::string nextWord(std::string& rest) {
    const size_t blank = rest.find(' ');
    std::string word = rest.substr(0, blank);
    rest = blank == std::string::npos ? std::string() : rest.substr(blank + 1);
    return word;
}

bool parseWhole(const std::string& s, long long& out) {
    if (s.empty()) return false;
    char* end = nullptr;
    errno = 0;
    out = std::strtoll(s.c_str(), &end, 10);
    return errno == 0 && end && *end == '\0';
}

ScriptLine::ScriptLine(ScriptedSession& session, std::string command, std::string rest)
    : session_(session), command_(std::move(command)), rest_(std::move(rest)) {
    std::istringstream in(rest_);
    std::string w;
    while (in >> w) words_.push_back(w);
}

std::string ScriptLine::valueAfterName(std::string& name) const {
    std::string value = rest_;
    name = nextWord(value);
    return value;
}

void ScriptLine::expectWords(size_t n) const {
    if (words_.size() != n)
        session_.refuse(command_ + " takes " + std::to_string(n) + (n == 1 ? " word" : " words"));
}

long long ScriptLine::whole(const std::string& word, long long lo, long long hi) const {
    long long v = 0;
    if (!parseWhole(word, v) || v < lo || v > hi) session_.refuse(quoted(word) + " is not a whole number here");
    return v;
}

Single ScriptLine::coordinate(const std::string& word) const {
    double v = 0;
    if (!parseDecimal(word, v)) session_.refuse(quoted(word) + " is not a number");
    // A position is a Single: one beyond its range is no position at all.
    if (std::fabs(v) > FLT_MAX) session_.refuse(quoted(word) + " is beyond the range of a coordinate");
    return static_cast<Single>(v);
}

} // namespace gp
