#include "ai/AttackerPlan.h"

#include <string>

#include "ai/AttackerRank.h"
#include "ai/AttackerTactics.h"
#include "ai/KingRoutes.h"
#include "ai/SquareWeights.h"
#include "core/Board.h"
#include "core/Reach.h"
#include "core/VbText.h"

namespace jv {

void PlanAttack(Game& g) {
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) g.PlanBonus(c, r) = 0;
    // Runs before BlockKingHome writes the weights: its entries carry the
    // weights left by the previous plan.
    plan::CheckKingCapture(g);
    BlockKingHome(g);
    BlockCornerDiagonals(g);
    PlanCaptures(g);
    PlaceAroundKing(g);
    const std::string path = PathAroundKing(g, DefenderCode, g.KingCol, g.KingRow);
    if (!path.empty()) AddPlanEntry(g, path, 50, "Block Green path to king");
    AvoidCaptureNearHome(g);
    PlaceNextToHome(g);
    PlanBorder(g);
    PlanOpportunities(g);
}

void BlockKingHome(Game& g) {
    SetSquareWeights(g, 100);
    std::string route;
    const int status = KingRouteStatus(g, route);
    if (status == 99) {
        SetSquareWeights(g, 1000);
        AddPlanEntry(g, route, 99999, "King can go Home direct, block=" + route);
        return;
    }
    if (status == 1) {
        SetSquareWeights(g, 800);
        AddPlanEntry(g, route, 9000, "King can go Home in 2 moves, route=" + route);
        return;
    }
    if (status == 2) {
        SetSquareWeights(g, 100);
        AddPlanEntry(g, route, 600, "King can go Home indirect, its route= " + route);
    }
    // Every square the King can move to gains once for each edge square
    // among them.
    const std::string& targets = g.MoveTargets(g.KingCol, g.KingRow);
    ForEachSquareItem(targets, [&](int col, int row) {
        if (col == 1 || col == g.BoardWidth || row == 1 || row == g.BoardHeight)
            AddPlanEntry(g, targets, 400, "King can go to border at: " + SquareText(col, row));
    });
}

void BlockCornerDiagonals(Game& g) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    struct Diagonals {
        char Direction;
        int Col1, Row1, Col2, Row2;
        const char* Label;
    };
    const Diagonals table[] = {
        {'L', 2, 2, w - 1, 2, "King goes to diag neibor of H (L)"},
        {'R', 2, h - 1, w - 1, h - 1, "King goes to diag neibor of H (R)"},
        {'U', 2, 2, 2, h - 1, "King goes to diag neibor of H (U)"},
        {'D', w - 1, 2, w - 1, h - 1, "King goes to diag neibor of H (D)"},
    };
    for (const Diagonals& d : table) {
        const std::string path = ReachInDirection(g, g.KingCol, g.KingRow, d.Direction);
        if (path.empty()) continue;
        for (const std::string& item : {SquareItem(d.Col1, d.Row1), SquareItem(d.Col2, d.Row2)})
            if (path.find(item) != std::string::npos) AddPlanEntry(g, item, 9000, d.Label);
    }
}

void PlaceNextToHome(Game& g) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    const int squares[12][2] = {{1, 2},     {1, h - 1}, {2, 1},     {2, h},         {w - 1, 1}, {w - 1, h},
                                {w, 2},     {w, h - 1}, {2, 2},     {2, h - 1},     {w - 1, 2}, {w - 1, h - 1}};
    for (int k = 1; k <= 12; ++k) {
        const int col = squares[k - 1][0], row = squares[k - 1][1];
        if (g.ReachMap[AttackerCode](col, row) < 1) continue;
        const std::string text = SquareText(col, row);
        AddPlanEntry(g, text, 100, text + " : place next to H" + Str(k));
    }
}

void AvoidCaptureNearHome(Game& g) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    // The attacker beside a corner, then the square beyond it on the same edge.
    const int cases[8][4] = {{1, 2, 1, 3},         {1, h - 1, 1, h - 2}, {w, 2, w, 3},         {w, h - 1, w, h - 2},
                             {2, 1, 3, 1},         {2, h, 3, h},         {w - 1, 1, w - 2, 1}, {w - 1, h, w - 2, h}};
    SetHomeSquares(g, DefenderCode);
    for (const auto& c : cases) {
        if (g.Board(c[0], c[1]) != AttackerCode || !g.ReachMap[DefenderCode](c[2], c[3])) continue;
        AddPlanItemAt(g, c[2], c[3], 5000, " Avoid capture near home");
    }
    SetHomeSquares(g, HomeCode);
}

}  // namespace jv
