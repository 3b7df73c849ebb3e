#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ai/AttackerPlan.h"
#include "ai/AttackerRank.h"
#include "session/ComputerMoves.h"
#include "ai/KingRoutes.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/SortedList.h"
#include "core/VbText.h"
#include "session/LayoutCommands.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

bool AnyLine(const Lines& lines, const std::function<bool(const std::string&)>& test) {
    return std::any_of(lines.begin(), lines.end(), test);
}

// The ranking's trial loop done the plain way, as the program describes it:
// every candidate analysed in full after the move and again after it is put
// back, reading List2A as text. The engine must give the same lists and
// leave the same tables.
void PlainAttackerRank(Game& g) {
    g.AttackerMovesRank.clear();
    PlanAttack(g);
    g.List2A.clear();
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            if (g.Board(c, r) != AttackerCode) continue;
            const std::string& targets = g.MoveTargets(c, r);
            for (std::size_t start = 0, comma; (comma = targets.find(',', start)) != std::string::npos; start = comma + 1) {
                const std::string item = targets.substr(start, comma - start);
                if (ValInt(item.substr(0, 2)) == g.CentreCol && ValInt(item.substr(2)) == g.CentreRow) continue;
                g.List2A.push_back(item + " <" + Format(c, "00") + Format(r, "00"));
            }
        }
    std::string route;
    const int before = RouteFromKing(g, route);
    g.List1A.clear();
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            if (!g.ReachMap[AttackerCode](c, r)) continue;
            const std::string key = Format(c, "00") + Format(r, "00");
            const std::size_t count = g.List2A.size();
            for (std::size_t i = 0; i < count; ++i) {
                const std::string& line = g.List2A[i];
                if (line.substr(0, 4) != key) continue;
                const std::string source = line.substr(line.size() - 4);
                const int sc = ValInt(source.substr(0, 2)), sr = ValInt(source.substr(2, 2));
                auto putBack = [&] {
                    g.Board(sc, sr) = g.Board(c, r);
                    g.Board(c, r) = EmptyCode;
                };
                g.Board(c, r) = g.Board(sc, sr);
                g.Board(sc, sr) = EmptyCode;
                AnalysePosition(g);
                if (AttackerExposed(g, c, r) == 1) {
                    putBack();
                    continue;
                }
                if (before != 99 && RouteFromKing(g, route) == 99) {
                    putBack();
                    continue;
                }
                int defender = RankOfGreen(g);
                putBack();
                AnalysePosition(g);
                if (before == 99) defender = 0;
                const long long score = std::clamp<long long>(defender - g.PlanBonus(c, r) + 99999LL, 0, 99999);
                InsertSorted(g.List1A, Format(score, "00000") + " " + Format(defender, "00000") + " " + source + ">" + key);
            }
        }
}

bool SameReach(const Game& a, const Game& b) {
    for (int c = -2; c <= 16; ++c)
        for (int r = -2; r <= 16; ++r)
            if (a.ReachMap[0](c, r) != b.ReachMap[0](c, r) || a.ReachMap[1](c, r) != b.ReachMap[1](c, r)) return false;
    return true;
}

// Everything the ranking leaves behind that later code reads.
void ExpectSameOutcome(const Game& a, const Game& b, const std::string& where) {
    EXPECT_EQ(a.List1A, b.List1A) << where;
    EXPECT_EQ(a.List2A, b.List2A) << where;
    EXPECT_EQ(a.AttackerMovesRank, b.AttackerMovesRank) << where;
    for (int c = -2; c <= 16; ++c)
        for (int r = -2; r <= 16; ++r) {
            ASSERT_EQ(a.Board(c, r), b.Board(c, r)) << where << " board " << c << "," << r;
            ASSERT_EQ(a.MoveTargets(c, r), b.MoveTargets(c, r)) << where << " targets " << c << "," << r;
            ASSERT_EQ(a.ReachMap[0](c, r), b.ReachMap[0](c, r)) << where << " reach0 " << c << "," << r;
            ASSERT_EQ(a.ReachMap[1](c, r), b.ReachMap[1](c, r)) << where << " reach1 " << c << "," << r;
            ASSERT_EQ(a.PlanBonus(c, r), b.PlanBonus(c, r)) << where;
        }
    EXPECT_EQ(a.CaptureChances, b.CaptureChances) << where;
    EXPECT_EQ(a.KingCaptureSquares, b.KingCaptureSquares) << where;
    EXPECT_EQ(a.DefenderCount, b.DefenderCount) << where;
    EXPECT_EQ(a.AttackerCount, b.AttackerCount) << where;
}

}  // namespace

TEST(AddPlanEntry, NamesEachItemWithItsWeightAndAlwaysAddsTheLine) {
    // Every non-blank item gets its weight plus the value (twice when named twice); the line is value "0000",
    // a blank and the label, also for an empty list.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 7, 7);
    g.SquareWeight(2, 3) = 4;
    AddPlanEntry(g, " 0203, ,0203,", 50, "Block Green path to king");
    AddPlanEntry(g, "", 99999, "King can go Home direct, block=");
    EXPECT_EQ(g.PlanBonus(2, 3), 2 * (4 + 50));
    EXPECT_EQ(g.AttackerMovesRank, (Lines{"0050 Block Green path to king", "99999 King can go Home direct, block="}));
}

TEST(RankOfGreen, AttackersBesideACornerWeighMostAndTheSecondTestHasNoThousand) {
    // An attacker beside a corner that a defender can sandwich against it adds 1000 and 8000 (the second test
    // only 8000); an attacker with defenders reaching both sides of a line adds 50.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".a...a.",
        "...a...",
        ".......",
        "..d.d..",
        "...dKd.",
        "....d..",
    });
    EXPECT_EQ(RankOfGreen(g), 9000 + 8000 + 50);
    EXPECT_EQ(g.Board(1, 1), HomeCode);
}

TEST(RankOfGreen, TheKingsWayHomeAndHisReachOfTheEdge) {
    // A direct run sets 9999, home in two adds 1000; each edge square among the King's targets adds 100.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", "...K..."});
    EXPECT_EQ(RankOfGreen(g), 1000 + 4 * 100);
    PlacePieces(g, 7, 7, {"...K..."});
    EXPECT_EQ(RankOfGreen(g), 9999 + 5 * 100);
}

TEST(GetAttackerRank, AMoveThatExposesThePieceIsNeverListed) {
    // A move after which a defender could take the moved attacker at once (a corner counting as a defender) is
    // not listed; the tables left are those of the last tried position.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {
        "..a..",
        "..d..",
        ".dKd.",
        "..d..",
    });
    GetAttackerRank(g);
    EXPECT_EQ(g.AttackerMovesRank, (Lines{
        "0200 0202 all U around King, take x-empty spaces", "0200 0202 all U around King, take x-empty spaces",
        "0200 0202 all U around King, take x-empty spaces", "0200 0202 all U around King, take x-empty spaces",
        "0100 0102 : place next to H 1", "0100 0104 : place next to H 2", "0050 0102 : move to boundary",
        "0050 0104 : move to boundary"}));
    EXPECT_EQ(g.PlanBonus(1, 2), (100 + g.SquareWeight(1, 2)) + (50 + g.SquareWeight(1, 2)));
    EXPECT_EQ(g.List2A, (Lines{"0102 <0103", "0104 <0103"}));
    EXPECT_TRUE(g.List1A.empty());
    // The board is back, the analysis is that of the attacker tried on (1, 4).
    EXPECT_EQ(g.Board(1, 3), AttackerCode);
    EXPECT_EQ(g.Board(1, 4), EmptyCode);
    EXPECT_EQ(g.MoveTargets(1, 3), "");
    EXPECT_EQ(g.MoveTargets(1, 4), "0204,0103,0102,");
    EXPECT_EQ(t.view.CallsStartingWith("SetBusy"), (Lines{" 1", " 0"}));
}

TEST(GetAttackerRank, TheCentreIsNeverADestination) {
    // No attacker move to the centre is listed, even when the centre is empty and reachable.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", ".......", ".......", "a......", ".......", ".K.....", "......."});
    ASSERT_NE(g.MoveTargets(4, 1).find("0404,"), std::string::npos);
    GetAttackerRank(g);
    EXPECT_FALSE(g.List2A.empty());
    EXPECT_FALSE(AnyLine(g.List2A, [](const std::string& l) { return l.substr(0, 4) == "0404"; }));
    EXPECT_FALSE(AnyLine(g.List1A, [](const std::string& l) { return l.substr(17) == "0404"; }));
    EXPECT_TRUE(AnyLine(g.List1A, [](const std::string& l) { return l.substr(17) == "0403"; }));
}

TEST(GetAttackerRank, AMoveThatOpensTheKingsRunIsRejectedUnlessItWasOpen) {
    // Without a run home before the move, a move that gives the King one is not listed; with a run already
    // open, such moves are listed and the defenders' score is written as 00000.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {"..aKa..", ".......", ".......", ".......", ".......", ".......", "...a..."});
    GetAttackerRank(g);
    EXPECT_FALSE(AnyLine(g.List1A, [](const std::string& l) { return l.substr(12, 4) != "0704"; }));
    EXPECT_EQ(g.List1A.size(), 8u);   // (7, 4) up the column but the centre, and two each way along the edge

    TestGame u;
    PlacePieces(u.g, 7, 7, {"..aK...", ".......", ".......", ".......", ".......", ".......", "...a..."});
    GetAttackerRank(u.g);
    EXPECT_TRUE(AnyLine(u.g.List1A, [](const std::string& l) { return l.substr(12, 4) == "0103"; }));
    for (const std::string& line : u.g.List1A) {
        EXPECT_EQ(line.size(), 21u);
        EXPECT_EQ(line.substr(6, 5), "00000") << line;
    }
}

TEST(GetAttackerRank, ScoresAreClampedToFiveDigits) {
    // A plan bonus above the neutral score gives 00000, a large negative one 99999.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {"..aKa..", ".......", ".......", ".......", ".......", ".......", "...a..."});
    // The King's one empty neighbour is named before the weights are written anew.
    g.SquareWeight(2, 4) = 200000;
    GetAttackerRank(g);
    EXPECT_TRUE(AnyLine(g.List1A, [](const std::string& l) { return l.substr(0, 5) == "00000" && l.substr(12) == "0704>0204"; }));

    TestGame u;
    PlacePieces(u.g, 7, 7, {"..aKa..", ".......", ".......", ".......", ".......", ".......", "...a..."});
    u.g.SquareWeight(2, 4) = -400000;
    GetAttackerRank(u.g);
    EXPECT_TRUE(AnyLine(u.g.List1A, [](const std::string& l) { return l.substr(0, 5) == "99999" && l.substr(12) == "0704>0204"; }));
}

TEST(GetAttackerRank, OpeningTiesAreOrderedBySourceThenDestination) {
    // On the 11x11 opening the best eight moves, to the squares diagonal to the corners, share one score and
    // follow each other in text order.
    TestGame t;
    t.CopyData();
    Game& g = t.g;
    LoadLayout(g, "patf.txt");
    GetAttackerRank(g);
    ASSERT_GE(g.List1A.size(), 8u);
    EXPECT_EQ(Lines(g.List1A.begin(), g.List1A.begin() + 8), (Lines{
        "99349 00150 0206>0202", "99349 00150 0206>0210", "99349 00150 0602>0202", "99349 00150 0602>1002",
        "99349 00150 0610>0210", "99349 00150 0610>1010", "99349 00150 1006>1002", "99349 00150 1006>1010"}));
    EXPECT_NE(g.List1A[8].substr(0, 5), "99349");
    EXPECT_TRUE(std::is_sorted(g.List1A.begin(), g.List1A.end()));
}

TEST(GetAttackerRank, GivesWhatThePlainTrialLoopGives) {
    // The ranking lists the same moves with the same scores, and leaves the same tables, as trying every move
    // with a full analysis before and after, also when it starts from the tables a rejected trial left.
    int staleStarts = 0;
    const std::string crowded = jv::test::TestDataPath("crowded14.txt");
    for (const std::string layout : {"patf.txt", "pattern1.txt", "pattern2.txt", "pattern3.txt", "pattern4.txt",
                                     "pattern5.txt", crowded.c_str()}) {
        TestGame t;
        t.CopyData();
        Game& g = t.g;
        LoadLayout(g, layout);
        double tick = 0;
        g.Random.Timer = [&tick] { return tick += 0.37; };
        const int plies = layout == crowded ? 2 : 10;
        for (int ply = 0; ply < plies; ++ply) {
            const std::string where = layout + " ply " + std::to_string(ply);
            Game plain = g;
            PlainAttackerRank(plain);
            GetAttackerRank(g);
            ExpectSameOutcome(g, plain, where);
            // Again on whatever tables the ranking left.
            Game fresh = g;
            AnalysePosition(fresh);
            if (!SameReach(fresh, g)) ++staleStarts;
            plain = g;
            PlainAttackerRank(plain);
            GetAttackerRank(g);
            ExpectSameOutcome(g, plain, where + " again");
            if (testing::Test::HasFailure()) return;
            AnalysePosition(g);
            RandomMover(g, ply % 2 == 0 ? DefenderCode : AttackerCode);
        }
    }
    EXPECT_GT(staleStarts, 0);
}
