#pragma once
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv {

// The player that plays side in this game: the one chosen; under any rule
// set but Classic the strong player stands in for a classic player, the
// classic players knowing the classic rules only.
PlayerKind PlayerOf(const Game& g, int side);

// True when the classic players play both sides (so the classic rules): the
// pair whose automatic game plays on past the end of a game.
bool ClassicPairPlays(const Game& g);

// The computer's move for side: MakeRedAutoMove or MakeGreenAutoMove.
void MakeAutoMove(Game& g, int side);

// The computer's move for the attackers: ranks every attacker move and plays
// the best, ties drawn at random. A drawn move the position does not allow is
// replaced by the first legal line of List1A, else by the strong player's
// move, and the event log says so.
void MakeRedAutoMove(Game& g);

// The computer's move for the defenders: ranks (mode 1) and plays the first
// line of List1D, or its first legal line when that one is not legal. With
// no legal line but a move left, the strong player's move at a fixed depth
// is made as the user's drop is (a King reaching a corner wins), after an
// event-log line saying why.
void MakeGreenAutoMove(Game& g);

// Moves one random piece of the side with the given code (debug buttons).
void RandomMover(Game& g, int side);

// Ten rounds of a random attacker move and a random defender move, the
// attackers first (the "Red/GreenRandom" button).
void RedGreenRandom(Game& g);

// The move written in a List1A or List1D line: source at characters 13-16,
// destination at 18-21.
// False when the line is too short to hold a move.
bool ReadListMove(const std::string& line, Move& move);

// The mouse pressed on line index of a candidate list: the move is shown on
// the board with the drag line and its marker. Nothing for an index or line
// that holds no move on the board.
void PreviewListMove(Game& g, const std::vector<std::string>& list, int index);
// The mouse released: the preview is hidden.
void EndListMovePreview(Game& g);

}  // namespace jv
