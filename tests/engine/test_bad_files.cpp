// Damaged files never leave a broken game: each gives its message once and a playable board stays.
#include <gtest/gtest.h>

#include "session/LayoutCommands.h"
#include "session/Recording.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
const std::string Small = "05050303HEEEHE1EEEEE0EEEEEEEHEEEH";
const std::string Error = "Error reading Layout File:\r\n";
const std::string Critical = " [vbcritical+vbok]";
}  // namespace

TEST(BadFiles, AnEmptyLayoutFileIsAFailedReadAndThePreviousLayoutStays) {
    // An empty file has no first line: it is refused like any unreadable layout, not played as a 0x0 board.
    TestGame t;
    t.WriteFile("small.txt", Small + "\r\n");
    t.WriteFile("empty.txt", "");
    ASSERT_TRUE(LoadLayout(t.g, "small.txt"));
    t.view.Clear();

    EXPECT_FALSE(LoadLayout(t.g, "empty.txt"));

    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{Error + "empty.txt" + Critical});
    EXPECT_EQ(LayoutLine(t.g), Small);
    EXPECT_EQ(t.g.LayoutFile, "small.txt");
}

TEST(BadFiles, AReplayWhoseLayoutLineIsRefusedStopsAndTheGameStays) {
    // A moves log whose first line is a board wider than 14 is not stepped through: the position before
    // the replay comes back and no step is asked.
    TestGame t;
    t.WriteFile("small.txt", Small + "\r\n");
    ASSERT_TRUE(LoadLayout(t.g, "small.txt"));
    t.g.Board(1, 2) = AttackerCode;   // a move played since the load
    const std::string before = LayoutLine(t.g);
    t.WriteFile("wide.txt", "1505" + Small.substr(4) + "\r\n" + Small + "\r\n");
    t.view.Clear();
    t.view.FileChoices = {"wide.txt"};

    ReplayCommand(t.g);

    EXPECT_EQ(LayoutLine(t.g), before);
    for (const std::string& message : t.view.Messages()) EXPECT_EQ(message.find("Step"), std::string::npos);
}

TEST(BadFiles, UnreadableChosenAndPreviousLayoutsFallBackToTheShippedOpening) {
    // Neither the chosen layout nor the previous one can be read: the error is shown once and the shipped
    // opening is loaded, saying so; only when that is missing too is an empty board set up, with counters
    // that never go below zero.
    struct Row {
        bool openingThere;
        std::vector<std::string> messages;
        std::string layoutFile;
    };
    const Row rows[] = {
        {true, {Error + "broken.txt" + Critical}, "patf.txt"},
        {false,
         {Error + "broken.txt" + Critical,
          "Layout File:\r\npatf.txt\r\ncould not be read either, an empty board is set up" + Critical},
         "gone.txt"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.openingThere ? "opening shipped" : "opening missing");
        TestGame t;
        if (row.openingThere) t.CopyData("patf.txt");
        t.WriteFile("broken.txt", "");
        t.g.LayoutFile = "gone.txt";

        EXPECT_FALSE(LoadLayout(t.g, "broken.txt"));

        EXPECT_EQ(t.view.Messages(), row.messages);
        EXPECT_EQ(t.g.LayoutFile, row.layoutFile);
        EXPECT_GE(t.view.Defenders, 0);
        EXPECT_GE(t.view.Attackers, 0);
        EXPECT_TRUE(t.g.BoardEnabled);
        if (row.openingThere) {
            EXPECT_EQ(t.g.BoardWidth, 11);
            EXPECT_EQ(t.g.EventLog.back(), "Layout File: gone.txt could not be read either, patf.txt is loaded");
        }
    }
}
