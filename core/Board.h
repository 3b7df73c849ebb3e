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

// Writes code into the four Home corners and nowhere else. A board without
// Home corners has ordinary corners: a Home marker read onto one (a layout
// written for the corners) is cleared there, and a piece stays.
void SetHomeSquares(Position& g, int code);

// True when the game is played under the program's own rules.
bool PlaysClassicRules(const Position& g);

// True when the board has Home corners: the rule set's King escapes onto a
// corner. Where he escapes on the edge the corners are ordinary squares.
bool HasHomeCorners(const Position& g);

// True for the four corners of a board that has Home corners.
bool IsHomeSquare(const Position& g, int col, int row);

// True when the centre is a throne: only the King stops on it, and it closes
// a sandwich. The classic centre is no throne.
bool HasThrone(const Position& g);

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
