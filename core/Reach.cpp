#include "core/Reach.h"

#include "core/Board.h"

namespace jv {

void AppendReach(const Game& g, int col, int row, char direction, std::string& out) {
    int dc = 0, dr = 0, steps = 0;
    switch (direction) {
        case 'U': case 'u': dc = -1; steps = col - 1; break;
        case 'D': case 'd': dc = 1; steps = g.BoardWidth - col; break;
        case 'L': case 'l': dr = -1; steps = row - 1; break;
        case 'R': case 'r': dr = 1; steps = g.BoardHeight - row; break;
        default: return;
    }
    int c = col, r = row;
    for (int i = 0; i < steps; ++i) {
        c += dc;
        r += dr;
        if (g.Board(c, r) != EmptyCode) return;
        AppendSquareText(out, c, r);
        out += ',';
    }
}

std::string ReachInDirection(const Game& g, int col, int row, char direction) {
    std::string out;
    AppendReach(g, col, row, direction, out);
    return out;
}

void BuildReachTables(Game& g) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    for (int col = -1; col <= MaxBoardSide + 1; ++col)
        for (int row = -1; row <= MaxBoardSide + 1; ++row) g.MoveTargets(col, row).clear();
    g.ReachMap[0].Fill(0);
    g.ReachMap[1].Fill(0);

    for (int col = 1; col <= w; ++col)
        for (int row = 1; row <= h; ++row) {
            if (g.Board(col, row) == EmptyCode) continue;
            std::string& targets = g.MoveTargets(col, row);
            for (char d : {'U', 'D', 'L', 'R'}) AppendReach(g, col, row, d, targets);
        }

    for (int col = 1; col <= w; ++col)
        for (int row = 1; row <= h; ++row) {
            const int code = g.Board(col, row);
            if (code < 0) continue;
            const std::string& targets = g.MoveTargets(col, row);
            // Every entry is exactly four digits and a comma.
            for (std::size_t i = 0; i + 4 < targets.size(); i += 5) {
                const int c = (targets[i] - '0') * 10 + (targets[i + 1] - '0');
                const int r = (targets[i + 2] - '0') * 10 + (targets[i + 3] - '0');
                g.ReachMap[code](c, r) = 1;
            }
        }
}

}  // namespace jv
