// The configuration file: what its reader takes, what it refuses and replaces with the defaults, and what
// the exit writes.
#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "records/Configuration.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
const std::string SixLines = "wood.col\r\npattern2.txt\r\nplayer01.ico\r\nplayer11.ico\r\nhome1.ico\r\nking1.ico\r\n";
const std::string Defaults = "xp.col\r\npatf.txt\r\nplayer00.ico\r\nplayer10.ico\r\nhome0.ico\r\nking0.ico\r\n"
                             "32768 128 8421504 0\r\n0 1 0 1 77\r\n";

// Settings that differ from every default, so a test sees which ones a read touched.
void UnusualSettings(Game& g) {
    std::tie(g.SchemeFile, g.LayoutFile, g.PictureFiles, g.PieceColours) =
        std::tuple("night.col", "pattern3.txt", std::array<std::string, 4>{"a.ico", "b.ico", "c.ico", "d.ico"},
                   std::array<std::int32_t, 4>{1, 2, 3, 4});
    std::tie(g.BoardStyle, g.SquareGap, g.ShowLabels, g.ColourMode, g.ColourTable[13]) = std::tuple(2, 5, 0, 1, 77);
}

// The settings in force, in the file's order.
std::string SettingsText(const Game& g) {
    std::string text = g.SchemeFile + "|" + g.LayoutFile + "|";
    for (const std::string& name : g.PictureFiles) text += name + " ";
    for (std::int32_t colour : g.PieceColours) text += std::to_string(colour) + " ";
    for (int value : {g.BoardStyle, g.SquareGap, g.ShowLabels, g.ColourMode, static_cast<int>(g.ColourTable[13])})
        text += "|" + std::to_string(value);
    return text;
}
}  // namespace

TEST(Configuration, AReadableFileIsTakenAndAnyOtherReplacedWithTheDefaults) {
    // A readable configuration is taken as it reads; any other is replaced, silently, by the defaults.
    const std::string defaults = "xp.col|patf.txt|player00.ico player10.ico home0.ico king0.ico 32768 128 8421504 0 |0|1|0|1|77";
    const struct { const char* why; std::string text; std::string settings; bool rewritten; } rows[] = {
        {"list input", "\"my,scheme.col\"\r\n  pattern2.txt  , more\r\nplayer01.ico\r\n\"player11.ico\", x\r\nhome1.ico\n"
                       "king1.ico\r\n255, 65280   16711680 ,-1\r\n2,3 0  1 -5\r\n",
         "my,scheme.col|pattern2.txt|player01.ico player11.ico home1.ico king1.ico 255 65280 16711680 -1 |2|3|0|1|-5", false},
        {"a comma without quotes", "my,scheme.col\r\n" + SixLines.substr(10) + "1 2 3 4\r\n0 1 1 0 0\r\n",
         "my|pattern2.txt|player01.ico player11.ico home1.ico king1.ico 1 2 3 4 |0|1|1|0|0", false},
        {"missing files", "  \r\ndeleted.txt\r\nnothere.ico\r\nplayer11.ico\r\nhome1.ico\r\nking1.ico\r\n1 2 3 4\r\n0 1 1 0 0\r\n",
         "xp.col|patf.txt|player00.ico player11.ico home1.ico king1.ico 1 2 3 4 |0|1|1|0|0", false},
        {"empty numbers", SixLines + "1,,3 4\r\n0 ,, 1 ,0,\"\"\r\n",
         "wood.col|pattern2.txt|player01.ico player11.ico home1.ico king1.ico 1 0 3 4 |0|0|1|0|0", false},
        {"no file", "", defaults, true},
        {"six lines", SixLines, defaults, true},
        {"a word for a colour", SixLines + "green 128 8421504 0\r\n0 1 1 0 0\r\n", defaults, true},
        {"four display numbers", SixLines + "1 2 3 4\r\n0 1 0 1\r\n", defaults, true},
        {"9x", SixLines + "1 2 3 4\r\n0 1 9x 1 3\r\n", defaults, true},
        {"beyond 32 bits", SixLines + "1 2 3 4\r\n0 1 0 1 99999999999\r\n", defaults, true},
    };
    for (const auto& r : rows) {
        TestGame t;
        t.CopyData();
        if (!r.text.empty()) t.WriteFile("jarlsvakt.cfg", r.text);
        UnusualSettings(t.g);
        ReadConfiguration(t.g, "jarlsvakt.cfg");
        EXPECT_EQ(SettingsText(t.g), r.settings) << r.why;
        EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), r.rewritten ? Defaults : r.text) << r.why;
        EXPECT_TRUE(t.view.Calls.empty()) << r.why;
    }
}

TEST(Configuration, AFailedWriteIsReportedAndLeavesThePreviousFile) {
    // A configuration that cannot be written is reported and the previous file stays whole.
    TestGame t;
    t.WriteFile("jarlsvakt.cfg", "previous\r\n");
    std::filesystem::create_directory(t.Path("jarlsvakt.cfg.tmp"));
    EXPECT_FALSE(WriteConfiguration(t.g, "jarlsvakt.cfg"));
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Configuration file:\r\n" + t.Path("jarlsvakt.cfg") +
                                                          "\r\ncould not be accessed, options not saved [vbok+vbcritical]"});
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), "previous\r\n");
}
