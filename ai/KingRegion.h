#pragma once
#include "core/RuleBoard.h"

namespace jv {

// The ring the attackers draw round the King: the squares he and his
// defenders can still reach without passing an attacker, and whether that
// area still touches a square where he escapes.
struct KingRegion {
    int Squares = 0;        // the squares of the area, the King's and the defenders' own included
    bool Escapes = false;   // the area holds a corner, or an edge square where he escapes there
};

// The King's region on the board; nothing when the King is off it.
KingRegion FindKingRegion(const RuleBoard& b);

}  // namespace jv
