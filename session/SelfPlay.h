#pragma once
#include "core/Game.h"

namespace jv {

// How a game between the two computer players ended.
enum class GameEnd {
    KingCaptured,
    KingAtHome,
    KingFreeRun,   // the King, on the defenders' turn, sees a Home corner along a free line
    DefendersWithoutMove,
    AttackersWithoutMove,
    MoveLimit,
    KingInFort,           // under a rule set with exit forts
    DefendersEncircled,   // under a rule set with encirclement
    Repetition,           // a position come round a third time, where that loses for the defenders
};

struct AutoGameResult {
    GameEnd End = GameEnd::MoveLimit;
    int Moves = 0;   // moves made by both sides together
};

// AutoGame's alternation on the position as it stands (the defenders first:
// MakeGreenAutoMove, then MakeRedAutoMove), without pauses or questions
// beyond the view's own, until the game ends or maxMoves moves are made.
// Under a rule set other than the classic one the side to move begins, and
// the game ends where the rule board ends it.
AutoGameResult PlayAutoGame(Game& g, int maxMoves);

// True when the King could move onto a Home corner along a free line now.
bool KingHasFreeRun(const Game& g);

// The end as a short text: "King captured", "King at Home", ...
const char* GameEndText(GameEnd end);

}  // namespace jv
