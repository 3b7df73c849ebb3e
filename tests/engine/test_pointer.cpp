#include <gtest/gtest.h>

#include "session/Pointer.h"
#include "session/PlayerMoves.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Calls = std::vector<std::string>;

namespace {
// 7 by 7, centre D4: the King on A4 with a free line to the corner A1 but not to A7 (a defender on A6);
// defenders on A6 and D2; attackers on B2 and F4.
void Position(TestGame& t) {
    PlacePieces(t.g, 7, 7, {"...K.d", ".a", ".", ".d", ".", "...a"});
    t.g.Check1 = false;
    t.view.Clear();
}
}  // namespace

TEST(Pointer, OnlyDefendersAndTheKingArePickedUpAndOnlyWhileTheBoardIsOpen) {
    // The user plays the defenders: a drag starts on a defender or the King, never on an attacker, an empty
    // square, a corner or off the board, and never once the game has ended.
    TestGame t;
    Position(t);
    Game& g = t.g;
    EXPECT_TRUE(CanStartDrag(g, 4, 2));
    EXPECT_TRUE(CanStartDrag(g, 1, 4));
    EXPECT_FALSE(CanStartDrag(g, 2, 2));
    EXPECT_FALSE(CanStartDrag(g, 3, 3));
    EXPECT_FALSE(CanStartDrag(g, 1, 1));
    EXPECT_FALSE(CanStartDrag(g, 0, 4));
    EXPECT_FALSE(CanStartDrag(g, 20, 4));
    EXPECT_FALSE(BeginDrag(g, 2, 2));
    EXPECT_EQ(g.DragSource.Col, -1);
    EXPECT_TRUE(t.view.Calls.empty());

    EXPECT_TRUE(BeginDrag(g, 4, 2));
    EXPECT_EQ(g.DragSource.Col, 4);
    EXPECT_EQ(g.DragSource.Row, 2);
    EXPECT_TRUE(g.DragLineVisible);
    EXPECT_EQ(t.view.Calls, Calls{"ShowDragLine 4 2 4 2"});

    g.BoardEnabled = false;
    EXPECT_FALSE(CanStartDrag(g, 4, 2));
    EXPECT_FALSE(AcceptsDrop(g, 4, 3));
}

TEST(Pointer, DropsAreAcceptedOnTheSquaresThePieceCanReach) {
    // A piece may be dropped on the empty squares of its free straight lines; the King also on a Home
    // corner that ends one of them. Nothing else.
    TestGame t;
    Position(t);
    Game& g = t.g;
    BeginDrag(g, 4, 2);
    EXPECT_TRUE(AcceptsDrop(g, 4, 1));
    EXPECT_TRUE(AcceptsDrop(g, 3, 2));
    EXPECT_TRUE(AcceptsDrop(g, 5, 2));
    EXPECT_TRUE(AcceptsDrop(g, 7, 2));
    EXPECT_TRUE(AcceptsDrop(g, 4, 7));
    EXPECT_FALSE(AcceptsDrop(g, 2, 2));   // the attacker in the way
    EXPECT_FALSE(AcceptsDrop(g, 1, 2));   // beyond it
    EXPECT_FALSE(AcceptsDrop(g, 5, 3));   // not on a straight line
    EXPECT_FALSE(AcceptsDrop(g, 4, 2));   // its own square
    EXPECT_FALSE(AcceptsDrop(g, 4, 0));   // the frame

    BeginDrag(g, 1, 4);
    EXPECT_TRUE(AcceptsDrop(g, 1, 1));    // Home, at the end of the free line A3, A2
    EXPECT_FALSE(AcceptsDrop(g, 1, 7));   // Home, but the defender on A6 blocks the line
    EXPECT_TRUE(AcceptsDrop(g, 4, 4));    // the centre: the King may stop there

    BeginDrag(g, 1, 6);
    EXPECT_TRUE(AcceptsDrop(g, 1, 5));
    EXPECT_FALSE(AcceptsDrop(g, 1, 7));   // a corner, but not the King
}

TEST(Pointer, ARefusedDropCancelsTheDragSilently) {
    // Dropping where the piece cannot go hides the drag line and forgets the piece: no message, no log
    // line, no change on the board.
    TestGame t;
    Position(t);
    Game& g = t.g;
    const std::string before = EncodePosition(g);
    BeginDrag(g, 4, 2);
    t.view.Clear();
    EXPECT_FALSE(EndDrag(g, 2, 2));
    EXPECT_EQ(t.view.Calls, Calls{"HideDragLine"});
    EXPECT_EQ(g.DragSource.Col, -1);
    EXPECT_FALSE(g.DragLineVisible);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.EventLog.empty());
    EXPECT_FALSE(EndDrag(g, 4, 3));   // no drag under way any more
}

TEST(Pointer, AnAcceptedDropIsTheMoveAndEndsTheDrag) {
    // An accepted drop goes to DropPiece; the King reaching a corner wins; a defender dropped on the centre
    // is accepted by the pointer but cancelled by the centre rule.
    TestGame t;
    Position(t);
    Game& g = t.g;
    BeginDrag(g, 4, 2);
    EXPECT_TRUE(EndDrag(g, 4, 3));
    EXPECT_EQ(g.Board(4, 3), DefenderCode);
    EXPECT_EQ(g.EventLog, std::vector<std::string>{"  Player1 Move D2 > D3"});
    EXPECT_EQ(g.DragSource.Col, -1);

    const std::string before = EncodePosition(g);
    BeginDrag(g, 4, 3);
    EXPECT_TRUE(EndDrag(g, 4, 4));
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_EQ(g.DragSource.Col, -1);
    EXPECT_FALSE(g.DragLineVisible);

    BeginDrag(g, 1, 4);
    EXPECT_TRUE(EndDrag(g, 1, 1));
    EXPECT_EQ(g.KingCol, 1);
    EXPECT_EQ(g.KingRow, 1);
    EXPECT_EQ(t.view.Messages().back(), "King at Home !\r\nClick Reset to start a new game [vbhappy+vbok]");
    EXPECT_FALSE(BeginDrag(g, 4, 3));   // the game is over
}

TEST(Pointer, TheHintNamesTheSquareAndWhatStandsOnIt) {
    // While the pointer moves, the hint shows the square's name and its content.
    TestGame t;
    Position(t);
    Game& g = t.g;
    EXPECT_EQ(PointerHint(g, 4, 2), "D2: defender");
    EXPECT_EQ(PointerHint(g, 1, 4), "A4: King");
    EXPECT_EQ(PointerHint(g, 2, 2), "B2: attacker");
    EXPECT_EQ(PointerHint(g, 1, 1), "A1: Home");
    EXPECT_EQ(PointerHint(g, 3, 3), "C3: empty");
    EXPECT_EQ(PointerHint(g, 0, 3), "");
}

TEST(Pointer, DropsFollowTheBoardEvenWhenTheTablesAreStale) {
    // A computer player's trial can leave the analysis of another position behind; the pointer walks the
    // board as it stands, so a piece never jumps over another or lands where the stale lists say.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", ".d.....", ".......", "...K...", ".......", ".......", "......."});
    g.Board(2, 4) = AttackerCode;   // placed after the analysis: the lists still show (2,4) free
    ASSERT_NE(g.MoveTargets(2, 2).find("0205,"), std::string::npos);
    ASSERT_TRUE(BeginDrag(g, 2, 2));
    EXPECT_TRUE(AcceptsDrop(g, 2, 3));
    EXPECT_FALSE(AcceptsDrop(g, 2, 4));
    EXPECT_FALSE(AcceptsDrop(g, 2, 5));
    EXPECT_EQ(PieceTargets(g, 2, 2), "0102,0302,0402,0502,0602,0702,0201,0203,");
}
