#pragma once
#include <string>
#include <vector>

#include "core/Game.h"
#include "records/GameRecord.h"

namespace jv {

// The move list: every move of the game in the window, read off its
// positions as the game record reads them (the undo history, oldest first,
// then the board), and the way the board steps back and forth through them,
// keeping the later moves while it shows an earlier position.

// The game's positions as layout lines, oldest first: those of the game
// being stepped through, else the undo history and the board.
std::vector<std::string> GameLines(const Game& g);

struct MoveListing {
    std::vector<std::string> Positions;   // GameLines
    std::vector<PlayedMove> Moves;
    std::string Problem;   // where the positions stop being a run of moves, and why
    std::string Ending;    // how the game ended, once it has
    int Shown = -1;        // the move whose position the board shows; -1 the start
};
MoveListing ListMoves(const Game& g);

// "KF6-F5xE5/G5++": a move as the move list writes it, its squares named as
// the view names them (SquareNames.h).
std::string ListedMoveText(const Game& g, const WrittenMove& move);

// Shows the position after move index of the listing (-1: the start), as a
// click on the undo history shows an earlier position.
void ShowListedMove(Game& g, const MoveListing& listing, int index);

// Shows a position record of the game's, keeping the game's positions for
// the move list; the undo history's click and the move list's both come here.
void ShowEarlierPosition(Game& g, const std::string& record);

}  // namespace jv
