#include <gtest/gtest.h>

#include "core/Board.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

TEST(Board, NewBoardLaysFrameSpareRingsAndHomeCorners) {
    // A fresh board holds Home in the corners and the frame, empty squares in play and beyond the frame.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 11, 11);
    for (auto [c, r] : {std::pair{1, 1}, {11, 1}, {1, 11}, {11, 11}}) EXPECT_EQ(g.Board(c, r), HomeCode);
    for (auto [c, r] : {std::pair{0, 5}, {12, 5}, {5, 0}, {5, 12}}) EXPECT_EQ(g.Board(c, r), HomeCode);
    for (auto [c, r] : {std::pair{-1, 5}, {13, 5}, {5, -1}, {5, 13}, {-2, -2}, {13, 13}})
        EXPECT_EQ(g.Board(c, r), EmptyCode);
    int empty = 0;
    for (int c = 1; c <= 11; ++c)
        for (int r = 1; r <= 11; ++r) empty += g.Board(c, r) == EmptyCode;
    EXPECT_EQ(empty, 121 - 4);
    EXPECT_EQ(g.CentreCol, 6);
    EXPECT_EQ(g.CentreRow, 6);
}

TEST(Board, NewBoardReopensPlayAndClearsTheLogAndOneMoveList) {
    // NewBoard hides the drag line, enables the board picture and clears the event log and List1A.
    TestGame t;
    Game& g = t.g;
    g.BoardEnabled = false;
    g.DragLineVisible = true;
    g.EventLog = {"old line"};
    g.List1A = {"99999 00000 0301>0305"};
    NewBoard(g, 7, 7);
    EXPECT_TRUE(g.BoardEnabled);
    EXPECT_TRUE(t.view.BoardEnabled);
    EXPECT_FALSE(g.DragLineVisible);
    EXPECT_TRUE(g.EventLog.empty());
    EXPECT_TRUE(g.List1A.empty());
    EXPECT_EQ(t.view.CallsStartingWith("ClearLog").size(), 1u);
}

TEST(Board, SquaresAreNumberedColumnByColumnOnNonSquareBoards) {
    // Squares are numbered 1..W*H with Col outer and Row inner; the inverse tables give the square back.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 9, 7);
    EXPECT_EQ(g.CentreCol, 5);
    EXPECT_EQ(g.CentreRow, 4);
    EXPECT_EQ(g.SquareNumber(1, 1), 1);
    EXPECT_EQ(g.SquareNumber(1, 7), 7);
    EXPECT_EQ(g.SquareNumber(2, 1), 8);
    EXPECT_EQ(g.SquareNumber(9, 7), 63);
    EXPECT_EQ(g.SquareNumber(0, 1), 0);
    EXPECT_EQ(g.SquareNumber(10, 1), 0);
    for (int n = 1; n <= 63; ++n) EXPECT_EQ(g.SquareNumber(g.SquareCol[n], g.SquareRow[n]), n);
    EXPECT_EQ(g.Board(9, 7), HomeCode);
    EXPECT_EQ(g.Board(9, 1), HomeCode);
    EXPECT_EQ(g.Board(10, 4), HomeCode);
    EXPECT_EQ(g.Board(5, 8), HomeCode);
}

TEST(Board, KingAtHomeOnlyOnTheFourCorners) {
    // The King is at Home on a corner square, and nowhere else.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 11, 9);
    g.KingCol = 1, g.KingRow = 9;
    EXPECT_EQ(KingAtHome(g), 99);
    g.KingCol = 11, g.KingRow = 1;
    EXPECT_EQ(KingAtHome(g), 99);
    g.KingCol = 1, g.KingRow = 2;
    EXPECT_EQ(KingAtHome(g), 0);
    g.KingCol = 9, g.KingRow = 11;   // the corners of a 9x11 board, not of this 11x9 one
    EXPECT_EQ(KingAtHome(g), 0);
}

TEST(Board, SquareNamesAndItems) {
    // A square is named by its column letter and its row number; square items are four digits and a comma.
    TestGame t;
    EXPECT_EQ(t.g.ColumnLetters[1], "A");
    EXPECT_EQ(t.g.ColumnLetters[16], "P");
    EXPECT_EQ(SquareName(t.g, 3, 5), "C5");
    EXPECT_EQ(SquareName(t.g, 14, 12), "N12");
    EXPECT_EQ(SquareItem(3, 5), "0305,");
    EXPECT_EQ(SquareText(14, 9), "1409");
}

TEST(Board, LargestBoardKeepsTwoSquaresOfMarginInTheArray) {
    // On a 14x14 board, a look two squares past any edge square reads the frame or a spare ring.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 14, 14);
    EXPECT_EQ(g.Board(15, 7), HomeCode);
    EXPECT_EQ(g.Board(16, 7), EmptyCode);
    EXPECT_EQ(g.Board(7, 16), EmptyCode);
    EXPECT_EQ(g.Board(-1, 7), EmptyCode);
    NewBoard(g, 20, 30);   // sizes beyond the tables are held at 14
    EXPECT_EQ(g.BoardWidth, 14);
    EXPECT_EQ(g.BoardHeight, 14);
}
