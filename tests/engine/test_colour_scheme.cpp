// The colour schemes of "all.col": the list of their names and the reading of one scheme.
#include <gtest/gtest.h>

#include "records/ColourScheme.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
// Thirteen colour lines after a header; lines 3 and 5 hold numbers that must not be used.
std::string Scheme(const std::string& header, const std::string& entry2, const std::string& entry4) {
    return header + "\r\n1;2;3\r\n10;20;30\r\n" + entry2 + "\r\n9;9;9\r\n" + entry4 +
           "\r\n99;99;99\r\n300;-4;7.5\r\n5\r\nabc;12;\r\n0;0;0\r\n255;255;255\r\n1;1;1\r\n2;2;2\r\n";
}
}  // namespace

TEST(ColourScheme, TheListNamesEveryHeaderInFileOrder) {
    // Every line holding ".col" is a header, listed by the text before its first ".col".
    TestGame t;
    EXPECT_TRUE(FillSchemeList(t.g).empty());   // no all.col
    t.WriteFile("all.col", "xp.col\r\n1;2;3\r\nwood.col\n4;5;6\r\nxp.col backup\r\nnight.colours\r\n");
    EXPECT_EQ(FillSchemeList(t.g), (std::vector<std::string>{"xp", "wood", "xp", "night"}));
}

TEST(ColourScheme, EntriesThreeAndFiveAreLighterAndDarkerFormsOfTwoAndFour) {
    // Entry 3 is entry 2 raised by 32 (above 256 becomes 254; 256 counts as 255); entry 5 is entry 4
    // lowered by 32 (below 1 becomes 8); other entries are read as red;green;blue, missing parts as 0.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("all.col", Scheme("bright.col", "240;240;240", "20;0;100") + Scheme("warm.col", "200;10;0", "0;0;0") +
                               Scheme("edge.col", "224;0;0", "33;32;31"));
    ASSERT_TRUE(LoadColourScheme(g, "bright.col"));
    EXPECT_EQ(g.ColourTable[0], 0x030201);
    EXPECT_EQ(g.ColourTable[1], 0x1E140A);
    EXPECT_EQ(g.ColourTable[2], 0xF0F0F0);
    EXPECT_EQ(g.ColourTable[3], 0xFEFEFE);   // 272 is above 256: 254
    EXPECT_EQ(g.ColourTable[4], 0x640014);
    EXPECT_EQ(g.ColourTable[5], 0x440808);   // 20-32 and 0-32 are below 1: 8; 100-32 = 68
    EXPECT_EQ(g.ColourTable[6], 0x0800FF);   // 300 counts as 255, 7.5 rounds to 8; a negative part as 0
    EXPECT_EQ(g.ColourTable[7], 0x000005);
    EXPECT_EQ(g.ColourTable[8], 0x000C00);
    EXPECT_EQ(g.ColourTable[12], 0x020202);
    EXPECT_TRUE(t.view.Calls.empty());

    ASSERT_TRUE(LoadColourScheme(g, "warm.col"));
    EXPECT_EQ(g.ColourTable[3], 0x202AE8);   // 232;42;32
    EXPECT_EQ(g.ColourTable[5], 0x080808);

    ASSERT_TRUE(LoadColourScheme(g, "edge.col"));
    EXPECT_EQ(g.ColourTable[3], 0x2020FF);   // 224+32 = 256 stays, and counts as 255
    EXPECT_EQ(g.ColourTable[5], 0x080801);   // 33-32 = 1 stays; 0 and -1 are below 1: 8
}

TEST(ColourScheme, AnUnknownSchemeIsReportedAndKeepsTheColours) {
    // A scheme whose header is not in the file (a line "xp.col backup" does not count) is reported; the
    // colours stay and the configuration's scheme goes back to "xp.col".
    TestGame t;
    Game& g = t.g;
    t.WriteFile("all.col", Scheme("xp.col backup", "1;1;1", "2;2;2"));
    g.ColourTable.fill(0x123456);
    g.SchemeFile = "xp.col";
    EXPECT_FALSE(LoadColourScheme(g, "xp.col"));
    g.SchemeFile = "night.col";
    EXPECT_FALSE(LoadColourScheme(g, "night.col"));
    EXPECT_EQ(g.SchemeFile, "xp.col");
    EXPECT_EQ(t.view.Messages(), (std::vector<std::string>{"Colour Scheme: xp.col not found [vbok+vbcritical]",
                                                            "Colour Scheme: night.col not found [vbok+vbcritical]"}));
    for (std::int32_t colour : g.ColourTable) EXPECT_EQ(colour, 0x123456);
}

TEST(ColourScheme, ASchemeCutShortKeepsWhatWasRead) {
    // When the file ends inside a scheme, the entries read so far are taken and the rest stay, silently.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("all.col", "short.col\r\n1;0;0\r\n2;0;0\r\n3;0;0\r\n");
    g.ColourTable.fill(0x123456);
    EXPECT_TRUE(LoadColourScheme(g, "short.col"));
    EXPECT_EQ(g.ColourTable[0], 1);
    EXPECT_EQ(g.ColourTable[2], 3);
    EXPECT_EQ(g.ColourTable[3], 0x123456);
    EXPECT_EQ(g.ColourTable[12], 0x123456);
    EXPECT_TRUE(t.view.Calls.empty());
}

TEST(ColourScheme, TheShippedFileHasXpFirstAndEverySchemeLoads) {
    // The shipped file lists xp first and each of its schemes loads whole.
    TestGame t;
    t.CopyData("all.col");
    const std::vector<std::string> names = FillSchemeList(t.g);
    ASSERT_GE(names.size(), 5u);
    EXPECT_EQ(names.front(), "xp");
    for (const std::string& name : names) EXPECT_TRUE(LoadColourScheme(t.g, name + ".col")) << name;
    EXPECT_TRUE(t.view.Calls.empty());
}
