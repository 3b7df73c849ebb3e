// The colour schemes of "all.col": the list of their names and the reading of one scheme.
#include <gtest/gtest.h>

#include "records/ColourScheme.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {
// Thirteen colour lines after a header; lines 3 and 5 hold numbers that must not be used.
std::string Scheme(const std::string& header, const std::string& entry2, const std::string& entry4) {
    return header + "\r\n1;2;3\r\n10;20;30\r\n" + entry2 + "\r\n9;9;9\r\n" + entry4 +
           "\r\n99;99;99\r\n300;-4;7.5\r\n5\r\nabc;12;\r\n0;0;0\r\n255;255;255\r\n1;1;1\r\n2;2;2\r\n";
}
}  // namespace

TEST(ColourScheme, TheListNamesEveryHeaderInFileOrder) {
    // Every line of "all.col" holding ".col" names a scheme, by the text before its first ".col".
    TestGame t;
    EXPECT_TRUE(FillSchemeList(t.g).empty());
    t.WriteFile("all.col", "xp.col\r\n1;2;3\r\nwood.col\n4;5;6\r\nxp.col backup\r\nnight.colours\r\n");
    EXPECT_EQ(FillSchemeList(t.g), (Lines{"xp", "wood", "xp", "night"}));
}

TEST(ColourScheme, EntriesThreeAndFiveAreLighterAndDarkerFormsOfTwoAndFour) {
    // A scheme's entry 3 is entry 2 lightened by 32 and entry 5 is entry 4 darkened by 32.
    const struct { const char* entry2; const char* entry4; std::int32_t entry3, entry5; } rows[] = {
        {"240;240;240", "20;0;100", 0xFEFEFE, 0x440808},
        {"200;10;0", "0;0;0", 0x202AE8, 0x080808},
        {"224;0;0", "33;32;31", 0x2020FF, 0x080801},
    };
    for (const auto& r : rows) {
        TestGame t;
        t.WriteFile("all.col", Scheme("s.col", r.entry2, r.entry4));
        ASSERT_TRUE(LoadColourScheme(t.g, "s.col")) << r.entry2;
        const auto& c = t.g.ColourTable;
        EXPECT_EQ((std::array{c[3], c[5]}), (std::array{r.entry3, r.entry5})) << r.entry2 << " " << r.entry4;
        EXPECT_EQ((std::array{c[0], c[1], c[6], c[7], c[8], c[12]}),
                  (std::array<std::int32_t, 6>{0x030201, 0x1E140A, 0x0800FF, 0x000005, 0x000C00, 0x020202}));
        EXPECT_TRUE(t.view.Calls.empty());
    }
}

TEST(ColourScheme, AnUnknownSchemeIsRefusedAndAShortOneKeepsWhatItDidNotReach) {
    // An unknown scheme is reported and changes no colour; a short one changes only the entries it holds.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("all.col", "xp.col backup\r\nshort.col\r\n1;0;0\r\n2;0;0\r\n3;0;0\r\n");
    g.ColourTable.fill(0x123456);
    g.SchemeFile = "night.col";
    EXPECT_FALSE(LoadColourScheme(g, "xp.col"));
    EXPECT_EQ(g.SchemeFile, "xp.col");
    EXPECT_EQ(t.view.Messages(), Lines{"Colour Scheme: xp.col not found [vbok+vbcritical]"});
    EXPECT_EQ(g.ColourTable[0], 0x123456);
    EXPECT_TRUE(LoadColourScheme(g, "short.col"));
    EXPECT_EQ((std::array{g.ColourTable[0], g.ColourTable[2], g.ColourTable[3]}), (std::array{1, 3, 0x123456}));

    t.CopyData("all.col");
    for (const std::string& name : FillSchemeList(g)) EXPECT_TRUE(LoadColourScheme(g, name + ".col")) << name;
    EXPECT_EQ(t.view.Messages().size(), 1u);
}
