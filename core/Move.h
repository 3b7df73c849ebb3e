#pragma once
#include "core/Game.h"

namespace jv {

// Carries a piece over (the King's square follows), repaints the two squares
// and logs the move. Checks nothing.
void MovePiece(Game& g, const Move& m);

// Shows the drag line from source to target for a second.
void AnimateMove(Game& g, const Move& m);

// Takes the pieces that the piece which has just moved to (col, row) takes
// by the rule board, one second apart: each is marked, and after the pause
// taken only when it still is taken on the board as it then stands, with the
// pieces this move has taken already counted as standing (so that every
// piece of a shieldwall goes).
void CaptureAround(Game& g, int col, int row);

// True when the King stands taken, as the rule board finds him.
bool CheckKingCapture(const Position& g);

// A move's pauses let pending events run, so the user's clicks arrive in the
// middle of it. What is left of the move belongs to the game it began in:
// once a load has set up another board (reset, load, the editor switched
// off, a replay) or the program is ending, it has nothing left to act on.
bool GameGoesOn(const Game& g, int gameNumber);

// The drag line and its marker: one line serves the user's drag and the
// computer's move animation.
void ShowDragLine(Game& g, const Move& m);
void HideDragLine(Game& g);

}  // namespace jv
