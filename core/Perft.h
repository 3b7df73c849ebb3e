#pragma once
#include <cstdint>
#include <vector>

#include "core/Game.h"

namespace jv {

// Counting the move sequences of a position, as chess programs do, under
// this program's rules:
// - defenders move as the user may drag them: along a free straight line,
//   only the King stopping on the centre, and the King also onto a Home
//   corner that ends one of his free lines, which wins;
// - attackers move along free straight lines, never stopping on the centre;
// - a move captures as CaptureAround does, and after an attacker move the
//   King is taken as CheckKingCapture finds him (that move then takes
//   nothing else);
// - a King at Home or taken ends the line.
// A count is the number of sequences of exactly depth moves, the sides
// alternating; a line that ends early adds nothing. The moves are made and
// taken back on the game's own board, which is left as it was.

struct PerftLine {
    Move First;
    std::uint64_t Count = 0;
};

// side: DefenderCode or AttackerCode, the side that moves first.
std::uint64_t Perft(Position& g, int depth, int side);

// The count split by the first move, one line per move of the side to move,
// in the order the moves are found (squares column by column, directions up,
// down, left, right, nearest square first). Empty for depth 0.
std::vector<PerftLine> PerftDivide(Position& g, int depth, int side);

}  // namespace jv
