#pragma once

namespace jv::bench {

// Times GetAttackerRank and GetDefenderRank(1) on every shipped layout and
// the crowded 14x14 position, and self-play moves per second; prints the
// behaviour signature of the rankings. False when a layout cannot be read.
bool BenchRank();

}  // namespace jv::bench
