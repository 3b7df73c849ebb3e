#pragma once
#include <string>
#include <string_view>

#include "core/Game.h"

namespace jv {

// Standard tafl coordinates, as the board appears on screen: files "a", "b",
// ... from the left (the Row, numbered across the top) and ranks 1, 2, ...
// from the bottom (the Col, lettered down the left, counted from the last
// letter upwards): rank = BoardWidth - Col + 1. The program's own square
// names ("C5") stay as they are in every message and log line; these serve
// the OpenTafl positions and the game records.

// "d4" for a square of the board.
std::string StandardSquare(const Game& g, int col, int row);
// The same for a board of the given width that is not in a Game.
std::string StandardSquareName(int boardWidth, int col, int row);

// Reads "d4" back (a lower-case file letter, a rank without leading zeros).
// False when the text is not a square of the board; col and row are then
// left as they were.
bool ReadStandardSquare(const Game& g, std::string_view text, int& col, int& row);

// True when the text has the form of a standard move, whatever the board.
bool IsStandardMoveText(std::string_view text);

// Reads "d1-d4"; false when the text is no move between two squares of the
// board.
bool ReadStandardMove(const Game& g, std::string_view text, Move& move);

}  // namespace jv
