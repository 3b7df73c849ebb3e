#pragma once
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv {

// The positions of the game the undo history holds, oldest first, as layout
// lines: the position before each move, then the position on the board.
std::vector<std::string> HistoryLines(const Game& g);

// "Export game record...": writes the game of the move list (the undo
// history and the position played to, MoveList.h) as an OpenTafl game
// record (records/GameRecord.h) to a file the user chooses (".otg" added to
// a name without a point); nothing while the
// layout editor is on. A history that is not a run of single moves (an
// earlier position picked in the Undo list and played on from) is reported
// at its first bad move and nothing is written. The name written, "" when
// none.
std::string ExportGameRecordCommand(Game& g);

}  // namespace jv
