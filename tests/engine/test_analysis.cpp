#include <gtest/gtest.h>

#include "core/Analysis.h"
#include "core/Board.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;

TEST(Analysis, CaptureChancesNameTheEmptySquareThatCompletesASandwich) {
    // An attacker, a defender and an empty square in a line make a chance for the attackers, and the
    // mirrored line a chance for the defenders.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        ".ad....",
        ".......",
        ".......",
        ".......",
        "...K...",
    });
    EXPECT_EQ(g.CaptureChances[0], "0304,");
    EXPECT_EQ(g.CaptureChances[1], "0301,");
    EXPECT_EQ(g.KingCaptureSquares, "");
}

TEST(Analysis, LinesAlongTheSecondIndexComeFirst) {
    // All lines along the second index are listed before the lines along the first index.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        "...a...",
        "...d...",
        ".......",
        ".......",
        ".ad....",
        ".......",
        "...K...",
    });
    EXPECT_EQ(g.CaptureChances[0], "0504,0304,");
    EXPECT_EQ(g.CaptureChances[1], "0501,");
}

TEST(Analysis, TheKingBesideAnAttackerIsAlsoAKingCaptureSquare) {
    // The King between an attacker and an empty square is listed in both chances and King capture squares.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        ".......",
        "..aK...",
        ".......",
        ".......",
        ".......",
    });
    EXPECT_EQ(g.CaptureChances[0], "0405,");
    EXPECT_EQ(g.KingCaptureSquares, "0405,");
    EXPECT_EQ(g.CaptureChances[1], "0402,");
}

TEST(Analysis, HomeCornersNeverCompleteAChance) {
    // A defender between an attacker and a Home corner gives the attackers no chance, though a real
    // capture would take it.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {
        ".da....",
        ".......",
        ".......",
        "...K...",
        ".......",
        ".......",
        ".......",
    });
    EXPECT_EQ(g.CaptureChances[0], "");
}

TEST(Analysis, CountersLeaveOutTheKing) {
    // The defender counter does not count the King; the counts go to the view.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", "..a....", ".......", "...K...", ".......", "....a..", "......."});
    EXPECT_EQ(g.DefenderCount, 0);
    EXPECT_EQ(g.AttackerCount, 2);
    EXPECT_EQ(t.view.Defenders, 0);
    EXPECT_EQ(t.view.Attackers, 2);
    g.Board(g.KingCol, g.KingRow) = EmptyCode;   // no layout makes a board without a King
    UpdateCounters(g);
    EXPECT_EQ(t.view.Defenders, -1);
}

TEST(Analysis, RerunningRecomputesEverythingFromTheBoard) {
    // The analysis keeps no history: a changed board gives new tables, an unchanged one the same tables.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", ".......", ".ad....", ".......", ".......", ".......", "...K..."});
    const std::string before = g.CaptureChances[0];
    AnalysePosition(g);
    EXPECT_EQ(g.CaptureChances[0], before);
    g.Board(3, 2) = EmptyCode;
    AnalysePosition(g);
    EXPECT_EQ(g.CaptureChances[0], "");
    EXPECT_EQ(g.MoveTargets(3, 2), "");
    EXPECT_EQ(g.AttackerCount, 0);
}
