#include <gtest/gtest.h>

#include "ai/SquareWeights.h"
#include "core/Analysis.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;

namespace {
// The King on D4 of a 7x7 board with an attacker on C4, above him on screen.
void KingWithAttackerAbove(Game& g) {
    PlacePieces(g, 7, 7, {".......", ".......", "...a...", "...K...", ".......", ".......", "......."});
    g.SquareWeight.Fill(10);
}
}  // namespace

TEST(SquareWeights, EdgesCornerDiagonalsKingNeighboursAndReachableEdgesAreWeighted) {
    // From each corner the next three edge squares weigh 3w, 2w, w; the corner diagonals 2w; the empty
    // squares beside the King 4w (never the one below him); empty edge squares the defenders can reach 3w.
    TestGame t;
    Game& g = t.g;
    KingWithAttackerAbove(g);
    SetSquareWeights(g, 100);
    auto w = [&g](int col, int row) { return g.SquareWeight(col, row); };

    // Column 1: the King's reach does not get there.
    EXPECT_EQ(w(1, 2), 300);
    EXPECT_EQ(w(1, 3), 200);
    EXPECT_EQ(w(1, 4), 100);
    EXPECT_EQ(w(1, 5), 200);
    EXPECT_EQ(w(1, 6), 300);
    // Column 7: the King reaches G4 straight down the board.
    EXPECT_EQ(w(7, 2), 300);
    EXPECT_EQ(w(7, 3), 200);
    EXPECT_EQ(w(7, 4), 300);
    EXPECT_EQ(w(7, 5), 200);
    // Rows 1 and 7: the King reaches D1 and D7.
    EXPECT_EQ(w(2, 1), 300);
    EXPECT_EQ(w(3, 1), 200);
    EXPECT_EQ(w(4, 1), 300);
    EXPECT_EQ(w(5, 1), 200);
    EXPECT_EQ(w(6, 7), 300);
    EXPECT_EQ(w(4, 7), 300);
    // Diagonal to the corners.
    EXPECT_EQ(w(2, 2), 200);
    EXPECT_EQ(w(2, 6), 200);
    EXPECT_EQ(w(6, 2), 200);
    EXPECT_EQ(w(6, 6), 200);
    // Beside the King on D4: D3 (row - 1) and E4 get 4w; C4 holds an attacker; D5, below, keeps its weight.
    EXPECT_EQ(w(4, 3), 400);
    EXPECT_EQ(w(5, 4), 400);
    EXPECT_EQ(w(3, 4), 10);
    EXPECT_EQ(w(4, 5), 10);
    // Everything else is left as it was, the corners included.
    EXPECT_EQ(w(1, 1), 10);
    EXPECT_EQ(w(3, 3), 10);
    EXPECT_EQ(w(5, 5), 10);
    EXPECT_EQ(w(0, 0), 10);
}

TEST(SquareWeights, TheTableIsNeverClearedBetweenScales) {
    // Weights written under an earlier scale or an earlier King square stay until overwritten.
    TestGame t;
    Game& g = t.g;
    KingWithAttackerAbove(g);
    SetSquareWeights(g, 100);
    g.Board(4, 4) = EmptyCode;
    g.Board(5, 5) = DefenderCode;
    g.KingCol = 5;
    g.KingRow = 5;
    AnalysePosition(g);
    SetSquareWeights(g, 1000);
    EXPECT_EQ(g.SquareWeight(4, 3), 400);     // beside the old King square, not beside the new one
    EXPECT_EQ(g.SquareWeight(5, 4), 4000);    // above the new King square
    EXPECT_EQ(g.SquareWeight(4, 5), 4000);    // left of it
    EXPECT_EQ(g.SquareWeight(6, 5), 4000);    // right of it
    EXPECT_EQ(g.SquareWeight(5, 6), 10);      // below it: never
    EXPECT_EQ(g.SquareWeight(1, 2), 3000);
}

TEST(SquareWeights, TinyBoardsStayInsideTheTable) {
    // On boards too small for three squares after each corner the weights land on the frame or nowhere.
    for (int side = 0; side <= 4; ++side) {
        TestGame t;
        Game& g = t.g;
        PlacePieces(g, side, side, {});
        g.SquareWeight.Fill(10);
        SetSquareWeights(g, 400);
        if (side == 4) {
            // Rows 2 and 3 of the left edge are written twice: first 3w, 2w, then w, 2w, 3w from the far corner.
            EXPECT_EQ(g.SquareWeight(1, 2), 2 * 400);
            EXPECT_EQ(g.SquareWeight(1, 3), 3 * 400);
        }
    }
}
