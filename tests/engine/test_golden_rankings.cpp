// The rankings of both sides on every shipped opening, and on a crowded 14x14 position, stay as recorded.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ai/AttackerRank.h"
#include "ai/DefenderRank.h"
#include "session/LayoutCommands.h"
#include "records/TextFile.h"
#include "support/Fixtures.h"
#include "support/RunCli.h"

using namespace jv;
using jv::test::TestDataPath;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {
Lines Golden(const std::string& name) {
    Lines lines;
    EXPECT_TRUE(ReadLines(TestDataPath("golden/" + name), lines)) << name;
    return lines;
}

// The rule lines, "--", then the candidate list, as the golden files and the `rank` command write them.
Lines Joined(const Lines& rules, const Lines& candidates) {
    Lines out = rules;
    out.push_back("--");
    out.insert(out.end(), candidates.begin(), candidates.end());
    return out;
}
}  // namespace

TEST(GoldenRankings, ShippedLayoutsRankAsRecorded) {
    // Both sides' rankings of every shipped opening and of a crowded 14x14 position stay as recorded.
    for (const std::string layout : {"patf", "pattern1", "pattern2", "pattern3", "pattern4", "pattern5", "crowded14"}) {
        const std::string path = layout == "crowded14" ? TestDataPath("crowded14.txt") : layout + ".txt";
        for (int side : {2, 0, 1}) {   // the attackers, then the defenders in mode 0 and in mode 1
            TestGame t;
            t.CopyData();
            LoadLayout(t.g, path);
            if (side == 2) GetAttackerRank(t.g);
            else GetDefenderRank(t.g, side);
            const Lines ranked = side == 2 ? Joined(t.g.AttackerMovesRank, t.g.List1A) : Joined(t.g.DefenderMovesRank, t.g.List1D);
            const std::string golden = layout + (side == 2 ? ".attackers.txt" : side == 1 ? ".defenders-mode1.txt" : ".defenders.txt");
            EXPECT_EQ(ranked, Golden(golden)) << golden;
        }
    }
    TestGame t;
    t.CopyData();
    EXPECT_EQ(jv::test::RunCli("rank attackers patf.txt", t.folder.string()).out, Golden("patf.attackers.txt"));
    EXPECT_EQ(jv::test::RunCli("rank defenders '" + TestDataPath("crowded14.txt") + "' --mode 1", t.folder.string()).out,
              Golden("crowded14.defenders-mode1.txt"));
}
