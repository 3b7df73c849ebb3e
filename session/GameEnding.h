#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// How a game ends under its rule set: the end a move leads to, foreseen on a
// copy of the rule board before the move is made, and the end announced in
// plain words.

// The other side.
inline int OtherSide(int side) { return side == AttackerCode ? DefenderCode : AttackerCode; }

// The side that moves first under the game's rule set.
int FirstSide(const Position& g);
// The side to move: the first side after an even number of moves in the
// undo history.
int SideToMove(const Game& g);

// What a move of side leads to: how the rule board finds the game after it;
// else, where the rule set says so, the side to move next left without a
// move, or the position come round a third time (the undo history counted).
// After is the position record the move leaves, its captures made.
struct MoveEnd {
    GameEnding Ending = GameEnding::None;
    std::string After;
};
MoveEnd ForeseeMove(const Game& g, int side, const Move& m);

// The end as the user reads it: what happened and who wins.
std::string EndingText(const Position& g, GameEnding ending);

// The end of a game: the message, pending events, and the board stops
// taking pointer input. Buttons and menus stay available.
void EndGame(Game& g, GameEnding ending, const std::string& headline, const char* style);

// Writes the end into the event log in the winner's colour.
void LogEnding(Game& g, GameEnding ending);

// Writes the end into the event log, shows it (happy when the user's side
// wins) and ends the game.
void AnnounceEnding(Game& g, GameEnding ending);

}  // namespace jv
