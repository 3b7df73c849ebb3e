#pragma once
#include "core/Game.h"

namespace jv {

// Scores every attacker move and fills List1A (best first), List2A,
// AttackerMovesRank and PlanBonus.
void GetAttackerRank(Game& g);

}  // namespace jv
