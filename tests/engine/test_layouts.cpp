// Loading, reloading and saving layouts as the user's commands do it.
#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

TEST(LoadLayout, AFailedLoadBringsThePreviousLayoutBackOrAnEmptyBoard) {
    // A layout that cannot be read is reported and the previous one comes back, or else an empty board.
    TestGame t;
    Game& g = t.g;
    t.CopyData("patf.txt");
    g.Undo = {"x"};
    g.BoardEnabled = false;
    LoadLayout(g, "patf.txt");
    EXPECT_TRUE(g.Undo.empty() && t.view.BoardEnabled);
    LoadLayout(g, "missing.txt");
    EXPECT_EQ(std::tie(g.LayoutFile, t.view.LayoutCaption), std::tuple("patf.txt", "patf.txt"));
    EXPECT_EQ(LayoutLine(g) + "\r\n", t.ReadFile("patf.txt"));
    std::filesystem::remove(t.Path("patf.txt"));
    LoadLayout(g, "patf.txt");
    EXPECT_EQ(t.view.Messages(), (Lines{"Error reading Layout File:\r\nmissing.txt [vbcritical+vbok]",
                                        "Error reading Layout File:\r\npatf.txt [vbcritical+vbok]",
                                        "Layout File:\r\npatf.txt\r\ncould not be read either, an empty board is set up "
                                        "[vbcritical+vbok]"}));
    EXPECT_EQ(LayoutLine(g), "11110000H" + std::string(9, 'E') + "H" + std::string(99, 'E') + "H" + std::string(9, 'E') + "H");
    EXPECT_EQ(g.LayoutLoadDepth, 0);
}

TEST(LayoutCommands, LoadResetAndSaveAskThenActAndConfirm) {
    // Load, reset and save ask first, then act and confirm; a failed save keeps the old file and says why.
    TestGame t;
    Game& g = t.g;
    t.CopyData("patf.txt");
    t.CopyData("pattern3.txt");
    LoadLayout(g, "patf.txt");
    t.view.FileChoices = {"pattern3.txt", ""};
    LoadCommand(g);
    LoadCommand(g);
    EXPECT_EQ(g.LayoutFile, "pattern3.txt");
    const std::string loaded = LayoutLine(g);
    g.Board(2, 2) = AttackerCode;
    const std::string played = LayoutLine(g);
    t.view.Answers = {7, 6};
    ResetCommand(g);
    EXPECT_EQ(LayoutLine(g), played);
    ResetCommand(g);
    EXPECT_EQ(LayoutLine(g), loaded);

    t.WriteFile("old.txt", "old\r\n");
    t.WriteFile("keep.txt", "keep\r\n");
    std::filesystem::create_directory(t.Path("keep.txt.tmp"));
    std::filesystem::create_directory(t.Path("folder.txt"));
    t.view.Clear();
    t.view.FileChoices = {"opening", "old.txt", "old.txt", "keep.txt", "folder.txt"};
    t.view.Answers = {1, 7, 6, 1, 6, 1};   // every message takes an answer
    for (int k = 0; k < 5; ++k) SaveCommand(g);
    EXPECT_EQ(t.ReadFile("opening.txt"), loaded + "\r\n");
    EXPECT_EQ(t.ReadFile("old.txt"), loaded + "\r\n");
    EXPECT_EQ(t.ReadFile("keep.txt"), "keep\r\n");
    EXPECT_EQ(t.view.Messages(), (Lines{"Game saved to file:\r\nopening.txt [vbinformation+vbok]",
                                        "old.txt\r\nOverWrite file? [vbYesNo+vbquestion]",
                                        "old.txt\r\nOverWrite file? [vbYesNo+vbquestion]",
                                        "Game saved to file:\r\nold.txt [vbinformation+vbok]",
                                        "keep.txt\r\nOverWrite file? [vbYesNo+vbquestion]",
                                        "Layout File:\r\nkeep.txt\r\ncould not be written, game not saved [vbcritical+vbok]",
                                        "Layout File:\r\nfolder.txt\r\nis a folder, not a file, game not saved [vbcritical+vbok]"}));
}
