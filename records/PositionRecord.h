#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// The text form of a whole position: KingCol and KingRow as two digits each,
// then one letter per square, column by column ("H" Home, "E" empty, "0"
// defender, "1" attacker). Undo, the moves log and layout files share it.
std::string EncodePosition(const Position& g);

// Sets the King's square and the squares from a position record (a letter
// that is none of the four leaves its square as it was; letters past the
// board's last square are ignored), puts the Home corners back, then
// re-analyses and redraws the position.
void ApplyPositionRecord(Game& g, const std::string& record);

// A layout line: width and height as two digits each, then the record.
std::string LayoutLine(const Game& g);

}  // namespace jv
