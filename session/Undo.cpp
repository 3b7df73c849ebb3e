#include "session/Undo.h"

#include "core/GameView.h"
#include "core/VbText.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/MoveList.h"

namespace jv {

namespace {

// The log is opened and closed for every move, so it is complete on disk
// after each one. A log that cannot be written is reported and the move
// goes on: losing a log line must never stop a game.
void AppendToMovesLog(Game& g, const std::string& record) {
    const std::string line = Format(g.BoardWidth, "00") + Format(g.BoardHeight, "00") + record;
    const WriteResult written = AppendLine(InProgramFolder(g, g.MovesLogFile), line);
    if (written.Ok()) return;
    g.View->Show("Moves Log File:\r\n" + g.MovesLogFile + "\r\n" + written.Problem("could not be written") +
                     ", this move is not logged",
                 "vbcritical+vbok");
}

}  // namespace

void RecordMove(Game& g) {
    const std::string record = EncodePosition(g);
    g.Undo.insert(g.Undo.begin(), record);
    g.View->RefreshList(ListId::Undo);
    if (!g.MovesLogFile.empty()) AppendToMovesLog(g, record);
}

void UndoCommand(Game& g) {
    if (g.EditorOn || g.Undo.empty()) return;
    ApplyPositionRecord(g, g.Undo.front());
    g.Undo.erase(g.Undo.begin());
    g.View->RefreshList(ListId::Undo);
}

void Undo_MouseUp(Game& g, int index) {
    if (index < 0 || index >= static_cast<int>(g.Undo.size())) return;
    // A copy: applying the record redraws, and the view may read the list.
    const std::string record = g.Undo[static_cast<std::size_t>(index)];
    ShowEarlierPosition(g, record);
}

}  // namespace jv
