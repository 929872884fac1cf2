#pragma once
// One line of a script, taken apart: the command word, the words after it,
// and the rest of the line as it stands (a VALUE may hold blanks). The
// helpers refuse a word that is not what the command needs, naming it.

#include <cstdint>
#include <string>
#include <vector>

#include "shell/numbers.h"

namespace gp {

class ScriptedSession;

// A script line quoted in a message: long lines are cut, so that a 50 MB
// line does not come back whole in an error.
std::string quoted(const std::string& text);

class ScriptLine {
public:
    ScriptLine(ScriptedSession& session, std::string command, std::string rest);

    const std::string& command() const { return command_; }
    // Everything after the command and its one blank, as written.
    const std::string& rest() const { return rest_; }
    const std::vector<std::string>& words() const { return words_; }
    // The rest after the first word and its one blank (text NAME VALUE).
    std::string valueAfterName(std::string& name) const;

    void expectWords(size_t n) const;
    // A whole number from lo to hi.
    long long whole(const std::string& word, long long lo, long long hi) const;
    // A coordinate: a decimal number that a Single can hold.
    Single coordinate(const std::string& word) const;

private:
    ScriptedSession& session_;
    std::string command_;
    std::string rest_;
    std::vector<std::string> words_;
};

// The next word of `rest` up to a single blank; `rest` keeps what follows
// that blank.
std::string nextWord(std::string& rest);

// A whole number written in decimal, all of the text, that a long long holds.
bool parseWhole(const std::string& s, long long& out);

} // namespace gp
