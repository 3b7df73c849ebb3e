#pragma once
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv::ui {

// How the Undo list shows entry i of the undo history (newest first): the
// move it takes back, the King's square and the pieces on the board, e.g.
// "Before move 3: King F6, 12 v 24". The entry itself stays a position record.
std::string UndoLine(const Game& g, const std::vector<std::string>& undo, std::size_t i);

}  // namespace jv::ui
