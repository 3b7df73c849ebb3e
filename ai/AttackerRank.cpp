#include "ai/AttackerRank.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "ai/AttackerPlan.h"
#include "ai/KingRoutes.h"
#include "ai/SquareLists.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/GameView.h"
#include "core/Reach.h"
#include "core/VbText.h"

namespace jv {

namespace {

// One line of List2A, kept beside the text as numbers.
struct AttackerMove {
    int FromCol, FromRow, ToCol, ToRow;
};

// Every attacker move but those to the centre, as List2A lines
// ("0305 <0301") and as numbers in the same order.
void ListAttackerMoves(Game& g, std::vector<AttackerMove>& moves) {
    g.List2A.clear();
    moves.clear();
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            if (g.Board(c, r) != AttackerCode) continue;
            ForEachTarget(g.MoveTargets(c, r), [&](int toCol, int toRow) {
                if (toCol == g.CentreCol && toRow == g.CentreRow) return;
                std::string line = SquareText(toCol, toRow);
                line += " <";
                AppendSquareText(line, c, r);
                g.List2A.push_back(std::move(line));
                moves.push_back({c, r, toCol, toRow});
            });
        }
}

// The move's score: the defenders' best reply raises it, the plan's bonus
// for the destination lowers it; kept within the five digits.
int MoveScore(const Game& g, int defenderScore, int toCol, int toRow) {
    const long long score = static_cast<long long>(defenderScore) - g.PlanBonus(toCol, toRow) + 99999;
    return static_cast<int>(std::clamp(score, 0LL, 99999LL));
}

// The List1A line: score, defender score, source ">" destination.
std::string RankLine(int score, int defenderScore, const AttackerMove& m) {
    std::string line = Format(score, "00000");
    line += ' ';
    line += Format(defenderScore, "00000");
    line += ' ';
    AppendSquareText(line, m.FromCol, m.FromRow);
    line += '>';
    AppendSquareText(line, m.ToCol, m.ToRow);
    return line;
}

// The analysis tables during the trials. In the program's order of steps a
// trial analyses its own position in full, and a scored trial analyses the
// start position again once its move is put back; so after a rejected trial
// the tables are those of its position, after a scored one those of the
// start position. But a trial reads only two tables of its own position, the
// defenders' reach and the King's targets, and between trials the scan reads
// only the attackers' reach. So a trial writes just its two tables; a
// rejected one also writes the attackers' reach of its position and owes the
// rest of its analysis, which is made at the end of the scan when no later
// trial has replaced it; a scored one puts back the three tables of the
// start position, kept from its one full analysis.
class TrialAnalysis {
public:
    // The move has been made on the board.
    void Begin(Game& g) {
        MarkSideReach(g, DefenderCode);
        std::string& kingTargets = g.MoveTargets(g.KingCol, g.KingRow);
        kingTargets.clear();
        if (OnBoard(g, g.KingCol, g.KingRow) && g.Board(g.KingCol, g.KingRow) != EmptyCode)
            for (char d : {'U', 'D', 'L', 'R'}) AppendReach(g, g.KingCol, g.KingRow, d, kingTargets);
    }
    // The move is rejected; it is still on the board.
    void Reject(Game& g, const AttackerMove& m) {
        MarkSideReach(g, AttackerCode);
        owed_ = m;
        owing_ = true;
    }
    // The scored move has been put back.
    void End(Game& g) {
        owing_ = false;
        if (kept_ && g.KingCol == kingCol_ && g.KingRow == kingRow_ &&
            std::memcmp(&g.Board, &board_, sizeof board_) == 0) {
            g.ReachMap = keptReach_;
            g.MoveTargets(g.KingCol, g.KingRow) = keptKingTargets_;
            return;
        }
        AnalysePosition(g);
        keptReach_ = g.ReachMap;
        keptKingTargets_ = g.MoveTargets(g.KingCol, g.KingRow);
        board_ = g.Board;
        kingCol_ = g.KingCol;
        kingRow_ = g.KingRow;
        kept_ = true;
    }
    // The scan is over: a rejected last trial leaves the full analysis of
    // its position behind.
    void Finish(Game& g) {
        if (!owing_) return;
        owing_ = false;
        const std::int32_t from = g.Board(owed_.FromCol, owed_.FromRow), to = g.Board(owed_.ToCol, owed_.ToRow);
        g.Board(owed_.ToCol, owed_.ToRow) = from;
        g.Board(owed_.FromCol, owed_.FromRow) = EmptyCode;
        AnalysePosition(g);
        g.Board(owed_.FromCol, owed_.FromRow) = from;
        g.Board(owed_.ToCol, owed_.ToRow) = to;
    }

private:
    static bool OnBoard(const Game& g, int c, int r) {
        return c >= 1 && c <= g.BoardWidth && r >= 1 && r <= g.BoardHeight;
    }
    // ReachMap for one side as the analysis builds it: every square some
    // piece of the side (for the defenders the King too) can move to.
    static void MarkSideReach(Game& g, int side) {
        Grid<std::int8_t>& reach = g.ReachMap[side];
        reach.Fill(0);
        for (int c = 1; c <= g.BoardWidth; ++c)
            for (int r = 1; r <= g.BoardHeight; ++r)
                if (g.Board(c, r) == side) MarkReach(g, c, r, reach);
    }

    // The three tables of the start position, once it has been analysed.
    bool kept_ = false;
    Grid<std::int32_t> board_;
    int kingCol_ = 0, kingRow_ = 0;
    std::array<Grid<std::int8_t>, 2> keptReach_;
    std::string keptKingTargets_;
    // The rejected trial whose analysis the tables still owe.
    bool owing_ = false;
    AttackerMove owed_{};
};

// One candidate, tried and scored on the shared board. A move
// rejected for exposing the piece or opening the King's run is put back
// without a new analysis, so the tables stay those of the tried position
// until the next candidate that is scored.
void TryAttackerMove(Game& g, const AttackerMove& m, int before, std::string& route, TrialAnalysis& tables) {
    auto putBack = [&] {
        g.Board(m.FromCol, m.FromRow) = g.Board(m.ToCol, m.ToRow);
        g.Board(m.ToCol, m.ToRow) = EmptyCode;
    };
    g.Board(m.ToCol, m.ToRow) = g.Board(m.FromCol, m.FromRow);
    g.Board(m.FromCol, m.FromRow) = EmptyCode;
    tables.Begin(g);
    if (AttackerExposed(g, m.ToCol, m.ToRow) == 1 || (before != 99 && RouteFromKing(g, route) == 99)) {
        tables.Reject(g, m);
        putBack();
        return;
    }
    int defenderScore = RankOfGreen(g, route);
    putBack();
    tables.End(g);
    // With a run home already open the defenders' reply tells the moves
    // apart no more: the plan alone decides.
    if (before == 99) defenderScore = 0;
    g.List1A.push_back(RankLine(MoveScore(g, defenderScore, m.ToCol, m.ToRow), defenderScore, m));
}

}  // namespace

void AddPlanEntry(Game& g, const std::string& squares, int value, const std::string& label) {
    AddToNamedSquares(g.PlanBonus, g.SquareWeight, squares, value);
    g.AttackerMovesRank.push_back(Format(value, "0000") + " " + label);
}

void AddPlanEntryAt(Game& g, int col, int row, int value, const char* literal) {
    const std::string text = SquareText(col, row);
    AddPlanEntry(g, text, value, text + literal);
}

void AddPlanItemAt(Game& g, int col, int row, int value, const char* literal) {
    const std::string item = SquareItem(col, row);
    AddPlanEntry(g, item, value, item + literal);
}

int AttackerExposed(Game& g, int col, int row) {
    const Grid<std::int8_t>& reach = g.ReachMap[DefenderCode];
    SetHomeSquares(g, DefenderCode);
    auto defender = [&](int c, int r) { return g.Board(c, r) == DefenderCode; };
    const bool exposed = (reach(col, row + 1) && defender(col, row - 1)) ||
                         (reach(col, row - 1) && defender(col, row + 1)) ||
                         (reach(col - 1, row) && defender(col + 1, row)) ||
                         (reach(col + 1, row) && defender(col - 1, row));
    SetHomeSquares(g, HomeCode);
    return exposed ? 1 : 0;
}

int RankOfGreen(Game& g, std::string& route) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    int score = 0;
    switch (KingRouteStatus(g, route)) {
        case 99: score = 9999; break;
        case 1: score += 1000; break;
        case 2: score += 200; break;
        default: break;
    }
    ForEachTarget(g.MoveTargets(g.KingCol, g.KingRow), [&](int c, int r) {
        if (c == 1 || c == w || r == 1 || r == h) score += 100;
    });

    const Grid<std::int8_t>& reach = g.ReachMap[DefenderCode];
    // Attackers a defender could sandwich next move, the corners counting as
    // defenders; those beside a corner weigh most. The second test adds no
    // 1000, unlike the other three. Then 50 for each line along which
    // defenders reach both sides of an attacker (one pass does both: the
    // corners never hold an attacker).
    SetHomeSquares(g, DefenderCode);
    for (int a = 1; a <= w; ++a)
        for (int b = 1; b <= h; ++b) {
            if (g.Board(a, b) != AttackerCode) continue;
            const int besideAlongRow = ((a == 1 && (b == 2 || b == h - 1)) ? 8000 : 0) +
                                       ((a == w && (b == 2 || b == h - 1)) ? 8000 : 0);
            const int besideAlongCol = ((b == 1 && (a == 2 || a == w - 1)) ? 8000 : 0) +
                                       ((b == h && (a == 2 || a == w - 1)) ? 8000 : 0);
            const bool up = reach(a - 1, b), down = reach(a + 1, b), left = reach(a, b - 1), right = reach(a, b + 1);
            if (right && g.Board(a, b - 1) == DefenderCode) score += 1000 + besideAlongRow;
            if (left && g.Board(a, b + 1) == DefenderCode) score += besideAlongRow;
            if (up && g.Board(a + 1, b) == DefenderCode) score += 1000 + besideAlongCol;
            if (down && g.Board(a - 1, b) == DefenderCode) score += 1000 + besideAlongCol;
            if (left && right) score += 50;
            if (up && down) score += 50;
        }
    SetHomeSquares(g, HomeCode);
    return score;
}

int RankOfGreen(Game& g) {
    std::string route;
    return RankOfGreen(g, route);
}

void GetAttackerRank(Game& g) {
    g.View->SetBusy(true);
    g.AttackerMovesRank.clear();
    PlanAttack(g);

    std::vector<AttackerMove> moves;
    ListAttackerMoves(g, moves);
    std::string route;
    const int before = RouteFromKing(g, route);

    // The candidates by destination, each destination's in List2A order.
    std::vector<AttackerMove> byDestination(moves);
    std::stable_sort(byDestination.begin(), byDestination.end(), [](const AttackerMove& x, const AttackerMove& y) {
        return x.ToCol != y.ToCol ? x.ToCol < y.ToCol : x.ToRow < y.ToRow;
    });

    g.List1A.clear();
    TrialAnalysis tables;
    std::size_t next = 0;
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            while (next < byDestination.size() &&
                   (byDestination[next].ToCol < c || (byDestination[next].ToCol == c && byDestination[next].ToRow < r)))
                ++next;
            // Read now, after the previous trials: a rejected trial leaves
            // the reach of its own position here.
            if (!g.ReachMap[AttackerCode](c, r)) continue;
            for (std::size_t k = next; k < byDestination.size() && byDestination[k].ToCol == c &&
                                       byDestination[k].ToRow == r;
                 ++k)
                TryAttackerMove(g, byDestination[k], before, route, tables);
        }
    tables.Finish(g);
    // List1A keeps its lines in ascending text order; nothing reads it
    // during the scan, so it is sorted once at the end.
    std::sort(g.List1A.begin(), g.List1A.end());

    g.View->SetBusy(false);
    g.View->RefreshList(ListId::AttackerMovesRank);
    g.View->RefreshList(ListId::List2A);
    g.View->RefreshList(ListId::List1A);
}

}  // namespace jv
