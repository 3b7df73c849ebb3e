#pragma once
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "ai/Search.h"
#include "core/Game.h"
#include "records/GameRecord.h"

namespace jv {

// The review of a game: the strong player's score of every position, from
// the defenders' side, and for each move the loss of score it cost the side
// that made it, the strong player's own choice where it differs, and the
// mark its loss earns; then a summary per side.

// The marks, by the loss of a move in hundredths of a defender: "?" a
// mistake from one defender on, "??" a blunder from three. A score beyond
// ten defenders (a won game) counts as ten, so throwing a won game away is a
// blunder and a lost game lost again costs nothing.
inline constexpr int MistakeLoss = 100;
inline constexpr int BlunderLoss = 300;
inline constexpr int ScoreCap = 1000;

struct ReviewedMove {
    int Loss = 0;                 // hundredths of a defender, for the side that moved; 0 or more
    std::string Mark;             // "", "?" or "??"
    bool BestDiffers = false;     // the strong player would have played BestLine's first move instead
    std::vector<Move> BestLine;   // the strong player's line from the position before the move
};

struct GameReview {
    std::vector<int> Scores;           // the start, then after each move: the defenders' score
    std::vector<ReviewedMove> Moves;   // one per move, once both its positions are scored
    bool Complete = false;             // false when stopped before the last position
};

// Reviews the game that starts at the layout line start and goes on with
// moves, under rules, each position searched within limits (its Stop ends
// the review at once, the positions scored so far kept). onScored hears the
// count of positions scored after each one.
GameReview ReviewGame(const std::string& start, const std::vector<PlayedMove>& moves, const Rules& rules,
                      const SearchLimits& limits, const std::function<void(int scored, int total)>& onScored = {});

struct SideSummary {
    int Moves = 0, Mistakes = 0, Blunders = 0;
    long long TotalLoss = 0;
    double AverageLoss() const { return Moves == 0 ? 0.0 : static_cast<double>(TotalLoss) / Moves; }
};
// The reviewed moves of each side, indexed by side code.
std::array<SideSummary, 2> Summarise(const GameReview& review, const std::vector<PlayedMove>& moves);

// The defenders' chance of winning, 0 to 1, that a score gives.
double DefenderChance(int score);

// "+1.25", or "defenders win" / "attackers win" for a won game.
std::string ScoreText(int score);

// One reviewed move as the review prints it, its squares named as the view
// names them: "3. f4-f2  +0.35", then " ?? (loses 4.10; best f4-b4)" for a
// marked move, "; best f4-b4" for an unmarked one the strong player would
// not have played.
std::string ReviewLine(const Game& g, const std::vector<PlayedMove>& moves, const GameReview& review, std::size_t i);

// "Defenders: 12 moves, 1 mistake(s), 0 blunder(s), average loss 0.42".
std::string SummaryLine(int side, const SideSummary& summary);

}  // namespace jv
