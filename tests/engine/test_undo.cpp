// The undo history: every move puts the position before it on top, and Undo takes the newest back.
#include <gtest/gtest.h>

#include "core/Move.h"
#include "session/PlayerMoves.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "session/Undo.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

TEST(Undo, MovesAreTakenBackOneByOneToTheLoadedPosition) {
    // Undo restores the newest record and removes it, back to the loaded position and no further.
    TestGame t;
    Game& g = t.g;
    ASSERT_TRUE(ApplyLayoutLine(g, "05050303HEEEHE1EEEEE0EEEEE0EHEEEH").Ok());
    std::vector<std::string> seen = {EncodePosition(g)};
    MakeAttackerMove(g, {{2, 2}, {2, 4}});
    seen.push_back(EncodePosition(g));
    MakeDefenderMove(g, {{3, 3}, {3, 2}});   // the King
    seen.push_back(EncodePosition(g));
    MakeDefenderMove(g, {{4, 4}, {4, 2}});
    ASSERT_EQ(g.Undo, (std::vector<std::string>{seen[2], seen[1], seen[0]}));
    Undo_MouseUp(g, 2);   // the bottom entry
    EXPECT_EQ(EncodePosition(g), seen[0]);
    Undo_MouseUp(g, 5);   // no such entry
    EXPECT_EQ(EncodePosition(g), seen[0]);
    for (int k = 2; k >= -1; --k) {
        UndoCommand(g);
        EXPECT_EQ(EncodePosition(g), seen[std::max(k, 0)]) << "undo " << 3 - k;
        EXPECT_EQ(g.Undo.size(), static_cast<std::size_t>(std::max(k, 0))) << "undo " << 3 - k;
    }
}

TEST(Undo, EveryRecordIsAppendedToTheMovesLogAsALayoutLine) {
    // While a moves log is named every record is appended to it as a layout line; a failed write is reported.
    TestGame t;
    Game& g = t.g;
    ASSERT_TRUE(ApplyLayoutLine(g, "03030202HEHE0EH1H").Ok());
    g.MovesLogFile = "moveslogfile01020304.txt";
    MakeAttackerMove(g, {{3, 2}, {2, 3}});
    MakeDefenderMove(g, {{2, 2}, {1, 2}});
    UndoCommand(g);
    EXPECT_EQ(t.ReadFile("moveslogfile01020304.txt"), "0303" "0202" "HEH" "E0E" "H1H" "\r\n"
                                                      "0303" "0202" "HEH" "E01" "HEH" "\r\n");
    g.MovesLogFile = "no-such-folder/log.txt";
    RecordMove(g);
    EXPECT_EQ(g.Undo.size(), 2u);
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Moves Log File:\r\nno-such-folder/log.txt\r\n"
                                                          "could not be written, this move is not logged [vbcritical+vbok]"});
}
