#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "ai/AttackerRank.h"
#include "ai/DefenderRank.h"
#include "session/LayoutCommands.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestDataPath;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

Lines ReadGolden(const std::string& name) {
    std::ifstream in(TestDataPath("golden/" + name));
    Lines lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

Lines Joined(const Lines& first, const Lines& second) {
    Lines out = first;
    out.push_back("--");
    out.insert(out.end(), second.begin(), second.end());
    return out;
}

// A freshly loaded game on a shipped layout, or on a test position by its full path.
void LoadFresh(TestGame& t, const std::string& layout) {
    t.CopyData();
    const std::string path = layout == "crowded14" ? TestDataPath("crowded14.txt") : layout + ".txt";
    LoadLayout(t.g, path);
    ASSERT_EQ(t.g.LayoutFile, path);
}

}  // namespace

TEST(GoldenRankings, ShippedLayoutsRankAsRecorded) {
    // The rankings of both sides on every shipped opening, and on a crowded 14x14 position, stay as recorded.
    for (const std::string layout : {"patf", "pattern1", "pattern2", "pattern3", "pattern4", "pattern5", "crowded14"}) {
        {
            TestGame t;
            LoadFresh(t, layout);
            GetAttackerRank(t.g);
            EXPECT_EQ(Joined(t.g.AttackerMovesRank, t.g.List1A), ReadGolden(layout + ".attackers.txt")) << layout;
        }
        for (int mode : {0, 1}) {
            TestGame t;
            LoadFresh(t, layout);
            GetDefenderRank(t.g, mode);
            const std::string golden = layout + (mode == 1 ? ".defenders-mode1.txt" : ".defenders.txt");
            EXPECT_EQ(Joined(t.g.DefenderMovesRank, t.g.List1D), ReadGolden(golden)) << layout << " mode " << mode;
        }
    }
}
