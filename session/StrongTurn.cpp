#include "session/StrongTurn.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <future>
#include <mutex>
#include <sstream>

#include "ai/Search.h"
#include "core/Board.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/Move.h"
#include "core/SilentView.h"
#include "records/PlayerSettings.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/SquareNames.h"

namespace jv {

namespace {

// How often the waiting game lets the window's events run.
constexpr auto EventInterval = std::chrono::milliseconds(25);

std::string ProgressLine(const Game& g, const SearchProgress& p) {
    char head[96];
    std::snprintf(head, sizeof head, "%2d %+8.2f %6.2fM/s ", p.Depth, p.Score / 100.0, p.NodesPerSecond / 1e6);
    std::string line = head;
    for (const Move& m : p.Pv) line += " " + ShownMove(g, m);
    return line;
}

// The search's reports, handed from the worker thread to the game's own,
// which writes them out (the names of the squares are the game's).
struct ProgressMailbox {
    std::mutex Lock;
    std::vector<SearchProgress> Reports;
    bool Fresh = false;
};

std::vector<std::string> ProgressLines(const Game& g, const std::vector<SearchProgress>& reports) {
    std::vector<std::string> lines;
    for (const SearchProgress& p : reports) lines.push_back(ProgressLine(g, p));
    return lines;
}

// The keys of the positions the game has been in, newest first as the undo
// history keeps them, so that a line coming back to one scores as a draw.
// The side to move alternates back from the one to move now.
std::vector<std::uint64_t> PlayedKeys(const Game& g, int side) {
    std::vector<std::uint64_t> keys;
    SilentView silent;
    Game earlier;
    earlier.View = &silent;
    earlier.GameRules = g.GameRules;   // the Home corners and the keys of the game's rule set
    int mover = side;
    for (const std::string& record : g.Undo) {
        mover ^= 1;
        NewBoard(earlier, g.BoardWidth, g.BoardHeight);
        ApplyPositionRecord(earlier, record);
        keys.push_back(PositionKey(earlier, mover));
    }
    return keys;
}

}  // namespace

std::optional<Move> ThinkStrong(Game& g, int side, bool* stopped) {
    // A finished game asks no move: that is no side left without one.
    if (g.GameOver) {
        if (stopped) *stopped = true;
        return std::nullopt;
    }
    const int gameNumber = g.GameNumber;
    const std::string position = EncodePosition(g);
    const auto gameChanged = [&] {
        return g.Ending || g.StopThinking || g.GameNumber != gameNumber || EncodePosition(g) != position;
    };
    g.StopThinking = false;
    g.SearchLines.clear();
    g.View->RefreshList(ListId::SearchLines);

    std::atomic<bool> stop{false};
    SearchLimits limits;
    limits.Millis = g.Players.ThinkMillis;
    limits.Threads = MachineThreads();
    limits.StopWhenClear = g.Players.StopWhenClear;
    limits.Stop = &stop;
    limits.Played = PlayedKeys(g, side);
    ProgressMailbox mailbox;
    const Position copy = g;   // the worker reads its own copy, never the shared game
    auto search = std::async(std::launch::async, [&] {
        return SearchBestMove(copy, side, limits, [&](const SearchProgress& p) {
            const std::lock_guard<std::mutex> hold(mailbox.Lock);
            mailbox.Reports.insert(mailbox.Reports.begin(), p);
            mailbox.Fresh = true;
        });
    });

    g.View->SetBusy(true);
    // The events run at least once, so a click that came with the turn is
    // seen before the move is made.
    do {
        g.View->DoEvents();
        if (gameChanged()) stop = true;
        const std::lock_guard<std::mutex> hold(mailbox.Lock);
        if (!mailbox.Fresh) continue;
        g.SearchLines = ProgressLines(g, mailbox.Reports);
        mailbox.Fresh = false;
        g.View->RefreshList(ListId::SearchLines);
    } while (search.wait_for(EventInterval) != std::future_status::ready);
    const SearchResult result = search.get();
    g.SearchLines = ProgressLines(g, mailbox.Reports);
    g.View->RefreshList(ListId::SearchLines);
    g.View->SetBusy(false);
    if (stopped) *stopped = gameChanged();
    if (gameChanged() || !result.HasMove) return std::nullopt;
    return result.Best;
}

void HintCommand(Game& g) {
    if (g.EditorOn || g.GameOver) return;
    const std::optional<Move> hint = ThinkStrong(g, g.Players.UserSide);
    if (!hint) return;
    PrintLog(g, "Hint: " + ShownMove(g, *hint), 1, 0);
    g.View->ShowDragLine(*hint);
}

void PreviewSearchLine(Game& g, int index) {
    if (index < 0 || index >= static_cast<int>(g.SearchLines.size())) return;
    std::istringstream words(g.SearchLines[static_cast<std::size_t>(index)]);
    std::string depth, score, speed, first;
    Move move;
    if (words >> depth >> score >> speed >> first && ReadShownMove(g, first, move)) ShowDragLine(g, move);
}

void ReadPlayers(Game& g) {
    std::string text;
    if (ReadWholeFile(InProgramFolder(g, PlayersFile), text)) (void)ReadPlayersText(g.Players, text);
}

bool WritePlayers(const Game& g) {
    return WriteFileAtomically(InProgramFolder(g, PlayersFile), PlayersText(g.Players)).Ok();
}

}  // namespace jv
