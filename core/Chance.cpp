#include "core/Chance.h"

#include <chrono>
#include <cstring>

namespace jv {

namespace {
double SecondsSinceMidnight() {
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    const auto ms = duration_cast<milliseconds>(now).count() % (24LL * 3600 * 1000);
    // The system timer ticks in 1/64 s steps; keep that resolution.
    return static_cast<double>(ms / 16) * 16 / 1000.0;
}
}  // namespace

std::function<double()> TickingClock(double start) {
    return [start, ticks = 0LL]() mutable { return start + static_cast<double>(ticks++) / 64.0; };
}

Chance::Chance() : Timer(SecondsSinceMidnight), state_(0x50000) {}

// A 24-bit linear congruential generator. Reseeding sets the whole state
// from the bits of the seed, so the same seed (the same timer tick) always
// gives the same next number.
void Chance::Randomize(double seed) {
    std::uint64_t bits = 0;
    static_assert(sizeof bits == sizeof seed);
    std::memcpy(&bits, &seed, sizeof bits);
    const std::uint32_t folded = static_cast<std::uint32_t>(bits >> 32) ^ static_cast<std::uint32_t>(bits);
    state_ = (folded ^ (folded >> 24)) & 0xFFFFFF;
}

double Chance::Rnd() {
    state_ = (state_ * 1140671485u + 12820163u) & 0xFFFFFF;
    return static_cast<double>(state_) / 16777216.0;
}

}  // namespace jv
