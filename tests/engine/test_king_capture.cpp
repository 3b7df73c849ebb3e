#include <gtest/gtest.h>

#include "core/Board.h"
#include "core/Move.h"
#include "session/PlayerMoves.h"
#include "session/Session.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Calls = std::vector<std::string>;

namespace {
// An empty 11 by 11 board with the King and attackers on the given squares.
int KingAmong(Game& g, std::pair<int, int> king, std::initializer_list<std::pair<int, int>> attackers) {
    NewBoard(g, 11, 11);
    g.KingCol = king.first;
    g.KingRow = king.second;
    g.Board(king.first, king.second) = DefenderCode;
    for (const auto& [col, row] : attackers) g.Board(col, row) = AttackerCode;
    return CheckKingCapture(g);
}
}  // namespace

TEST(CheckKingCapture, TheKingIsTakenByFourOrByThreeAgainstTheEdge) {
    // Four attackers round the King take him; against an edge three do; three in the open do not.
    TestGame t;
    Game& g = t.g;
    EXPECT_EQ(KingAmong(g, {5, 5}, {{4, 5}, {6, 5}, {5, 4}, {5, 6}}), 99);
    EXPECT_EQ(KingAmong(g, {5, 5}, {{4, 5}, {6, 5}, {5, 4}}), 0);
    EXPECT_EQ(KingAmong(g, {5, 1}, {{6, 1}, {4, 1}, {5, 2}}), 99);    // row 1
    EXPECT_EQ(KingAmong(g, {5, 2}, {{6, 2}, {4, 2}, {5, 3}}), 0);     // row 2, the fourth side empty
    EXPECT_EQ(KingAmong(g, {5, 11}, {{6, 11}, {4, 11}, {5, 10}}), 99);
    EXPECT_EQ(KingAmong(g, {1, 5}, {{1, 6}, {1, 4}, {2, 5}}), 99);
    EXPECT_EQ(KingAmong(g, {11, 5}, {{11, 6}, {11, 4}, {10, 5}}), 99);
    EXPECT_EQ(KingAmong(g, {11, 5}, {{11, 6}, {11, 4}}), 0);
}

TEST(CheckKingCapture, AHomeCornerBesideTheKingIsAnAttackerTheCentreIsNot) {
    // The corner A1 stands in for the third attacker of a King on A2; the empty centre F6 does not stand
    // in for the fourth of a King on E6. The corners are Home again afterwards.
    TestGame t;
    Game& g = t.g;
    EXPECT_EQ(KingAmong(g, {1, 2}, {{1, 3}, {2, 2}}), 99);
    EXPECT_EQ(g.Board(1, 1), HomeCode);
    EXPECT_EQ(g.Board(11, 11), HomeCode);
    EXPECT_EQ(KingAmong(g, {5, 6}, {{4, 6}, {5, 5}, {5, 7}}), 0);
    // A King left off the board by the editor is never taken.
    NewBoard(g, 11, 11);
    g.KingCol = 0;
    g.KingRow = 6;
    g.Board(1, 6) = AttackerCode;
    EXPECT_EQ(CheckKingCapture(g), 0);
}

TEST(MakeAttackerMove, TakingTheKingEndsTheGameAndTakesNothingElse) {
    // The attacker closing the King in on row 1 ends the game with "King Captured !"; the defender it also
    // sandwiches stays, the position is not analysed, and the board stops taking input.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {".", ".a", "ad", "K", "a", ".a"});
    t.view.Clear();
    MakeAttackerMove(g, {{6, 2}, {4, 2}});
    EXPECT_EQ(t.view.Calls,
              (Calls{"RefreshList Undo", "ShowDragLine 6 2 4 2", "Pause 1000", "HideDragLine", "DrawSquare 6 2 0",
                     "DrawSquare 4 2 0", "DrawPiece 4 2 1", "PrintLine |  Player2 Move F2 > D2| 2 0",
                     "DrawMoveMark 6 2 4 2", "HideDragLine",
                     "Show King Captured !\r\nClick Reset to start a new game [vbcritical+vbok]", "DoEvents",
                     "EnableBoard 0"}));
    EXPECT_EQ(g.Board(3, 2), DefenderCode);
    EXPECT_FALSE(g.MoveTargets(6, 2).empty());   // the tables still describe the position before the move
    EXPECT_TRUE(GameFinished(g));
    EXPECT_EQ(g.Undo.size(), 1u);
}
