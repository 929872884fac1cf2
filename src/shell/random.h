#pragma once
// Rnd and Randomize. One sequence for the whole program, so that a batch run
// seeded with --seed repeats exactly.

#include <cstdint>

#include "shell/numbers.h"

namespace gp {

class RandomSource {
public:
    // The next value, at least 0 and below 1.
    Single Rnd();
    // Randomize Timer. When the run was seeded for repeatability the seed
    // stands and this does nothing.
    void Randomize(Single timer);
    void seed(std::uint32_t seed);
    bool seeded() const { return fixedSeed_; }

private:
    std::uint32_t state_ = 0x50000;  // 24-bit linear congruential state
    bool fixedSeed_ = false;
};

} // namespace gp
