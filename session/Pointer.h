#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// The board's pointer rules. The user plays one side (the defenders and the
// King unless the players' settings say the attackers), and only legal
// moves: a drag starts on a piece of that side while the board
// takes input; a drop is accepted on a square of the piece's MoveTargets, and
// for the King also on a Home corner at the end of a free straight line.

bool CanStartDrag(const Game& g, int col, int row);
// The squares the piece on (col, row) can move to in the position as it
// stands, as square items: under the classic rules its reach in MoveTargets
// order (the centre listed like any empty square), under any other rule set
// its moves as the rule board lists them. The tables of the last analysis
// may be those of a computer player's trial move, so the pointer walks the
// board itself.
std::string PieceTargets(const Game& g, int col, int row);
// Starts a drag: sets DragSource and shows the drag line. False when refused.
bool BeginDrag(Game& g, int col, int row);
bool AcceptsDrop(const Game& g, int col, int row);
// Ends the drag on (col, row): an accepted drop goes to DropPiece, any
// other cancels the drag silently. True when the drop was accepted.
bool EndDrag(Game& g, int col, int row);
// The hint while the pointer is over a square: its name and what stands on it.
std::string PointerHint(const Game& g, int col, int row);

}  // namespace jv
