#include <gtest/gtest.h>

#include "core/Board.h"
#include "core/Reach.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;

TEST(Reach, WalksStopAtPiecesHomeCornersAndTheEdge) {
    // A piece moves like a rook over empty squares, nearest first, and never onto a Home corner.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 11, 11);
    g.Board(1, 3) = AttackerCode;
    EXPECT_EQ(ReachInDirection(g, 1, 3, 'U'), "");
    EXPECT_EQ(ReachInDirection(g, 1, 3, 'D'), "0203,0303,0403,0503,0603,0703,0803,0903,1003,1103,");
    EXPECT_EQ(ReachInDirection(g, 1, 3, 'L'), "0102,");
    EXPECT_EQ(ReachInDirection(g, 1, 3, 'r'), "0104,0105,0106,0107,0108,0109,0110,");
    EXPECT_EQ(ReachInDirection(g, 1, 3, 'X'), "");
    g.Board(6, 3) = DefenderCode;
    EXPECT_EQ(ReachInDirection(g, 1, 3, 'D'), "0203,0303,0403,0503,");
}

TEST(Reach, TargetsListDirectionsInOrderAndReachMapMarksEachSide) {
    // MoveTargets lists "U", "D", "L", "R" in that order; ReachMap flags squares some piece of a side reaches.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {
        ".....",
        "..a..",
        ".d.K.",
        ".....",
        ".....",
    });
    EXPECT_EQ(g.MoveTargets(2, 3), "0103,0303,0403,0503,0202,0201,0204,0205,");
    EXPECT_EQ(g.MoveTargets(3, 2), "0202,0102,0402,0502,0301,0303,");
    EXPECT_EQ(g.MoveTargets(3, 4), "0204,0104,0404,0504,0303,0305,");
    EXPECT_EQ(g.MoveTargets(3, 3), "");   // an empty square lists nothing
    EXPECT_EQ(g.ReachMap[AttackerCode](2, 2), 1);
    EXPECT_EQ(g.ReachMap[DefenderCode](2, 2), 1);
    // The centre is listed like any empty square, for both sides.
    EXPECT_EQ(g.ReachMap[DefenderCode](3, 3), 1);
    EXPECT_EQ(g.ReachMap[AttackerCode](3, 3), 1);
    EXPECT_EQ(g.ReachMap[AttackerCode](4, 4), 0);
    EXPECT_EQ(g.ReachMap[DefenderCode](4, 4), 1);
    EXPECT_EQ(g.ReachMap[AttackerCode](1, 2), 0);
    EXPECT_EQ(g.ReachMap[DefenderCode](1, 2), 1);
    EXPECT_EQ(g.ReachMap[DefenderCode](1, 1), 0);   // never a Home corner
}

TEST(Reach, BoxedInPieceHasNoTargetsAndSetsNoFlag) {
    // A piece with no empty neighbour cannot move.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {
        ".....",
        "..d..",
        ".dad.",
        "..d..",
        ".....",
    });
    EXPECT_EQ(g.MoveTargets(3, 3), "");
    int attackerFlags = 0;
    for (int c = 1; c <= 5; ++c)
        for (int r = 1; r <= 5; ++r) attackerFlags += g.ReachMap[AttackerCode](c, r);
    EXPECT_EQ(attackerFlags, 0);
}

TEST(Reach, HomeCornersGetTargetsButNeverReach) {
    // The Home corners are walked from like pieces, but their lists never mark a side's reach.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", ".....", ".....", ".....", "....."});
    EXPECT_EQ(g.MoveTargets(1, 1), "0201,0301,0401,0102,0103,0104,");
    for (int side : {0, 1})
        for (int c = 1; c <= 5; ++c)
            for (int r = 1; r <= 5; ++r) EXPECT_EQ(g.ReachMap[side](c, r), 0);
}

TEST(Reach, SquareItemsAreReadBackInOrder) {
    // A list of square items yields its squares in order; blanks and the empty tail are skipped.
    std::vector<std::pair<int, int>> seen;
    ForEachSquareItem("0305,1112, ,0101,", [&](int c, int r) { seen.emplace_back(c, r); });
    EXPECT_EQ(seen, (std::vector<std::pair<int, int>>{{3, 5}, {11, 12}, {1, 1}}));
}
