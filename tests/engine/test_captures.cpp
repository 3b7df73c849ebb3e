#include <gtest/gtest.h>

#include "core/Move.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Calls = std::vector<std::string>;

namespace {
// The calls one capture makes: the mark, a second's pause, the log line and the repaint.
Calls Capture(const std::string& square, int col, int row, int player) {
    const std::string n = std::to_string(player);
    const std::string at = std::to_string(col) + " " + std::to_string(row);
    return {"MarkVictim " + at, "Pause 1000", "PrintLine |  Player " + n + " captures " + square + "| " + n + " 0",
            "DrawSquare " + at + " 0"};
}

Calls Joined(std::initializer_list<Calls> parts) {
    Calls all;
    for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}
}  // namespace

TEST(CaptureAround, TakesEverySandwichedEnemyOneSecondApartInTheFixedOrder) {
    // Victims are taken in the order (col, row-1), (col, row+1), (col+1, row), (col-1, row), each after a
    // one-second pause with its own log line.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {".", ".", "....a", "....d", "..adada", "....d", "....a", ".", ".", "K"});
    t.view.Clear();
    CaptureAround(g, 5, 5);
    EXPECT_EQ(t.view.Calls, Joined({{"HideDragLine"}, Capture("E4", 5, 4, 2), Capture("E6", 5, 6, 2),
                                    Capture("F5", 6, 5, 2), Capture("D5", 4, 5, 2)}));
    for (const auto& [col, row] : {std::pair{5, 4}, {5, 6}, {6, 5}, {4, 5}}) EXPECT_EQ(g.Board(col, row), EmptyCode);
    EXPECT_EQ(g.Board(5, 3), AttackerCode);
    EXPECT_EQ(g.Board(3, 5), AttackerCode);
}

TEST(CaptureAround, OnlyTheMovingPieceCapturesAndBothSidesCaptureAlike) {
    // An attacker standing between two defenders is not taken; a defender takes an attacker against
    // another defender; the King takes like a defender and serves as the far piece.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {".", "...d", "...a", "...d", ".", ".", "...Kad"});
    t.view.Clear();
    CaptureAround(g, 3, 4);   // the attacker between the two defenders
    EXPECT_EQ(t.view.Calls, Calls{"HideDragLine"});
    EXPECT_EQ(g.Board(3, 4), AttackerCode);

    t.view.Clear();
    CaptureAround(g, 2, 4);   // the defender above it
    EXPECT_EQ(t.view.Calls, Joined({{"HideDragLine"}, Capture("C4", 3, 4, 1)}));

    t.view.Clear();
    CaptureAround(g, 7, 6);   // a defender, with the King beyond the attacker
    EXPECT_EQ(t.view.Calls, Joined({{"HideDragLine"}, Capture("G5", 7, 5, 1)}));

    g.Board(7, 5) = AttackerCode;
    t.view.Clear();
    CaptureAround(g, 7, 4);   // the King, with a defender beyond the attacker
    EXPECT_EQ(t.view.Calls, Joined({{"HideDragLine"}, Capture("G5", 7, 5, 1)}));
}

TEST(CaptureAround, AHomeCornerIsTheFarPieceOfEitherSideButTheFrameAndCentreNeverAre) {
    // A defender on B1 next to the corner A1 is taken by an attacker arriving on C1; an attacker on A2 by a
    // defender arriving on A3. The frame beyond the edge and the empty centre complete no sandwich.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 11, 11, {".a.", "d", "a", ".", "d", "....d", ".", ".", ".", "K"});
    t.view.Clear();
    CaptureAround(g, 3, 1);
    EXPECT_EQ(t.view.Calls, Joined({{"HideDragLine"}, Capture("B1", 2, 1, 2)}));

    g.Board(1, 3) = DefenderCode;
    t.view.Clear();
    CaptureAround(g, 1, 3);
    EXPECT_EQ(t.view.Calls, Joined({{"HideDragLine"}, Capture("A2", 1, 2, 1)}));
    EXPECT_EQ(g.Board(1, 1), HomeCode);
    EXPECT_EQ(g.Board(11, 11), HomeCode);

    // E1 against the frame, and F5 against the empty centre F6: nothing is taken.
    g.Board(5, 2) = AttackerCode;
    t.view.Clear();
    CaptureAround(g, 5, 2);
    g.Board(6, 4) = AttackerCode;
    CaptureAround(g, 6, 4);
    EXPECT_EQ(t.view.Calls, (Calls{"HideDragLine", "HideDragLine"}));
    EXPECT_EQ(g.Board(5, 1), DefenderCode);
    EXPECT_EQ(g.Board(6, 5), DefenderCode);
}

TEST(CaptureAround, TheKingIsNeverTakenByTwoAndStopsTheSearch) {
    // A King sandwiched by the move stops the captures: a defender sandwiched in a later direction stays,
    // while one in an earlier direction has already gone.
    TestGame t;
    Game& g = t.g;
    // The attacker arrives on E5: the King on E4 (col, row-1) and a defender on E6 (col, row+1) are both
    // sandwiched; neither is taken.
    PlacePieces(g, 11, 11, {".", ".", ".", ".", "..aKada"});
    t.view.Clear();
    CaptureAround(g, 5, 5);
    EXPECT_EQ(t.view.Calls, Calls{"HideDragLine"});
    EXPECT_EQ(g.Board(5, 6), DefenderCode);
    EXPECT_EQ(g.Board(5, 4), DefenderCode);

    // Here the defender on E4 comes first, then the King on F5 stops the search before D5.
    PlacePieces(g, 11, 11, {".", ".", "....a", "....d", "..ada", "....K", "....a"});
    t.view.Clear();
    CaptureAround(g, 5, 5);
    EXPECT_EQ(t.view.Calls, Joined({{"HideDragLine"}, Capture("E4", 5, 4, 2)}));
    EXPECT_EQ(g.Board(4, 5), DefenderCode);
    EXPECT_EQ(g.Board(6, 5), DefenderCode);
    EXPECT_EQ(g.EventLog, std::vector<std::string>{"  Player 2 captures E4"});
}
