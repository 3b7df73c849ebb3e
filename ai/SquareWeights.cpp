#include "ai/SquareWeights.h"

namespace jv {

namespace {

// Writes one weight. On boards smaller than five squares the edge runs reach
// past the frame; a square outside the table is simply not written.
void Put(Game& g, int col, int row, std::int32_t weight) {
    if (col < Grid<std::int32_t>::Low || col > Grid<std::int32_t>::High) return;
    if (row < Grid<std::int32_t>::Low || row > Grid<std::int32_t>::High) return;
    g.SquareWeight(col, row) = weight;
}

// The first three squares after each corner of a column edge: 3w, 2w, w
// from the top corner, w, 2w, 3w towards the bottom corner.
void WeighColumnEdge(Game& g, int col, std::int32_t w) {
    const int h = g.BoardHeight;
    Put(g, col, 2, 3 * w);
    Put(g, col, 3, 2 * w);
    Put(g, col, 4, w);
    Put(g, col, h - 3, w);
    Put(g, col, h - 2, 2 * w);
    Put(g, col, h - 1, 3 * w);
}

void WeighRowEdge(Game& g, int row, std::int32_t w) {
    const int width = g.BoardWidth;
    Put(g, 2, row, 3 * w);
    Put(g, 3, row, 2 * w);
    Put(g, 4, row, w);
    Put(g, width - 3, row, w);
    Put(g, width - 2, row, 2 * w);
    Put(g, width - 1, row, 3 * w);
}

void WeighIfEmpty(Game& g, int col, int row, std::int32_t weight) {
    if (g.Board(col, row) == EmptyCode) g.SquareWeight(col, row) = weight;
}

// An empty edge square that a defender can reach this turn is a square the
// attackers would rather hold themselves.
void WeighReachableEdgeSquare(Game& g, int col, int row, std::int32_t weight) {
    if (g.Board(col, row) == EmptyCode && g.ReachMap[DefenderCode](col, row) >= 1)
        g.SquareWeight(col, row) = weight;
}

}  // namespace

void SetSquareWeights(Game& g, int scale) {
    const std::int32_t w = scale;
    const int width = g.BoardWidth;
    const int height = g.BoardHeight;

    // Along each edge, outward from each corner.
    WeighColumnEdge(g, 1, w);
    WeighColumnEdge(g, width, w);
    WeighRowEdge(g, 1, w);
    WeighRowEdge(g, height, w);

    // The squares diagonal to the corners.
    Put(g, 2, 2, 2 * w);
    Put(g, 2, height - 1, 2 * w);
    Put(g, width - 1, 2, 2 * w);
    Put(g, width - 1, height - 1, 2 * w);

    // Beside the King: above, left and right (the right-hand square is tested
    // twice); the square below him is left as it is. The play of the
    // attackers depends on this asymmetry, so it stays.
    const int kc = g.KingCol;
    const int kr = g.KingRow;
    WeighIfEmpty(g, kc, kr - 1, 4 * w);
    WeighIfEmpty(g, kc - 1, kr, 4 * w);
    WeighIfEmpty(g, kc + 1, kr, 4 * w);
    WeighIfEmpty(g, kc + 1, kr, 4 * w);

    // Edge squares, second to next-to-last, that the defenders can reach.
    for (int row = 2; row <= height - 1; ++row) {
        WeighReachableEdgeSquare(g, 1, row, 3 * w);
        WeighReachableEdgeSquare(g, width, row, 3 * w);
    }
    for (int col = 2; col <= width - 1; ++col) {
        WeighReachableEdgeSquare(g, col, 1, 3 * w);
        WeighReachableEdgeSquare(g, col, height, 3 * w);
    }
}

}  // namespace jv
