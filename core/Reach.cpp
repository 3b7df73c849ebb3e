#include "core/Reach.h"

#include "core/Board.h"
#include "core/Directions.h"

namespace jv {

namespace {

struct Step {
    int dc, dr;
};

// The step of a direction letter and how many squares lie ahead of (col, row)
// before the board's edge; false for a letter that is no direction.
bool DirectionStep(const Game& g, int col, int row, char direction, Step& step, int& squares) {
    const Direction* d = DirectionOf(direction);
    if (!d) return false;
    step = {d->Col, d->Row};
    squares = d->Col < 0 ? col - 1 : d->Col > 0 ? g.BoardWidth - col : d->Row < 0 ? row - 1 : g.BoardHeight - row;
    return true;
}

// Calls visit(c, r) for each empty square from (col, row) in one direction,
// nearest first, up to the first square that is not empty.
template <typename Visit>
void Slide(const Game& g, int col, int row, char direction, Visit visit) {
    Step step;
    int squares;
    if (!DirectionStep(g, col, row, direction, step, squares)) return;
    for (int i = 0; i < squares; ++i) {
        col += step.dc;
        row += step.dr;
        if (g.Board(col, row) != EmptyCode) return;
        visit(col, row);
    }
}

// Walks from (col, row) over empty squares, appending each as a square item
// and calling mark(c, r) for it.
template <typename Mark>
void Walk(const Game& g, int col, int row, char direction, std::string& out, Mark mark) {
    Slide(g, col, row, direction, [&](int c, int r) {
        const char item[5] = {static_cast<char>('0' + c / 10), static_cast<char>('0' + c % 10),
                              static_cast<char>('0' + r / 10), static_cast<char>('0' + r % 10), ','};
        out.append(item, 5);
        mark(c, r);
    });
}

}  // namespace

void AppendReach(const Game& g, int col, int row, char direction, std::string& out) {
    Walk(g, col, row, direction, out, [](int, int) {});
}

std::string ReachInDirection(const Game& g, int col, int row, char direction) {
    std::string out;
    AppendReach(g, col, row, direction, out);
    return out;
}

void BuildReachTables(Game& g) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    for (int col = -1; col <= w + 1; ++col)
        for (int row = -1; row <= h + 1; ++row) g.MoveTargets(col, row).clear();
    g.ReachMap[0].Fill(0);
    g.ReachMap[1].Fill(0);

    for (int col = 1; col <= w; ++col)
        for (int row = 1; row <= h; ++row) {
            const int code = g.Board(col, row);
            if (code == EmptyCode) continue;
            std::string& targets = g.MoveTargets(col, row);
            // The Home corners get their lists too, but mark no side's reach.
            auto& reach = g.ReachMap[code == AttackerCode ? 1 : 0];
            const bool piece = code >= 0;
            for (char d : {'U', 'D', 'L', 'R'})
                Walk(g, col, row, d, targets, [&](int c, int r) {
                    if (piece) reach(c, r) = 1;
                });
        }
}

}  // namespace jv
