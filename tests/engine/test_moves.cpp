#include <gtest/gtest.h>

#include "core/Board.h"
#include "core/Move.h"
#include "session/PlayerMoves.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Calls = std::vector<std::string>;

namespace {
// A colour table whose entries are easy to tell apart: the board's
// background 111, the piece colours 600 (defender) to 603 (King).
void MarkColours(Game& g) {
    g.ColourTable[2] = 111;
    for (int code = 0; code < 4; ++code) g.PieceColours[code] = 600 + code;   // User, Computer, Home, King
}
}  // namespace

TEST(MovePiece, CarriesThePieceOverRepaintsBothSquaresAndLogsTheMoveInTheSideColour) {
    // The origin is repainted in the background, the destination in its piece's colour, and the log line
    // names the side: "Player1" for a defender, "Player2" for an attacker, with n and 0 as colour arguments.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {"...d", ".", ".", ".", ".", ".....K", ".", ".", ".", ".", "....a"});
    MarkColours(g);

    g.ColourMode = 1;
    t.view.Clear();
    MovePiece(g, {{1, 4}, {4, 4}});
    EXPECT_EQ(t.view.Calls, (Calls{"DrawSquare 1 4 111", "DrawSquare 4 4 600", "PrintLine |  Player1 Move A4 > D4| 1 0"}));
    EXPECT_EQ(g.Board(1, 4), EmptyCode);
    EXPECT_EQ(g.Board(4, 4), DefenderCode);
    EXPECT_EQ(g.EventLog.back(), "  Player1 Move A4 > D4");

    g.ColourMode = 0;   // pictures: the background, then the piece's picture
    t.view.Clear();
    MovePiece(g, {{11, 5}, {9, 5}});
    EXPECT_EQ(t.view.Calls, (Calls{"DrawSquare 11 5 111", "DrawSquare 9 5 111", "DrawPiece 9 5 1",
                                   "PrintLine |  Player2 Move K5 > I5| 2 0"}));
    EXPECT_EQ(g.Board(9, 5), AttackerCode);
    EXPECT_EQ(g.Board(11, 5), EmptyCode);
}

TEST(MovePiece, TheKingsSquareFollowsHimBeforeAnythingIsDrawn) {
    // Moving the King moves his square first, so the destination shows the King and the line names him
    // with the colour argument 0.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {".", ".", ".", ".", ".", ".....K"});
    MarkColours(g);

    t.view.Clear();
    MovePiece(g, {{6, 6}, {6, 9}});
    EXPECT_EQ(t.view.Calls, (Calls{"DrawSquare 6 6 111", "DrawSquare 6 9 111", "DrawPiece 6 9 3",
                                   "PrintLine |  King Move F6 > F9| 0 0"}));
    EXPECT_EQ(g.KingCol, 6);
    EXPECT_EQ(g.KingRow, 9);

    g.ColourMode = 1;
    t.view.Clear();
    MovePiece(g, {{6, 9}, {3, 9}});
    EXPECT_EQ(t.view.Calls, (Calls{"DrawSquare 6 9 111", "DrawSquare 3 9 603", "PrintLine |  King Move F9 > C9| 0 0"}));
    EXPECT_EQ(g.KingCol, 3);
    EXPECT_EQ(g.KingRow, 9);
}

TEST(AnimateMove, ShowsTheDragLineForOneSecond) {
    // The line runs from the source to the target for a one-second pause, then is hidden again.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".", ".a"});
    bool visibleDuringPause = false;
    t.view.OnEvents = [&] { visibleDuringPause = g.DragLineVisible; };
    t.view.Clear();
    AnimateMove(g, {{2, 2}, {2, 5}});
    EXPECT_EQ(t.view.Calls, (Calls{"ShowDragLine 2 2 2 5", "Pause 1000", "HideDragLine"}));
    EXPECT_TRUE(visibleDuringPause);
    EXPECT_FALSE(g.DragLineVisible);
}

TEST(MakeAttackerMove, RecordsAnimatesMovesCapturesAndAnalysesInThatOrder) {
    // An attacker arriving on E3 with a defender on E2 and an attacker on E1 takes E2 after one second.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {".", ".", ".", ".", "ad", ".", ".", "..a", ".", ".", "....K"});
    MarkColours(g);
    const std::string before = EncodePosition(g);
    t.view.Clear();

    MakeAttackerMove(g, {{8, 3}, {5, 3}});
    EXPECT_EQ(t.view.Calls, (Calls{"RefreshList Undo", "ShowDragLine 8 3 5 3", "Pause 1000", "HideDragLine",
                                   "DrawSquare 8 3 111", "DrawSquare 5 3 111", "DrawPiece 5 3 1",
                                   "PrintLine |  Player2 Move H3 > E3| 2 0", "DrawMoveMark 8 3 5 3",
                                   "HideDragLine", "MarkVictim 5 2", "Pause 1000",
                                   "PrintLine |  Player 2 captures E2| 2 0", "DrawSquare 5 2 111"}));
    EXPECT_EQ(g.Undo, Calls{before});
    EXPECT_EQ(g.Board(5, 2), EmptyCode);
    EXPECT_EQ(g.Board(5, 3), AttackerCode);
    // The position has been analysed afresh: the attacker's new square has its targets.
    EXPECT_EQ(g.MoveTargets(5, 3).substr(0, 10), "0403,0303,");
    EXPECT_TRUE(g.MoveTargets(8, 3).empty());
    EXPECT_EQ(t.view.Attackers, 2);
    EXPECT_EQ(t.view.Defenders, 0);
    EXPECT_TRUE(g.BoardEnabled);
}

TEST(MakeDefenderMove, NeverEndsTheGameEvenWhenTheKingStandsBesideHome) {
    // The computer defender's test for the King beside a Home corner never succeeds: the move captures
    // and is analysed like any other, and the board stays open.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {"...K", ".a", ".d"});
    MarkColours(g);
    t.view.Clear();

    MakeDefenderMove(g, {{1, 4}, {1, 2}});
    EXPECT_EQ(t.view.Calls, (Calls{"RefreshList Undo", "ShowDragLine 1 4 1 2", "Pause 1000", "HideDragLine",
                                   "DrawSquare 1 4 111", "DrawSquare 1 2 111", "DrawPiece 1 2 3",
                                   "PrintLine |  King Move A4 > A2| 0 0", "DrawMoveMark 1 4 1 2",
                                   "HideDragLine", "MarkVictim 2 2", "Pause 1000",
                                   "PrintLine |  Player 1 captures B2| 1 0", "DrawSquare 2 2 111"}));
    EXPECT_EQ(g.KingCol, 1);
    EXPECT_EQ(g.KingRow, 2);
    EXPECT_TRUE(g.BoardEnabled);
    EXPECT_EQ(g.Undo.size(), 1u);

    // Not even a King carried onto a corner by the computer ends the game.
    MakeDefenderMove(g, {{1, 2}, {1, 1}});
    EXPECT_TRUE(t.view.Messages().empty());
    EXPECT_TRUE(g.BoardEnabled);
}
