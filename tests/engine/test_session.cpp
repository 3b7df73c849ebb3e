// The program's start and its exit.
#include <gtest/gtest.h>

#include <algorithm>

#include "records/LayoutFile.h"
#include "session/Session.h"
#include "support/LayoutText.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;
using Calls = std::vector<std::string>;

TEST(StartUp, ReadsTheSettingsThenLoadsTheConfiguredLayout) {
    // Start-up applies the configuration, then loads the layout it names and says Player1 moves first.
    TestGame t;
    t.CopyData();
    t.WriteFile("jarlsvakt.cfg", "xp.col\r\npattern1.txt\r\nplayer00.ico\r\nplayer10.ico\r\nhome0.ico\r\nking0.ico\r\n"
                                 "32768 128 8421504 0\r\n0 1 1 0 0\r\n");
    bool appliedBeforeLoad = false;
    EXPECT_TRUE(StartUp(t.g, [&] { appliedBeforeLoad = t.g.BoardWidth == 0; }));
    EXPECT_TRUE(appliedBeforeLoad);
    EXPECT_EQ(t.g.BoardWidth, 7);
    EXPECT_EQ(t.g.EventLog, (Calls{"Loaded Layout: pattern1.txt", "  Player1 to move ..."}));
}

TEST(AutoGame, APressWhileItPlaysStopsItAndARoundWithoutAMovePausesForIt) {
    // AutoGame pressed again stops it; when neither side can move, each round pauses, so the press gets in.
    TestGame t;
    ASSERT_TRUE(ApplyLayoutLine(t.g, "05050000HEEEHEEEEEEEEEEEEEEEHEEEH").Ok());   // no piece on the board
    int events = 0;
    t.view.OnEvents = [&] {
        if (++events == 6) AutoGame(t.g);
    };
    AutoGame(t.g);
    EXPECT_EQ(events, 6);
    EXPECT_FALSE(t.g.AutoGameRunning);
    EXPECT_FALSE(t.g.Ending);
    EXPECT_EQ(std::count(t.view.Calls.begin(), t.view.Calls.end(), "Pause 1000"), 2);
}

TEST(AutoGame, WithAnyOtherPlayerTheEndOfTheGameOrASideWithoutAMoveStopsItSaidOnce) {
    // Unless the classic pair plays, AutoGame stops at the end of the game or a side without a move, which the
    // message box and the log each say once.
    const struct {
        PlayerKind attackers, defenders;
        std::string layout, message, logged;
    } cases[] = {
        {PlayerKind::Classic, PlayerKind::Strong, test::LayoutText({"H..dH", ".....", "K...a", ".....", "H...H"}),
         "King at Home !", "The King has reached a corner: the defenders win"},
        {PlayerKind::Strong, PlayerKind::Classic, test::LayoutText({"Ha..H", "aKa..", ".a...", ".....", "H...H"}),
         "No move for the Defender", "No move for the Defender"},
    };
    for (const auto& c : cases) {
        TestGame t;
        t.g.Players = {.Attackers = c.attackers, .Defenders = c.defenders, .ThinkMillis = 50};
        ASSERT_TRUE(ApplyLayoutLine(t.g, c.layout).Ok()) << c.layout;
        int events = 0;
        t.view.OnEvents = [&] {
            if (++events == 3000) AutoGame(t.g);   // the user's stop, should it run on
        };
        AutoGame(t.g);
        EXPECT_LT(events, 3000) << c.message;
        const auto messages = t.view.Messages();
        ASSERT_EQ(messages.size(), 1u) << c.message;
        EXPECT_TRUE(messages[0].starts_with(c.message)) << messages[0];
        EXPECT_EQ(std::count(t.g.EventLog.begin(), t.g.EventLog.end(), c.logged), 1) << c.message;
    }
}
