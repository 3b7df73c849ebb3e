#include "session/MoveList.h"

#include <algorithm>

#include "records/PositionRecord.h"
#include "session/GameEnding.h"
#include "session/GameRecordExport.h"
#include "session/SquareNames.h"

namespace jv {

namespace {

// True while the board shows one of the stepped-through game's positions
// and nothing has been played, taken back or loaded since.
bool Browsing(const Game& g) {
    const Game::BrowsedGame& b = g.Browsed;
    if (b.Lines.empty() || b.UndoLength != g.Undo.size() || b.GameNumber != g.GameNumber) return false;
    const std::string shown = LayoutLine(g);
    return std::find(b.Lines.begin(), b.Lines.end(), shown) != b.Lines.end();
}

}  // namespace

std::vector<std::string> GameLines(const Game& g) { return Browsing(g) ? g.Browsed.Lines : HistoryLines(g); }

MoveListing ListMoves(const Game& g) {
    MoveListing listing;
    listing.Positions = GameLines(g);
    GameMovesResult read = ReadGameMoves(listing.Positions, g.GameRules);
    listing.Moves = std::move(read.Moves);
    if (!read.Ok) listing.Problem = "Position " + std::to_string(read.BadLine) + " follows no move: " + read.Reason;
    if (g.GameOver) listing.Ending = EndingText(g, g.Result);
    const std::string shown = LayoutLine(g);
    // The latest move that leaves the shown position: a position may come round again.
    for (int i = static_cast<int>(listing.Moves.size()) - 1; i >= 0 && listing.Shown < 0; --i)
        if (listing.Moves[static_cast<std::size_t>(i)].After == shown) listing.Shown = i;
    return listing;
}

std::string ListedMoveText(const Game& g, const WrittenMove& move) {
    std::string text = (move.King ? "K" : "") + ShownMove(g, move.Squares);
    for (std::size_t i = 0; i < move.Captures.size(); ++i)
        text += (i == 0 ? "x" : "/") + ShownSquare(g, move.Captures[i].Col, move.Captures[i].Row);
    return text + move.Mark;
}

void ShowListedMove(Game& g, const MoveListing& listing, int index) {
    if (index < -1 || index >= static_cast<int>(listing.Moves.size()) || listing.Positions.empty()) return;
    const std::string& line =
        index < 0 ? listing.Positions.front() : listing.Moves[static_cast<std::size_t>(index)].After;
    ShowEarlierPosition(g, line.substr(std::min<std::size_t>(4, line.size())));
}

void ShowEarlierPosition(Game& g, const std::string& record) {
    if (!Browsing(g)) g.Browsed = {HistoryLines(g), g.Undo.size(), g.GameNumber};
    ApplyPositionRecord(g, record);
}

}  // namespace jv
