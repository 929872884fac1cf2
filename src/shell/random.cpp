#include "shell/random.h"

#include <cstring>

namespace gp {

// A 24-bit linear congruential generator: every value is a multiple of
// 2^-24, so it converts to a Single exactly and never reaches 1.
Single RandomSource::Rnd() {
    state_ = (state_ * 1140671485u + 12820163u) & 0xFFFFFFu;
    return static_cast<Single>(state_) / 16777216.0f;
}

void RandomSource::Randomize(Single timer) {
    if (fixedSeed_) return;
    std::uint32_t bits;
    std::memcpy(&bits, &timer, sizeof bits);
    state_ = ((bits >> 8) ^ (bits << 8) ^ state_) & 0xFFFFFFu;
}

void RandomSource::seed(std::uint32_t s) {
    state_ = s & 0xFFFFFFu;
    fixedSeed_ = true;
}

} // namespace gp
