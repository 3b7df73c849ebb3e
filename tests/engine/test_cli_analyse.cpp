#include <gtest/gtest.h>

#include "support/Fixtures.h"
#include "support/RunCli.h"

using jv::test::RunCli;
using jv::test::TestGame;

TEST(CliAnalyse, PrintsTheAnalysisLinesInOrder) {
    // `analyse` prints size, King, the targets of every piece, both reach maps, the chances and the counters.
    TestGame t;
    t.WriteFile("small.txt", "05050303HEEEH" "E1EEE" "EE0EE" "EEEEE" "HEEEH\r\n");
    const auto r = RunCli("analyse small.txt", t.folder.string());
    ASSERT_EQ(r.exitCode, 0) << r.err;
    const std::vector<std::string> expected = {
        "size 5 5",
        "king 0303",
        "targets 0101 0201,0301,0401,0102,0103,0104,",
        "targets 0105 0205,0305,0405,0104,0103,0102,",
        "targets 0202 0102,0302,0402,0502,0201,0203,0204,0205,",
        "targets 0303 0203,0103,0403,0503,0302,0301,0304,0305,",
        "targets 0501 0401,0301,0201,0502,0503,0504,",
        "targets 0505 0405,0305,0205,0504,0503,0502,",
        "reach0 0103,0203,0301,0302,0304,0305,0403,0503,",
        "reach1 0102,0201,0203,0204,0205,0302,0402,0502,",
        "chances0 ",
        "chances1 ",
        "kingcapture ",
        "counters 0 1",
    };
    EXPECT_EQ(r.out, expected);
}

TEST(CliAnalyse, ReadsALayoutLineFromStandardInputAndReportsUnreadableFiles) {
    // "-" reads the layout line from standard input; an unreadable file is reported on standard error
    // with exit code 2.
    TestGame t;
    const auto fromInput = RunCli("analyse -", t.folder.string(), "03030202HEH" "E0E" "HEH\n");
    ASSERT_EQ(fromInput.exitCode, 0);
    EXPECT_EQ(fromInput.out.front(), "size 3 3");
    EXPECT_EQ(fromInput.out.back(), "counters 0 0");
    const auto missing = RunCli("analyse nothere.txt", t.folder.string());
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_TRUE(missing.out.empty());
    EXPECT_EQ(missing.err, "Error reading Layout File:\nnothere.txt\n");
}
