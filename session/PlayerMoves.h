#pragma once
#include "core/Game.h"

namespace jv {

// The moves that reach the board from a player: the computer's moves, shown
// for a second first, and the user's drop, which the computer then answers.
// Each is recorded for undo and ends the game when the King is taken or home;
// under a rule set other than the classic one, when the rule board says the
// game ends (session/GameEnding.h), after the move's captures.

void MakeAttackerMove(Game& g, const Move& m);
void MakeDefenderMove(Game& g, const Move& m);
void DropPiece(Game& g, int col, int row);

}  // namespace jv
