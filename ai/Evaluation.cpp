#include "ai/Evaluation.h"

#include <algorithm>
#include <cstdlib>

namespace jv {

namespace {

constexpr int AttackerValue = 50;
constexpr int DefenderValue = 100;
constexpr int DirectRoute = 300;      // a free line from the King to a corner (or to the edge)
constexpr int TwoMoveRoute = 90;      // a corner (or an edge square) the King reaches in two moves
constexpr int KingSquare = 8;         // each square the King can move to
constexpr int RingSide = 35;          // an attacker (or corner) beside the King
constexpr int RingDiagonal = 12;      // an attacker diagonally beside him
constexpr int CornerDistance = 12;    // each step between the King and his nearest escape
constexpr int Closing = 3;            // each step fewer between an attacker and the King


// The last empty cell of the line from cell in the direction of step (cell
// itself when the next cell is taken).
int LineEnd(const RuleBoard& b, int cell, int step) {
    while (b.At(cell + step) == CellEmpty) cell += step;
    return cell;
}

// The corners the King reaches in two moves: a corner lies on an edge, so
// only a line that runs to an edge can end on a square that sees one.
int TwoMoveCorners(const RuleBoard& b, int king) {
    int routes = 0;
    for (int step : CellSteps) {
        const int last = LineEnd(b, king, step);
        if (last == king || b.At(last + step) != CellWall) continue;
        const int across = step == 1 || step == -1 ? CellStride : 1;
        for (int side : {across, -across})
            if (b.At(LineEnd(b, last, side) + side) == CellCorner) ++routes;
    }
    return routes;
}

// The squares of the King's lines from which a free line runs on to the edge.
int TwoMoveEdges(const RuleBoard& b, int king) {
    int routes = 0;
    for (int step : CellSteps) {
        const int across = step == 1 || step == -1 ? CellStride : 1;
        for (int c = king + step; b.At(c) == CellEmpty; c += step)
            for (int side : {across, -across})
                if (LineEnd(b, c, side) != c && b.At(LineEnd(b, c, side) + side) == CellWall) ++routes;
    }
    return routes;
}

int TwoMoveRoutes(const RuleBoard& b, int king) {
    return b.RuleSet().KingEscape == Escape::Corners ? TwoMoveCorners(b, king) : TwoMoveEdges(b, king);
}

int KingMobility(const RuleBoard& b, int king) {
    int squares = 0;
    for (int step : CellSteps)
        for (int c = king + step; b.At(c) == CellEmpty; c += step) ++squares;
    return squares;
}

int Ring(const RuleBoard& b, int king) {
    int score = 0;
    for (int step : CellSteps) {
        const int piece = b.At(king + step);
        if (piece == CellAttacker || piece == CellCorner) score += RingSide;
    }
    for (int diagonal : {CellStride + 1, CellStride - 1, -CellStride + 1, -CellStride - 1})
        if (b.At(king + diagonal) == CellAttacker) score += RingDiagonal;
    return score;
}

// The attackers' steps to the King, summed: the fewer, the tighter they close in.
int AttackerSteps(const RuleBoard& b, int king) {
    const int col = ColOf(king), row = RowOf(king);
    int steps = 0;
    const std::uint8_t* cells = b.AttackerCells();
    for (int i = 0; i < b.Attackers(); ++i) steps += std::abs(ColOf(cells[i]) - col) + std::abs(RowOf(cells[i]) - row);
    return steps;
}

// The King's steps to his nearest corner, or to the nearest edge where he escapes there.
int NearestEscape(const RuleBoard& b, int king) {
    const int col = ColOf(king), row = RowOf(king);
    const int dc = std::min(col - 1, b.Width() - col), dr = std::min(row - 1, b.Height() - row);
    return b.RuleSet().KingEscape == Escape::Corners ? dc + dr : std::min(dc, dr);
}

}  // namespace

int EvaluateForAttackers(const RuleBoard& b) {
    int score = AttackerValue * b.Attackers() - DefenderValue * b.Defenders();
    const int king = b.King();
    if (king < 0) return score;
    score -= DirectRoute * b.KingRoutes();
    score -= TwoMoveRoute * TwoMoveRoutes(b, king);
    score -= KingSquare * KingMobility(b, king);
    score += Ring(b, king);
    score += CornerDistance * NearestEscape(b, king);
    score -= Closing * AttackerSteps(b, king);
    return score;
}

}  // namespace jv
