#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "records/Configuration.h"
#include "support/Fixtures.h"
#include "support/RandomText.h"

using namespace jv;
using jv::test::RandomText;
using jv::test::TestGame;

namespace {
const std::string DefaultLines =
    "xp.col\r\npatf.txt\r\nplayer00.ico\r\nplayer10.ico\r\nhome0.ico\r\nking0.ico\r\n32768 128 8421504 0\r\n";

// Settings that differ from every default, so a test sees which ones a read or a reset touched.
void UnusualSettings(Game& g) {
    g.SchemeFile = "wood.col";
    g.LayoutFile = "pattern2.txt";
    g.PictureFiles = {"player01.ico", "player11.ico", "home1.ico", "king1.ico"};
    g.PieceColours = {1, 2, 3, 4};
    g.BoardStyle = 2;
    g.SquareGap = 5;
    g.ShowLabels = 0;
    g.ColourMode = 1;
    g.ColourTable[13] = 77;
}

void ExpectDefaultsKeeping(const Game& g, int showLabels, int colourMode, int entry13) {
    EXPECT_EQ(g.SchemeFile, "xp.col");
    EXPECT_EQ(g.LayoutFile, "patf.txt");
    EXPECT_EQ(g.PictureFiles, (std::array<std::string, 4>{"player00.ico", "player10.ico", "home0.ico", "king0.ico"}));
    EXPECT_EQ(g.PieceColours, (std::array<std::int32_t, 4>{32768, 128, 8421504, 0}));
    EXPECT_EQ(g.BoardStyle, 0);
    EXPECT_EQ(g.SquareGap, 1);
    EXPECT_EQ(g.ShowLabels, showLabels);
    EXPECT_EQ(g.ColourMode, colourMode);
    EXPECT_EQ(g.ColourTable[13], entry13);
}
}  // namespace

TEST(Configuration, AFirstRunWritesTheDefaults) {
    // Without jarlsvakt.cfg the defaults are written in its place, silently; the labels, the colour mode
    // and the fifth display setting keep their values.
    TestGame t;
    Game& g = t.g;
    UnusualSettings(g);
    ReadConfiguration(g, "jarlsvakt.cfg");
    ExpectDefaultsKeeping(g, 0, 1, 77);
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), DefaultLines + "0 1 0 1 77\r\n");
    EXPECT_TRUE(t.view.Calls.empty());
}

TEST(Configuration, ListInputStripsQuotesCutsAtCommasAndTakesBlanksOrCommasBetweenNumbers) {
    // Each text field ends at a comma or the line end without its quotes; numbers are separated by blanks
    // or commas; a file name with a comma in it is cut at the comma.
    TestGame t;
    Game& g = t.g;
    t.CopyData();
    const std::string text =
        "\"my,scheme.col\"\r\n"
        "  pattern2.txt  , more\r\n"
        "player01.ico\r\n"
        "\"player11.ico\", extra\r\n"
        "home1.ico\n"
        "king1.ico\r\n"
        "255, 65280   16711680 ,-1\r\n"
        "2,3 0  1 -5\r\n";
    t.WriteFile("jarlsvakt.cfg", text);
    ReadConfiguration(g, "jarlsvakt.cfg");
    EXPECT_EQ(g.SchemeFile, "my,scheme.col");   // inside quotes the comma is part of the text
    EXPECT_EQ(g.LayoutFile, "pattern2.txt");
    EXPECT_EQ(g.PictureFiles, (std::array<std::string, 4>{"player01.ico", "player11.ico", "home1.ico", "king1.ico"}));
    EXPECT_EQ(g.PieceColours, (std::array<std::int32_t, 4>{255, 65280, 16711680, -1}));
    EXPECT_EQ(g.BoardStyle, 2);
    EXPECT_EQ(g.SquareGap, 3);
    EXPECT_EQ(g.ShowLabels, 0);
    EXPECT_EQ(g.ColourMode, 1);
    EXPECT_EQ(g.ColourTable[13], -5);
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), text);

    t.WriteFile("jarlsvakt.cfg", "my,scheme.col\r\n" + text.substr(text.find('\n') + 1));
    ReadConfiguration(g, "jarlsvakt.cfg");
    EXPECT_EQ(g.SchemeFile, "my");
}

TEST(Configuration, MissingFilesFallBackFieldByFieldAndTheNextExitWritesThem) {
    // A deleted layout starts on "patf.txt", a missing picture on its default, an empty scheme on "xp.col",
    // without a message; the exit writes the names in force.
    TestGame t;
    Game& g = t.g;
    t.CopyData();
    t.WriteFile("jarlsvakt.cfg",
                "  \r\ndeleted.txt\r\nnothere.ico\r\nplayer11.ico\r\nhome1.ico\r\nking1.ico\r\n1 2 3 4\r\n0 1 1 0 0\r\n");
    ReadConfiguration(g, "jarlsvakt.cfg");
    EXPECT_EQ(g.SchemeFile, "xp.col");
    EXPECT_EQ(g.LayoutFile, "patf.txt");
    EXPECT_EQ(g.PictureFiles, (std::array<std::string, 4>{"player00.ico", "player11.ico", "home1.ico", "king1.ico"}));
    EXPECT_TRUE(t.view.Calls.empty());

    ASSERT_TRUE(WriteConfiguration(g, "jarlsvakt.cfg"));
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"),
              "xp.col\r\npatf.txt\r\nplayer00.ico\r\nplayer11.ico\r\nhome1.ico\r\nking1.ico\r\n1 2 3 4\r\n0 1 1 0 0\r\n");
}

TEST(Configuration, AnIncompleteFileIsRewrittenWholeWithDefaults) {
    // A file of six lines, text where a number is due, or too few numbers counts as unreadable: the whole
    // file is rewritten with the defaults, its first six lines included, and nothing read from it stays.
    TestGame t;
    Game& g = t.g;
    t.CopyData();
    const std::string sixLines = "wood.col\r\npattern2.txt\r\nplayer01.ico\r\nplayer11.ico\r\nhome1.ico\r\nking1.ico\r\n";
    for (const std::string& text : {sixLines, sixLines + "green 128 8421504 0\r\n0 1 1 0 0\r\n",
                                    sixLines + "1 2 3 4\r\n0 1 0 1\r\n", sixLines + "1 2 3 4\r\n0 1 9x 1 3\r\n",
                                    sixLines + "1 2 3 4\r\n0 1 0 1 99999999999\r\n"}) {
        SCOPED_TRACE(text);
        g = Game{};
        g.ProgramFolder = t.folder.string() + "/";
        g.View = &t.view;
        g.ShowLabels = 1;
        g.ColourMode = 0;
        t.WriteFile("jarlsvakt.cfg", text);
        ReadConfiguration(g, "jarlsvakt.cfg");
        ExpectDefaultsKeeping(g, 1, 0, 0);
        EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), DefaultLines + "0 1 1 0 0\r\n");
    }
}

TEST(Configuration, RandomBytesNeverCrashAndLeaveTheDefaults) {
    // Whatever bytes the file holds, reading it ends with the defaults in force and written.
    TestGame t;
    Game& g = t.g;
    std::mt19937 random(12345);
    const std::string alphabet = "0123456789 ,\"\r\n-+.abcXYZ\t\\/";
    for (int round = 0; round < 300; ++round) {
        const std::string bytes = RandomText(random, round, 400, alphabet);
        t.WriteFile("jarlsvakt.cfg", bytes);
        UnusualSettings(g);
        ReadConfiguration(g, "jarlsvakt.cfg");
        if (t.ReadFile("jarlsvakt.cfg") == bytes) continue;   // by chance a readable file
        ExpectDefaultsKeeping(g, 0, 1, 77);
        ASSERT_EQ(t.ReadFile("jarlsvakt.cfg"), DefaultLines + "0 1 0 1 77\r\n");
    }
}

TEST(Configuration, AFailedWriteIsReportedAndLeavesThePreviousFile) {
    // When the configuration cannot be written, "could not be accessed, options not saved" is shown and the
    // previous file stays whole.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("jarlsvakt.cfg", "previous\r\n");
    std::filesystem::create_directory(t.Path("jarlsvakt.cfg.tmp"));
    EXPECT_FALSE(WriteConfiguration(g, "jarlsvakt.cfg"));
    EXPECT_EQ(t.view.Messages(),
              std::vector<std::string>{"Configuration file:\r\n" + t.Path("jarlsvakt.cfg") +
                                       "\r\ncould not be accessed, options not saved [vbok+vbcritical]"});
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"), "previous\r\n");
}

TEST(Configuration, WrittenSettingsReadBackTheSame) {
    // What the exit writes is what the next start reads.
    TestGame t;
    t.CopyData();
    UnusualSettings(t.g);
    ASSERT_TRUE(WriteConfiguration(t.g, "jarlsvakt.cfg"));
    EXPECT_EQ(t.ReadFile("jarlsvakt.cfg"),
              "wood.col\r\npattern2.txt\r\nplayer01.ico\r\nplayer11.ico\r\nhome1.ico\r\nking1.ico\r\n1 2 3 4\r\n2 5 0 1 77\r\n");
    Game back;
    back.ProgramFolder = t.g.ProgramFolder;
    back.View = &t.view;
    ReadConfiguration(back, "jarlsvakt.cfg");
    EXPECT_EQ(back.PictureFiles, t.g.PictureFiles);
    EXPECT_EQ(back.PieceColours, t.g.PieceColours);
    EXPECT_EQ(back.LayoutFile, "pattern2.txt");
    EXPECT_EQ(back.SquareGap, 5);
    EXPECT_EQ(back.ColourTable[13], 77);
}

TEST(FileExists, OnlyAFileCounts) {
    // Empty names, names ending in a folder separator and folders are not files; a backslash is an
    // ordinary character of a name on this system.
    TestGame t;
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists(t.Path("a.txt")));
    t.WriteFile("a.txt", "x");
    EXPECT_TRUE(FileExists(t.Path("a.txt")));
    EXPECT_FALSE(FileExists(t.Path("a.txt") + "\\"));
    EXPECT_FALSE(FileExists(t.folder.string()));
    EXPECT_FALSE(FileExists(t.folder.string() + "/"));
    EXPECT_FALSE(FileExists(t.Path("sub\\a.txt")));
    t.WriteFile("sub\\a.txt", "x");
    EXPECT_TRUE(FileExists(t.Path("sub\\a.txt")));
}
