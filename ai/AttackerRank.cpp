#include "ai/AttackerRank.h"

#include <algorithm>
#include <vector>

#include "ai/AttackerPlan.h"
#include "ai/KingRoutes.h"
#include "ai/SquareLists.h"
#include "ai/TrialTables.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/GameView.h"
#include "core/Reach.h"
#include "core/VbText.h"

namespace jv {

namespace {

// Every attacker move but those to the centre, as List2A lines
// ("0305 <0301") and as numbers in the same order.
void ListAttackerMoves(Game& g, std::vector<Move>& moves) {
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
std::string RankLine(int score, int defenderScore, const Move& m) {
    std::string line = Format(score, "00000");
    line += ' ';
    line += Format(defenderScore, "00000");
    line += ' ';
    AppendSquareText(line, m.From.Col, m.From.Row);
    line += '>';
    AppendSquareText(line, m.To.Col, m.To.Row);
    return line;
}

// RankOfGreen's part for the King: his ways home and his reach of the edge.
int KingScore(Game& g, std::string& route) {
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
    return score;
}

// RankOfGreen's part for the attacker on (a, b), the corners counting as
// defenders meanwhile: a defender could sandwich him next move; beside a
// corner that weighs most. The second test adds no 1000, unlike the other
// three. Then 50 for each line along which defenders reach both his sides.
int ThreatsTo(const Game& g, int a, int b) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    const Grid<std::int8_t>& reach = g.ReachMap[DefenderCode];
    const int besideAlongRow = ((a == 1 && (b == 2 || b == h - 1)) ? 8000 : 0) +
                               ((a == w && (b == 2 || b == h - 1)) ? 8000 : 0);
    const int besideAlongCol = ((b == 1 && (a == 2 || a == w - 1)) ? 8000 : 0) +
                               ((b == h && (a == 2 || a == w - 1)) ? 8000 : 0);
    const bool up = reach(a - 1, b), down = reach(a + 1, b), left = reach(a, b - 1), right = reach(a, b + 1);
    int score = 0;
    if (right && g.Board(a, b - 1) == DefenderCode) score += 1000 + besideAlongRow;
    if (left && g.Board(a, b + 1) == DefenderCode) score += besideAlongRow;
    if (up && g.Board(a + 1, b) == DefenderCode) score += 1000 + besideAlongCol;
    if (down && g.Board(a - 1, b) == DefenderCode) score += 1000 + besideAlongCol;
    if (left && right) score += 50;
    if (up && down) score += 50;
    return score;
}

// RankOfGreen of a trial position. Its attackers are the start position's
// with the trial's piece on its new square, so they are taken from the
// start position's list rather than from a scan of the board; the sum is
// the same in any order.
int TrialRankOfGreen(Game& g, std::string& route, const std::vector<Square>& attackers, const Move& m) {
    int score = KingScore(g, route);
    SetHomeSquares(g, DefenderCode);
    for (const Square& s : attackers) {
        const bool moved = s.Col == m.From.Col && s.Row == m.From.Row;
        score += ThreatsTo(g, moved ? m.To.Col : s.Col, moved ? m.To.Row : s.Row);
    }
    SetHomeSquares(g, HomeCode);
    return score;
}

// One candidate, tried and scored on the shared board. A move
// rejected for exposing the piece or opening the King's run is put back
// without a new analysis, so the tables stay those of the tried position
// until the next candidate that is scored.
void TryAttackerMove(Game& g, const Move& m, int before, std::string& route, TrialTables& tables,
                     const std::vector<Square>& attackers) {
    auto putBack = [&] {
        g.Board(m.From.Col, m.From.Row) = g.Board(m.To.Col, m.To.Row);
        g.Board(m.To.Col, m.To.Row) = EmptyCode;
    };
    g.Board(m.To.Col, m.To.Row) = g.Board(m.From.Col, m.From.Row);
    g.Board(m.From.Col, m.From.Row) = EmptyCode;
    tables.Begin(g, m);
    if (AttackerExposed(g, m.To.Col, m.To.Row) == 1 || (before != 99 && RouteFromKing(g, route) == 99)) {
        tables.Reject(g, m);
        putBack();
        return;
    }
    int defenderScore = TrialRankOfGreen(g, route, attackers, m);
    putBack();
    tables.End(g);
    // With a run home already open the defenders' reply tells the moves
    // apart no more: the plan alone decides.
    if (before == 99) defenderScore = 0;
    g.List1A.push_back(RankLine(MoveScore(g, defenderScore, m.To.Col, m.To.Row), defenderScore, m));
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
    int score = KingScore(g, route);
    SetHomeSquares(g, DefenderCode);
    for (int a = 1; a <= g.BoardWidth; ++a)
        for (int b = 1; b <= g.BoardHeight; ++b)
            if (g.Board(a, b) == AttackerCode) score += ThreatsTo(g, a, b);
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

    std::vector<Move> moves;
    ListAttackerMoves(g, moves);
    std::string route;
    const int before = RouteFromKing(g, route);

    // The candidates by destination, each destination's in List2A order.
    std::vector<Move> byDestination(moves);
    std::stable_sort(byDestination.begin(), byDestination.end(), [](const Move& x, const Move& y) {
        return x.To.Col != y.To.Col ? x.To.Col < y.To.Col : x.To.Row < y.To.Row;
    });

    g.List1A.clear();
    TrialTables tables;
    tables.StartScan(g);
    std::vector<Square> attackers;
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r)
            if (g.Board(c, r) == AttackerCode) attackers.push_back({c, r});
    std::size_t next = 0;
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            while (next < byDestination.size() &&
                   (byDestination[next].To.Col < c || (byDestination[next].To.Col == c && byDestination[next].To.Row < r)))
                ++next;
            // Read now, after the previous trials: a rejected trial leaves
            // the reach of its own position here.
            if (!g.ReachMap[AttackerCode](c, r)) continue;
            for (std::size_t k = next; k < byDestination.size() && byDestination[k].To.Col == c &&
                                       byDestination[k].To.Row == r;
                 ++k)
                TryAttackerMove(g, byDestination[k], before, route, tables, attackers);
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
