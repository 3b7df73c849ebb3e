#pragma once
#include <string>

#include "cli/MatchPlayer.h"
#include "core/Game.h"
#include "session/ThinkingTime.h"

namespace jv::cli {

// One game of `match`: the opening's seeded random moves, then the two
// players' moves on their clocks until the game ends, a side runs out of
// time or the move limit makes it a draw; an outside engine is started for
// the game and told how it ended.

// What every game of a match shares besides its players.
struct GameSettings {
    SideClock Clock;          // each side's clock at the start; no clock without Seconds
    bool EarlyStop = false;   // the strong players stop once their move is clear
};

enum class Outcome { AttackersWin, DefendersWin, Draw };

// A game's end, and the moves and thinking seconds of each side (by side code).
struct GameSummary {
    Outcome End = Outcome::Draw;
    long long Moves[2] = {0, 0};
    double Seconds[2] = {0, 0};
};

// Plays the opening's moves, the rules' first side first; returns the side to
// move after them, and the moves in the protocol's simple notation.
int PlayOpening(Game& g, long long moves, std::string& played);

// Plays the game from its position, side to move, the players indexed by side code.
GameSummary PlayMatchGame(Game& g, const MatchPlayer* const (&players)[2], const GameSettings& settings, int side);

}  // namespace jv::cli
