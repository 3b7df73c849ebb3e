#include "core/Perft.h"

#include <algorithm>
#include <cstdlib>

#include "core/RuleBoard.h"

namespace jv {

namespace {

// Where a move stands in the listing: its square column by column, then its
// direction (up, down, left, right), then its distance.
int ListingOrder(const Move& m) {
    const int dc = m.To.Col - m.From.Col, dr = m.To.Row - m.From.Row;
    int direction = 0;
    while (Directions[direction].Col != (dc > 0) - (dc < 0) || Directions[direction].Row != (dr > 0) - (dr < 0))
        ++direction;
    return ((m.From.Col * 32 + m.From.Row) * 4 + direction) * 32 + std::abs(dc) + std::abs(dr);
}

}  // namespace

std::uint64_t Perft(const Position& g, int depth, int side) {
    return RuleBoard(g, side).Perft(depth);
}

std::vector<PerftLine> PerftDivide(const Position& g, int depth, int side) {
    std::vector<PerftLine> lines;
    RuleBoard board(g, side);
    if (depth <= 0 || board.State() != GameState::GoesOn) return lines;
    BoardMove moves[MaxMoves];
    const int n = board.Generate(moves);
    for (int i = 0; i < n; ++i) {
        MoveUndo undo;
        board.Make(moves[i], undo);
        lines.push_back(PerftLine{RuleBoard::ToMove(moves[i]), board.Perft(depth - 1)});
        board.Unmake(moves[i], undo);
    }
    std::sort(lines.begin(), lines.end(),
              [](const PerftLine& a, const PerftLine& b) { return ListingOrder(a.First) < ListingOrder(b.First); });
    return lines;
}

}  // namespace jv
