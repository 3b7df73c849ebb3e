// The attackers' ranking gives what trying every move the plain way gives.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "ai/AttackerPlan.h"
#include "ai/AttackerRank.h"
#include "session/ComputerMoves.h"
#include "ai/KingRoutes.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/SortedList.h"
#include "core/VbText.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

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
                std::swap(g.Board(c, r), g.Board(sc, sr));
                AnalysePosition(g);
                const bool refused = AttackerExposed(g, c, r) == 1 || (before != 99 && RouteFromKing(g, route) == 99);
                int defender = refused ? 0 : RankOfGreen(g);
                std::swap(g.Board(c, r), g.Board(sc, sr));
                if (refused) continue;
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
    EXPECT_EQ(std::tie(a.List2A, a.AttackerMovesRank, a.CaptureChances, a.KingCaptureSquares, a.DefenderCount, a.AttackerCount),
              std::tie(b.List2A, b.AttackerMovesRank, b.CaptureChances, b.KingCaptureSquares, b.DefenderCount, b.AttackerCount))
        << where;
    EXPECT_TRUE(SameReach(a, b)) << where;
    for (int c = -2; c <= 16; ++c)
        for (int r = -2; r <= 16; ++r)
            ASSERT_EQ(std::tie(a.Board(c, r), a.MoveTargets(c, r), a.PlanBonus(c, r)),
                      std::tie(b.Board(c, r), b.MoveTargets(c, r), b.PlanBonus(c, r))) << where << " at " << c << "," << r;
}

}  // namespace

TEST(GetAttackerRank, GivesWhatThePlainTrialLoopGives) {
    // The attackers' ranking gives the lists and leaves the tables that trying every move in full would.
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

TEST(GetAttackerRank, NoAttackerIsSentToTheCentre) {
    // The attacker never moves to the centre, even where it is empty, in his reach and beside the King.
    using jv::test::LayoutText;
    const struct { const char* board; std::string layout; int centreCol, centreRow; } rows[] = {
        {"7 by 7", LayoutText({"...a...", ".......", ".......", "..K..a.", ".......", ".......", "......."}), 4, 4},
        {"6 by 6", LayoutText({"...a..", "......", "......", "..K..a", "......", "......"}), 4, 4},
        {"8 by 5", LayoutText({"..a..", ".....", ".....", ".....", ".K..a", ".....", ".....", "....."}), 5, 3},
    };
    for (const auto& row : rows) {
        const std::string centre = SquareText(row.centreCol, row.centreRow);
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, row.layout).Ok()) << row.board;
        int reaching = 0;   // attackers whose reach takes in the centre
        for (int c = 1; c <= t.g.BoardWidth; ++c)
            for (int r = 1; r <= t.g.BoardHeight; ++r)
                reaching += t.g.Board(c, r) == AttackerCode && t.g.MoveTargets(c, r).find(centre + ",") != std::string::npos;
        ASSERT_EQ(reaching, 2) << row.board;
        GetAttackerRank(t.g);
        ASSERT_FALSE(t.g.List1A.empty()) << row.board;
        for (const std::string& line : t.g.List2A) EXPECT_NE(line.substr(0, 4), centre) << row.board << ": " << line;
        for (const std::string& line : t.g.List1A) EXPECT_NE(line.substr(17, 4), centre) << row.board << ": " << line;
    }
}
