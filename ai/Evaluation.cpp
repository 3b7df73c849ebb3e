#include "ai/Evaluation.h"

#include "ai/KingRegion.h"

#include <algorithm>
#include <cstdlib>

namespace jv {

namespace {

// The weights under the classic rules, where a King closed in must still be
// taken by four: the corners' seals weigh, the ring does not (it had the
// attackers stand guard round a King they never took).
constexpr EvaluationWeights ClassicWeights{50, -100, -300, -250, -8, 35, 12, 12, -3, 40, 150, 0, 0};

// The weights, in hundredths of a defender per unit of each term.
constexpr EvaluationWeights CornerWeights{
    50,     // an attacker
    -100,   // a defender
    -300,   // a free line to an escape square
    -250,   // an escape square in two moves
    -8,     // a square the King can move to
    35,     // an attacker (or corner) beside the King
    12,     // an attacker diagonally beside him
    12,     // a step between the King and his nearest escape
    -3,     // a step between an attacker and the King
    40,     // an attacker sealing a corner
    150,    // a corner sealed
    -5,     // a square the King's side can reach
    500,    // no escape square within the King's side's reach
};


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

int RingSides(const RuleBoard& b, int king) {
    int count = 0;
    for (int step : CellSteps) count += b.At(king + step) == CellAttacker || b.At(king + step) == CellCorner;
    return count;
}

int RingDiagonals(const RuleBoard& b, int king) {
    int count = 0;
    for (int diagonal : {CellStride + 1, CellStride - 1, -CellStride + 1, -CellStride - 1})
        count += b.At(king + diagonal) == CellAttacker;
    return count;
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

// The attackers on the squares that seal the corners, the three on the
// diagonal two steps from a corner behind which the King cannot reach it, and
// the corners sealed by all three.
void CornerSeals(const RuleBoard& b, EvaluationTerms& terms) {
    if (b.RuleSet().KingEscape != Escape::Corners) return;
    for (int col : {1, b.Width()})
        for (int row : {1, b.Height()}) {
            const int inCol = col == 1 ? 1 : -1, inRow = row == 1 ? 1 : -1;
            int seals = 0;
            for (int along = 0; along <= 2; ++along)
                seals += b.At(CellOf(col + inCol * along, row + inRow * (2 - along))) == CellAttacker;
            terms[TermSealSquares] += seals;
            terms[TermSealedCorners] += seals == 3;
        }
}

}  // namespace

EvaluationTerms TermsOf(const RuleBoard& b, bool ring) {
    EvaluationTerms terms{};
    terms[TermAttackers] = b.Attackers();
    terms[TermDefenders] = b.Defenders();
    const int king = b.King();
    if (king < 0) return terms;
    terms[TermDirectRoutes] = b.KingRoutes();
    terms[TermTwoMoveRoutes] = TwoMoveRoutes(b, king);
    terms[TermKingMobility] = KingMobility(b, king);
    terms[TermRingSides] = RingSides(b, king);
    terms[TermRingDiagonals] = RingDiagonals(b, king);
    terms[TermEscapeDistance] = NearestEscape(b, king);
    terms[TermAttackerSteps] = AttackerSteps(b, king);
    CornerSeals(b, terms);
    if (!ring) return terms;
    const KingRegion region = FindKingRegion(b);
    terms[TermRegionSquares] = region.Squares;
    terms[TermRingClosed] = !region.Escapes;
    return terms;
}

const EvaluationWeights& WeightsFor(const Rules& rules) {
    return rules == Rules::Classic() ? ClassicWeights : CornerWeights;
}

int EvaluateForAttackers(const RuleBoard& b, const EvaluationWeights& weights) {
    const EvaluationTerms terms = TermsOf(b, weights[TermRegionSquares] != 0 || weights[TermRingClosed] != 0);
    int score = 0;
    for (int t = 0; t < TermCount; ++t) score += weights[t] * terms[t];
    return score;
}

}  // namespace jv
