#pragma once
#include "core/Game.h"

namespace jv {

// The attacker's plan: zeroes PlanBonus and runs the tactics in their order
// (King capture, blocking the King's way home, the corner diagonals,
// captures, placing round the King, the King's paths to his men, protection
// near Home, the squares next to Home, the border, the line opportunities).
void PlanAttack(Game& g);

// The King's way home blocked: the route gets a bonus by its status, and
// (unless the King can go Home directly or in two moves) every square the
// King can move to gets 400 for each edge square among them.
void BlockKingHome(Game& g);

// The squares diagonal to the corners that the King can slide over or to.
void BlockCornerDiagonals(Game& g);

// The twelve squares next to and diagonal to the corners that an attacker
// can reach.
void PlaceNextToHome(Game& g);

// An attacker beside a corner that a defender could sandwich against it: the
// square beyond it along the edge.
void AvoidCaptureNearHome(Game& g);

}  // namespace jv
