#pragma once
#include "core/Game.h"

namespace jv {

// The layout editor. While it is on, the position being edited lives in
// Game::EditorGrid (the board's codes, with EditorKingCode on the King's
// square) and the board itself is left alone until the editor is switched
// off; the load, save, reset, undo and recording commands do nothing then.

// The King's square in the editor grid.
constexpr int EditorKingCode = 99;

// The editor command (cmdedit): switches the editor on when it is off and
// off when it is on.
void EditorCommand(Game& g);

// Copies the board into the editor grid, the King's square as
// EditorKingCode, and shows the palette.
void SwitchEditorOn(Game& g);

// Copies the editor grid back to the board, writes it to "temporarylayout.txt"
// in the program's folder and loads that file as the new layout. The King's
// row is kept as it was; his column is the column of the edited King's
// square when that square lies on his old row, and 0 otherwise. When the file
// cannot be written the editor stays on.
void SwitchEditorOff(Game& g);

// Places a kind (AttackerCode, DefenderCode, EditorKingCode or EmptyCode) on
// a square of the editor grid. The Home corners and the King's square are
// never painted over; placing the King moves the one King there. True when
// the grid changed.
bool PlaceInEditor(Game& g, int col, int row, int kind);

// The position the editor holds, as a game to draw: a copy of the game whose
// board and King come from the editor grid (no King when the grid has none).
void EditorPosition(const Game& g, Game& shown);

}  // namespace jv
