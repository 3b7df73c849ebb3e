#pragma once

namespace jv::bench {

// Times the strong player: from the 11x11 opening to depths 5 and 6 for each
// side, and its nodes per second on 11x11 middle-game positions; false when
// a layout cannot be read.
bool BenchSearch();

}  // namespace jv::bench
