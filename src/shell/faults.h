#pragma once
// The faults that end a handler early. Page code never catches them: the
// guard around every event handler turns one into a message for the user,
// so a bad number typed into a box costs the user one message, not the window.

#include <stdexcept>
#include <string>

namespace gp {

enum class FaultKind {
    Overflow,          // a value left the range of its type
    DivisionByZero,    // a division or Mod by 0
    TypeMismatch,      // text that had to be a number was not
    SubscriptRange,    // an array index outside its bounds
    WorkLimit,         // a loop that would run (nearly) for ever
    InvalidValue,      // a value the page cannot work with
};

class Fault : public std::runtime_error {
public:
    Fault(FaultKind kind, const std::string& message)
        : std::runtime_error(message), kind_(kind) {}
    FaultKind kind() const { return kind_; }

private:
    FaultKind kind_;
};

[[noreturn]] void throwOverflow();
[[noreturn]] void throwDivisionByZero();
[[noreturn]] void throwTypeMismatch(const std::string& text);
[[noreturn]] void throwSubscript(long index);
[[noreturn]] void throwWorkLimit();
[[noreturn]] void throwInvalid(const std::string& message);

} // namespace gp
