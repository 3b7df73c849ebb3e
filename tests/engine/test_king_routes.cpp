#include <gtest/gtest.h>

#include <string>

#include "ai/KingRoutes.h"
#include "core/Board.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;

namespace {

// An 11 by 11 board with only the King, on (col, row).
void LoneKing(Game& g, int col, int row) {
    NewBoard(g, 11, 11);
    g.Board(col, row) = DefenderCode;
    g.KingCol = col;
    g.KingRow = row;
}

}  // namespace

TEST(RouteFromKing, KingOffTheEdgeHasNoRoute) {
    // A King on no edge has no free run, whatever the board holds.
    TestGame t;
    LoneKing(t.g, 6, 6);
    std::string route = "junk";
    EXPECT_EQ(RouteFromKing(t.g, route), -1);
    EXPECT_EQ(route, "");
    LoneKing(t.g, 2, 2);
    EXPECT_EQ(RouteFromKing(t.g, route), -1);
}

TEST(RouteFromKing, EdgeRunListsTheFreeSquaresFromTheKingOutward) {
    // On the edge the King's run lists the free squares towards each corner, "L" then "R", corner left out.
    TestGame t;
    Game& g = t.g;
    LoneKing(g, 1, 5);
    std::string route;
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "0104,0103,0102,0106,0107,0108,0109,0110,");

    // A piece on the way closes that side only.
    g.Board(1, 8) = AttackerCode;
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "0104,0103,0102,");
    g.Board(1, 3) = DefenderCode;
    EXPECT_EQ(RouteFromKing(g, route), -1);
    EXPECT_EQ(route, "");

    // One free square between King and corner: one square text.
    LoneKing(g, 1, 3);
    g.Board(1, 4) = AttackerCode;
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "0102,");

    // The other edges scan "U" then "D".
    LoneKing(g, 5, 11);
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "0411,0311,0211,0611,0711,0811,0911,1011,");
}

TEST(RouteFromKing, BesideACornerTheTwoHalvesOfTheTestDiffer) {
    // Beside a corner the King has a route without any scan; on the first and last row the test looks
    // at W - 2 instead of W - 1.
    TestGame t;
    Game& g = t.g;
    std::string route = "junk";
    LoneKing(g, 1, 2);
    g.Board(1, 3) = AttackerCode;
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "");
    LoneKing(g, 11, 10);
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "");
    LoneKing(g, 2, 1);
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "");

    // (W - 2, 1) counts as beside the corner even with (W - 1, 1) taken.
    LoneKing(g, 9, 1);
    g.Board(10, 1) = AttackerCode;
    g.Board(8, 1) = AttackerCode;
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "");

    // (W - 1, 1) is not: the "D" scan examines nothing, the "U" scan decides.
    LoneKing(g, 10, 1);
    EXPECT_EQ(RouteFromKing(g, route), 99);
    EXPECT_EQ(route, "0901,0801,0701,0601,0501,0401,0301,0201,");
    g.Board(5, 1) = AttackerCode;
    EXPECT_EQ(RouteFromKing(g, route), -1);
    EXPECT_EQ(route, "");
}

TEST(ScanKingRoute, APieceOrHomeMarkerOnTheWayEmptiesTheScan) {
    // Each examined square must be empty; anything else, a Home marker included, ends the scan with no route.
    TestGame t;
    Game& g = t.g;
    LoneKing(g, 1, 5);
    std::string route;
    ScanKingRoute(g, 1, 5, 'l', route);
    EXPECT_EQ(route, "0104,0103,0102,");
    g.Board(1, 3) = HomeCode;
    ScanKingRoute(g, 1, 5, 'L', route);
    EXPECT_EQ(route, "");
    ScanKingRoute(g, 1, 5, 'X', route);
    EXPECT_EQ(route, "");
    ScanKingRoute(g, 1, 5, 'D', route);
    EXPECT_EQ(route, "0205,0305,0405,0505,0605,0705,0805,0905,1005,");
}

TEST(KingHomeInTwo, ASlideEndingBesideACornerIsAppendedWhole) {
    // A direction counts when the King's farthest square that way lies next to a corner; its whole slide is listed.
    TestGame t;
    Game& g = t.g;
    LoneKing(g, 2, 5);
    std::string route;
    EXPECT_EQ(KingHomeInTwo(g, route), 99);
    EXPECT_EQ(route, "0204,0203,0202,0201,0206,0207,0208,0209,0210,0211,");

    // Only the farthest square is tested: a slide stopped short of the corner's neighbour does not count.
    g.Board(2, 1) = AttackerCode;
    g.Board(2, 11) = AttackerCode;
    EXPECT_EQ(KingHomeInTwo(g, route), -1);
    EXPECT_EQ(route, "");

    // Along the edge the corner itself ends the slide beside it.
    LoneKing(g, 1, 5);
    g.Board(1, 8) = AttackerCode;
    EXPECT_EQ(KingHomeInTwo(g, route), 99);
    EXPECT_EQ(route, "0104,0103,0102,");
}

TEST(KingRouteStatus, DirectThenTwoMovesThenIndirect) {
    // The status is 99 for a direct run, 1 for home in two moves, 2 for a run from a square the King can
    // reach, -1 for none; the indirect search leaves board and King as they were.
    TestGame t;
    Game& g = t.g;
    std::string route;
    LoneKing(g, 1, 5);
    EXPECT_EQ(KingRouteStatus(g, route), 99);
    EXPECT_EQ(route, "0104,0103,0102,0106,0107,0108,0109,0110,");

    PlacePieces(g, 11, 11, {
        "...........",
        "....K......",
    });
    EXPECT_EQ(KingRouteStatus(g, route), 1);
    EXPECT_EQ(route, "0204,0203,0202,0201,0206,0207,0208,0209,0210,0211,");

    // From (3, 5) no slide ends beside a corner; the first target from which a run opens is (1, 5).
    PlacePieces(g, 11, 11, {
        "...........",
        "...........",
        "....K......",
    });
    const std::string before = g.MoveTargets(3, 5);
    EXPECT_EQ(KingRouteStatus(g, route), 2);
    EXPECT_EQ(route, "0105,0104,0103,0102,0106,0107,0108,0109,0110,");
    EXPECT_EQ(g.KingCol, 3);
    EXPECT_EQ(g.KingRow, 5);
    EXPECT_EQ(g.Board(3, 5), DefenderCode);
    EXPECT_EQ(g.Board(1, 5), EmptyCode);
    EXPECT_EQ(g.Board(2, 5), EmptyCode);
    EXPECT_EQ(g.MoveTargets(3, 5), before);

    // Boxed in: nothing.
    PlacePieces(g, 7, 7, {
        ".......",
        ".......",
        "...a...",
        "..aKa..",
        "...a...",
    });
    EXPECT_EQ(KingRouteStatus(g, route), -1);
    EXPECT_EQ(route, "");
}
