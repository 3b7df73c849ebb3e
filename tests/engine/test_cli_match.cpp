// The tool's match as a strength measurement: paired games, the score line and the sequential test.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "support/Fixtures.h"
#include "support/RunCli.h"

using jv::test::RunCli;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

Lines StartingWith(const Lines& lines, const std::string& start) {
    Lines found;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
                 [&](const std::string& line) { return line.rfind(start, 0) == 0; });
    return found;
}

}  // namespace

TEST(CliMatch, PairedGamesPlayEachOpeningFromBothSidesAndScorePlayerA) {
    // --paired plays each opening twice, A attacking and then B, from the same random moves, and gives A's score with
    // its 95% interval and Elo.
    TestGame t;
    t.CopyData();
    const auto result = RunCli("match --attackers classic --defenders strong:5 --games 4 --openings 2 --paired "
                               "pattern1.txt", t.folder.string());
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const Lines games = StartingWith(result.out, "game ");
    ASSERT_EQ(games.size(), 4u);
    const std::regex game(R"(game (\d), (opening \d \[[a-g][1-7]-[a-g][1-7] [a-g][1-7]-[a-g][1-7]\]): ([AB]) attacks, .*)");
    for (std::size_t pair = 0; pair < 2; ++pair) {
        std::smatch first, second;
        ASSERT_TRUE(std::regex_match(games[2 * pair], first, game)) << games[2 * pair];
        ASSERT_TRUE(std::regex_match(games[2 * pair + 1], second, game)) << games[2 * pair + 1];
        EXPECT_EQ(first[2], second[2]) << "one opening for both games of the pair";
        EXPECT_EQ(first[3].str() + second[3].str(), "AB");
    }
    const std::regex score(R"(pattern1\.txt: score of A \(classic\): \d\.\d of 4, (\d+\.\d)% \(95%: (\d+\.\d)% to )"
                           R"((\d+\.\d)%\), Elo [+-](\d+\.\d|inf) ± (\d+\.\d|inf))");
    const Lines scores = StartingWith(result.out, "pattern1.txt: score");
    ASSERT_EQ(scores.size(), 1u);
    std::smatch s;
    ASSERT_TRUE(std::regex_match(scores[0], s, score)) << scores[0];
    EXPECT_LE(std::stod(s[2]), std::stod(s[1]));
    EXPECT_LE(std::stod(s[1]), std::stod(s[3]));
}

TEST(CliMatch, SprtAcceptsTheHypothesisOfALopsidedPairWithinItsGames) {
    // Pairs of the strong player against the classic one stop once the ratio leaves its bounds: H1 (200 Elo) when A is
    // the strong player, H0 (0 Elo) when A is the classic one, with a progress line after each pair.
    TestGame t;
    t.CopyData();
    const struct { std::string a, b, verdict; } rows[] = {
        {"strong:5", "classic", "H1 accepted: A is 200 Elo stronger rather than 0"},
        {"classic", "strong:5", "H0 accepted: A is 0 Elo stronger rather than 200"},
    };
    for (const auto& r : rows) {
        const auto result = RunCli("match --attackers " + r.a + " --defenders " + r.b +
                                   " --games 20 --openings 2 --sprt 0,200 pattern5.txt", t.folder.string());
        ASSERT_EQ(result.exitCode, 0) << result.err;
        EXPECT_EQ(StartingWith(result.out, r.verdict).size(), 1u) << r.a;
        const std::size_t pairs = StartingWith(result.out, "after ").size();
        EXPECT_EQ(StartingWith(result.out, "game ").size(), 2 * pairs) << r.a;
        EXPECT_LT(pairs, 10u) << r.a;
    }
}
