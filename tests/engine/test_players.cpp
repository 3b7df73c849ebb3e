// The computer player of each side: the players' settings file, and the strong player in the game.
#include <gtest/gtest.h>

#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/PlayerSettings.h"
#include "records/PositionRecord.h"
#include "session/ComputerMoves.h"
#include "session/Pointer.h"
#include "session/StrongTurn.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::TestGame;

// The King on D4 with three attackers round him: an attacker onto D5 takes him.
const char* const Takeable = "07070404" "HEEEEEH" "EEEEEEE" "EEE1EEE" "EE10E1E" "EEE1EEE" "EEEEEEE" "HEEEEEH";

TEST(PlayerSettings, ReadsItsSettingsOrRefusesTheTextWhole) {
    // Each line names a side's player, the thinking time and whether it may end early, the user's side or the engine's command line (kept as
    // written); any other line refuses the text and leaves the choice as it was; what is written reads back the same.
    const PlayerChoice strong{PlayerKind::Strong, PlayerKind::Classic, 3000};
    const struct { const char* text; bool ok; PlayerChoice after; } rows[] = {
        {"attackers strong\r\ndefenders classic\r\nthink 3000\r\n", true, strong},
        {"user attackers\n", true, {PlayerKind::Classic, PlayerKind::Classic, 1000, AttackerCode}},
        {"user King\n", false, {}},
        {"think 3000\nattackers strong\n\n", true, strong},
        {"attackers strong\nthink 2500\n", false, {}},
        {"attackers strongest\n", false, {}},
        {"defenders classic extra\n", false, {}},
        {"", true, {}},
        {"defenders engine\nengine  sh -c 'my engine' --depth 3 \n", true,
         {PlayerKind::Classic, PlayerKind::Engine, 1000, DefenderCode, "sh -c 'my engine' --depth 3 "}},
        {"attackers engines\n", false, {}},
        {"think 3000\nearly yes\n", true, {PlayerKind::Classic, PlayerKind::Classic, 3000, DefenderCode, "", true}},
        {"early maybe\n", false, {}},
    };
    for (const auto& r : rows) {
        PlayerChoice players;
        EXPECT_EQ(ReadPlayersText(players, r.text).Ok(), r.ok) << r.text;
        EXPECT_EQ(players, r.after) << r.text;
        PlayerChoice again;
        ASSERT_TRUE(ReadPlayersText(again, PlayersText(players)).Ok());
        EXPECT_EQ(again, players);
    }
}

TEST(StrongPlayer, PlaysItsSideAndStopsWhenTheGameChangesUnderIt) {
    // With the strong player on the attackers' side, the computer's move takes the King when one move
    // does; a move of the user's made while it thinks stops it, and it makes no move then.
    for (bool interrupted : {false, true}) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, Takeable).Ok());
        t.g.Players = {PlayerKind::Strong, PlayerKind::Classic, 200};
        if (interrupted) t.view.OnEvents = [&] { t.g.Board(1, 2) = AttackerCode; };
        MakeRedAutoMove(t.g);
        EXPECT_EQ(t.g.GameOver, !interrupted) << interrupted;
        EXPECT_EQ(t.g.Undo.size(), interrupted ? 0u : 1u) << interrupted;
        EXPECT_EQ(t.g.SearchLines.empty(), interrupted);
        if (interrupted) EXPECT_TRUE(t.view.Messages().empty());
    }
}

TEST(StrongPlayer, ComingBackToAPositionOfTheGameIsADrawForTheSideToMoveThere) {
    // Coming back to a position of the game with the same side to move is a draw; the history's sides alternate.
    using jv::test::LayoutText;
    // The King on C4 wins fastest by A4, open to A1 and A7. The history is newest first: a record at an even place
    // is a position with the attackers to move, at an odd place one with the defenders to move.
    const std::string now = LayoutText({".......", ".......", ".a.K.a.", ".......", "...a...", ".......", "......."});
    const std::string onA4 = LayoutText({"...K...", ".......", ".a...a.", ".......", "...a...", ".......", "......."});
    const struct { const char* why; int recordsBefore; bool playsA4; } rows[] = {
        {"A4 not in the history", -1, true},
        {"A4 the position the attackers' last move began from", 0, false},
        {"A4 the position the defenders' last move began from", 1, true},
        {"A4 the position of the attackers' move before", 2, false},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, onA4).Ok());
        const std::string earlier = EncodePosition(t.g);
        ASSERT_TRUE(ApplyLayoutLine(t.g, now).Ok());
        for (int k = 0; k < r.recordsBefore; ++k) t.g.Undo.push_back(EncodePosition(t.g));
        if (r.recordsBefore >= 0) t.g.Undo.push_back(earlier);
        t.g.Players = {PlayerKind::Classic, PlayerKind::Strong, 1000};   // a forced result ends the search
        const std::optional<Move> move = ThinkStrong(t.g, DefenderCode);
        ASSERT_TRUE(move.has_value()) << r.why;
        EXPECT_EQ(*move == (Move{3, 4, 1, 4}), r.playsA4) << r.why;
    }
}

TEST(UserSide, TheUserMayPlayTheAttackersAndTheComputerAnswersWithTheDefenders) {
    // Playing the attackers, the user drags attackers only; a drop that surrounds the King takes him,
    // and any other drop is answered by the defenders.
    for (bool takes : {true, false}) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, Takeable).Ok());
        t.g.Players.UserSide = AttackerCode;
        EXPECT_FALSE(BeginDrag(t.g, 4, 4));   // the King is not the user's
        ASSERT_TRUE(BeginDrag(t.g, 4, 6) && EndDrag(t.g, 4, takes ? 5 : 7));
        EXPECT_EQ(t.g.GameOver, takes);
        EXPECT_EQ(t.g.Undo.size(), takes ? 1u : 2u);   // without the King taken, the defenders' answer follows
        if (takes) EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"King Captured !\r\nClick Reset to start a new game [vbcritical+vbok]"});
    }
}
