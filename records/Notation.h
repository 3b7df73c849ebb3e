#pragma once
#include <string>
#include <string_view>
#include <vector>

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

// A move as a game record or a player writes it: the King's letter when he
// moves, the two squares, the captures after an "x" and an ending mark:
// "Kf6-f5", "e5-e8xe9/d8", "a3-e3+" (the King may be taken next), "e3-e4++"
// (the King taken), "Ke1-a1--" (the King home), "Ke5-e1-" (he has a free run).
struct WrittenMove {
    Move Squares;
    bool King = false;
    bool CapturesWritten = false;
    std::vector<Square> Captures;
    std::string Mark;   // "", "+", "++", "-" or "--"
};

// True when the text has the form of a written move, whatever the board.
bool IsStandardMoveText(std::string_view text);

// Reads a written move; false when the text is none or names a square off
// the board.
bool ReadStandardMove(const Game& g, std::string_view text, WrittenMove& move);

}  // namespace jv
