#pragma once
#include "core/Game.h"

namespace jv {

// Scores the defenders' target squares and fills DefenderMovesRank, List2D
// and List1D (best first). Mode 1 ranks for a real move.
void GetDefenderRank(Game& g, int mode);

}  // namespace jv
