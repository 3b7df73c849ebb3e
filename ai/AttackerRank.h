#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// Scores every attacker move and fills List1A (best first), List2A,
// AttackerMovesRank and PlanBonus.
void GetAttackerRank(Game& g);

// Gives every square item of squares (blank items skipped; a square named
// twice counts twice) the square's SquareWeight plus value in PlanBonus, then
// appends the line value "0000", a blank and label to AttackerMovesRank, also
// when squares is empty.
void AddPlanEntry(Game& g, const std::string& squares, int value, const std::string& label);

// AddPlanEntry for one square written as four digits (no trailing ","), the
// label being those digits followed by literal: "0405 : place L to king".
void AddPlanEntryAt(Game& g, int col, int row, int value, const char* literal);
// The same with the square item ("0405,") as squares and label start.
void AddPlanItemAt(Game& g, int col, int row, int value, const char* literal);

// 1 when the attacker on (col, row) could be taken by the defenders' next
// move: a defender reaches one side of it while the other side holds a
// defender, the Home corners counting as defenders. Reads ReachMap.
int AttackerExposed(Game& g, int col, int row);

// How good the position is for the defenders (0 or more): the King's way
// home, the King's reach of the edge, and the attackers a defender could
// sandwich next move, above all those beside a corner. Reads the tables of
// the last analysis.
int RankOfGreen(Game& g);
// The same, reusing route as room for the King's route text.
int RankOfGreen(Game& g, std::string& route);

}  // namespace jv
