#pragma once
#include "core/Game.h"

namespace jv {

// Rebuilds everything derived from the board: BuildReachTables, then
// FindCaptureChances, then UpdateCounters.
void AnalysePosition(Game& g);

// CaptureChances(0): empty squares on which an attacker would complete a
// sandwich of a defender; CaptureChances(1) the same for a defender against an
// attacker; KingCaptureSquares: those of CaptureChances(0) that sandwich the
// King. Lines along the second index are listed first, then lines along the
// first index. Only exact codes count: a Home corner never completes a chance.
void FindCaptureChances(Game& g);

// Counts the defenders (without the King) and the attackers and shows them.
void UpdateCounters(Game& g);

}  // namespace jv
