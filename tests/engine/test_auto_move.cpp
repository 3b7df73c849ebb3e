// The computer's moves: the best-ranked move, ties drawn at random, the random mover and self-play.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "session/ComputerMoves.h"
#include "session/SelfPlay.h"
#include "session/Session.h"
#include "core/VbText.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {
// Sets up a layout line, or the shipped layout file of that name.
ReadResult LoadPosition(Game& g, const std::string& layout) {
    return layout.ends_with(".txt") ? ReadLayoutFile(g, jv::test::DataPath(layout)) : ApplyLayoutLine(g, layout);
}
}  // namespace

TEST(MakeRedAutoMove, TiedBestMovesAreDrawnFromATimerSeededGenerator) {
    // The computer plays line Int(Rnd * n + 1) of its tied best moves, drawn after reseeding from the timer.
    std::set<std::string> played;
    for (double seed : {12345.0, 1.5, 777.25, 40000.0, 86399.0, 3.0}) {
        TestGame t;
        ASSERT_TRUE(LoadPosition(t.g, "patf.txt").Ok());
        t.g.Random.Timer = [seed] { return seed; };
        MakeRedAutoMove(t.g);
        ASSERT_EQ(t.g.List3.size(), 8u) << seed;
        Chance draw;
        draw.Randomize(seed);
        const std::string& taken = t.g.List3[static_cast<std::size_t>(std::floor(draw.Rnd() * 8))];
        EXPECT_EQ(t.g.Board(ValInt(taken.substr(0, 2)), ValInt(taken.substr(2, 2))), AttackerCode) << seed;
        EXPECT_EQ(t.g.Board(ValInt(taken.substr(5, 2)), ValInt(taken.substr(7, 2))), EmptyCode) << seed;
        played.insert(taken);
    }
    EXPECT_GT(played.size(), 1u);
}

// The King boxed in by four attackers, no other defender: the defenders truly cannot move.
const char* const BoxedKing = "07070202" "H1EEEEH" "101EEEE" "E1EEEEE" "EEEEEEE" "EEEEEEE" "EEEEEEE" "HEEEEEH";

TEST(AutoMove, TheBestListedMoveIsPlayedOrTheSideIsToldItHasNone) {
    // The computer plays its best listed move, or says the side has no move and gives the board back.
    const struct { const char* layout; void (*move)(Game&); const char* played; const char* message; } rows[] = {
        {"07070104H0E01EHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", MakeGreenAutoMove, "0102>0103", nullptr},
        {"05050303HE1EHEE0EEE000EEE0EEHEEEH", MakeRedAutoMove, "",
         "No move for the Attacker\r\nClick Reset to start another Game [Vbcritical+vbok]"},
        {BoxedKing, MakeGreenAutoMove, "", "No move for the Defender\r\nClick Reset to start another Game [Vbcritical+vbok]"},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(LoadPosition(t.g, r.layout).Ok());
        const std::string before = EncodePosition(t.g);
        r.move(t.g);
        EXPECT_EQ(t.g.Undo.size(), *r.played ? 1u : 0u) << r.layout;
        EXPECT_EQ(EncodePosition(t.g) == before, !*r.played) << r.layout;
        if (*r.played) EXPECT_EQ(t.g.List1D.front().substr(12), r.played);
        EXPECT_EQ(t.view.Messages(), r.message ? Lines{r.message} : Lines{}) << r.layout;
        EXPECT_TRUE(t.g.BoardEnabled && !t.view.Busy) << r.layout;
    }
}

TEST(AutoMove, WithoutARankedMoveTheDefendersPlayTheSearchedMoveAndSaySo) {
    // From the 11x11 opening the defenders' ranking lists no move: the strong player's move to a fixed
    // depth is made all the same, the log says why and names it, and a second game gets the same move.
    std::vector<std::string> why;
    for (int game = 0; game < 2; ++game) {
        TestGame t;
        ASSERT_TRUE(LoadPosition(t.g, "patf.txt").Ok());
        t.g.Check1 = false;
        MakeGreenAutoMove(t.g);
        EXPECT_TRUE(t.view.Messages().empty());
        ASSERT_EQ(t.g.Undo.size(), 1u);
        const auto said = std::find_if(t.g.EventLog.begin(), t.g.EventLog.end(),
                                       [](const std::string& l) { return l.starts_with("No ranked move: searched "); });
        ASSERT_TRUE(said != t.g.EventLog.end() && said + 1 != t.g.EventLog.end());
        EXPECT_NE((said + 1)->find("Move " + said->substr(25)), std::string::npos) << *(said + 1);
        why.push_back(*said);
    }
    EXPECT_EQ(why[0], why[1]);
}

TEST(AutoMove, ARankedMoveTheRulesForbidGivesWayToALegalLineOrToTheSearchedMove) {
    // A ranked move the rules forbid is never made: the first legal line is, else the searched move, made as a drop.
    using jv::test::LayoutText;
    const struct { const char* why; std::string layout; const char* log; int kingCol, kingRow; bool home; } rows[] = {
        {"four lines onto the centre, then the King's to the edge",
         LayoutText({"...d...", ".......", ".......", "d...ad.", "...d...", "..dKd..", "......."}),
         "Ranked move A4 > D4 is not legal: taking F4 > G4", 7, 4, false},
        {"only lines onto the centre, the King beside G1",
         LayoutText({"...d...", ".......", ".......", "d...ad.", "a......", "K.d....", "......."}),
         "No legal ranked move: searched F1 > G1", 7, 1, true},
        {"no line, the King beside G1", LayoutText({".......", ".......", ".......", "d......", "ad.....", "K.d....", "......."}),
         "No ranked move: searched F1 > G1", 7, 1, true},
    };
    for (const auto& r : rows) {   // a defender onto the centre is forbidden; the searched King going Home wins
        TestGame t;
        ASSERT_TRUE(LoadPosition(t.g, r.layout).Ok()) << r.why;
        t.g.Check1 = false;
        MakeGreenAutoMove(t.g);
        EXPECT_EQ(std::count(t.g.EventLog.begin(), t.g.EventLog.end(), r.log), 1) << r.why;
        EXPECT_EQ(t.g.Board(4, 4), EmptyCode) << r.why;
        EXPECT_EQ(std::pair(t.g.KingCol, t.g.KingRow), std::pair(r.kingCol, r.kingRow)) << r.why;
        EXPECT_EQ(t.g.GameOver, r.home) << r.why;
        const Lines home{"King at Home !\r\nClick Reset to start a new game [vbhappy+vbok]"};
        EXPECT_EQ(t.view.Messages(), r.home ? home : Lines{}) << r.why;
    }
}

TEST(RandomMover, PlaysTheSmallestDrawnLineOnTheBoardAsItStands) {
    // The random mover plays a move of the board as it stands, one record per move it makes.
    TestGame t;
    Game& g = t.g;
    ASSERT_TRUE(ApplyLayoutLine(g, "05050504HE0EHEE10EEE0EEEEEEEHEE0H").Ok());
    g.Board(2, 2) = DefenderCode;   // the attacker's lists still show (2,2) and (2,1) free
    const std::string before = EncodePosition(g);
    RandomMover(g, AttackerCode);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.Undo.empty());

    TestGame u;
    ASSERT_TRUE(LoadPosition(u.g, "patf.txt").Ok());
    const std::string opening = EncodePosition(u.g);
    RedGreenRandom(u.g);
    EXPECT_EQ(u.g.Undo.size(), 20u);
    EXPECT_EQ(u.g.Undo.back(), opening);
    EXPECT_TRUE(std::is_sorted(u.g.List1.begin(), u.g.List1.end()));
}

TEST(PlayAutoGame, EndsOnAFreeRunANoMoveOrTheMoveLimit) {
    // A self-play game ends on the King's free run home, on a side without a move, or at the move limit.
    const struct { const char* layout; int limit; GameEnd end; int moves; } rows[] = {
        {"07070104HEE0EEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 300, GameEnd::KingFreeRun, 0},
        {"07070104H0E01EHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 1, GameEnd::MoveLimit, 1},
        {BoxedKing, 300, GameEnd::DefendersWithoutMove, 0},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(LoadPosition(t.g, r.layout).Ok());
        const AutoGameResult result = PlayAutoGame(t.g, r.limit);
        EXPECT_EQ(std::tuple(result.End, result.Moves), std::tuple(r.end, r.moves)) << r.layout;
    }
}
