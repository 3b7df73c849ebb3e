#include <gtest/gtest.h>

#include <algorithm>

#include "core/Move.h"
#include "session/PlayerMoves.h"
#include "session/Session.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Calls = std::vector<std::string>;

namespace {
// The user holds the piece on (col, row): the drag line is up.
void Holding(Game& g, int col, int row) {
    g.DragSource = Square{col, row};
    g.DragLineVisible = true;
}

// 11 by 11: the King on A5, defenders on H3 and E1, an attacker on E2; centre F6.
void Position(TestGame& t) {
    PlacePieces(t.g, 11, 11, {"....K", ".", ".", ".", "da", "......", ".", "..d"});
    t.g.Check1 = false;
    t.view.Clear();
}
}  // namespace

TEST(DropPiece, ADropWithoutADragOrOntoItsOwnSquareDoesNothing) {
    // Without a drag line there is no drag; a drop on the square it came from is no move.
    TestGame t;
    Position(t);
    Game& g = t.g;
    const std::string before = EncodePosition(g);
    g.DragSource = Square{8, 3};
    DropPiece(g, 5, 3);
    Holding(g, 8, 3);
    DropPiece(g, 8, 3);
    EXPECT_TRUE(t.view.Calls.empty());
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.DragLineVisible);
}

TEST(DropPiece, AnOrdinaryDropIsRecordedMovedAndCaptures) {
    // The defender from H3 to E3 is recorded for undo, moved and logged, takes the attacker on E2 against the
    // defender on E1 after a second, and the drag line goes.
    TestGame t;
    Position(t);
    Game& g = t.g;
    const std::string before = EncodePosition(g);
    Holding(g, 8, 3);
    DropPiece(g, 5, 3);
    EXPECT_EQ(t.view.Calls, (Calls{"RefreshList Undo", "DrawSquare 8 3 0", "DrawSquare 5 3 0", "DrawPiece 5 3 0",
                                   "PrintLine |  Player1 Move H3 > E3| 1 0", "DrawMoveMark 8 3 5 3", "HideDragLine",
                                   "MarkVictim 5 2", "Pause 1000", "PrintLine |  Player 1 captures E2| 1 0",
                                   "DrawSquare 5 2 0", "HideDragLine"}));
    EXPECT_EQ(g.Undo, Calls{before});
    EXPECT_EQ(g.Board(5, 2), EmptyCode);
    EXPECT_FALSE(g.DragLineVisible);
    EXPECT_EQ(t.view.Attackers, 0);
}

TEST(DropPiece, RefusedDropsAreSilent) {
    // A drop on a piece or on a corner by anyone but the King changes nothing and leaves the drag line;
    // a defender dropped on the empty centre has its drag cancelled. No message, no log line, no record.
    TestGame t;
    Position(t);
    Game& g = t.g;
    const std::string before = EncodePosition(g);
    Holding(g, 8, 3);
    DropPiece(g, 5, 2);    // an attacker
    DropPiece(g, 5, 1);    // a defender
    DropPiece(g, 11, 1);   // a corner
    EXPECT_TRUE(t.view.Calls.empty());
    EXPECT_TRUE(g.DragLineVisible);
    DropPiece(g, 6, 6);    // the centre
    EXPECT_EQ(t.view.Calls, Calls{"HideDragLine"});
    EXPECT_FALSE(g.DragLineVisible);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_TRUE(g.EventLog.empty());
}

TEST(DropPiece, TheKingMayStopOnTheCentre) {
    // Only the King may end a move on the centre square.
    TestGame t;
    PlacePieces(t.g, 11, 11, {".", ".", ".", ".", ".", ".K"});
    Game& g = t.g;
    g.Check1 = false;
    Holding(g, 6, 2);
    DropPiece(g, 6, 6);
    EXPECT_EQ(g.KingCol, 6);
    EXPECT_EQ(g.KingRow, 6);
    EXPECT_EQ(g.EventLog, std::vector<std::string>{"  King Move F2 > F6"});
}

TEST(DropPiece, TheKingDroppedOnACornerWinsAtOnceWithoutARecord) {
    // The King at Home ends the game with "King at Home !": the board is redrawn, the move is neither
    // recorded for undo nor logged, and the board stops taking input.
    TestGame t;
    Position(t);
    Game& g = t.g;
    Holding(g, 1, 5);
    DropPiece(g, 1, 1);
    EXPECT_EQ(t.view.Calls, (Calls{"HideDragLine", "DrawBoard",
                                   "Show King at Home !\r\nClick Reset to start a new game [vbhappy+vbok]",
                                   "DoEvents", "EnableBoard 0"}));
    EXPECT_EQ(g.KingCol, 1);
    EXPECT_EQ(g.KingRow, 1);
    EXPECT_EQ(g.Board(1, 1), DefenderCode);
    EXPECT_EQ(g.Board(1, 5), EmptyCode);
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_TRUE(g.EventLog.empty());
    EXPECT_TRUE(GameFinished(g));
}

TEST(DropPiece, WithAutomaticRepliesEveryAcceptedMoveGetsExactlyOneAttackerMove) {
    // With Check1 ticked the computer answers each accepted drop at once with one animated attacker move;
    // a refused drop gets no answer.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".", ".a...a", "..d", "...K", ".", ".a...a"});
    g.Check1 = true;
    g.Random.Timer = [] { return 1.0; };
    t.view.Clear();

    Holding(g, 3, 3);
    DropPiece(g, 3, 1);
    Calls moves;
    for (const std::string& call : t.view.Calls)
        if (call.rfind("Pause", 0) == 0 || call.rfind("Show ", 0) == 0 || call.rfind("PrintLine", 0) == 0)
            moves.push_back(call);
    ASSERT_EQ(moves.size(), 3u) << ::testing::PrintToString(moves);
    EXPECT_EQ(moves[0], "PrintLine |  Player1 Move C3 > C1| 1 0");
    EXPECT_EQ(moves[1], "Pause 1000");
    EXPECT_EQ(moves[2].substr(0, 25), "PrintLine |  Player2 Move");
    EXPECT_EQ(g.Undo.size(), 2u);
    EXPECT_TRUE(g.BoardEnabled);

    const std::string before = EncodePosition(g);
    t.view.Clear();
    Holding(g, 3, 1);
    DropPiece(g, 4, 4);   // the King's square: refused
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_EQ(g.Undo.size(), 2u);
    EXPECT_TRUE(t.view.CallsStartingWith("PrintLine").empty());
}
