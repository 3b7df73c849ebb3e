#include "cli/Soak.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "core/RuleBoard.h"
#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/Move.h"
#include "core/VbText.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/ComputerMoves.h"
#include "session/LayoutCommands.h"
#include "session/PlayerMoves.h"
#include "session/Recording.h"
#include "session/SelfPlay.h"

namespace jv::cli {

namespace {

// Memory the game's texts do not account for that is still taken as noise:
// the allocator's own bookkeeping and buffers that grow once to their size.
constexpr std::int64_t MemoryNoise = 256 * 1024;

enum class MoveKind : std::uint8_t { ComputerDefender, ComputerAttacker, Random };

// A recorded move, as the check of the log makes it again.
struct SoakMove {
    MoveKind Kind = MoveKind::Random;
    std::int8_t FromCol = 0, FromRow = 0, ToCol = 0, ToRow = 0;
    bool RestartAfter = false;   // the next line of the log is the layout's opening

    Move Played() const { return {{FromCol, FromRow}, {ToCol, ToRow}}; }
};

SoakMove Made(MoveKind kind, const Move& m) {
    return {kind, static_cast<std::int8_t>(m.From.Col), static_cast<std::int8_t>(m.From.Row),
            static_cast<std::int8_t>(m.To.Col), static_cast<std::int8_t>(m.To.Row), false};
}

// The quiet command-line view, keeping the last move it was asked to mark:
// each computer move is marked right after it is made.
class SoakView : public CliView {
public:
    SoakView() { Quiet = true; }
    void DrawMoveMark(const Move& m) override { Marked = m; }
    Move Marked;
};

// The random mover's move: List1's first line, source at characters 6-9 and
// destination at 11-14.
Move RandomMove(const Game& g) {
    const std::string_view line(g.List1.front());
    return {{ValInt(line.substr(5, 2)), ValInt(line.substr(7, 2))}, {ValInt(line.substr(10, 2)), ValInt(line.substr(12, 2))}};
}

// One turn of a side: its computer player's move or, when that player finds
// none, the random mover's. A move is made when it is recorded. False when
// neither moves.
bool PlayTurn(Game& g, SoakView& view, int side, SoakMove& move, SoakReport& r) {
    const std::size_t records = g.Undo.size();
    if (side == DefenderCode) MakeGreenAutoMove(g);
    else MakeRedAutoMove(g);
    if (g.Undo.size() > records) {
        move = Made(side == DefenderCode ? MoveKind::ComputerDefender : MoveKind::ComputerAttacker, view.Marked);
        ++r.ComputerMoves;
        return true;
    }
    // The ranking leaves the tables of its last trial behind; the random
    // mover is to move on the position as it stands.
    AnalysePosition(g);
    RandomMover(g, side);
    if (g.Undo.size() == records) return false;
    move = Made(MoveKind::Random, RandomMove(g));
    ++(side == DefenderCode ? r.RandomDefenderMoves : r.RandomAttackerMoves);
    return true;
}

// The pieces on the board, the King included.
int Pieces(const Game& g) {
    int n = 0;
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) n += g.Board(c, r) == AttackerCode || g.Board(c, r) == DefenderCode;
    return n;
}

// What a move did that no move may do: break the rules of the position it
// was made in, add a piece, take one without a capture, or leave the King's
// square without the King.
std::string MoveFault(const Game& g, const SoakMove& m, const RuleBoard& before, int piecesBefore) {
    if (!before.Allows(m.Played()))
        return "the move " + SquareName(g, m.FromCol, m.FromRow) + " > " + SquareName(g, m.ToCol, m.ToRow) +
               " is not legal";
    const int pieces = Pieces(g);
    if (pieces > piecesBefore || (m.Kind == MoveKind::Random && pieces != piecesBefore))
        return std::to_string(piecesBefore) + " pieces became " + std::to_string(pieces);
    if (g.KingCol < 1 || g.KingCol > g.BoardWidth || g.KingRow < 1 || g.KingRow > g.BoardHeight ||
        g.Board(g.KingCol, g.KingRow) != DefenderCode)
        return "the King is not on his square";
    return "";
}

// True when the game on the board is over before the side's turn: the King
// taken, or on the defenders' turn seeing a Home corner along a free line
// (the user would move him home; the computer defender never does).
bool GameOver(const Game& g, int side, SoakReport& r) {
    if (g.GameOver) {
        ++r.KingsTaken;
        return true;
    }
    if (side != DefenderCode || !KingHasFreeRun(g)) return false;
    ++r.FreeRuns;
    return true;
}

// The position after a recorded move, made again on the position before it.
std::string Successor(Game& g, const SoakMove& m) {
    switch (m.Kind) {
        case MoveKind::ComputerDefender: MakeDefenderMove(g, m.Played()); break;
        case MoveKind::ComputerAttacker: MakeAttackerMove(g, m.Played()); break;
        case MoveKind::Random: MovePiece(g, m.Played()); break;
    }
    g.Undo.clear();
    g.EventLog.clear();
    return LayoutLine(g);
}

// Reads the log back as the replay command does (the log loaded as a layout,
// then each line applied with ApplyPositionRecord at that size): every line
// must come back as written, the move recorded by each must lead to the next
// (or, after a restart, the next is the layout's opening), and the last line
// is the final position.
void CheckLog(const std::string& layout, const std::string& log, const std::vector<SoakMove>& moves,
              const std::string& finalLine, SoakReport& r) {
    std::vector<std::string> lines;
    if (!ReadLines(log, lines)) {
        r.FirstFault = "the moves log cannot be read";
        return;
    }
    r.LogLines = static_cast<long long>(lines.size());
    if (lines.size() != moves.size() + 1) {
        r.FirstFault = std::to_string(lines.size()) + " lines logged for " + std::to_string(moves.size()) + " moves";
        return;
    }
    SoakView view;
    Game g;
    PrepareGame(g, view);
    LoadLayout(g, layout);
    const std::string opening = LayoutLine(g);
    LoadLayout(g, log);
    for (std::size_t k = 0; k < lines.size(); ++k) {
        ApplyPositionRecord(g, lines[k].size() > 4 ? lines[k].substr(4) : std::string());
        if (LayoutLine(g) != lines[k]) {
            r.FirstFault = "line " + std::to_string(k + 1) + " does not replay as written";
            return;
        }
        if (k + 1 < lines.size() && lines[k + 1] != (moves[k].RestartAfter ? opening : Successor(g, moves[k]))) {
            r.FirstFault = "line " + std::to_string(k + 2) + " does not follow from line " + std::to_string(k + 1);
            return;
        }
        ++r.LinesReplayed;
    }
    r.FinalMatches = lines.back() == finalLine;
}

}  // namespace

bool SoakReport::Passed() const {
    const bool memory = Start.InUse < 0 || std::llabs(Unexplained()) <= MemoryNoise;
    return FirstFault.empty() && FinalMatches && LinesReplayed == LogLines && memory;
}

std::int64_t SoakReport::Unexplained() const { return (End.InUse - Start.InUse) - (End.Held - Start.Held); }

bool RunSoakOn(const SoakOptions& o, SoakReport& r) {
    SoakView view;
    Game g;
    PrepareGame(g, view);
    if (!LoadLayoutArgument(g, o.Layout)) return false;
    const std::string layout = g.LayoutFile;
    std::error_code ec;
    std::filesystem::remove(o.MovesLog, ec);
    g.MovesLogFile = o.MovesLog;
    g.Check2 = true;
    g.Random.Timer = TickingClock(static_cast<double>(o.Seed));

    std::vector<SoakMove> moves;
    moves.reserve(static_cast<std::size_t>(o.Moves));
    // Memory is first read once the players' working tables have grown to
    // their size: after the first tenth of the run.
    const std::size_t warmUp = static_cast<std::size_t>(o.Moves / 10);
    r.Games = 1;
    int side = DefenderCode;
    std::size_t movesAtRestart = 0;
    const auto started = std::chrono::steady_clock::now();
    while (moves.size() < static_cast<std::size_t>(o.Moves)) {
        if (moves.size() == warmUp && r.Start.InUse == -1) r.Start = ReadMemory(g);
        SoakMove move;
        const int piecesBefore = Pieces(g);
        const RuleBoard before(g, side);
        bool over = GameOver(g, side, r);
        if (!over && !PlayTurn(g, view, side, move, r)) {
            ++r.Stalemates;
            over = true;
        }
        if (!over) {
            r.FirstFault = MoveFault(g, move, before, piecesBefore);
            if (!r.FirstFault.empty()) {
                r.FirstFault = "move " + std::to_string(moves.size() + 1) + ": " + r.FirstFault;
                break;
            }
            moves.push_back(move);
            side = side == DefenderCode ? AttackerCode : DefenderCode;
            if (moves.size() % 64 == 0) r.PeakHeld = std::max(r.PeakHeld, HeldBytes(g));
            continue;
        }
        if (moves.size() == movesAtRestart) {
            r.FirstFault = "no move from the layout's opening";
            break;
        }
        moves.back().RestartAfter = true;
        movesAtRestart = moves.size();
        LoadLayout(g, layout);
        ++r.Games;
        side = DefenderCode;
    }
    r.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    r.Moves = static_cast<long long>(moves.size());
    r.End = ReadMemory(g);
    r.PeakHeld = std::max(r.PeakHeld, r.End.Held);

    // Switching the recording off writes the final position as the last line.
    RecordingSwitch(g, false);
    if (r.FirstFault.empty()) CheckLog(layout, o.MovesLog, moves, LayoutLine(g), r);
    return true;
}

}  // namespace jv::cli
