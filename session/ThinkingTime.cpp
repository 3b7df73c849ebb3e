#include "session/ThinkingTime.h"

#include <algorithm>

namespace jv {

namespace {

// A move's thinking time without a clock.
constexpr int UnclockedMillis = 2000;
// The share of the main time one move may take, and the least it takes.
constexpr int MovesToPlan = 30;
constexpr int LeastMillis = 50;
// The share of an increment or an overtime period a move spends.
constexpr double ShareOfRenewedTime = 0.8;

}  // namespace

int ThinkingMillis(const SideClock& clock) {
    if (clock.Seconds < 0) return UnclockedMillis;
    // A share of the main time, and most of what each move gets back (an
    // increment, an overtime period once the main time is what is left of
    // one); never more than half of what is left.
    double millis = clock.Seconds * 1000 / MovesToPlan + clock.IncrementSeconds * 1000 * ShareOfRenewedTime;
    if (clock.Overtimes > 0) millis += clock.OvertimeSeconds * 1000 * ShareOfRenewedTime;
    millis = std::min(millis, std::max(clock.Seconds, clock.Overtimes > 0 ? clock.OvertimeSeconds : 0.0) * 1000 / 2);
    return std::max(LeastMillis, static_cast<int>(millis));
}

}  // namespace jv
