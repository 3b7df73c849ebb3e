#pragma once

namespace jv {

// How long a side thinks over one move, from what its game clock leaves it:
// the one rule of the program's own players on a clock, whether the clock is
// an engine host's or a match's.

// A side's clock: the main time left (negative without a clock), what each
// move adds to it, and the overtime periods left with their length.
struct SideClock {
    double Seconds = -1;
    double IncrementSeconds = 0;
    double OvertimeSeconds = 0;
    int Overtimes = 0;
};

// The milliseconds one move may take on the clock.
int ThinkingMillis(const SideClock& clock);

}  // namespace jv
