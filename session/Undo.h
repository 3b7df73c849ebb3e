#pragma once
#include "core/Game.h"

namespace jv {

// Records the position before a move: puts its position record on top of
// Undo and, while a moves log is named, appends its layout line to the log.
void RecordMove(Game& g);

// The undo command (cmdundo): restores the newest record and removes it;
// nothing while the layout editor is on or when Undo is empty.
void UndoCommand(Game& g);

// A click on the Undo list (Undo_MouseUp): shows the position of the entry
// at index, leaving the list as it is.
void Undo_MouseUp(Game& g, int index);

}  // namespace jv
