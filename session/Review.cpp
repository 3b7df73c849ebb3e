#include "session/Review.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/SilentView.h"
#include "records/LayoutFile.h"
#include "session/MoveList.h"
#include "session/SquareNames.h"

namespace jv {

namespace {

struct ScoredPosition {
    int Score = 0;   // the defenders' side
    SearchResult Search;
};

// The defenders' score of a position the move into it has ended, as its
// mark says: the King home or taken. 0 while the game goes on.
int EndScore(const PlayedMove* into) {
    if (!into || into->Written.Mark.size() != 2) return 0;
    return into->Written.Mark == "--" ? SearchWin : -SearchWin;
}

// A position searched for the side to move; without a move the side to move
// has lost (a fort, an encirclement or no move left).
ScoredPosition ScorePosition(const std::string& line, int side, const Rules& rules, const SearchLimits& limits) {
    SilentView silent;
    Game g;
    g.View = &silent;
    g.GameRules = rules;
    ScoredPosition scored;
    if (!ApplyLayoutLine(g, line).Ok()) return scored;
    scored.Search = SearchBestMove(g, side, limits);
    const int forMover = scored.Search.HasMove ? scored.Search.Score : -SearchWin;
    scored.Score = side == DefenderCode ? forMover : -forMover;
    return scored;
}

int Capped(int score) { return std::clamp(score, -ScoreCap, ScoreCap); }

ReviewedMove Judge(const PlayedMove& move, const ScoredPosition& before, int after) {
    ReviewedMove judged;
    const int sign = move.Defenders ? 1 : -1;
    judged.Loss = std::max(0, sign * (Capped(before.Score) - Capped(after)));
    judged.Mark = judged.Loss >= BlunderLoss ? "??" : judged.Loss >= MistakeLoss ? "?" : "";
    judged.BestLine = before.Search.Pv;
    judged.BestDiffers = before.Search.HasMove && !(before.Search.Best == move.Written.Squares);
    return judged;
}

int SideOf(const PlayedMove& move) { return move.Defenders ? DefenderCode : AttackerCode; }

}  // namespace

GameReview ReviewGame(const std::string& start, const std::vector<PlayedMove>& moves, const Rules& rules,
                      const SearchLimits& limits, const std::function<void(int scored, int total)>& onScored) {
    GameReview review;
    const int total = static_cast<int>(moves.size()) + 1;
    ScoredPosition previous;
    for (int i = 0; i < total; ++i) {
        const std::string& line = i == 0 ? start : moves[static_cast<std::size_t>(i - 1)].After;
        const int side = i < total - 1 ? SideOf(moves[static_cast<std::size_t>(i)])
                         : i > 0       ? SideOf(moves[static_cast<std::size_t>(i - 1)]) ^ 1
                         : rules.AttackersFirst ? AttackerCode : DefenderCode;
        const PlayedMove* into = i > 0 ? &moves[static_cast<std::size_t>(i - 1)] : nullptr;
        ScoredPosition scored;
        scored.Score = EndScore(into);
        if (scored.Score == 0) scored = ScorePosition(line, side, rules, limits);
        if (limits.Stop && limits.Stop->load()) return review;   // a stopped search's score is no score
        review.Scores.push_back(scored.Score);
        if (i > 0) review.Moves.push_back(Judge(moves[static_cast<std::size_t>(i - 1)], previous, scored.Score));
        previous = scored;
        if (onScored) onScored(i + 1, total);
    }
    review.Complete = true;
    return review;
}

std::array<SideSummary, 2> Summarise(const GameReview& review, const std::vector<PlayedMove>& moves) {
    std::array<SideSummary, 2> sides;
    for (std::size_t i = 0; i < review.Moves.size() && i < moves.size(); ++i) {
        SideSummary& s = sides[static_cast<std::size_t>(SideOf(moves[i]))];
        ++s.Moves;
        s.TotalLoss += review.Moves[i].Loss;
        s.Mistakes += review.Moves[i].Mark == "?";
        s.Blunders += review.Moves[i].Mark == "??";
    }
    return sides;
}

double DefenderChance(int score) { return 1.0 / (1.0 + std::exp(-Capped(score) / 150.0)); }

std::string ScoreText(int score) {
    if (IsWinScore(score)) return "defenders win";
    if (IsWinScore(-score)) return "attackers win";
    char text[16];
    std::snprintf(text, sizeof text, "%+.2f", score / 100.0);
    return text;
}

std::string ReviewLine(const Game& g, const std::vector<PlayedMove>& moves, const GameReview& review, std::size_t i) {
    std::string line = std::to_string(i / 2 + 1) + "." + (i % 2 == 0 ? " " : ".. ") + ListedMoveText(g, moves[i].Written);
    if (i >= review.Moves.size()) return line;
    const ReviewedMove& m = review.Moves[i];
    line += "  " + ScoreText(review.Scores[i + 1]);
    const std::string best = m.BestDiffers && !m.BestLine.empty() ? "best " + ShownMove(g, m.BestLine.front()) : "";
    char loss[24];
    std::snprintf(loss, sizeof loss, "loses %.2f", m.Loss / 100.0);
    if (!m.Mark.empty()) return line + " " + m.Mark + " (" + loss + (best.empty() ? "" : "; " + best) + ")";
    return best.empty() ? line : line + "; " + best;
}

std::string SummaryLine(int side, const SideSummary& s) {
    char average[16];
    std::snprintf(average, sizeof average, "%.2f", s.AverageLoss() / 100.0);
    return std::string(side == DefenderCode ? "Defenders" : "Attackers") + ": " + std::to_string(s.Moves) +
           " moves, " + std::to_string(s.Mistakes) + " mistake(s), " + std::to_string(s.Blunders) +
           " blunder(s), average loss " + average;
}

}  // namespace jv
