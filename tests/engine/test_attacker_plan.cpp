#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ai/AttackerPlan.h"
#include "core/Board.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

TEST(BlockKingHome, DirectRunIsBlockedWithTheHighestBonus) {
    // A King with a free run home: every square of the run gets 99999 plus its weight, now on the 1000 scale,
    // and no border lines follow.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {"...K..."});
    BlockKingHome(g);
    EXPECT_EQ(g.AttackerMovesRank, Lines{"99999 King can go Home direct, block=0103,0102,0105,0106,"});
    EXPECT_EQ(g.SquareWeight(2, 2), 2000);
    for (int row : {2, 3, 5, 6}) EXPECT_EQ(g.PlanBonus(1, row), 99999 + g.SquareWeight(1, row)) << row;
    EXPECT_EQ(g.PlanBonus(2, 4), 0);
}

TEST(BlockKingHome, HomeInTwoMovesSkipsTheBorderStep) {
    // Home in two moves: the slides get 9000 on the 800 scale; the border squares the King reaches add nothing.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", "...K..."});
    BlockKingHome(g);
    EXPECT_EQ(g.AttackerMovesRank, Lines{"9000 King can go Home in 2 moves, route=0203,0202,0201,0205,0206,0207,"});
    EXPECT_EQ(g.SquareWeight(2, 2), 1600);
    EXPECT_EQ(g.PlanBonus(2, 1), 9000 + g.SquareWeight(2, 1));
    EXPECT_EQ(g.PlanBonus(1, 4), 0);
}

TEST(BlockKingHome, IndirectRouteAndEveryBorderSquareTheKingReaches) {
    // An indirect route gets 600; then each border square among the King's targets adds 400 plus the weight to
    // every one of his targets.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", ".......", "...K..."});
    BlockKingHome(g);
    EXPECT_EQ(g.AttackerMovesRank, (Lines{
        "0600 King can go Home indirect, its route= 0104,0103,0102,0105,0106,",
        "0400 King can go to border at: 0104", "0400 King can go to border at: 0704",
        "0400 King can go to border at: 0301", "0400 King can go to border at: 0307"}));
    EXPECT_EQ(g.SquareWeight(2, 2), 200);
    EXPECT_EQ(g.PlanBonus(5, 4), 4 * (400 + g.SquareWeight(5, 4)));
    EXPECT_EQ(g.PlanBonus(1, 4), 600 + g.SquareWeight(1, 4) + 4 * (400 + g.SquareWeight(1, 4)));
    EXPECT_EQ(g.PlanBonus(1, 5), 600 + g.SquareWeight(1, 5));
}

TEST(BlockCornerDiagonals, KingSlidingOverASquareDiagonalToACorner) {
    // When a square diagonal to a corner lies on one of the King's slides it gets 9000 under that direction's label.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", "....K.."});
    BlockCornerDiagonals(g);
    EXPECT_EQ(g.AttackerMovesRank,
              (Lines{"9000 King goes to diag neibor of H (L)", "9000 King goes to diag neibor of H (R)"}));
    EXPECT_EQ(g.PlanBonus(2, 2), 9000);
    EXPECT_EQ(g.PlanBonus(2, 6), 9000);
}

TEST(PlaceNextToHome, ReachableSquaresByCaseNumberAndAttackerBesideACornerProtected) {
    // The twelve squares near the corners are tried in case order with a blank before the number; an attacker
    // beside a corner is protected on the square beyond it when a defender can get there.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".a.....", ".......", ".......", "..d...."});
    PlaceNextToHome(g);
    EXPECT_EQ(g.AttackerMovesRank, (Lines{
        "0100 0106 : place next to H 2", "0100 0702 : place next to H 7", "0100 0202 : place next to H 9",
        "0100 0602 : place next to H 11"}));

    g.AttackerMovesRank.clear();
    AvoidCaptureNearHome(g);
    EXPECT_EQ(g.AttackerMovesRank, Lines{"5000 0103, Avoid capture near home"});
    EXPECT_EQ(g.Board(1, 1), HomeCode);
    EXPECT_EQ(g.PlanBonus(1, 3), 5000);
}

TEST(PlanAttack, StartsFromZeroAndItsFirstTacticUsesThePreviousWeights) {
    // The plan zeroes the bonuses; the King capture tactic runs before the weights are written anew.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", "..d....", ".dKd...", "..d...."});
    g.SquareWeight(2, 2) = 5;
    g.PlanBonus(5, 5) = 12345;
    PlanAttack(g);
    EXPECT_EQ(g.AttackerMovesRank, Lines(4, "0200 0202 all U around King, take x-empty spaces"));
    EXPECT_EQ(g.PlanBonus(2, 2), 4 * (200 + 5));
    EXPECT_EQ(g.SquareWeight(2, 2), 200);
    EXPECT_EQ(g.PlanBonus(5, 5), 0);
}
