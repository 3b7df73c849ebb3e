#include <gtest/gtest.h>

#include "support/Fixtures.h"
#include "support/RunCli.h"

using jv::test::RunCli;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

TEST(CliPlay, PrintsEveryLogLineAndRefusalInTheProgramsOrder) {
    // `play` loads the layout, plays the user's drags, the computer's moves and undo in order, prints what
    // the log gets, "REFUSED" for a user move that changes nothing, and the final layout line.
    TestGame t;
    t.CopyData("pattern1.txt");
    const auto r = RunCli("play pattern1.txt 'user:0304>0302' 'user:0504>0502' 'user:0104>0105' 'user:0404>0304' "
                          "'user:0405>0404' 'attacker:0604>0504' undo 'defender:0403>0303'",
                          t.folder.string());
    ASSERT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, (Lines{"Loaded Layout: pattern1.txt",
                            "  Player1 Move C4 > C2",
                            "  Player1 Move E4 > E2",
                            "  Player 1 captures D2",
                            "REFUSED user:0104>0105",   // an attacker cannot be picked up
                            "  King Move D4 > C4",
                            "REFUSED user:0405>0404",   // only the King stops on the centre
                            "  Player2 Move F4 > E4",
                            "  Player1 Move D3 > C3",   // after the undo: E4 is empty again
                            "LAYOUT 07070304HEE1EEHEEE1EEEE000EEE1EEE011E0EEEEEEEE1EEEHEE1EEH"}));
}

TEST(CliPlay, ShowsTheEndMessagesWithTheirStyles) {
    // The King reaching a corner and the King taken are shown as messages with their styles; after either,
    // the board takes no more drags.
    TestGame t;
    t.WriteFile("kinghome.txt", "07070104HEE0EEH" "EEEEEEE" "EEEEEEE" "EEEEEEE" "EEEEEEE" "EEEEEEE" "HEEEEEH\r\n");
    const auto home = RunCli("play kinghome.txt 'user:0104>0101' 'user:0101>0102'", t.folder.string());
    ASSERT_EQ(home.exitCode, 0) << home.err;
    EXPECT_EQ(home.out, (Lines{"Loaded Layout: kinghome.txt",
                               "MESSAGE [vbhappy+vbok]: King at Home ! / Click Reset to start a new game",
                               "REFUSED user:0101>0102",
                               "LAYOUT 070701010EEEEEH" "EEEEEEE" "EEEEEEE" "EEEEEEE" "EEEEEEE" "EEEEEEE" "HEEEEEH"}));

    t.WriteFile("taken.txt", "07070401HEEEEEH" "E1EEEEE" "10EEEEE" "0EEEEEE" "1EEEEEE" "E1EEEEE" "HEEEEEH\r\n");
    const auto taken = RunCli("play taken.txt 'attacker:0602>0402' 'user:0302>0303'", t.folder.string());
    ASSERT_EQ(taken.exitCode, 0) << taken.err;
    EXPECT_EQ(taken.out, (Lines{"Loaded Layout: taken.txt",
                                "  Player2 Move F2 > D2",
                                "MESSAGE [vbcritical+vbok]: King Captured ! / Click Reset to start a new game",
                                "REFUSED user:0302>0303",
                                "LAYOUT 07070401HEEEEEH" "E1EEEEE" "10EEEEE" "01EEEEE" "1EEEEEE" "EEEEEEE" "HEEEEEH"}));
}

TEST(CliPlay, TheAutomaticReplyFollowsEachUserMoveAndASeedRepeatsIt) {
    // With --auto-reply the computer answers the user's move with one attacker move; the same seed gives
    // the same game.
    TestGame t;
    t.CopyData("pattern1.txt");
    const std::string args = "play pattern1.txt --auto-reply --seed 7 'user:0304>0302'";
    const auto first = RunCli(args, t.folder.string());
    ASSERT_EQ(first.exitCode, 0) << first.err;
    ASSERT_EQ(first.out.size(), 4u);
    EXPECT_EQ(first.out[1], "  Player1 Move C4 > C2");
    EXPECT_EQ(first.out[2].substr(0, 15), "  Player2 Move ");
    EXPECT_EQ(RunCli(args, t.folder.string()).out, first.out);
}

TEST(CliPlay, BadArgumentsAreRefusedWithoutACrash) {
    // A move that is not CCRR>CCRR is a usage error; a computer move off the board is refused; a layout that
    // cannot be read is reported and gives exit code 2.
    TestGame t;
    t.CopyData("pattern1.txt");
    t.CopyData("patf.txt");
    const auto usage = RunCli("play pattern1.txt 'user:03040302'", t.folder.string());
    EXPECT_EQ(usage.exitCode, 1);
    EXPECT_TRUE(usage.out.empty());
    EXPECT_NE(usage.err.find("not a move: user:03040302"), std::string::npos);

    const auto offBoard = RunCli("play pattern1.txt 'attacker:0009>0101' 'user:9999>0101'", t.folder.string());
    ASSERT_EQ(offBoard.exitCode, 0);
    EXPECT_EQ(offBoard.out[1], "REFUSED attacker:0009>0101");
    EXPECT_EQ(offBoard.out[2], "REFUSED user:9999>0101");

    const auto missing = RunCli("play nothere.txt", t.folder.string());
    EXPECT_EQ(missing.exitCode, 2);
    ASSERT_FALSE(missing.out.empty());
    EXPECT_EQ(missing.out[0], "MESSAGE [vbcritical+vbok]: Error reading Layout File: / nothere.txt");
}

TEST(CliPerft, PrintsOneLinePerFirstMoveAndTheTotal) {
    // `perft` prints "CCRR>CCRR: N" for every first move and "total: N"; --side chooses who moves first.
    TestGame t;
    t.CopyData("pattern1.txt");
    const auto one = RunCli("perft pattern1.txt 1", t.folder.string());
    ASSERT_EQ(one.exitCode, 0) << one.err;
    ASSERT_EQ(one.out.size(), 25u);
    EXPECT_EQ(one.out.front(), "0304>0303: 1");   // C4 to C3, the first defender's first square
    EXPECT_EQ(one.out.back(), "total: 24");
    const auto two = RunCli("perft pattern1.txt 2 --side attackers", t.folder.string());
    ASSERT_EQ(two.exitCode, 0) << two.err;
    EXPECT_EQ(two.out.back(), "total: 960");
    EXPECT_EQ(RunCli("perft pattern1.txt 2 --side both", t.folder.string()).exitCode, 1);
    EXPECT_EQ(RunCli("perft pattern1.txt", t.folder.string()).exitCode, 1);
}
