#pragma once
#include "core/RuleBoard.h"

namespace jv {

// The strong player's judgement of a position, from the attackers' side (the
// defenders' is its negation), in hundredths of a defender: material, the
// King's free lines and his lines to the corners in two moves, his distance
// to the nearest corner, the attackers round him and closing in on him, and his
// mobility.
int EvaluateForAttackers(const RuleBoard& b);

}  // namespace jv
