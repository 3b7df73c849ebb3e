#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "support/Fixtures.h"
#include "support/RunCli.h"

using jv::test::PlacePieces;
using jv::test::RunCli;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

const char* const OpeningOtn = "/3ttttt3/5t5/11/t4T4t/t3TTT3t/tt1TTKTT1tt/t3TTT3t/t4T4t/11/5t5/3ttttt3/";

std::string Quoted(const std::string& path) { return "'" + path + "'"; }

// The moves of a game record as `play` takes them: "defender:e6-d6 attacker:f1-f4 ...". Each numbered
// line holds the defenders' move, then the attackers'; "..." stands for a defenders' move not made.
std::string PlayMoves(const Lines& record) {
    const std::regex move("^([a-z][0-9]+-[a-z][0-9]+)(x[a-z0-9/]+)?(--|#)?$");
    std::string moves;
    for (const std::string& line : record) {
        if (line.empty() || line[0] == '[') continue;
        std::istringstream words(line);
        std::string word;
        words >> word;   // the number
        const char* side = "defender:";
        while (words >> word) {
            std::smatch m;
            if (word != "...") {
                EXPECT_TRUE(std::regex_match(word, m, move)) << word;
                moves += std::string(" ") + side + m[1].str();
            }
            side = "attacker:";
        }
    }
    return moves;
}

}  // namespace

TEST(CliOtn, PrintsTheOpenTaflPositionOfALayout) {
    // `otn FILE` prints the OTN of a layout file (or of a layout line on standard input with "-").
    TestGame t;
    t.CopyData("patf.txt");
    const auto opening = RunCli("otn patf.txt", t.folder.string());
    ASSERT_EQ(opening.exitCode, 0) << opening.err;
    EXPECT_EQ(opening.out, Lines{OpeningOtn});

    const auto piped = RunCli("otn -", t.folder.string(), "07070404HEE1EEHEEE1EEEEEE0EEE1100011EEE0EEEEEE1EEEHEE1EEH\r\n");
    ASSERT_EQ(piped.exitCode, 0) << piped.err;
    EXPECT_EQ(piped.out, Lines{"/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/"});

    const auto missing = RunCli("otn nothere.txt", t.folder.string());
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.err, "Error reading Layout File:\nnothere.txt\n");
    EXPECT_EQ(RunCli("otn", t.folder.string()).exitCode, 1);
}

TEST(CliOtn, FromOtnWritesALayoutFileOrSaysWhyNot) {
    // `from-otn POSITION OUT` writes the layout file of an OTN position through the layout writer; a
    // position no board of the program holds is refused with its reason and exit code 2.
    TestGame t;
    t.CopyData("patf.txt");
    const std::string patf = t.ReadFile("patf.txt");
    const auto made = RunCli("from-otn '" + std::string(OpeningOtn) + "' " + Quoted(t.Path("made.txt")), t.folder.string());
    ASSERT_EQ(made.exitCode, 0) << made.err;
    EXPECT_EQ(t.ReadFile("made.txt"), patf);
    EXPECT_EQ(made.out, Lines{patf.substr(0, patf.size() - 2)});

    const auto noKing = RunCli("from-otn /3/1T1/3/ " + Quoted(t.Path("noking.txt")), t.folder.string());
    EXPECT_EQ(noKing.exitCode, 2);
    EXPECT_EQ(noKing.err, "Not an OpenTafl position JarlsVakt can play: the position has no King\n");
    EXPECT_EQ(t.ReadFile("noking.txt"), "");
    std::string fifteen = "/15/15/15/15/15/15/15/7K7/15/15/15/15/15/15/15/";
    const auto wide = RunCli("from-otn " + fifteen + " " + Quoted(t.Path("wide.txt")), t.folder.string());
    EXPECT_EQ(wide.exitCode, 2);
    EXPECT_EQ(wide.err, "Not an OpenTafl position JarlsVakt can play: the position has 15 ranks, more than 14\n");

    const auto unwritable = RunCli("from-otn /3/1K1/3/ " + Quoted(t.Path("no/such/folder/x.txt")), t.folder.string());
    EXPECT_EQ(unwritable.exitCode, 2);
    EXPECT_NE(unwritable.err.find("could not be written"), std::string::npos);
    EXPECT_EQ(RunCli("from-otn /3/1K1/3/", t.folder.string()).exitCode, 1);
}

TEST(CliRecord, ASelfPlayGameReplayedFromItsRecordReachesTheSamePosition) {
    // A self-play game's moves log turned into a game record, and the record's moves played through `play`,
    // end on the log's final position.
    TestGame t;
    t.CopyData("all.col");
    PlacePieces(t.g, 9, 9,
                {"...aaa...", "....a....", "..a......", "a...d...a", "aa.dKd.aa", "a...d...a", "......a..",
                 "....a....", "...aaa..."});
    t.WriteFile("open.txt", jv::LayoutLine(t.g) + "\r\n");
    bool replayedACapture = false;
    for (int seed = 1; seed <= 5 && !replayedACapture; ++seed) {
        const std::string logs = t.Path("logs" + std::to_string(seed));
        const auto game = RunCli("selfplay open.txt --games 1 --max-moves 200 --seed " + std::to_string(seed) +
                                     " --log " + Quoted(logs),
                                 t.folder.string());
        ASSERT_EQ(game.exitCode, 0) << game.err;
        Lines log;
        ASSERT_TRUE(jv::ReadLines(logs + "/game0001.txt", log));

        const auto record = RunCli("record " + Quoted(logs + "/game0001.txt"), t.folder.string());
        ASSERT_EQ(record.exitCode, 0) << record.err;
        ASSERT_GE(record.out.size(), 3u);
        EXPECT_EQ(record.out[0], "[layout \"" + log.front() + "\"]");
        EXPECT_EQ(record.out[1], "[size \"9x9\"]");

        const auto replay = RunCli("play open.txt" + PlayMoves(record.out), t.folder.string());
        ASSERT_EQ(replay.exitCode, 0) << replay.err;
        for (const std::string& line : replay.out) EXPECT_EQ(line.find("REFUSED"), std::string::npos) << line;
        EXPECT_EQ(replay.out.back(), "LAYOUT " + log.back());
        for (const std::string& line : record.out) replayedACapture |= line.find('x') != std::string::npos;
    }
    EXPECT_TRUE(replayedACapture);
}

TEST(CliRecord, ALogWithABadLineIsReportedAtThatLine) {
    // A log whose positions are not one move apart is reported at the first bad line with exit code 2 and
    // nothing on standard output; an unreadable or empty log is reported too.
    TestGame t;
    PlacePieces(t.g, 5, 5, {".....", ".a...", "..K..", ".....", "....."});
    const std::string first = jv::LayoutLine(t.g);
    PlacePieces(t.g, 5, 5, {".....", "...a.", "..K..", ".....", "....."});
    const std::string second = jv::LayoutLine(t.g);
    PlacePieces(t.g, 5, 5, {".....", "...a.", ".....", "..K..", "....."});
    const std::string third = jv::LayoutLine(t.g);
    t.WriteFile("good.txt", first + "\r\n" + second + "\r\n" + third + "\r\n");
    const auto good = RunCli("record good.txt", t.folder.string());
    ASSERT_EQ(good.exitCode, 0) << good.err;
    EXPECT_EQ(good.out, (Lines{"[layout \"" + first + "\"]", "[size \"5x5\"]", "", "1. ... b4-d4", "2. c3-c2"}));

    t.WriteFile("bad.txt", first + "\r\n" + second + "\r\n" + first + "\r\n" + third + "\r\n");
    const auto bad = RunCli("record bad.txt", t.folder.string());
    EXPECT_EQ(bad.exitCode, 2);
    EXPECT_TRUE(bad.out.empty());
    EXPECT_EQ(bad.err, "Moves Log File:\nbad.txt\nline 4: pieces arrived on d4/c2: more than one move\n");

    const auto missing = RunCli("record nothere.txt", t.folder.string());
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.err, "Moves Log File:\nnothere.txt\ncould not be read\n");
    t.WriteFile("empty.txt", "");
    EXPECT_EQ(RunCli("record empty.txt", t.folder.string()).exitCode, 2);
    EXPECT_EQ(RunCli("record", t.folder.string()).exitCode, 1);
}

TEST(CliPlay, StandardMovesAreTakenBesideCcrrMoves) {
    // `play` takes "user:d5-b5" as it takes "user:0304>0302"; a standard move off the board is refused and a
    // move in neither form is a usage error.
    TestGame t;
    t.CopyData("pattern1.txt");
    const auto standard = RunCli("play pattern1.txt user:d5-b5 attacker:d7-b7 user:h1-a1", t.folder.string());
    ASSERT_EQ(standard.exitCode, 0) << standard.err;
    const auto digits = RunCli("play pattern1.txt 'user:0304>0302' 'attacker:0104>0102'", t.folder.string());
    ASSERT_EQ(standard.out.size(), 5u);
    EXPECT_EQ(standard.out[1], "  Player1 Move C4 > C2");
    EXPECT_EQ(standard.out[2], "  Player2 Move A4 > A2");
    EXPECT_EQ(standard.out[3], "REFUSED user:h1-a1");
    EXPECT_EQ(standard.out.back(), digits.out.back());

    const auto usage = RunCli("play pattern1.txt user:d5b5", t.folder.string());
    EXPECT_EQ(usage.exitCode, 1);
    EXPECT_NE(usage.err.find("not a move: user:d5b5"), std::string::npos);
}
