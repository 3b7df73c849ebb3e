// The moves log: switching the recording on and off, and replaying a log step by step.
#include <gtest/gtest.h>

#include "session/LayoutCommands.h"
#include "session/Recording.h"
#include "records/PositionRecord.h"
#include "session/Undo.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {
// Three positions of a 5x5 game: the King on C3 with an attacker on B2; the attacker gone to B4; the
// King gone to C2.
const std::string Line1 = "0505" "0303" "HEEEH" "E1EEE" "EE0EE" "EEEEE" "HEEEH";
const std::string Line2 = "0505" "0303" "HEEEH" "EEE1E" "EE0EE" "EEEEE" "HEEEH";
const std::string Line3 = "0505" "0302" "HEEEH" "EEE1E" "E0EEE" "EEEEE" "HEEEH";

// A game in progress on the 7x7 board of pattern1.txt, one move made.
std::string GameInProgress(TestGame& t) {
    t.CopyData("pattern1.txt");
    LoadLayout(t.g, "pattern1.txt");
    t.g.Board(2, 2) = AttackerCode;
    t.view.Clear();
    return LayoutLine(t.g);
}
}  // namespace

TEST(MovesLog, SwitchingOnNamesTheLogAndSwitchingOffRecordsThePosition) {
    // Recording names the moves log by the clock; switching it off records the position once.
    TestGame t;
    const std::string line = GameInProgress(t);
    t.g.Clock = [] { return ClockReading{3, 14, 9, 5}; };
    RecordingSwitch(t.g, true);
    EXPECT_EQ(t.ReadFile("moveslogfile03140905.txt"), "");   // nothing is written before a move
    RecordingSwitch(t.g, false);
    EXPECT_EQ(t.view.Messages(),
              (Lines{"Start recording moves to file:\r\nmoveslogfile03140905.txt [vbinformation+vbok]",
                     "Recoding of moves stopped, log is in file:\r\nmoveslogfile03140905.txt [vbinformation+vbok]"}));
    EXPECT_EQ(t.ReadFile(t.g.MovesLogFile), line + "\r\n");
    EXPECT_EQ(MovesLogFileName({12, 1, 23, 59}), "moveslogfile12012359.txt");
}

TEST(Replay, EachAnswerToAStepDoesWhatItSays) {
    // A replay shows each line in turn: No goes on, Yes stops there, Cancel brings the game back.
    const std::string log = Line1 + "\r\n" + Line2 + "\r\n" + Line3 + "\r\n";
    const struct { const char* why; std::string log; std::deque<int> answers; std::string after; } rows[] = {
        {"No to every step", log, {7, 7, 7}, ""},
        {"Yes at step 2", log, {7, 6}, Line2},
        {"Cancel at step 1", log, {2}, ""},
        {"a short line of another size", Line1 + "\r\n0303" "0303" "HE1EH\r\n" + Line3 + "\r\n", {7, 6},
         "0505" "0303" "HE1EH" "E1EEE" "EE0EE" "EEEEE" "HEEEH"},
    };
    for (const auto& r : rows) {
        TestGame t;
        const std::string before = GameInProgress(t);
        t.g.Undo = {"something"};
        t.WriteFile("game.txt", r.log);
        t.view.FileChoices = {"game.txt"};
        t.view.Answers = r.answers;
        ReplayCommand(t.g);
        Lines steps;
        for (std::size_t k = 1; k <= r.answers.size(); ++k)
            steps.push_back("Step " + std::to_string(k) + " of 3\r\nStop ? [vbquestion+vbYesNoCancel]");
        EXPECT_EQ(t.view.Messages(), steps) << r.why;
        EXPECT_EQ(LayoutLine(t.g), r.after.empty() ? before : r.after) << r.why;
        EXPECT_EQ(t.g.LayoutFile, r.after.empty() ? t.Path("templayout.txt") : "game.txt") << r.why;
        EXPECT_TRUE(t.g.Undo.empty()) << r.why;
    }
}

TEST(Replay, AnEmptyOrUnreadableLogIsReportedAndTheGameStays) {
    // An empty or unreadable moves log is reported and the game stays as it was.
    TestGame t;
    const std::string before = GameInProgress(t);
    t.WriteFile("empty.txt", "");
    t.view.FileChoices = {"empty.txt", "absent.txt"};
    ReplayCommand(t.g);
    ReplayCommand(t.g);
    EXPECT_EQ(t.view.Messages(), (Lines{"No layouts in the Moves Log File:\r\nempty.txtvbcritical+vbok [vbok]",
                                        "Moves Log File:\r\nabsent.txt\r\ncould not be read [vbcritical+vbok]"}));
    EXPECT_EQ(LayoutLine(t.g), before);
}
