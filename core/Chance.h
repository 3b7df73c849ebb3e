#pragma once
#include <cstdint>
#include <functional>

namespace jv {

// A clock for repeatable runs: it reads start, then advances one tick (a
// sixty-fourth of a second) at every reading, so that the draws reseeded from
// it differ from each other yet repeat exactly from the same start.
std::function<double()> TickingClock(double start);

// The program's random numbers: one generator, reseeded from a clock the
// way the computer players ask for it. Both the generator state and the clock
// can be set by tests, so "two runs may differ" and "reseeded within one
// tick repeats" are both reproducible.
class Chance {
public:
    Chance();

    // Seconds since midnight, with the resolution of the system timer.
    std::function<double()> Timer;

    // Reseeds from a number; the same number always gives the same sequence.
    void Randomize(double seed);
    // A number in [0, 1).
    double Rnd();

private:
    std::uint32_t state_;
};

}  // namespace jv
