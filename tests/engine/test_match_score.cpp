// The statistics of a match: the score, its interval, the Elo it means and the sequential test's ratio.
#include <gtest/gtest.h>

#include <limits>

#include "session/MatchScore.h"

using jv::GameResults;

namespace {
constexpr double Unbounded = std::numeric_limits<double>::infinity();
}

TEST(MatchScore, ScoreIntervalAndEloFollowTheGamesResults) {
    // The score is wins and half the draws, its 95% interval 1.96 standard errors of the results' spread, and the Elo
    // -400 log10(1/score - 1) with half the Elo width of the interval as its error, unbounded once the interval
    // reaches a score of 0 or 1.
    const struct { GameResults results; double score, low, high, elo, error; } rows[] = {
        {{60, 0, 40}, 0.6, 0.503982, 0.696018, 70.437, 70.571},
        {{30, 40, 30}, 0.5, 0.424091, 0.575909, 0.0, 53.158},
        {{25, 10, 15}, 0.6, 0.479180, 0.720820, 70.437, 89.627},
        {{4, 0, 1}, 0.8, 0.449390, 1.0, 240.824, Unbounded},   // 0.8 + 0.350609 is past a score of 1
        {{}, 0.5, 0.5, 0.5, 0.0, 0.0},
    };
    for (const auto& r : rows) {
        const jv::ScoreInterval s = jv::ScoreOf(r.results);
        const jv::EloEstimate e = jv::EloOf(s);
        EXPECT_NEAR(s.Score, r.score, 1e-6) << r.results.Wins;
        EXPECT_NEAR(s.Low, r.low, 1e-6) << r.results.Wins;
        EXPECT_NEAR(s.High, r.high, 1e-6) << r.results.Wins;
        EXPECT_NEAR(e.Elo, r.elo, 1e-3) << r.results.Wins;
        if (r.error == Unbounded) EXPECT_EQ(e.Error, Unbounded) << r.results.Wins;
        else EXPECT_NEAR(e.Error, r.error, 1e-3) << r.results.Wins;
    }
}

TEST(MatchScore, SprtRatioWeighsTheResultsUnderEachHypothesis) {
    // With wins and losses alone the ratio is sum n_r log(p1_r / p0_r) at the hypotheses' scores; results that sit
    // between two hypotheses symmetric about zero weigh nothing; the bounds are log(beta/(1-alpha)), log((1-beta)/alpha).
    const struct { GameResults results; double elo0, elo1, ratio; } rows[] = {
        {{60, 0, 40}, 0, 10, 0.534231},    // 60 ln(2 s1) + 40 ln(2 (1 - s1)), s1 = 0.514387
        {{8, 0, 0}, 0, 200, 3.347018},     // 8 ln(2 s1), s1 = 0.759747
        {{30, 40, 30}, -10, 10, 0.0},
        {{25, 10, 15}, 0, 10, 0.334183},
    };
    for (const auto& r : rows)
        EXPECT_NEAR(jv::SprtLogLikelihoodRatio(r.results, r.elo0, r.elo1), r.ratio, 2e-3) << r.results.Wins;
    const jv::SprtBounds bounds = jv::SprtBoundsOf(0.05, 0.05);
    EXPECT_NEAR(bounds.Lower, -2.944439, 1e-6);
    EXPECT_NEAR(bounds.Upper, 2.944439, 1e-6);
}
