#include "ai/DefenderRank.h"

#include <algorithm>

#include "ai/AttackerRank.h"
#include "ai/AttackerTactics.h"
#include "ai/KingRoutes.h"
#include "ai/SquareLists.h"
#include "core/Board.h"
#include "core/GameView.h"
#include "core/Reach.h"
#include "core/SortedList.h"
#include "core/VbText.h"

namespace jv {

namespace {

// Rule 3: the squares on which a defender that can get there would sandwich
// an attacker, in the analysis' order.
std::string ReachableCaptureChances(const Game& g) {
    std::string squares;
    ForEachSquareItem(g.CaptureChances[AttackerCode], [&](int col, int row) {
        if (g.ReachMap[DefenderCode](col, row)) squares += SquareItem(col, row);
    });
    return squares;
}

// The King's run home were all his own men off the board (rules 6 and 8).
int RouteWithoutDefenders(Game& g, std::string& route) {
    const Grid<std::int32_t> board = g.Board;
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r)
            if (g.Board(c, r) == DefenderCode && !(c == g.KingCol && r == g.KingRow)) g.Board(c, r) = EmptyCode;
    const int status = RouteFromKing(g, route);
    g.Board = board;
    return status;
}

// Rule 7: the King's targets on the board's edge.
std::string KingBorderTargets(const Game& g) {
    std::string squares;
    ForEachSquareItem(g.MoveTargets(g.KingCol, g.KingRow), [&](int col, int row) {
        if (col == 1 || col == g.BoardWidth || row == 1 || row == g.BoardHeight) squares += SquareItem(col, row);
    });
    return squares;
}

// Every defender piece, the King included, that can move to a scored
// square: List2D in the order found, List1D in ascending text order, so the
// highest score comes first.
void ListDefenderMoves(Game& g) {
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            if (g.DefenderScore(c, r) <= 0) continue;
            const int score = std::min(g.DefenderScore(c, r), 99999);
            const std::string target = SquareText(c, r);
            const std::string item = target + ",";
            for (int pc = 1; pc <= g.BoardWidth; ++pc)
                for (int pr = 1; pr <= g.BoardHeight; ++pr) {
                    if (g.Board(pc, pr) != DefenderCode) continue;
                    if (g.MoveTargets(pc, pr).find(item) == std::string::npos) continue;
                    const std::string source = SquareText(pc, pr);
                    g.List2D.push_back(Format(score, "00000") + " " + target + " <" + source);
                    InsertSorted(g.List1D,
                                 Format(99999 - score, "00000") + " " + Format(score, "00000") + " " + source + ">" + target);
                }
        }
}

}  // namespace

void AddDefenderRank(Game& g, const std::string& squares, int rank, const std::string& text) {
    AddToNamedSquares(g.DefenderScore, g.DefenderBonus, squares, rank);
    g.DefenderMovesRank.push_back(Format(rank, "0000") + " " + text);
}

void GetDefenderRank(Game& g, int mode) {
    g.DefenderScore.Fill(0);
    g.DefenderBonus.Fill(0);
    g.DefenderMovesRank.clear();
    g.List1D.clear();
    g.List2D.clear();
    std::string route;

    // 1. The King has a free run home.
    if (RouteFromKing(g, route) == 99) {
        if (mode == 1) g.View->Show("King at Home !\r\nClick Reset to start a new game", "vbhappy+vbok");
        AddDefenderRank(g, route, 9999, route + " will goto home");
    }
    // 2. Three attackers round the King: fill the last empty neighbour.
    const KingNeighbours around = KingNeighbourCounts(g);
    if (around.Attackers == 3 && around.Empties == 1) {
        const std::string item = SquareItem(around.EmptyCol, around.EmptyRow);
        AddDefenderRank(g, item, 9999, item + " Avoid capture");
    }
    // 3. Attackers a defender can capture.
    const std::string chances = ReachableCaptureChances(g);
    if (!chances.empty()) AddDefenderRank(g, chances, 5000, chances + " Capture Red");
    // 4. Take first the square the attacker wants most.
    if (mode == 1) {
        GetAttackerRank(g);
        if (!g.List1A.empty() && g.List1A[0].size() >= 21) {
            const std::string item = g.List1A[0].substr(17, 4) + ",";
            AddDefenderRank(g, item, 9999, item + " Attacker prefered move");
        }
    }
    // 5. The King reaches a square next to a corner in one move.
    if (KingHomeInTwo(g, route) == 99) AddDefenderRank(g, route, 9999, "King to Home in 2 moves");
    // 6. Own men standing on the King's run home move away.
    std::string open;
    if (RouteWithoutDefenders(g, open) == 99) {
        for (int c = 1; c <= g.BoardWidth; ++c)
            for (int r = 1; r <= g.BoardHeight; ++r) {
                if (g.Board(c, r) != DefenderCode || open.find(SquareItem(c, r)) == std::string::npos) continue;
                const std::string& targets = g.MoveTargets(c, r);
                AddDefenderRank(g, targets, 6000, targets + " Remove green from King path");
            }
    }
    // 7. The King can reach the edge.
    const std::string border = KingBorderTargets(g);
    if (!border.empty()) AddDefenderRank(g, border, 2000, "King can move to border");
    // 8. The run that rule 6 opens.
    if (!open.empty()) AddDefenderRank(g, open, 1000, "King can go home indirect");

    ListDefenderMoves(g);
    g.View->RefreshList(ListId::DefenderMovesRank);
    g.View->RefreshList(ListId::List2D);
    g.View->RefreshList(ListId::List1D);
}

}  // namespace jv
