// The user's drag and drop: which pieces may be picked up, where they may go, and what a drop does.
#include <gtest/gtest.h>

#include <tuple>

#include "session/Pointer.h"
#include "session/Session.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::TestGame;

namespace {
// The King on A4, free to the corner A1 but not to A7 (a defender on A6); a defender on D2; attackers on B2
// and F4; the centre is D4.
const char* const Open = "07070104HEE0E0HE1EEEEEEEEEEEEE0EEEEEEEEEEEEEEE1EEEHEEEEEH";

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : "|") + line;
    return text;
}
}  // namespace

TEST(Pointer, OnlyDefendersAndTheKingMoveAndOnlyToTheSquaresTheyCanReach) {
    // The user moves defenders and the King only, and only to the empty squares of their free lines.
    const struct { const char* why; int fromCol, fromRow, toCol, toRow; bool accepted; } rows[] = {
        {"up its column", 4, 2, 4, 1, true},   {"along its row", 4, 2, 7, 2, true},
        {"down its column", 4, 2, 4, 7, true}, {"onto an attacker", 4, 2, 2, 2, false},
        {"past an attacker", 4, 2, 1, 2, false}, {"diagonally", 4, 2, 5, 3, false},
        {"its own square", 4, 2, 4, 2, false}, {"the frame", 4, 2, 4, 0, false},
        {"the King Home", 1, 4, 1, 1, true},   {"the King to a blocked corner", 1, 4, 1, 7, false},
        {"the King on the centre", 1, 4, 4, 4, true}, {"a defender to a corner", 1, 6, 1, 7, false},
        {"an attacker", 2, 2, 2, 3, false},    {"an empty square", 3, 3, 3, 4, false},
        {"a corner", 1, 1, 1, 2, false},       {"off the board", 0, 4, 1, 4, false},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, Open).Ok());
        EXPECT_EQ(BeginDrag(t.g, r.fromCol, r.fromRow) && AcceptsDrop(t.g, r.toCol, r.toRow), r.accepted) << r.why;
    }
}

TEST(Pointer, ADropMovesRecordsAndCapturesOrChangesNothing) {
    // An accepted drop is recorded, logged and captures; a refused one changes nothing; the King Home wins.
    const char* const layout = "07070104HEE0EEHEEEEEEEEEEEEEEEEEEEEE01EEEEEEEEEEEEHE00EEH";
    const struct { const char* why; int fromCol, fromRow, toCol, toRow; const char* log; std::size_t undo; } rows[] = {
        {"a capture", 7, 3, 5, 3, "  Player1 Move G3 > E3|  Player 1 captures E2", 1},
        {"a defender on the centre", 7, 4, 4, 4, "", 0},
        {"the King on the centre", 1, 4, 4, 4, "  King Move A4 > D4", 1},
        {"a defender on a corner", 7, 3, 7, 1, "", 0},
        {"the King Home", 1, 4, 1, 1, "", 0},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, layout).Ok());
        t.g.Check1 = false;
        ASSERT_TRUE(BeginDrag(t.g, r.fromCol, r.fromRow)) << r.why;
        EndDrag(t.g, r.toCol, r.toRow);
        EXPECT_EQ(Joined(t.g.EventLog), r.log) << r.why;
        EXPECT_EQ(t.g.Undo.size(), r.undo) << r.why;
        EXPECT_FALSE(t.g.DragLineVisible) << r.why;
        EXPECT_EQ(GameFinished(t.g), r.toCol == 1 && r.toRow == 1) << r.why;
    }
}

TEST(Pointer, DropsFollowTheBoardEvenWhenTheTablesAreStale) {
    // The pointer walks the board as it stands, whatever analysis a computer player's trial left behind.
    TestGame t;
    Game& g = t.g;
    ASSERT_TRUE(ApplyLayoutLine(g, "07070404HEEEEEHE0EEEEEEEEEEEEEEE0EEEEEEEEEEEEEEEEEHEEEEEH").Ok());
    g.Board(2, 4) = AttackerCode;   // placed after the analysis: the lists still show (2,4) free
    ASSERT_NE(g.MoveTargets(2, 2).find("0205,"), std::string::npos);
    ASSERT_TRUE(BeginDrag(g, 2, 2));
    EXPECT_EQ(std::tuple(AcceptsDrop(g, 2, 3), AcceptsDrop(g, 2, 4), AcceptsDrop(g, 2, 5)), std::tuple(true, false, false));
    EXPECT_EQ(PieceTargets(g, 2, 2), "0102,0302,0402,0502,0602,0702,0201,0203,");
}

TEST(Pointer, OnlyTheKingStopsOnTheCentreTheSquarePastTheMiddleOnAnEvenSide) {
    // Only the King stops on the centre: the middle square of an odd side, the one past the middle of an even one.
    using jv::test::LayoutText;
    const std::string even = LayoutText({"......", "......", "...d..", "d.....", "......", "...K.."});   // 6 by 6
    const std::string wide = LayoutText({".....", "..d..", ".....", ".....", ".....", ".....", "..K..", "....."});
    const struct { const char* why; std::string layout; int fromCol, fromRow, toCol, toRow; bool moved; } rows[] = {
        {"a defender onto D4 of 7 by 7", LayoutText({".......", "...d...", ".......", ".......", ".......", ".......", "......."}),
         2, 4, 4, 4, false},
        {"a defender onto D4 of 6 by 6", even, 4, 1, 4, 4, false},
        {"a defender onto C3 of 6 by 6", even, 3, 4, 3, 3, true},
        {"the King onto D4 of 6 by 6", even, 6, 4, 4, 4, true},
        {"a defender onto E3 of 8 by 5", wide, 2, 3, 5, 3, false},
        {"a defender onto D3 of 8 by 5", wide, 2, 3, 4, 3, true},
        {"the King onto E3 of 8 by 5", wide, 7, 3, 5, 3, true},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok()) << r.why;
        t.g.Check1 = false;
        const int mover = t.g.Board(r.fromCol, r.fromRow);
        ASSERT_TRUE(BeginDrag(t.g, r.fromCol, r.fromRow)) << r.why;
        EndDrag(t.g, r.toCol, r.toRow);
        EXPECT_EQ(t.g.Board(r.toCol, r.toRow) == mover, r.moved) << r.why;
        EXPECT_EQ(t.g.Undo.size(), r.moved ? 1u : 0u) << r.why;
    }
}
