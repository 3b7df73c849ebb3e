#pragma once
#include "core/Game.h"

namespace jv {

// The computer's move for the attackers: ranks every attacker move and plays
// the best, ties drawn at random.
void MakeRedAutoMove(Game& g);

// The computer's move for the defenders: ranks (mode 1) and plays the first
// line of List1D.
void MakeGreenAutoMove(Game& g);

// Moves one random piece of the side with the given code (debug buttons).
void RandomMover(Game& g, int side);

}  // namespace jv
