#pragma once
#include <string>
#include <string_view>

#include "core/Game.h"

namespace jv {

// How the panes beyond the classic lists name squares: as the board's edges
// label them, the row letter and the column number ("F6"), or, with the
// view's TaflCoordinates, in standard tafl coordinates ("f6"). The classic
// lists and log lines keep their own forms whatever the setting.

std::string ShownSquare(const Game& g, int col, int row);

// "F6-F3" (or "f6-f3"): the two squares of a move.
std::string ShownMove(const Game& g, const Move& m);

// Reads a square or a move written as above back; false when the text is
// none or names a square off the board.
bool ReadShownSquare(const Game& g, std::string_view text, Square& square);
bool ReadShownMove(const Game& g, std::string_view text, Move& move);

// Reads the view's settings file (a missing or unreadable one leaves the
// board's own names) and writes it.
void ReadViewSettings(Game& g);
bool WriteViewSettings(const Game& g);

}  // namespace jv
