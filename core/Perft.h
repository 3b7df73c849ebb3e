#pragma once
#include <cstdint>
#include <vector>

#include "core/Game.h"

namespace jv {

// Counting the move sequences of a position, as chess programs do, under its
// rule set, on the rule board: a count is the number of sequences of exactly
// depth moves, the sides alternating; a line that ends early (the King home
// or taken) adds nothing.

struct PerftLine {
    Move First;
    std::uint64_t Count = 0;
};

// side: DefenderCode or AttackerCode, the side that moves first.
std::uint64_t Perft(const Position& g, int depth, int side);

// The count split by the first move, one line per move of the side to move,
// in the order the moves are found (squares column by column, directions up,
// down, left, right, nearest square first). Empty for depth 0.
std::vector<PerftLine> PerftDivide(const Position& g, int depth, int side);

}  // namespace jv
