#include "ai/TrialTables.h"

#include "core/Analysis.h"
#include "core/Reach.h"

namespace jv {

namespace {

constexpr int MaxLine = MaxBoardSide;

// The n squares from (col, row) in steps of (dc, dr): out[k] is 1 for each
// empty square a piece of side reaches by sliding along the line, 0 for
// every other square. A slide stops at the first square that is not empty.
void SweepLine(const Game& g, int side, int col, int row, int dc, int dr, int n, std::int8_t* out) {
    std::int32_t codes[MaxLine];
    for (int k = 0; k < n; ++k, col += dc, row += dr) codes[k] = g.Board(col, row);
    bool reached = false;
    for (int k = 0; k < n; ++k) {
        out[k] = codes[k] == EmptyCode && reached;
        if (codes[k] != EmptyCode) reached = codes[k] == side;
    }
    reached = false;
    for (int k = n - 1; k >= 0; --k) {
        if (codes[k] == EmptyCode && reached) out[k] = 1;
        if (codes[k] != EmptyCode) reached = codes[k] == side;
    }
}

bool OnBoard(const Game& g, int c, int r) { return c >= 1 && c <= g.BoardWidth && r >= 1 && r <= g.BoardHeight; }

}  // namespace

void SideReach::Start(const Game& g, int side) {
    side_ = side;
    const int w = g.BoardWidth, h = g.BoardHeight;
    std::int8_t line[MaxLine];
    alongCol_.Fill(0);
    alongRow_.Fill(0);
    whole_.Fill(0);
    for (int r = 1; r <= h; ++r) {
        SweepLine(g, side, 1, r, 1, 0, w, line);
        for (int c = 1; c <= w; ++c) alongCol_(c, r) = line[c - 1];
    }
    for (int c = 1; c <= w; ++c) {
        SweepLine(g, side, c, 1, 0, 1, h, line);
        for (int r = 1; r <= h; ++r) {
            alongRow_(c, r) = line[r - 1];
            whole_(c, r) = static_cast<std::int8_t>(alongCol_(c, r) | line[r - 1]);
        }
    }
}

void SideReach::AfterMove(const Game& g, const Move& m, Grid<std::int8_t>& reach) const {
    const int w = g.BoardWidth, h = g.BoardHeight;
    // The four lines through the two squares swept again on the board as it
    // stands (a move along a line sweeps that line twice, to the same end).
    Grid<std::int8_t> alongCol = alongCol_, alongRow = alongRow_;
    std::int8_t line[MaxLine];
    for (int r : {m.From.Row, m.To.Row}) {
        SweepLine(g, side_, 1, r, 1, 0, w, line);
        for (int c = 1; c <= w; ++c) alongCol(c, r) = line[c - 1];
    }
    for (int c : {m.From.Col, m.To.Col}) {
        SweepLine(g, side_, c, 1, 0, 1, h, line);
        for (int r = 1; r <= h; ++r) alongRow(c, r) = line[r - 1];
    }
    reach = whole_;
    for (int r : {m.From.Row, m.To.Row})
        for (int c = 1; c <= w; ++c) reach(c, r) = static_cast<std::int8_t>(alongCol(c, r) | alongRow(c, r));
    for (int c : {m.From.Col, m.To.Col})
        for (int r = 1; r <= h; ++r) reach(c, r) = static_cast<std::int8_t>(alongCol(c, r) | alongRow(c, r));
}

void TrialTables::StartScan(const Game& g) {
    reach_[DefenderCode].Start(g, DefenderCode);
    reach_[AttackerCode].Start(g, AttackerCode);
}

void TrialTables::Begin(Game& g, const Move& m) {
    reach_[DefenderCode].AfterMove(g, m, g.ReachMap[DefenderCode]);
    std::string& kingTargets = g.MoveTargets(g.KingCol, g.KingRow);
    kingTargets.clear();
    if (OnBoard(g, g.KingCol, g.KingRow) && g.Board(g.KingCol, g.KingRow) != EmptyCode)
        for (char d : {'U', 'D', 'L', 'R'}) AppendReach(g, g.KingCol, g.KingRow, d, kingTargets);
}

void TrialTables::Reject(Game& g, const Move& m) {
    reach_[AttackerCode].AfterMove(g, m, g.ReachMap[AttackerCode]);
    owed_ = m;
    owing_ = true;
}

void TrialTables::End(Game& g) {
    owing_ = false;
    // Every trial puts its move back, so the board is the start position
    // again here, and its analysis once made can be put back.
    if (kept_) {
        g.ReachMap = keptReach_;
        g.MoveTargets(g.KingCol, g.KingRow) = keptKingTargets_;
        return;
    }
    AnalysePosition(g);
    keptReach_ = g.ReachMap;
    keptKingTargets_ = g.MoveTargets(g.KingCol, g.KingRow);
    kept_ = true;
}

void TrialTables::Finish(Game& g) {
    if (!owing_) return;
    owing_ = false;
    const std::int32_t from = g.Board(owed_.From.Col, owed_.From.Row), to = g.Board(owed_.To.Col, owed_.To.Row);
    g.Board(owed_.To.Col, owed_.To.Row) = from;
    g.Board(owed_.From.Col, owed_.From.Row) = EmptyCode;
    AnalysePosition(g);
    g.Board(owed_.From.Col, owed_.From.Row) = from;
    g.Board(owed_.To.Col, owed_.To.Row) = to;
}

}  // namespace jv
