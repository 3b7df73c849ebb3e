#pragma once
#include <optional>

#include "core/Game.h"

namespace jv {

// The strong player in play: its search runs on a worker thread on its own
// copy of the position for the thinking time, while the window's events run;
// it stops at once when the game changes under it (a load, a reset, an undo,
// the program's end) or the user stops it. Its progress fills SearchLines:
// depth, score, nodes a second and the line it expects, its squares named
// as the view names them (SquareNames.h).

// The strong player's move for side, or none when the side cannot move or
// the search was stopped (then stopped is set).
std::optional<Move> ThinkStrong(Game& g, int side, bool* stopped = nullptr);

// The strong player's move for the side the user plays,
// shown as a preview the user may follow or ignore, and named in the log.
void HintCommand(Game& g);

// A line of SearchLines pressed: its first move is shown on the board.
void PreviewSearchLine(Game& g, int index);

// Reads the players' settings file (a missing or unreadable one leaves the
// defaults) and writes it.
void ReadPlayers(Game& g);
bool WritePlayers(const Game& g);

}  // namespace jv
