// The capture rules: the sandwich of an ordinary piece, and the King taken by four or by three against the edge.
#include <gtest/gtest.h>

#include "core/Move.h"
#include "records/LayoutFile.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
// The squares the captures of the game's log name, in order, blank-separated.
std::string Captured(const Game& g) {
    std::string names;
    for (const std::string& line : g.EventLog)
        if (const auto at = line.find("captures "); at != std::string::npos) names += " " + line.substr(at + 9);
    return names.empty() ? names : names.substr(1);
}
}  // namespace

TEST(CaptureAround, TakesWhatTheMovedPieceSandwiches) {
    // A moved piece takes each enemy it sandwiches against its own side or a Home corner, never the King.
    struct Row { const char* rule; const char* layout; int col, row; const char* captured; };
    const Row rows[] = {
        {"all four sides", "07070606HE1EEEHEE0EEEE10101EEEE0EEEEEE1EEEEEEEEE0EHEEEEEH", 3, 3, "C2 C4 D3 B3"},
        {"a defender, the King beyond", "07070204HEEEEEHE010EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 2, 2, "B3"},
        {"only the moving piece takes", "07070606HEEEEEHEE0EEEEEE1EEEEEE0EEEEEEEEEEEEEEEE0EHEEEEEH", 3, 3, ""},
        {"a corner helps the attacker", "07070606H01EEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE0EHEEEEEH", 1, 3, "A2"},
        {"a corner helps the defender", "07070606HEEEEEH1EEEEEE0EEEEEEEEEEEEEEEEEEEEEEEEE0EHEEEEEH", 3, 1, "B1"},
        {"the empty centre does not", "07070606HEEEEEHEEEEEEEEEEEEEEE10EEEEEEEEEEEEEEEE0EHEEEEEH", 4, 2, ""},
        {"the frame does not", "07070606HEE0EEHEEE1EEEEEEEEEEEEEEEEEEEEEEEEEEEEE0EHEEEEEH", 2, 4, ""},
        {"never the King by two", "07070304HEEEEEHEEEEEEEEE101EEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 3, 3, ""},
        {"the King stops the search", "07070304HE1EEEHEE0EEEE10101EEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 3, 3, "C2"},
    };
    for (const Row& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok()) << r.rule;
        CaptureAround(t.g, r.col, r.row);
        EXPECT_EQ(Captured(t.g), r.captured) << r.rule;
    }
}

TEST(CheckKingCapture, FourAttackersOrThreeAgainstTheEdge) {
    // The King is taken by four attackers, or by three against the edge, a Home corner counting as one.
    struct Row { const char* rule; const char* layout; bool taken; };
    const Row rows[] = {
        {"four in the open", "07070303HEEEEEHEE1EEEEE101EEEEE1EEEEEEEEEEEEEEEEEEHEEEEEH", true},
        {"three in the open", "07070303HEEEEEHEE1EEEEE10EEEEEE1EEEEEEEEEEEEEEEEEEHEEEEEH", false},
        {"three against the first column", "07070103H101EEHEE1EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", true},
        {"three against the last column", "07070703HEEEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE1EEEEH101EEH", true},
        {"three against the first row", "07070301HEEEEEH1EEEEEE01EEEEE1EEEEEEEEEEEEEEEEEEEEHEEEEEH", true},
        {"three against the last row", "07070307HEEEEEHEEEEEE1EEEEE10EEEEEE1EEEEEEEEEEEEEEHEEEEEH", true},
        {"three on the second row", "07070302HEEEEEHE1EEEEEE01EEEEE1EEEEEEEEEEEEEEEEEEEHEEEEEH", false},
        {"two against the edge", "07070703HEEEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEH101EEH", false},
        {"a corner and two", "07070102H01EEEHE1EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", true},
        {"the centre and three", "07070304HEEEEEHEEE1EEEEE101EEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", false},
        {"the King off the board", "07070004HEE1EEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", false},
    };
    for (const Row& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok()) << r.rule;
        EXPECT_EQ(CheckKingCapture(t.g), r.taken) << r.rule;
        EXPECT_EQ(t.g.Board(1, 1), HomeCode) << r.rule;   // a corner standing in for an attacker is Home again
    }
}
