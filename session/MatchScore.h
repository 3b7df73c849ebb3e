#pragma once

namespace jv {

// What a series of games says of one player against another: its score with
// a 95% interval, the Elo difference that score means, and the log-likelihood
// ratio of a sequential test between two Elo differences.

// One player's games: its wins, draws and losses.
struct GameResults {
    long long Wins = 0, Draws = 0, Losses = 0;
    long long Games() const { return Wins + Draws + Losses; }
    double Points() const { return static_cast<double>(Wins) + 0.5 * static_cast<double>(Draws); }
};

// A score as the share of the points won, with the bounds of its 95% interval.
struct ScoreInterval {
    double Score = 0.5, Low = 0.5, High = 0.5;
};

// The Elo difference a score means, and its 95% error.
struct EloEstimate {
    double Elo = 0, Error = 0;
};

// The score and its interval from the spread of the games' results (normal
// approximation, kept within 0 and 1); no games score a half with no spread.
ScoreInterval ScoreOf(const GameResults& results);

// The Elo difference of the logistic model: -400 log10(1/score - 1); plus or
// minus infinity at a score of 1 or 0.
double EloFromScore(double score);
double ScoreFromElo(double elo);

// The Elo of the score, its error half the Elo width of the interval
// (infinite when the interval reaches a score of 0 or 1).
EloEstimate EloOf(const ScoreInterval& score);

// The log-likelihood ratio of "the player is elo1 stronger" against "elo0
// stronger" (the generalised SPRT on wins, draws and losses): the sum over
// the results of the log of the ratio of their likeliest probabilities under
// each hypothesis's score.
double SprtLogLikelihoodRatio(const GameResults& results, double elo0, double elo1);

// The bounds of the ratio: at or below Lower the test accepts elo0 (H0), at
// or above Upper elo1 (H1), with the error rates alpha (H1 wrongly accepted)
// and beta (H0 wrongly accepted).
struct SprtBounds {
    double Lower = 0, Upper = 0;
};
SprtBounds SprtBoundsOf(double alpha, double beta);

}  // namespace jv
