#pragma once
#include <cstdint>

#include "core/Game.h"

namespace jv {

// What a square shows: -1 nothing (an empty square), 0 a defender, 1 an
// attacker, 2 a Home corner, 3 the King. The King test comes last, so a King
// on a corner shows as the King.
int DrawCode(const Game& g, int col, int row);

// The fill of a draw code when pieces are drawn as colours: the four piece
// colours of the configuration (User, Computer, Home, King).
std::int32_t SquareColour(const Game& g, int drawCode);

// The board's background and the fill of an empty square: scheme entry 2.
std::int32_t BoardBackColourValue(const Game& g);

}  // namespace jv
