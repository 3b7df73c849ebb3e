#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ai/AttackerTactics.h"
#include "core/Board.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

TEST(KingNeighbourCounts, CountsTheFourNeighboursAndKeepsTheLastEmptyOne) {
    // Up, left, down, right are counted; the empty neighbour named is the last empty one in that order.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        ".......",
        "...Ka..",
        "...d...",
    });
    const KingNeighbours n = KingNeighbourCounts(g);
    EXPECT_EQ(n.Attackers, 1);
    EXPECT_EQ(n.Defenders, 1);
    EXPECT_EQ(n.Empties, 2);
    EXPECT_EQ(n.EmptyCol, 3);
    EXPECT_EQ(n.EmptyRow, 4);
}

TEST(PlanCheckKingCapture, OneEmptyNeighbourIsAskedFor) {
    // With one empty neighbour left the attacker fills it: 9999 when no defender stands by the King, else 5000.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        "...a...",
        "..aKa..",
    });
    g.SquareWeight(5, 4) = 7;
    plan::CheckKingCapture(g);
    EXPECT_EQ(g.AttackerMovesRank, Lines{"9999 0504 *** capture with one empty around King ****"});
    EXPECT_EQ(g.PlanBonus(5, 4), 9999 + 7);

    TestGame u;
    PlacePieces(u.g, 7, 7, {
        ".......",
        ".......",
        "...a...",
        "..aKd..",
    });
    plan::CheckKingCapture(u.g);
    EXPECT_EQ(u.g.AttackerMovesRank, Lines{"5000 0504 *** one empty around King ****"});
    EXPECT_EQ(u.g.PlanBonus(5, 4), 5000);
}

TEST(PlanCheckKingCapture, SeveralEmptyNeighboursOnlyAddLines) {
    // With two or more empty neighbours each one adds a line naming 0000; the bonus lands off the board.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        "...d...",
        "..aK...",
    });
    plan::CheckKingCapture(g);
    EXPECT_EQ(g.AttackerMovesRank, Lines(2, "0100 0000 move to any empty location around King"));
    EXPECT_EQ(g.PlanBonus(0, 0), 200);
    for (int c = 1; c <= 7; ++c)
        for (int r = 1; r <= 7; ++r) EXPECT_EQ(g.PlanBonus(c, r), 0);

    // No empty neighbour and a mix of both sides: nothing at all.
    TestGame u;
    PlacePieces(u.g, 7, 7, {
        ".......",
        ".......",
        "...d...",
        "..aKa..",
        "...d...",
    });
    plan::CheckKingCapture(u.g);
    EXPECT_TRUE(u.g.AttackerMovesRank.empty());
}

TEST(PlanCheckKingCapture, KingAmongHisOwnMenLoadsTheUpLeftDiagonal) {
    // Four defenders round the King: every diagonal on the board adds 200 to the up-left diagonal square.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        "...d...",
        "..dKd..",
        "...d...",
    });
    g.SquareWeight(3, 3) = 5;
    plan::CheckKingCapture(g);
    EXPECT_EQ(g.AttackerMovesRank, Lines(4, "0200 0303 all U around King, take x-empty spaces"));
    EXPECT_EQ(g.PlanBonus(3, 3), 4 * (200 + 5));
    EXPECT_EQ(g.PlanBonus(5, 5), 0);
}

TEST(PlanCaptures, CornerHelpsTheAttackerAndAttackersAreProtected) {
    // Stage one counts a Home corner as an attacker; stage two fills the square from which a defender
    // could sandwich an attacker.
    TestGame t;
    PlacePieces(t.g, 7, 7, {".d....."});
    PlanCaptures(t.g);
    EXPECT_EQ(t.g.AttackerMovesRank, Lines{"7000 0103 : move to capture piece"});
    EXPECT_EQ(t.g.Board(1, 1), HomeCode);

    TestGame u;
    PlacePieces(u.g, 7, 7, {
        ".......",
        ".......",
        ".da....",
        ".......",
        ".......",
        "...d...",
    });
    PlanCaptures(u.g);
    EXPECT_EQ(u.g.AttackerMovesRank, (Lines{"7000 0301 : move to capture piece", "1000 0304 : fill to avoid capture"}));
    EXPECT_EQ(u.g.PlanBonus(3, 1), 7000);
    EXPECT_EQ(u.g.PlanBonus(3, 4), 1000);
}

TEST(PlanCaptures, DefenderBetweenTwoEmptySquaresIsSetUpAlongBothAxes) {
    // A defender with empty squares on both sides that attackers reach, and whose far squares no defender
    // reaches, gets both sides named, the column stage first.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        "...a...",
        ".......",
        ".a.d.a.",
        ".......",
        "...a...",
    });
    PlanCaptures(g);
    EXPECT_EQ(g.AttackerMovesRank, (Lines{"0100 0403 : place left try to capture", "0100 0405 : place right try to capture",
                                          "0100 0304 : place above try to capture", "0100 0504 : place down try to capture"}));
    EXPECT_EQ(g.PlanBonus(4, 3), 100);
    EXPECT_EQ(g.PlanBonus(5, 4), 100);

    // When the defender itself can reach a far square, that side is not named.
    TestGame u;
    PlacePieces(u.g, 7, 7, {
        ".......",
        ".......",
        ".......",
        "a..d..a",
    });
    PlanCaptures(u.g);
    EXPECT_TRUE(u.g.AttackerMovesRank.empty());
}

TEST(PlaceAroundKing, OrthogonalSquaresFirstThenDiagonals) {
    // Every empty square round the King that an attacker reaches is named, the four beside him (9000) first.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        "a......",
        "a..K..a",
        "a......",
    });
    PlaceAroundKing(g);
    EXPECT_EQ(g.AttackerMovesRank, (Lines{
        "9000 0403 : place L to king", "9000 0405 : place R to king", "9000 0304 : place U king",
        "9000 0504 : place D king", "5000 0303 : place UL to king", "5000 0305 : place UR to king",
        "5000 0505 : place BR king", "5000 0503 : place BL king"}));

    // A taken square is skipped.
    TestGame u;
    PlacePieces(u.g, 7, 7, {
        ".......",
        ".......",
        "a......",
        "a..K..a",
        "a...d..",
    });
    PlaceAroundKing(u.g);
    EXPECT_EQ(u.g.AttackerMovesRank.size(), 7u);
    EXPECT_EQ(u.g.PlanBonus(5, 5), 0);
}

TEST(PathAroundKing, OnlyRunsEndingAtAnOwnManInsideTheBoardSurvive) {
    // The empty squares between the King and one of his men along a line; a run to another piece, a corner
    // or the edge gives nothing.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        "...d...",
        ".......",
        ".......",
        "d..K...",
        ".......",
        "...a...",
    });
    EXPECT_EQ(PathAroundKing(g, DefenderCode, 4, 4), "0403,0402,0304,0204,");
    EXPECT_EQ(PathAroundKing(g, AttackerCode, 4, 4), "0504,");

    PlacePieces(g, 7, 7, {"...K..."});
    EXPECT_EQ(PathAroundKing(g, DefenderCode, 1, 4), "");
}

TEST(PlanBorder, DiagonalsOfTheCornersThenTheEdges) {
    // Squares diagonal to the corners (300) come first, then the edge squares (50) column 1, column W, row 1,
    // row H, each only when empty and reachable by an attacker.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {
        ".....",
        "....a",
        "..a..",
    });
    PlanBorder(g);
    EXPECT_EQ(g.AttackerMovesRank, (Lines{
        "0300 0202 : move to HD", "0300 0204 : move to HD", "0050 0103 : move to boundary",
        "0050 0503 : move to boundary", "0050 0201 : move to boundary", "0050 0301 : move to boundary",
        "0050 0305 : move to boundary", "0050 0405 : move to boundary"}));
}

TEST(PlanOpportunities, StraightLinesThenDiagonalPatterns) {
    // A defender between two reachable empty squares names both, along a column then along a row; a
    // diagonal pair names the empty square touching both men.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        "a.d...a",
        "...d...",
        ".......",
        ".......",
        ".......",
        "...a...",
    });
    PlanOpportunities(g);
    EXPECT_EQ(g.AttackerMovesRank, (Lines{
        "0100 0202, .G. H opportunity", "0100 0204, .G. H opportunity", "0100 0204, : .G. V opportunity",
        "0100 0404, : .G. V opportunity", "0200 0204, : G\\ 1 opportunity"}));
    EXPECT_EQ(g.PlanBonus(2, 4), 400);

    TestGame u;
    PlacePieces(u.g, 7, 7, {
        ".......",
        "a.d...a",
        ".d.....",
        ".......",
        ".......",
        ".......",
        ".a.....",
    });
    PlanOpportunities(u.g);
    EXPECT_EQ(u.g.AttackerMovesRank, (Lines{
        "0100 0202, .G. H opportunity", "0100 0204, .G. H opportunity", "0100 0202, : .G. V opportunity",
        "0100 0402, : .G. V opportunity", "0200 0202, : G/ 1opportunity"}));
}
