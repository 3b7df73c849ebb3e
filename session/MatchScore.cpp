#include "session/MatchScore.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace jv {

namespace {

// The normal quantile of a two-sided 95% interval.
constexpr double Z95 = 1.959963984540054;
// Stands in for a result that has not occurred, so the likeliest distribution
// of the results never puts nothing on it (a run of wins alone still gives a
// finite ratio that grows with each win).
constexpr double UnseenCount = 1e-3;
// Enough halvings to pin the Lagrange multiplier to double precision.
constexpr int Bisections = 200;

// The points of a loss, a draw and a win.
constexpr double ResultPoints[3] = {0, 0.5, 1};

// The distribution nearest to the observed one (p, by likelihood) whose
// expected points are score: p_i / (1 + lambda (x_i - score)), lambda found
// by bisection where every denominator stays positive.
void LikeliestWithScore(const double (&p)[3], double score, double (&out)[3]) {
    double low = -1 / (1 - score), high = 1 / score;
    double lambda = 0;
    for (int i = 0; i < Bisections; ++i) {
        lambda = (low + high) / 2;
        double slope = 0;
        for (int r = 0; r < 3; ++r) slope += p[r] * (ResultPoints[r] - score) / (1 + lambda * (ResultPoints[r] - score));
        (slope > 0 ? low : high) = lambda;
    }
    for (int r = 0; r < 3; ++r) out[r] = p[r] / (1 + lambda * (ResultPoints[r] - score));
}

}  // namespace

ScoreInterval ScoreOf(const GameResults& results) {
    const double n = static_cast<double>(results.Games());
    if (n == 0) return {};
    const double score = results.Points() / n;
    const double counts[3] = {static_cast<double>(results.Losses), static_cast<double>(results.Draws),
                              static_cast<double>(results.Wins)};
    double variance = 0;
    for (int r = 0; r < 3; ++r) variance += counts[r] * (ResultPoints[r] - score) * (ResultPoints[r] - score);
    const double margin = Z95 * std::sqrt(variance / n / n);
    // The normal approximation may reach past what a score can be.
    return {score, std::max(0.0, score - margin), std::min(1.0, score + margin)};
}

double EloFromScore(double score) {
    if (score <= 0) return -std::numeric_limits<double>::infinity();
    if (score >= 1) return std::numeric_limits<double>::infinity();
    return 400 * std::log10(score / (1 - score));
}

double ScoreFromElo(double elo) { return 1 / (1 + std::pow(10.0, -elo / 400)); }

EloEstimate EloOf(const ScoreInterval& score) {
    const double error = (EloFromScore(score.High) - EloFromScore(score.Low)) / 2;
    // An interval that reaches a score of 0 or 1 bounds the Elo on neither side (where it is one point, too).
    const bool bounded = score.Low > 0 && score.High < 1;
    return {EloFromScore(score.Score), bounded ? error : std::numeric_limits<double>::infinity()};
}

double SprtLogLikelihoodRatio(const GameResults& results, double elo0, double elo1) {
    double counts[3] = {static_cast<double>(results.Losses), static_cast<double>(results.Draws),
                        static_cast<double>(results.Wins)};
    double n = 0;
    for (double& c : counts) n += (c = c > 0 ? c : UnseenCount);
    double observed[3], under0[3], under1[3];
    for (int r = 0; r < 3; ++r) observed[r] = counts[r] / n;
    LikeliestWithScore(observed, ScoreFromElo(elo0), under0);
    LikeliestWithScore(observed, ScoreFromElo(elo1), under1);
    double ratio = 0;
    for (int r = 0; r < 3; ++r) ratio += counts[r] * std::log(under1[r] / under0[r]);
    return ratio;
}

SprtBounds SprtBoundsOf(double alpha, double beta) {
    return {std::log(beta / (1 - alpha)), std::log((1 - beta) / alpha)};
}

}  // namespace jv
