#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/Board.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"
#include "support/RunCli.h"

using namespace jv;
using jv::test::RunCli;
using jv::test::TestGame;

namespace {
const std::string Small = "05050303HEEEHE1EEEEE0EEEEEEEHEEEH";

// The calls from the last board redraw on.
std::vector<std::string> CallsFromLastDraw(const std::vector<std::string>& calls) {
    const auto last = std::find(calls.rbegin(), calls.rend(), "DrawBoard");
    return {last.base() - 1, calls.end()};
}
}  // namespace

TEST(LoadLayout, ASuccessfulLoadStartsANewGameInOrder) {
    // A load refreshes the position, names the file, weighs the squares with 400, clears the turn counts,
    // Undo, the editor and the log, logs "Loaded Layout: ", shows the caption and opens the board.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("small.txt", Small + "\r\n");
    g.Undo = {"x", "y"};
    g.EventLog = {"old line"};
    g.EditorOn = true;
    g.BoardEnabled = false;
    g.TurnCounts = {3, 4};
    g.DragSource = {2, 2};

    LoadLayout(g, "small.txt");

    EXPECT_EQ(g.LayoutFile, "small.txt");
    EXPECT_EQ(EncodePosition(g), Small.substr(4));
    // On a 5x5 board the runs from the two corners of an edge overlap: A2 gets 3w, then w.
    EXPECT_EQ(g.SquareWeight(1, 2), 400);
    EXPECT_EQ(g.SquareWeight(1, 4), 1200);
    EXPECT_EQ(g.SquareWeight(1, 3), 1200);   // an edge square the King can reach: 3w
    EXPECT_EQ(g.SquareWeight(2, 2), 800);    // diagonal to a corner, whatever stands on it
    EXPECT_EQ(g.SquareWeight(3, 2), 1600);   // beside the King, empty: 4w
    EXPECT_EQ(g.SquareWeight(2, 3), 1600);
    EXPECT_EQ(g.SquareWeight(4, 3), 1600);
    EXPECT_EQ(g.SquareWeight(3, 4), 10);     // below the King: never weighted
    EXPECT_EQ(g.TurnCounts, (std::array<int, 2>{0, 0}));
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_FALSE(g.EditorOn);
    EXPECT_TRUE(g.BoardEnabled);
    EXPECT_EQ(g.DragSource.Col, -1);
    EXPECT_EQ(g.EventLog, std::vector<std::string>{"Loaded Layout: small.txt"});
    EXPECT_EQ(t.view.LayoutCaption, "small.txt");
    EXPECT_EQ(CallsFromLastDraw(t.view.Calls),
              (std::vector<std::string>{"DrawBoard", "RefreshList Undo", "ShowEditor 0", "ClearLog", "HideDragLine",
                                        "PrintLine |Loaded Layout: small.txt| 0 0",
                                        "ShowLayoutName small.txt | small.txt", "EnableBoard 1"}));
    EXPECT_TRUE(t.view.Messages().empty());
}

TEST(LoadLayout, AFailedLoadReportsItAndBringsThePreviousLayoutBack) {
    // A layout that cannot be read is reported; the previous layout is loaded again and still named.
    TestGame t;
    Game& g = t.g;
    t.CopyData("patf.txt");
    LoadLayout(g, "patf.txt");
    g.Board(2, 2) = AttackerCode;   // a game in progress
    t.view.Clear();

    LoadLayout(g, "missing.txt");

    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Error reading Layout File:\r\nmissing.txt [vbcritical+vbok]"});
    EXPECT_EQ(t.view.Calls[1], "DoEvents");
    EXPECT_EQ(g.LayoutFile, "patf.txt");
    EXPECT_EQ(LayoutLine(g) + "\r\n", t.ReadFile("patf.txt"));
    EXPECT_EQ(t.view.LayoutCaption, "patf.txt");
    EXPECT_EQ(g.EventLog, std::vector<std::string>{"Loaded Layout: patf.txt"});
    EXPECT_EQ(g.LayoutLoadDepth, 0);
}

TEST(LoadLayout, WhenThePreviousLayoutIsGoneTooAnEmptyBoardIsSetUp) {
    // When neither the chosen nor the previous layout can be read, the retry ends with a message and an
    // empty 11x11 board with its Home corners; the layout's name is left as it was.
    TestGame t;
    Game& g = t.g;
    g.LayoutFile = "gone.txt";

    LoadLayout(g, "missing.txt");

    EXPECT_EQ(t.view.Messages(),
              (std::vector<std::string>{
                  "Error reading Layout File:\r\nmissing.txt [vbcritical+vbok]",
                  "Error reading Layout File:\r\ngone.txt [vbcritical+vbok]",
                  "Layout File:\r\ngone.txt\r\ncould not be read either, an empty board is set up [vbcritical+vbok]"}));
    EXPECT_EQ(g.BoardWidth, 11);
    EXPECT_EQ(g.BoardHeight, 11);
    EXPECT_EQ(LayoutLine(g), "11110000H" + std::string(9, 'E') + "H" + std::string(99, 'E') + "H" +
                                 std::string(9, 'E') + "H");
    EXPECT_EQ(g.LayoutFile, "gone.txt");
    EXPECT_TRUE(g.BoardEnabled);
    EXPECT_EQ(g.LayoutLoadDepth, 0);

    // Reloading a layout that has gone (reset) stops the same way instead of trying it for ever.
    t.view.Clear();
    LoadLayout(g, "gone.txt");
    EXPECT_EQ(t.view.Messages().size(), 3u);
    EXPECT_EQ(g.LayoutLoadDepth, 0);
}

TEST(LoadLayout, EveryShippedLayoutLoadsAndWritesBackByteForByte) {
    // The opening layouts shipped with the program load without a message, and saving them gives the same file.
    for (const char* name : {"patf.txt", "pattern1.txt", "pattern2.txt", "pattern3.txt", "pattern4.txt",
                             "pattern5.txt"}) {
        SCOPED_TRACE(name);
        TestGame t;
        Game& g = t.g;
        t.CopyData(name);
        LoadLayout(g, name);
        EXPECT_TRUE(t.view.Messages().empty());
        EXPECT_EQ(g.LayoutFile, name);
        EXPECT_EQ(g.Board(g.KingCol, g.KingRow), DefenderCode);
        EXPECT_GT(g.AttackerCount, g.DefenderCount);
        ASSERT_TRUE(WriteLayoutFile(g, t.Path("copy.txt")));
        EXPECT_EQ(t.ReadFile("copy.txt"), t.ReadFile(name));
    }
}

TEST(ShowLayoutName, TheCaptionIsTheNameAfterTheLastFolderAndTheToolTipTheWholeName) {
    // The caption shows the file's name without its folders ("\" or "/"); the tool tip the whole name.
    TestGame t;
    Game& g = t.g;
    g.LayoutFile = "C:\\games\\x\\pattern2.txt";
    ShowLayoutName(g);
    EXPECT_EQ(t.view.LayoutCaption, "pattern2.txt");
    EXPECT_EQ(t.view.LayoutToolTip, "C:\\games\\x\\pattern2.txt");
    g.LayoutFile = "/home/jarl/layouts/pattern3.txt";
    ShowLayoutName(g);
    EXPECT_EQ(t.view.LayoutCaption, "pattern3.txt");
    g.LayoutFile = "patf.txt";
    ShowLayoutName(g);
    EXPECT_EQ(t.view.LayoutCaption, "patf.txt");
    EXPECT_EQ(t.view.LayoutToolTip, "patf.txt");
}

TEST(LayoutCommands, LoadAsksForAFileInTheProgramFolderAndConfirms) {
    // Load opens the dialog for "*.txt" Game Files, loads the chosen layout and confirms it, also after a
    // failed load; a cancelled dialog does nothing; the current folder is the same afterwards.
    TestGame t;
    Game& g = t.g;
    t.CopyData("patf.txt");
    t.CopyData("pattern3.txt");
    LoadLayout(g, "patf.txt");
    const auto folder = std::filesystem::current_path();
    t.view.FileChoices = {"pattern3.txt", "", "nothing.txt"};
    t.view.Clear();

    LoadCommand(g);
    EXPECT_EQ(t.view.Calls.front(),
              "ChooseFile OPEN Select an input file to load [*.txt;;*.otn] Game Files;;OpenTafl positions");
    EXPECT_EQ(g.LayoutFile, "pattern3.txt");
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Layout loaded from file:\r\npattern3.txt [vbinformation+vbok]"});
    EXPECT_EQ(std::filesystem::current_path(), folder);

    t.view.Clear();
    LoadCommand(g);   // cancelled
    EXPECT_EQ(t.view.Calls.size(), 1u);

    t.view.Clear();
    LoadCommand(g);
    EXPECT_EQ(t.view.Messages(),
              (std::vector<std::string>{"Error reading Layout File:\r\nnothing.txt [vbcritical+vbok]",
                                        "Layout loaded from file:\r\nnothing.txt [vbinformation+vbok]"}));
    EXPECT_EQ(g.LayoutFile, "pattern3.txt");
}

TEST(LayoutCommands, ResetReloadsTheCurrentLayoutAfterAYes) {
    // Reset asks "Reset layout?"; Yes reloads the layout last loaded (not "patf.txt"), any other answer keeps the game.
    TestGame t;
    Game& g = t.g;
    t.CopyData("pattern3.txt");
    LoadLayout(g, "pattern3.txt");
    const std::string loaded = LayoutLine(g);
    g.Board(2, 2) = AttackerCode;
    const std::string played = LayoutLine(g);
    t.view.Clear();

    t.view.Answers = {7};
    ResetCommand(g);
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Reset layout? [vbquestion+vbyesno]"});
    EXPECT_EQ(LayoutLine(g), played);

    t.view.Answers = {6};
    ResetCommand(g);
    EXPECT_EQ(LayoutLine(g), loaded);
    EXPECT_EQ(g.LayoutFile, "pattern3.txt");
}

TEST(LayoutCommands, SaveAddsTxtAsksBeforeOverwritingAndReportsAFailedWrite) {
    // Save adds ".txt" to a name without a point, asks before replacing a file, confirms with
    // "Game saved to file:", and reports a write that fails, leaving the old file whole.
    TestGame t;
    Game& g = t.g;
    t.CopyData("pattern1.txt");
    LoadLayout(g, "pattern1.txt");
    const std::string line = LayoutLine(g) + "\r\n";
    t.view.Clear();

    t.view.FileChoices = {"opening"};
    SaveCommand(g);
    EXPECT_EQ(t.view.Calls.front(),
              "ChooseFile SAVE Select an output file to save [*.txt;;*.otn] Game Files;;OpenTafl positions");
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Game saved to file:\r\nopening.txt [vbinformation+vbok]"});
    EXPECT_EQ(t.ReadFile("opening.txt"), line);

    t.view.Clear();
    t.view.FileChoices = {"my.layout"};
    SaveCommand(g);
    EXPECT_EQ(t.ReadFile("my.layout"), line);

    // An existing file: No keeps it without a word, Yes replaces it.
    t.WriteFile("old.txt", "old content\r\n");
    t.view.Clear();
    t.view.FileChoices = {"old.txt", "old.txt"};
    t.view.Answers = {7, 6};
    SaveCommand(g);
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"old.txt\r\nOverWrite file? [vbYesNo+vbquestion]"});
    EXPECT_EQ(t.ReadFile("old.txt"), "old content\r\n");
    SaveCommand(g);
    EXPECT_EQ(t.ReadFile("old.txt"), line);
    EXPECT_EQ(g.LayoutFile, "pattern1.txt");

    // The temporary file of the write cannot be made (a folder stands in its place).
    t.WriteFile("keep.txt", "keep me\r\n");
    std::filesystem::create_directory(t.Path("keep.txt.tmp"));
    t.view.Clear();
    t.view.FileChoices = {"keep.txt"};
    t.view.Answers = {6};
    SaveCommand(g);
    EXPECT_EQ(t.view.Messages().back(),
              "Layout File:\r\nkeep.txt\r\ncould not be written, game not saved [vbcritical+vbok]");
    EXPECT_EQ(t.ReadFile("keep.txt"), "keep me\r\n");
}

TEST(LayoutCommands, NoCommandWorksWhileTheLayoutEditorIsOpen) {
    // Load, save and reset do nothing while the layout editor's palette is shown.
    TestGame t;
    Game& g = t.g;
    g.EditorOn = true;
    t.view.FileChoices = {"patf.txt"};
    t.view.Answers = {6};
    LoadCommand(g);
    SaveCommand(g);
    ResetCommand(g);
    EXPECT_TRUE(t.view.Calls.empty());
}

TEST(CliLayout, PrintsTheLayoutLineAndTheBoardAsAGrid) {
    // `layout` prints the line as read back, then row numbers and one line per Col: H . d K a.
    TestGame t;
    t.CopyData("patf.txt");
    const auto r = RunCli("layout patf.txt", t.folder.string());
    ASSERT_EQ(r.exitCode, 0) << r.err;
    ASSERT_EQ(r.out.size(), 13u);
    EXPECT_EQ(r.out[0] + "\r\n", t.ReadFile("patf.txt"));
    EXPECT_EQ(r.out[1], "    1  2  3  4  5  6  7  8  9 10 11");
    EXPECT_EQ(r.out[2], "A   H  .  .  a  a  a  a  a  .  .  H");
    EXPECT_EQ(r.out[5], "D   a  .  .  .  .  d  .  .  .  .  a");
    EXPECT_EQ(r.out[7], "F   a  a  .  d  d  K  d  d  .  a  a");
    EXPECT_EQ(r.out[12], "K   H  .  .  a  a  a  a  a  .  .  H");

    const auto missing = RunCli("layout nothing.txt", t.folder.string());
    EXPECT_EQ(missing.exitCode, 2);
}
