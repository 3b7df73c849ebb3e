#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// The King's four neighbours, up (kc, kr-1), left (kc-1, kr), down (kc, kr+1)
// and right (kc+1, kr): how many hold attackers, defenders, how many are
// empty, and the last empty one in that order (0, 0 when none).
struct KingNeighbours {
    int Attackers = 0;
    int Defenders = 0;
    int Empties = 0;
    int EmptyCol = 0;
    int EmptyRow = 0;
};
KingNeighbours KingNeighbourCounts(const Game& g);

namespace plan {
// The plan's first tactic: fill the King's last empty neighbour, or ask for
// his empty neighbours, or close in on a King his own men surround. Not the
// rule that decides whether the King is taken (core/Move.h).
void CheckKingCapture(Game& g);
}  // namespace plan

// Captures to make, attackers to protect, and defenders between two empty
// squares to set up for capture.
void PlanCaptures(Game& g);

// The King's eight surrounding squares that an attacker can take.
void PlaceAroundKing(Game& g);

// The empty squares on the four straight lines from (col, row) that end at a
// piece of code inside the board, up, down, left and right joined.
std::string PathAroundKing(const Game& g, int code, int col, int row);

// The squares diagonal to the corners, then the edge squares, that an
// attacker can take.
void PlanBorder(Game& g);

// Defenders between two empty squares an attacker can reach, straight or in
// a diagonal pair.
void PlanOpportunities(Game& g);

}  // namespace jv
