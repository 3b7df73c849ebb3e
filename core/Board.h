#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// Sets up an empty board of the given size (each side 0..14): the frame and
// the spare rings, the Home corners, the centre and the square numbering. It
// also hides the drag line, re-opens the board for pointer input (this is
// what makes play possible again after a game has ended), clears List1A and
// clears the event log. It places no pieces.
void NewBoard(Game& g, int width, int height);

// Writes code into the four Home corners and nowhere else.
void SetHomeSquares(Position& g, int code);

// True when the King stands on one of the four corners.
bool KingAtHome(const Position& g);

// True when the King stands on (col, row).
bool IsKingOn(const Position& g, int col, int row);

// True for the four corner squares of the board in play.
bool IsCorner(const Position& g, int col, int row);

// Fills ColumnLetters 1..16 with "A".."P".
void BuildColumnLetters(Game& g);

// A square as the user reads it: its column letter and its row, e.g. "C5".
std::string SquareName(const Game& g, int col, int row);

// A square as four digits, column then row, e.g. "0305".
std::string SquareText(int col, int row);
// A square item: the four digits and a comma, e.g. "0305,".
std::string SquareItem(int col, int row);

// Appends the four digits of a square to a text without a temporary.
void AppendSquareText(std::string& out, int col, int row);

}  // namespace jv
