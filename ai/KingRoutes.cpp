#include "ai/KingRoutes.h"

#include "ai/SquareLists.h"
#include "core/Board.h"
#include "core/Directions.h"
#include "core/Reach.h"

namespace jv {

namespace {

// Appends the free squares of one edge scan to route; when a square on the
// way is taken, route is left as it was (the scan's text is empty).
void AppendKingRoute(const Game& g, int a, int b, char direction, std::string& route) {
    const Direction* d = DirectionOf(direction);
    if (!d) return;
    const int dc = d->Col, dr = d->Row;
    int i = a, j = b;
    int* along = dc != 0 ? &i : &j;
    // The scan stops short of the corner square at the edge's far end.
    const int last = dc + dr < 0 ? 2 : dc != 0 ? g.BoardWidth - 1 : g.BoardHeight - 1;
    const std::size_t start = route.size();
    const int step = dc + dr;
    for (i += dc, j += dr; step > 0 ? *along <= last : *along >= last; i += dc, j += dr) {
        if (g.Board(i, j) != EmptyCode) {
            route.resize(start);
            return;
        }
        AppendSquareText(route, i, j);
        route += ',';
    }
}

// The farthest square of the King's slide in one direction, or false when
// he cannot move that way.
bool FarthestReach(const Game& g, char direction, int& col, int& row) {
    const Direction* d = DirectionOf(direction);
    const int dc = d ? d->Col : 1, dr = d ? d->Row : 0;
    int c = g.KingCol, r = g.KingRow;
    bool moved = false;
    while (c + dc >= 1 && c + dc <= g.BoardWidth && r + dr >= 1 && r + dr <= g.BoardHeight &&
           g.Board(c + dc, r + dr) == EmptyCode) {
        c += dc;
        r += dr;
        moved = true;
    }
    col = c;
    row = r;
    return moved;
}

// Whether the farthest square (i, j) of a slide in this direction lies next
// to a corner that the direction can end on.
bool EndsBesideCorner(const Game& g, char direction, int i, int j) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    switch (direction) {
        case 'L': return (i == 1 && j == 2) || (i == 2 && j == 1) || (i == w && j == 2) || (i == w - 1 && j == 1);
        case 'R': return (i == 1 && j == h - 1) || (i == 2 && j == h) || (i == w && j == h - 1) || (i == w - 1 && j == h);
        case 'U': return (j == 1 && i == 2) || (j == 2 && i == 1) || (j == h && i == 2) || (j == h - 1 && i == 1);
        default: return (j == 1 && i == w - 1) || (j == 2 && i == w) || (j == h && i == w - 1) || (j == h - 1 && i == w);
    }
}

// The indirect search: the first square of the King's MoveTargets from which
// he would have a direct run, followed by that run.
void IndirectKingRoute(Game& g, std::string& route) {
    route.clear();
    const int kingCol = g.KingCol, kingRow = g.KingRow;
    const std::string& targets = g.MoveTargets(kingCol, kingRow);
    for (std::size_t i = 0; i + 4 < targets.size(); i += 5) {
        int c, r;
        TargetAt(targets, i, c, r);
        const std::int32_t kingCode = g.Board(kingCol, kingRow), targetCode = g.Board(c, r);
        g.Board(c, r) = DefenderCode;
        g.Board(kingCol, kingRow) = EmptyCode;
        g.KingCol = c;
        g.KingRow = r;
        const int found = RouteFromKing(g, route);
        g.KingCol = kingCol;
        g.KingRow = kingRow;
        g.Board(kingCol, kingRow) = kingCode;
        g.Board(c, r) = targetCode;
        if (found == 99) {
            route.insert(0, targets, i, 5);
            return;
        }
    }
    route.clear();
}

}  // namespace

void ScanKingRoute(const Game& g, int a, int b, char direction, std::string& route) {
    route.clear();
    AppendKingRoute(g, a, b, direction, route);
}

int RouteFromKing(const Game& g, std::string& route) {
    const int a = g.KingCol, b = g.KingRow, w = g.BoardWidth, h = g.BoardHeight;
    route.clear();
    const bool onColumnEdge = a == 1 || a == w;
    const bool onRowEdge = b == 1 || b == h;
    if (!onColumnEdge && !onRowEdge) return -1;
    // Beside a corner; the second half tests w - 2, not w - 1, and is kept so.
    if (onColumnEdge && (b == 2 || b == h - 1)) return 99;
    if (onRowEdge && (a == 2 || a == w - 2)) return 99;
    if (onColumnEdge) {
        AppendKingRoute(g, a, b, 'L', route);
        AppendKingRoute(g, a, b, 'R', route);
    }
    if (onRowEdge) {
        AppendKingRoute(g, a, b, 'U', route);
        AppendKingRoute(g, a, b, 'D', route);
    }
    return route.empty() ? -1 : 99;
}

int KingHomeInTwo(const Game& g, std::string& route) {
    route.clear();
    for (char d : {'L', 'R', 'U', 'D'}) {
        int i = 0, j = 0;
        if (FarthestReach(g, d, i, j) && EndsBesideCorner(g, d, i, j))
            AppendReach(g, g.KingCol, g.KingRow, d, route);
    }
    return route.empty() ? -1 : 99;
}

int KingRouteStatus(Game& g, std::string& route) {
    if (RouteFromKing(g, route) == 99) return 99;
    if (KingHomeInTwo(g, route) == 99) return 1;
    IndirectKingRoute(g, route);
    return route.empty() ? -1 : 2;
}

}  // namespace jv
