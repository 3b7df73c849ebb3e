#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// The squares a piece on (col, row) can move to in one direction, as square
// items nearest first. "U" walks Col down towards 1, "D" Col up towards the
// width, "L" Row down towards 1, "R" Row up towards the height; the walk
// stops at the first square that is not empty (a piece, a Home corner or the
// frame). Any other letter gives an empty text.
std::string ReachInDirection(const Game& g, int col, int row, char direction);

// Appends what ReachInDirection gives to out, without a temporary text.
void AppendReach(const Game& g, int col, int row, char direction, std::string& out);

// Rebuilds MoveTargets (for every non-empty square, its reach "U", "D", "L",
// "R" in that order) and ReachMap (the squares some piece of each side can
// move to).
void BuildReachTables(Game& g);

// Calls visit(col, row) for every square item of a list such as
// "0305,0306,", in order; the empty part after the last comma is skipped.
template <typename Visit>
void ForEachSquareItem(const std::string& items, Visit visit);

}  // namespace jv

#include "core/Reach.inl"
