#include <gtest/gtest.h>

#include <algorithm>

#include "session/Session.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Calls = std::vector<std::string>;

namespace {
// The log lines of moves, in order: "D" for a defender or the King, "A" for an attacker.
std::string MoveSides(const Game& g) {
    std::string sides;
    for (const std::string& line : g.EventLog) {
        if (line.rfind("  Player1 Move", 0) == 0 || line.rfind("  King Move", 0) == 0) sides += 'D';
        if (line.rfind("  Player2 Move", 0) == 0) sides += 'A';
    }
    return sides;
}
}  // namespace

TEST(StartUp, WithoutAllColTheProgramSaysSoAndEnds) {
    // The colour schemes are indispensable: without "all.col" the program shows why and ends before
    // anything else is read or loaded.
    TestGame t;
    Game& g = t.g;
    EXPECT_FALSE(StartUp(g));
    EXPECT_EQ(t.view.Calls, (Calls{"Show File: all.col is missing\r\nProgram cannot run without this file [vbok+vbcritical]",
                                   "DoEvents", "EndProgram"}));
    EXPECT_TRUE(g.Ending);
    EXPECT_EQ(g.BoardWidth, 0);
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), "");
}

TEST(StartUp, ReadsTheSettingsThenLoadsTheLayoutAndSaysWhoMoves) {
    // Start-up reads the configuration (writing the defaults on a first run) and the colour scheme, lets the
    // window apply them, loads the configured layout and logs that Player1, the defenders, move first.
    TestGame t;
    t.CopyData();
    Game& g = t.g;
    g.Check1 = false;
    int applied = 0;
    bool appliedBeforeLoad = false;
    EXPECT_TRUE(StartUp(g, [&] {
        ++applied;
        appliedBeforeLoad = g.BoardWidth == 0 && !t.ReadFile("jarlsvakt.cfg").empty();
    }));
    EXPECT_EQ(applied, 1);
    EXPECT_TRUE(appliedBeforeLoad);
    EXPECT_TRUE(g.Check1);
    EXPECT_EQ(g.BoardWidth, 11);
    EXPECT_EQ(g.EventLog, (std::vector<std::string>{"Loaded Layout: patf.txt", "  Player1 to move ..."}));
    EXPECT_EQ(t.view.Calls.back(), "PrintLine |  Player1 to move ...| 1 0");
    EXPECT_FALSE(GameFinished(g));
}

TEST(StartUp, LoadsTheLayoutTheConfigurationNames) {
    // The layout named on the configuration's second line is the one the first game is played on.
    TestGame t;
    t.CopyData();
    t.WriteFile("jarlsvakt.cfg",
                "xp.col\r\npattern1.txt\r\nplayer00.ico\r\nplayer10.ico\r\nhome0.ico\r\nking0.ico\r\n"
                "32768 128 8421504 0\r\n0 1 1 0 0\r\n");
    Game& g = t.g;
    EXPECT_TRUE(StartUp(g));
    EXPECT_EQ(g.BoardWidth, 7);
    EXPECT_EQ(g.EventLog.front(), "Loaded Layout: pattern1.txt");
}

TEST(ExitCommand, OnlyYesWritesTheConfigurationAndEnds) {
    // "Exit?" answered No leaves everything as it was; Yes writes the configuration and ends the program.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("jarlsvakt.cfg", "as it was");
    t.view.Answers = {7};
    EXPECT_FALSE(ExitCommand(g));
    EXPECT_EQ(t.view.Calls, Calls{"Show Exit? [vbQuestion + vbYesNo]"});
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), "as it was");
    EXPECT_FALSE(g.Ending);

    t.view.Clear();
    t.view.Answers = {6};
    EXPECT_TRUE(ExitCommand(g));
    EXPECT_EQ(t.view.Calls.front(), "Show Exit? [vbQuestion + vbYesNo]");
    EXPECT_EQ(t.view.Calls.back(), "EndProgram");
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg").substr(0, 16), "xp.col\r\npatf.txt");
    EXPECT_TRUE(g.Ending);
}

TEST(AutoGame, PlaysDefendersFirstThenAttackersUntilTheProgramEnds) {
    // The automatic game alternates the computer's defender and attacker moves, defenders first, goes on
    // after a game has ended, and stops only when the program ends.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".", ".a...a", "..d", "...K", ".", ".a...a"});
    g.Random.Timer = [] { return 1.0; };
    g.BoardEnabled = false;   // a finished game does not stop it
    t.view.OnEvents = [&] {
        if (MoveSides(g).size() >= 4) g.Ending = true;
    };
    AutoGame(g);
    EXPECT_EQ(MoveSides(g), "DADA");

    // The program ending while the loop waits for events ends it before the next move.
    PlacePieces(g, 7, 7, {".", ".a...a", "..d", "...K", ".", ".a...a"});
    g.Ending = false;
    t.view.OnEvents = [&] { g.Ending = true; };
    AutoGame(g);
    EXPECT_EQ(MoveSides(g), "");
}
