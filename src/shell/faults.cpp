#include "shell/faults.h"

namespace gp {

void throwOverflow() {
    throw Fault(FaultKind::Overflow,
                "A number here grew too large to work with (overflow). "
                "Please try smaller values.");
}

void throwDivisionByZero() {
    throw Fault(FaultKind::DivisionByZero,
                "These values lead to a division by zero. Please change them.");
}

void throwTypeMismatch(const std::string& text) {
    throw Fault(FaultKind::TypeMismatch,
                "\"" + text + "\" is not a number. Please type a number.");
}

void throwSubscript(long index) {
    throw Fault(FaultKind::SubscriptRange,
                "There is no room for item " + std::to_string(index) +
                    " here (subscript out of range).");
}

void throwWorkLimit() {
    throw Fault(FaultKind::WorkLimit,
                "These values would take far too many strokes to draw. "
                "Please use larger lengths or fewer steps.");
}

void throwInvalid(const std::string& message) {
    throw Fault(FaultKind::InvalidValue, message);
}

} // namespace gp
