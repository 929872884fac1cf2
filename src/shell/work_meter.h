#pragma once
// Counts the work of one event handler: every drawing call and every turn of
// a loop that might not end. Past the limit the handler is stopped with a
// WorkLimit fault, so no value typed into a box can freeze the window.

#include <cstdint>

#include "shell/faults.h"

namespace gp {

class WorkMeter {
public:
    // Above the heaviest real page (the stick-curve fill on a large sheet,
    // about a million strokes), and low enough that no handler keeps the
    // window from answering for more than a few seconds.
    static constexpr std::uint64_t kDefaultLimit = 2'000'000;

    void reset() { used_ = 0; }
    void restore(std::uint64_t used) { used_ = used; }
    void setLimit(std::uint64_t limit) { limit_ = limit; }
    std::uint64_t used() const { return used_; }

    void tick(std::uint64_t amount = 1) {
        used_ += amount;
        if (used_ > limit_) throwWorkLimit();
    }

private:
    std::uint64_t used_ = 0;
    std::uint64_t limit_ = kDefaultLimit;
};

} // namespace gp
