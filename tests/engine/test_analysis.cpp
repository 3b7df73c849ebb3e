// The analysis of a position: the capture chances of both sides and the counters.
#include <gtest/gtest.h>

#include "records/LayoutFile.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

TEST(Analysis, ChancesNameTheEmptySquareThatCompletesASandwich) {
    // A line of attacker, defender and empty square is a chance for the side that would complete the sandwich.
    struct Row { const char* layout; const char* attackers; const char* defenders; const char* king; int d, a; };
    const Row rows[] = {
        {"07070704HEEEEEHEEEEEEEE10EEEEEEEEEEEEEEEEEEEEEEEEEHEE0EEH", "0304,", "0301,", "", 1, 1},
        {"07070704HEE1EEHEEE0EEEEEEEEEEEEEEEEEE10EEEEEEEEEEEHEE0EEH", "0504,0304,", "0501,", "", 2, 2},
        {"07070404HEEEEEHEEEEEEEEEEEEEEEE10EEEEEEEEEEEEEEEEEHEEEEEH", "0405,", "0402,", "0405,", 0, 1},
        {"07070404H01EEEHEEEEEEEEEEEEEEEEE0EEEEEEEEEEEEEEEEEHEEEEEH", "", "0104,", "", 1, 1},
    };
    for (const Row& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok());
        EXPECT_EQ(t.g.CaptureChances[0], r.attackers) << r.layout;
        EXPECT_EQ(t.g.CaptureChances[1], r.defenders) << r.layout;
        EXPECT_EQ(t.g.KingCaptureSquares, r.king) << r.layout;
        EXPECT_EQ(t.view.Defenders, r.d) << r.layout;
        EXPECT_EQ(t.view.Attackers, r.a) << r.layout;
    }
}
