#pragma once
#include <array>

#include "core/RuleBoard.h"

namespace jv {

// The strong player's judgement of a position, from the attackers' side (the
// defenders' is its negation), in hundredths of a defender: a weighted sum of
// what the position shows of the King's chances.

// What the judgement counts, each from the attackers' side of the board.
enum EvaluationTerm {
    TermAttackers,        // the attackers on the board
    TermDefenders,        // the defenders, the King aside
    TermDirectRoutes,     // the King's free lines to an escape square
    TermTwoMoveRoutes,    // the escape squares he reaches in two moves
    TermKingMobility,     // the squares he can move to
    TermRingSides,        // the attackers (or corners) beside him
    TermRingDiagonals,    // the attackers diagonally beside him
    TermEscapeDistance,   // his steps to the nearest escape square
    TermAttackerSteps,    // the attackers' steps to him, summed
    TermSealSquares,      // the attackers on the three squares that seal a corner
    TermSealedCorners,    // the corners sealed by all three
    TermRegionSquares,    // the squares his side can still reach
    TermRingClosed,       // 1 when his side can reach no escape square
    TermCount
};

using EvaluationTerms = std::array<int, TermCount>;
using EvaluationWeights = std::array<int, TermCount>;

// The terms of the position; all but the material are 0 without the King.
// Without `ring` the region's two terms are left 0, as they cost the most.
EvaluationTerms TermsOf(const RuleBoard& b, bool ring = true);

// The weights of the terms under a rule set.
const EvaluationWeights& WeightsFor(const Rules& rules);

// The terms weighted and summed.
int EvaluateForAttackers(const RuleBoard& b, const EvaluationWeights& weights);

}  // namespace jv
