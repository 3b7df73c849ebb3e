// The game under a rule set other than the classic one: its board, the ends the rule board decides and their
// announcements, a shieldwall taken through the game's own move, the pointer's squares, the rules file at
// start-up and the automatic game.
#include <gtest/gtest.h>

#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "session/NewGame.h"
#include "session/PlayerMoves.h"
#include "session/Pointer.h"
#include "session/SelfPlay.h"
#include "session/Session.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::LayoutText;
using jv::test::TestGame;

namespace {

// A game under the named rule set on a layout line, the strong player thinking briefly.
void PlayUnder(TestGame& t, std::string_view rules, const std::string& layout) {
    t.g.GameRules = *FindRules(rules);
    t.g.Players.ThinkMillis = 200;
    ASSERT_TRUE(ApplyLayoutLine(t.g, layout).Ok()) << layout;
}

std::string LastLogLine(const Game& g) { return g.EventLog.empty() ? "" : g.EventLog.back(); }

}  // namespace

TEST(RuleSetBoard, HomeCornersStandOnlyWhereTheKingEscapesOntoThem) {
    // A rule set whose King escapes onto the corners has Home corners; elsewhere a corner is an ordinary square
    // that keeps the piece a layout puts there.
    const std::string layout = LayoutText({"H...a", ".....", "..K..", ".....", "H...H"});
    for (const Rules& rules : RuleSets()) {
        TestGame t;
        PlayUnder(t, rules.Name, layout);
        const bool corners = rules.KingEscape == Escape::Corners;
        EXPECT_EQ(t.g.Board(1, 1), corners ? HomeCode : EmptyCode) << rules.Name;
        EXPECT_EQ(t.g.Board(1, 5), corners ? HomeCode : AttackerCode) << rules.Name;
        EXPECT_EQ(IsHomeSquare(t.g, 5, 5), corners) << rules.Name;
    }
}

TEST(RuleSetPlay, EachEndIsForeseenByTheRuleBoardAndAnnouncedInPlainWords) {
    // A move that ends the game under its rule set is made with its captures, then the end is written in the
    // event log and shown, happy when the user's side wins; a move that ends nothing is answered by nothing more.
    const std::string repeat = LayoutText({"H.....H", "..d....", ".......", "...K..a", ".......", ".......", "H.....H"});
    const std::string repeated = LayoutText({"H.....H", ".d.....", ".......", "...K..a", ".......", ".......", "H.....H"});
    // The side the user plays, the computer's move (else the user's drop), how often the undo history holds the
    // position after the move, and the end announced ("" when the game goes on) with its style.
    const struct Row { const char* why; const char* rules; std::string layout; int userSide; bool computer; Move move;
                       int repeats; const char* end; const char* style; } rows[] = {
        {"the King on the edge", "Tablut", LayoutText({".......", "..K....", ".......", ".......", "...d...", "....a..", "......."}),
         DefenderCode, false, {2, 3, 1, 3}, 0, "The King has reached the edge: the defenders win", "vbhappy+vbok"},
        {"the King on a corner", "Copenhagen", LayoutText({"H.....H", "......K", ".......", ".......", "...d...", "....a..", "H.....H"}),
         DefenderCode, false, {2, 7, 1, 7}, 0, "The King has reached a corner: the defenders win", "vbhappy+vbok"},
        {"the King taken by two by the user", "Brandubh", LayoutText({"H.....H", ".aK....", "...a...", ".......", "...d...", ".......", "H.....H"}),
         AttackerCode, false, {3, 4, 2, 4}, 0, "The King is captured: the attackers win", "vbhappy+vbok"},
        {"the King taken by two by the computer", "Brandubh", LayoutText({"H.....H", ".aK....", "...a...", ".......", "...d...", ".......", "H.....H"}),
         DefenderCode, true, {3, 4, 2, 4}, 0, "The King is captured: the attackers win", "vbcritical+vbok"},
        {"the attackers' last piece taken", "Fetlar", LayoutText({"Ha..d.H", ".d.....", ".......", ".......", "....K..", ".......", "H.....H"}),
         DefenderCode, false, {1, 5, 1, 3}, 0, "The attackers cannot move: the defenders win", "vbhappy+vbok"},
        {"a position the third time", "Copenhagen", repeat, DefenderCode, false, {2, 3, 2, 2}, 2,
         "The same position has come round a third time: the attackers win", "vbcritical+vbok"},
        {"a position the second time", "Copenhagen", repeat, DefenderCode, false, {2, 3, 2, 2}, 1, "", ""},
    };
    for (const Row& r : rows) {
        TestGame t;
        PlayUnder(t, "Copenhagen", repeated);
        const std::string after = EncodePosition(t.g);
        PlayUnder(t, r.rules, r.layout);
        t.g.Players.UserSide = r.userSide;
        t.g.Check1 = false;
        t.g.Undo.assign(static_cast<std::size_t>(r.repeats), after);
        if (r.computer) MakeAttackerMove(t.g, r.move);
        else ASSERT_TRUE(BeginDrag(t.g, r.move.From.Col, r.move.From.Row) && EndDrag(t.g, r.move.To.Col, r.move.To.Row)) << r.why;
        const bool ends = *r.end != '\0';
        EXPECT_EQ(t.g.GameOver, ends) << r.why;
        EXPECT_EQ(t.g.Undo.size(), static_cast<std::size_t>(r.repeats) + 1) << r.why;   // the move is recorded
        if (ends) EXPECT_EQ(LastLogLine(t.g), r.end) << r.why;
        using Lines = std::vector<std::string>;
        const Lines shown{std::string(r.end) + "\r\nClick Reset to start a new game [" + r.style + "]"};
        EXPECT_EQ(t.view.Messages(), ends ? shown : Lines{}) << r.why;
    }
}

TEST(RuleSetPlay, AShieldwallIsTakenPieceByPieceThroughTheGamesOwnMove) {
    // The attacker that closes a shieldwall along the edge takes every piece of it, each marked, taken after
    // the pause and logged, in the order the rule board gives.
    TestGame t;
    PlayUnder(t, "Copenhagen", LayoutText({"Hadd...H", "..aa....", "....a...", "........", "....K...", "........", "........", "H......H"}));
    t.g.Check1 = false;
    MakeAttackerMove(t.g, {{3, 5}, {1, 5}});
    std::vector<std::string> captures;
    for (const std::string& call : t.view.Calls)
        if (call.starts_with("MarkVictim") || call.find("captures") != std::string::npos) captures.push_back(call);
    EXPECT_EQ(captures, (std::vector<std::string>{"MarkVictim 1 4", "PrintLine |  Player 2 captures A4| 2 0",
                                                  "MarkVictim 1 3", "PrintLine |  Player 2 captures A3| 2 0"}));
    EXPECT_EQ(std::tuple(t.g.Board(1, 3), t.g.Board(1, 4), t.g.Board(1, 5)), std::tuple(EmptyCode, EmptyCode, AttackerCode));
    EXPECT_FALSE(t.g.GameOver);
}

TEST(RuleSetPointer, APieceIsOfferedTheSquaresTheRulesAllow) {
    // Under a rule set other than the classic one a piece is offered the rule board's squares: past an empty
    // throne but not onto it, a corner to the King only where corners are Home, any corner where they are not;
    // the classic pointer still offers the centre.
    const std::string layout = LayoutText({"H.....H", "...d...", ".......", ".......", ".......", "K......", "H....dH"});
    const struct { const char* rules; int fromCol, fromRow, toCol, toRow; bool offered; } rows[] = {
        {"Copenhagen", 2, 4, 4, 4, false}, {"Copenhagen", 2, 4, 5, 4, true}, {"Copenhagen", 6, 1, 7, 1, true},
        {"Copenhagen", 7, 6, 7, 7, false}, {"Tablut", 7, 6, 7, 7, true},     {"Tablut", 2, 4, 4, 4, false},
        {"Classic", 2, 4, 4, 4, true},
    };
    for (const auto& r : rows) {
        TestGame t;
        PlayUnder(t, r.rules, layout);
        const bool offered = PieceTargets(t.g, r.fromCol, r.fromRow).find(SquareItem(r.toCol, r.toRow)) != std::string::npos;
        EXPECT_EQ(offered, r.offered) << r.rules << " " << SquareName(t.g, r.toCol, r.toRow);
    }
}

TEST(RulesFile, StartUpPlaysTheRulesAndTheOpeningItKeepsElseTheClassicGame) {
    // A readable rules.cfg gives the start its rule set and its opening (a name may hold blanks) and is written
    // back as it was read; a file with a line that is no setting of the rules is refused whole, and the classic
    // game starts on the configuration's layout.
    const struct { const char* text; const char* rules; const char* layout; } rows[] = {
        {"rules copenhagen\r\nopening my copenhagen.txt\r\n", "Copenhagen", "my copenhagen.txt"},
        {"rules Tablut\n", "Tablut", "patf.txt"},
        {"rules chess\n", "Classic", "patf.txt"},
        {"rules Tablut\nopening\n", "Classic", "patf.txt"},
        {"rules Tablut\nplayers two\n", "Classic", "patf.txt"},
    };
    for (const auto& r : rows) {
        TestGame t;
        t.CopyData();
        t.WriteFile("my copenhagen.txt", t.ReadFile("copenhagen.txt"));
        t.WriteFile("rules.cfg", r.text);
        ASSERT_TRUE(StartUp(t.g)) << r.text;
        EXPECT_EQ(std::tuple(std::string(t.g.GameRules.Name), t.g.LayoutFile), std::tuple(r.rules, r.layout)) << r.text;
        ASSERT_TRUE(WriteRules(t.g));
        Game again;
        again.ProgramFolder = t.g.ProgramFolder;
        ReadRules(again);
        EXPECT_EQ(std::tuple(std::string(again.GameRules.Name), again.LayoutFile), std::tuple(r.rules, r.layout)) << r.text;
    }
}

TEST(RuleSetAutoGame, TheSideToMoveBeginsAndTheEndOfTheGameStopsIt) {
    // Under Tablut the attackers move first; the King with two ways to the edge escapes on the next move, and
    // the automatic game ends there by itself.
    const std::string layout = LayoutText({".......", ".K.....", ".......", ".......", ".......", "....d..", "......a"});
    TestGame t;
    PlayUnder(t, "Tablut", layout);
    const AutoGameResult result = PlayAutoGame(t.g, 10);
    EXPECT_EQ(std::tuple(result.End, result.Moves), std::tuple(GameEnd::KingAtHome, 2));

    TestGame u;
    PlayUnder(u, "Tablut", layout);
    int events = 0;
    u.view.OnEvents = [&] {
        if (++events == 2000) AutoGame(u.g);   // the user's stop, should it run on
    };
    AutoGame(u.g);
    EXPECT_LT(events, 2000);
    EXPECT_EQ(u.g.Result, GameEnding::KingHome);
    ASSERT_GE(u.g.EventLog.size(), 2u);
    EXPECT_TRUE(u.g.EventLog[0].starts_with("  Player2 Move")) << u.g.EventLog[0];
}
