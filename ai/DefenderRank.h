#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// Scores the defenders' target squares and fills DefenderMovesRank, List2D
// and List1D (best first). Mode 1 ranks for a real move: it may show the
// King's run home and consults the attacker's own ranking.
void GetDefenderRank(Game& g, int mode);

// Gives every square item of squares DefenderBonus plus rank in
// DefenderScore, then adds the line rank "0000", a blank and text to
// DefenderMovesRank.
void AddDefenderRank(Game& g, const std::string& squares, int rank, const std::string& text);

}  // namespace jv
