// The move counts of a position agree with playing every move through the program's own procedures.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/Board.h"
#include "session/PlayerMoves.h"
#include "core/Move.h"
#include "core/Perft.h"
#include "session/Pointer.h"
#include "core/Reach.h"
#include "session/Session.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {

// The slow counter: every move is played on a copy of the whole game by the
// program's own procedures, the user's drag and drop for the defenders and
// MakeAttackerMove for the attackers.

// The moves of a side: for a defender, every square of its row and column
// that the pointer accepts as a drop; for an attacker, its targets; the
// centre for nobody but the King.
std::vector<Move> SlowMoves(Game& g, int side) {
    std::vector<Move> moves;
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            if (g.Board(col, row) != side) continue;
            const bool king = col == g.KingCol && row == g.KingRow;
            auto add = [&](int c, int r) {
                if (king || c != g.CentreCol || r != g.CentreRow) moves.push_back({col, row, c, r});
            };
            if (side == AttackerCode) ForEachSquareItem(g.MoveTargets(col, row), add);
            g.DragSource = Square{col, row};
            for (int k = 1; side == DefenderCode && k <= std::max(g.BoardWidth, g.BoardHeight); ++k) {
                if (AcceptsDrop(g, k, row)) add(k, row);
                if (AcceptsDrop(g, col, k)) add(col, k);
            }
            g.DragSource = Square{};
        }
    return moves;
}

Game SlowMove(const Game& g, const Move& m, int side) {
    Game next = g;
    next.Check1 = false;   // the computer does not answer: the counter plays both sides
    if (side == AttackerCode) MakeAttackerMove(next, m);
    else EXPECT_TRUE(BeginDrag(next, m.From.Col, m.From.Row) && EndDrag(next, m.To.Col, m.To.Row));
    EXPECT_NE(EncodePosition(next), EncodePosition(g));
    return next;
}

std::uint64_t SlowCount(Game& g, int depth, int side) {
    if (depth == 0) return 1;
    if (GameFinished(g) || KingAtHome(g)) return 0;
    const std::vector<Move> moves = SlowMoves(g, side);
    if (depth == 1) return moves.size();
    std::uint64_t total = 0;
    for (const Move& m : moves) {
        Game next = SlowMove(g, m, side);
        total += SlowCount(next, depth - 1, 1 - side);
    }
    return total;
}

// Both counters agree at every depth up to the given one, and the board is left as it was.
void ExpectCountersAgree(Game& g, int maxDepth, int side) {
    const std::string before = EncodePosition(g);
    for (int depth = 1; depth <= maxDepth; ++depth)
        EXPECT_EQ(Perft(g, depth, side), SlowCount(g, depth, side)) << "depth " << depth << " side " << side;
    EXPECT_EQ(EncodePosition(g), before);
}

}  // namespace

TEST(Perft, ShippedLayoutsCountAsPinnedAndAsTheSlowCounter) {
    // The move counts of the shipped layouts are as pinned and as playing every move gives them; from the
    // 11x11 opening with the attackers first they are those other tafl programs count.
    const struct { const char* layout; int side; std::vector<std::uint64_t> counts; int slow; } rows[] = {
        {"patf.txt", DefenderCode, {60, 6900, 440056}, 3},
        {"patf.txt", AttackerCode, {116, 6788, 806344, 50456804}, 2},
        {"pattern1.txt", DefenderCode, {24, 944, 23984}, 3},
        {"pattern1.txt", AttackerCode, {40, 960, 39512}, 3},
        {"pattern2.txt", DefenderCode, {0, 0, 225224}, 0},
        {"pattern2.txt", AttackerCode, {0, 0, 285728}, 0},
        {"pattern3.txt", DefenderCode, {0, 0, 416264}, 0},
        {"pattern3.txt", AttackerCode, {0, 0, 922440}, 0},
        {"pattern4.txt", DefenderCode, {0, 0, 2874960}, 0},
        {"pattern4.txt", AttackerCode, {0, 0, 3999896}, 0},
        {"pattern5.txt", DefenderCode, {0, 0, 856208}, 0},
        {"pattern5.txt", AttackerCode, {0, 0, 693664}, 0},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ReadLayoutFile(t.g, jv::test::DataPath(r.layout)).Ok());
        for (int depth = 1; depth <= static_cast<int>(r.counts.size()); ++depth) {
            const std::uint64_t pinned = r.counts[static_cast<std::size_t>(depth) - 1];
            if (pinned > 0) EXPECT_EQ(Perft(t.g, depth, r.side), pinned) << r.layout << " depth " << depth;
            if (depth <= r.slow) EXPECT_EQ(SlowCount(t.g, depth, r.side), pinned) << r.layout << " depth " << depth;
        }
    }
}

TEST(Perft, CapturesTheKingsCaptureAndHisWayHomeAgreeWithTheGame) {
    // With captures and the King's capture about, the move counts agree with playing every move.
    for (const char* layout : {"07070201HE1EEEH0EEE1EE1E0E0EEE0EE1EEEE1EEE0E1EE0EEHEE1EEH",
                               "07070401HEEEEEHEEEEEEE1EEEEEE0EEEEEE1EEEEEEE1EEEEEHEEEEEH"}) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, layout).Ok());
        ExpectCountersAgree(t.g, 3, DefenderCode);
        ExpectCountersAgree(t.g, 3, AttackerCode);
    }
}

TEST(Perft, TheKingAtHomeOrTakenEndsTheLine) {
    // The King's move Home and the attacker move that takes him end the line: nothing follows them.
    TestGame t;
    Game& g = t.g;
    ASSERT_TRUE(ApplyLayoutLine(g, "05050103HE0EHEEEEEEEEE1EEEEEHEEEH").Ok());
    EXPECT_EQ(Perft(g, 2, DefenderCode), 28u);
    for (const PerftLine& line : PerftDivide(g, 2, DefenderCode)) {
        const bool home = IsCorner(g, line.First.To.Col, line.First.To.Row), centre = line.First.To.Col == 3 && line.First.To.Row == 3;
        EXPECT_EQ(line.Count, home ? 0u : centre ? 3u : 5u) << line.First.To.Col << "," << line.First.To.Row;
    }
    // The King on D1 between attackers on C1 and E1: the attacker from F2 to D2 takes him.
    ASSERT_TRUE(ApplyLayoutLine(g, "07070401HEEEEEHEEEEEEE1EEEEEE0EEEEEE1EEEEEEE1EEEEEHEEEEEH").Ok());
    for (const PerftLine& line : PerftDivide(g, 2, AttackerCode))
        EXPECT_EQ(line.Count == 0, line.First.From.Col == 6 && line.First.To.Col == 4 && line.First.To.Row == 2)
            << line.First.From.Col << "," << line.First.From.Row << ">" << line.First.To.Col << "," << line.First.To.Row;
}
