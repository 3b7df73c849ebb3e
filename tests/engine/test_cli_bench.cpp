// The fixed benchmark guards behaviour: its node count and signature change only on purpose.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "support/Fixtures.h"
#include "support/RunCli.h"

TEST(CliBench, TheNodeCountAndSignatureAreTheKeptOnes) {
    // `bench` ranks both sides and counts perft on every shipped layout; a change of what the computer plays
    // or of what the rules allow changes its last two lines, and bench/signature.txt must change with them.
    jv::test::TestGame t;
    t.CopyData();
    const auto r = jv::test::RunCli("bench", t.folder.string());
    ASSERT_EQ(r.exitCode, 0) << r.err;
    ASSERT_GE(r.out.size(), 2u);
    std::ifstream kept(jv::test::DataPath("../bench/signature.txt"));
    std::stringstream expected;
    expected << kept.rdbuf();
    EXPECT_EQ(r.out[r.out.size() - 2] + "\n" + r.out.back() + "\n", expected.str());
}
