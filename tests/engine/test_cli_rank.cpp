#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "records/PositionRecord.h"
#include "support/Fixtures.h"
#include "support/RunCli.h"

using jv::test::PlacePieces;
using jv::test::RunCli;
using jv::test::TestDataPath;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

Lines GoldenLines(const std::string& name) {
    std::ifstream in(TestDataPath("golden/" + name));
    Lines lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// Writes the position built from the columns as a layout file of the test's folder.
void WriteLayout(TestGame& t, const std::string& name, std::initializer_list<const char*> cols) {
    PlacePieces(t.g, 7, 7, cols);
    t.WriteFile(name, jv::LayoutLine(t.g) + "\r\n");
}

}  // namespace

TEST(CliRank, PrintsTheRankingThenTheCandidateList) {
    // `rank` loads the layout as a new game and prints the plan or rule lines, "--", then List1A or List1D.
    TestGame t;
    t.CopyData();
    const auto attackers = RunCli("rank attackers patf.txt", t.folder.string());
    ASSERT_EQ(attackers.exitCode, 0) << attackers.err;
    EXPECT_EQ(attackers.out, GoldenLines("patf.attackers.txt"));
    const auto defenders = RunCli("rank defenders '" + TestDataPath("crowded14.txt") + "' --mode 1", t.folder.string());
    ASSERT_EQ(defenders.exitCode, 0) << defenders.err;
    EXPECT_EQ(defenders.out, GoldenLines("crowded14.defenders-mode1.txt"));

    EXPECT_EQ(RunCli("rank", t.folder.string()).exitCode, 1);
    EXPECT_EQ(RunCli("rank defenders patf.txt --mode 2", t.folder.string()).exitCode, 1);
    const auto missing = RunCli("rank attackers nothere.txt", t.folder.string());
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.err, "Error reading Layout File:\nnothere.txt\n");
}

TEST(CliSelfplay, OneLinePerGameAndASummary) {
    // `selfplay` plays the computer against itself, defenders first, and says how each game ended.
    TestGame t;
    t.CopyData("all.col");
    WriteLayout(t, "run.txt", {"...K..."});
    const auto run = RunCli("selfplay run.txt --games 2", t.folder.string());
    ASSERT_EQ(run.exitCode, 0) << run.err;
    ASSERT_EQ(run.out.size(), 4u);
    EXPECT_EQ(run.out[0], "game 1: King with a free run home after 0 moves");
    EXPECT_EQ(run.out[1], "game 2: King with a free run home after 0 moves");
    EXPECT_EQ(run.out[2], "2 games: King captured 0, King at Home 0, King with a free run home 2, no move for the "
                          "defenders 0, no move for the attackers 0, move limit 0");
    EXPECT_EQ(run.out[3].find(" moves in "), 1u);

    // With a log folder every game is written as a moves log, ending with the final position.
    WriteLayout(t, "limit.txt", {".d.Ka.."});
    const std::string opening = jv::LayoutLine(t.g);
    const auto limited = RunCli("selfplay limit.txt --games 1 --max-moves 1 --seed 3 --log '" + t.Path("logs") + "'",
                                t.folder.string());
    ASSERT_EQ(limited.exitCode, 0) << limited.err;
    EXPECT_EQ(limited.out[0], "game 1: move limit after 1 moves");
    const std::string log = t.ReadFile("logs/game0001.txt");
    ASSERT_GT(log.size(), opening.size() + 2);
    EXPECT_EQ(log.substr(0, opening.size() + 2), opening + "\r\n");

    EXPECT_EQ(RunCli("selfplay run.txt", t.folder.string()).exitCode, 1);
    EXPECT_EQ(RunCli("selfplay run.txt --games x", t.folder.string()).exitCode, 1);
}
