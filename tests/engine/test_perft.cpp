// The move counts of a position under its rules: pinned on every shipped layout, and ending with the game.
#include <gtest/gtest.h>

#include <vector>

#include "core/Board.h"
#include "core/Perft.h"
#include "records/LayoutFile.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

TEST(Perft, ShippedLayoutsCountAsPinned) {
    // The move counts of the shipped layouts are as pinned; from the 11x11 opening with the attackers first
    // they are those other tafl programs count.
    const struct { const char* layout; int side; std::vector<std::uint64_t> counts; } rows[] = {
        {"patf.txt", DefenderCode, {60, 6900, 440056}},
        {"patf.txt", AttackerCode, {116, 6788, 806344, 50456804}},
        {"pattern1.txt", DefenderCode, {24, 944, 23984}},
        {"pattern1.txt", AttackerCode, {40, 960, 39512}},
        {"pattern2.txt", DefenderCode, {0, 0, 225224}},
        {"pattern2.txt", AttackerCode, {0, 0, 285728}},
        {"pattern3.txt", DefenderCode, {0, 0, 416264}},
        {"pattern3.txt", AttackerCode, {0, 0, 922440}},
        {"pattern4.txt", DefenderCode, {0, 0, 2874960}},
        {"pattern4.txt", AttackerCode, {0, 0, 3999896}},
        {"pattern5.txt", DefenderCode, {0, 0, 856208}},
        {"pattern5.txt", AttackerCode, {0, 0, 693664}},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ReadLayoutFile(t.g, jv::test::DataPath(r.layout)).Ok());
        for (int depth = 1; depth <= static_cast<int>(r.counts.size()); ++depth) {
            const std::uint64_t pinned = r.counts[static_cast<std::size_t>(depth) - 1];
            if (pinned > 0) EXPECT_EQ(Perft(t.g, depth, r.side), pinned) << r.layout << " depth " << depth;
        }
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
