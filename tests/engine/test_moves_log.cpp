#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "session/LayoutCommands.h"
#include "session/Recording.h"
#include "records/PositionRecord.h"
#include "session/Undo.h"
#include "support/Fixtures.h"
#include "support/RunCli.h"

using namespace jv;
using jv::test::RunCli;
using jv::test::TestGame;

namespace {
// Three positions of a 5x5 game: the King on C3 with an attacker on B2; the attacker gone to B4; the
// King gone to C2.
const std::string Line1 = "0505" "0303" "HEEEH" "E1EEE" "EE0EE" "EEEEE" "HEEEH";
const std::string Line2 = "0505" "0303" "HEEEH" "EEE1E" "EE0EE" "EEEEE" "HEEEH";
const std::string Line3 = "0505" "0302" "HEEEH" "EEE1E" "E0EEE" "EEEEE" "HEEEH";
const std::string Log = Line1 + "\r\n" + Line2 + "\r\n" + Line3 + "\r\n";

std::string StepQuestion(int k, int n) {
    return "Step " + std::to_string(k) + " of " + std::to_string(n) + "\r\nStop ? [vbquestion+vbYesNoCancel]";
}

// A game in progress on the 7x7 board of pattern1.txt, one move made.
std::string GameInProgress(TestGame& t) {
    t.CopyData("pattern1.txt");
    LoadLayout(t.g, "pattern1.txt");
    t.g.Board(2, 2) = AttackerCode;
    t.view.Clear();
    return LayoutLine(t.g);
}
}  // namespace

TEST(MovesLog, TheFileNameIsMonthDayHourMinute) {
    // Switched on at 9:05 on 14 March, the log is named moveslogfile03140905.txt.
    EXPECT_EQ(MovesLogFileName({3, 14, 9, 5}), "moveslogfile03140905.txt");
    EXPECT_EQ(MovesLogFileName({12, 1, 23, 59}), "moveslogfile12012359.txt");
}

TEST(MovesLog, SwitchingOnAndOffWithoutAMoveLogsOneLine) {
    // Ticking names the log and says so; unticking records the position once, says "Recoding of moves
    // stopped", and keeps the name, so later moves still go to the same file.
    TestGame t;
    Game& g = t.g;
    const std::string line = GameInProgress(t);
    g.Clock = [] { return ClockReading{3, 14, 9, 5}; };

    RecordingSwitch(g, true);
    EXPECT_TRUE(g.Check2);
    EXPECT_EQ(g.MovesLogFile, "moveslogfile03140905.txt");
    EXPECT_EQ(t.view.Messages(),
              std::vector<std::string>{"Start recording moves to file:\r\nmoveslogfile03140905.txt [vbinformation+vbok]"});
    EXPECT_FALSE(std::filesystem::exists(t.Path("moveslogfile03140905.txt")));

    t.view.Clear();
    RecordingSwitch(g, false);
    EXPECT_FALSE(g.Check2);
    EXPECT_EQ(t.view.Messages(),
              std::vector<std::string>{
                  "Recoding of moves stopped, log is in file:\r\nmoveslogfile03140905.txt [vbinformation+vbok]"});
    EXPECT_EQ(t.ReadFile("moveslogfile03140905.txt"), line + "\r\n");
    EXPECT_EQ(g.Undo.size(), 1u);
    EXPECT_EQ(g.MovesLogFile, "moveslogfile03140905.txt");

    RecordMove(g);
    EXPECT_EQ(t.ReadFile("moveslogfile03140905.txt"), line + "\r\n" + line + "\r\n");
}

TEST(MovesLog, TheSystemClockNamesTheLogWhenNoneIsGivenAndTheEditorBlocksTheSwitch) {
    // Without a clock of its own the game reads the system clock; while the editor is open the switch
    // does nothing.
    TestGame t;
    Game& g = t.g;
    GameInProgress(t);
    g.EditorOn = true;
    RecordingSwitch(g, true);
    EXPECT_TRUE(g.MovesLogFile.empty());
    EXPECT_TRUE(t.view.Calls.empty());

    g.EditorOn = false;
    RecordingSwitch(g, true);
    ASSERT_TRUE(static_cast<bool>(g.Clock));
    EXPECT_TRUE(std::regex_match(g.MovesLogFile, std::regex("moveslogfile[01][0-9][0-3][0-9][0-2][0-9][0-5][0-9]\\.txt")))
        << g.MovesLogFile;
}

TEST(Replay, EveryStepIsShownAndThenTheGameComesBack) {
    // Replaying a log of 3 lines asks Step 1 of 3 to Step 3 of 3, then the game as it stood before the
    // replay is back as a fresh layout from "templayout.txt".
    TestGame t;
    Game& g = t.g;
    const std::string before = GameInProgress(t);
    t.WriteFile("game.txt", Log);
    t.view.FileChoices = {"game.txt"};
    t.view.Answers = {7, 7, 7};
    g.Undo = {"something"};

    ReplayCommand(g);

    EXPECT_EQ(t.view.Calls.front(), "ChooseFile OPEN Select a MovesLog file to load [*.txt] Game Files");
    EXPECT_EQ(t.view.Messages(), (std::vector<std::string>{StepQuestion(1, 3), StepQuestion(2, 3), StepQuestion(3, 3)}));
    EXPECT_EQ(LayoutLine(g), before);
    EXPECT_EQ(g.LayoutFile, t.Path("templayout.txt"));
    EXPECT_EQ(t.ReadFile("templayout.txt"), before + "\r\n");
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_EQ(g.EventLog, std::vector<std::string>{"Loaded Layout: " + t.Path("templayout.txt")});
}

TEST(Replay, YesStopsOnTheShownPositionAndCancelGoesBack) {
    // Yes at Step 2 leaves position 2 on the board with an empty Undo and the log named as the layout;
    // Cancel ends the replay at once and the game comes back.
    TestGame t;
    Game& g = t.g;
    GameInProgress(t);
    t.WriteFile("game.txt", Log);

    t.view.FileChoices = {"game.txt"};
    t.view.Answers = {7, 6};
    ReplayCommand(g);
    EXPECT_EQ(LayoutLine(g), Line2);
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_EQ(g.LayoutFile, "game.txt");
    EXPECT_EQ(t.view.LayoutCaption, "game.txt");
    EXPECT_EQ(t.view.Messages().size(), 2u);

    t.view.Clear();
    t.view.FileChoices = {"game.txt"};
    t.view.Answers = {2};
    ReplayCommand(g);
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{StepQuestion(1, 3)});
    EXPECT_EQ(LayoutLine(g), Line2);   // the position the game stood in, back from templayout.txt
    EXPECT_EQ(g.LayoutFile, t.Path("templayout.txt"));
}

TEST(Replay, EachLineIsTakenAtTheSizeOfTheFirstAndAShortLineKeepsTheRest) {
    // Every line is read at the size of the first line; a line short of squares leaves the others as the
    // step before showed them.
    TestGame t;
    Game& g = t.g;
    GameInProgress(t);
    // Line 2 says 3x3 and is short: only the King's square and the first column's five letters count.
    t.WriteFile("short.txt", Line1 + "\r\n" + "0303" "0303" "HE1EH" + "\r\n");
    t.view.FileChoices = {"short.txt"};
    t.view.Answers = {7, 6};
    ReplayCommand(g);
    EXPECT_EQ(g.BoardWidth, 5);
    EXPECT_EQ(LayoutLine(g), "0505" "0303" "HE1EH" "E1EEE" "EE0EE" "EEEEE" "HEEEH");
}

TEST(Replay, AnEmptyOrUnreadableLogIsReported) {
    // An empty log shows "No layouts in the Moves Log File:" with the style words after the file name;
    // a log that cannot be read is reported; the game stays as it was; a cancelled dialog does nothing.
    TestGame t;
    Game& g = t.g;
    const std::string before = GameInProgress(t);
    t.WriteFile("empty.txt", "");

    ReplayCommand(g);   // no file chosen
    EXPECT_EQ(t.view.Calls.size(), 1u);

    t.view.FileChoices = {"empty.txt", "absent.txt"};
    ReplayCommand(g);
    ReplayCommand(g);
    EXPECT_EQ(t.view.Messages(),
              (std::vector<std::string>{"No layouts in the Moves Log File:\r\nempty.txtvbcritical+vbok [vbok]",
                                        "Moves Log File:\r\nabsent.txt\r\ncould not be read [vbcritical+vbok]"}));
    EXPECT_EQ(LayoutLine(g), before);
    EXPECT_EQ(g.LayoutFile, "pattern1.txt");
}

TEST(CliReplay, PrintsEveryStepWithItsBoard) {
    // `replay` prints "Step k of n" and the board of every line of a moves log.
    TestGame t;
    t.WriteFile("game.txt", Log);
    const auto r = RunCli("replay game.txt", t.folder.string());
    ASSERT_EQ(r.exitCode, 0) << r.err;
    ASSERT_EQ(r.out.size(), 3u * 7u);
    EXPECT_EQ(r.out[0], "Step 1 of 3");
    EXPECT_EQ(r.out[1], "    1  2  3  4  5");
    EXPECT_EQ(r.out[3], "B   .  a  .  .  .");
    EXPECT_EQ(r.out[4], "C   .  .  K  .  .");
    EXPECT_EQ(r.out[7], "Step 2 of 3");
    EXPECT_EQ(r.out[10], "B   .  .  .  a  .");
    EXPECT_EQ(r.out[14], "Step 3 of 3");
    EXPECT_EQ(r.out[18], "C   .  K  .  .  .");

    t.WriteFile("empty.txt", "");
    EXPECT_EQ(RunCli("replay empty.txt", t.folder.string()).exitCode, 2);
}
