#include <gtest/gtest.h>

#include "core/Analysis.h"
#include "records/PositionRecord.h"
#include "session/Undo.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;

namespace {
// A move as the move makers make it: recorded first, then carried out.
void RecordedMove(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    RecordMove(g);
    g.Board(toCol, toRow) = g.Board(fromCol, fromRow);
    g.Board(fromCol, fromRow) = EmptyCode;
    if (fromCol == g.KingCol && fromRow == g.KingRow) {
        g.KingCol = toCol;
        g.KingRow = toRow;
    }
    AnalysePosition(g);
}
}  // namespace

TEST(Undo, ThreeMovesAreTakenBackOneByOneToTheLoadedPosition) {
    // Each move puts the position before it on top of Undo; each undo restores the newest and removes it,
    // and an undo with an empty list does nothing.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", ".a...", "..K..", "...d.", "....."});
    const std::string start = EncodePosition(g);

    RecordedMove(g, 2, 2, 2, 4);   // attacker
    const std::string afterOne = EncodePosition(g);
    RecordedMove(g, 3, 3, 3, 2);   // the King
    const std::string afterTwo = EncodePosition(g);
    RecordedMove(g, 4, 4, 4, 2);   // defender
    ASSERT_EQ(g.Undo, (std::vector<std::string>{afterTwo, afterOne, start}));
    EXPECT_EQ(t.view.CallsStartingWith("RefreshList Undo").size(), 3u);

    UndoCommand(g);
    EXPECT_EQ(EncodePosition(g), afterTwo);
    UndoCommand(g);
    EXPECT_EQ(EncodePosition(g), afterOne);
    EXPECT_EQ(g.KingCol, 3);
    EXPECT_EQ(g.KingRow, 3);
    UndoCommand(g);
    EXPECT_EQ(EncodePosition(g), start);
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_EQ(g.AttackerCount, 1);
    EXPECT_EQ(g.DefenderCount, 1);

    t.view.Clear();
    UndoCommand(g);
    EXPECT_EQ(EncodePosition(g), start);
    EXPECT_TRUE(t.view.Calls.empty());
}

TEST(Undo, ClickingAnEntryShowsItsPositionAndKeepsTheList) {
    // Selecting an entry of Undo shows the position it holds; no entry is removed, and a later undo
    // restores the newest entry again.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", ".a...", "..K..", ".....", "....."});
    const std::string start = EncodePosition(g);
    RecordedMove(g, 2, 2, 2, 4);
    const std::string afterOne = EncodePosition(g);
    RecordedMove(g, 3, 3, 4, 3);

    Undo_MouseUp(g, 1);   // the bottom entry: the starting position
    EXPECT_EQ(EncodePosition(g), start);
    EXPECT_EQ(g.Undo.size(), 2u);
    EXPECT_EQ(t.view.Calls.back(), "DrawBoard");

    Undo_MouseUp(g, 5);   // no such entry
    EXPECT_EQ(EncodePosition(g), start);

    UndoCommand(g);
    EXPECT_EQ(EncodePosition(g), afterOne);
    EXPECT_EQ(g.Undo, std::vector<std::string>{start});
}

TEST(Undo, NothingIsTakenBackWhileTheLayoutEditorIsOpen) {
    // The undo command does nothing while the layout editor's palette is shown.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", ".a...", "..K..", ".....", "....."});
    RecordedMove(g, 2, 2, 2, 4);
    const std::string moved = EncodePosition(g);
    g.EditorOn = true;
    UndoCommand(g);
    EXPECT_EQ(EncodePosition(g), moved);
    EXPECT_EQ(g.Undo.size(), 1u);
}

TEST(Undo, EveryRecordIsAppendedToTheMovesLogAsALayoutLine) {
    // While a moves log is named, each record is appended to it as width, height and the record, CR LF
    // after each; undo leaves the log alone.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 3, 3, {"...", ".K.", ".a."});
    g.MovesLogFile = "moveslogfile01020304.txt";
    RecordedMove(g, 3, 2, 2, 3);
    RecordedMove(g, 2, 2, 1, 2);
    UndoCommand(g);
    EXPECT_EQ(t.ReadFile("moveslogfile01020304.txt"),
              "0303" "0202" "HEH" "E0E" "H1H" "\r\n"
              "0303" "0202" "HEH" "E01" "HEH" "\r\n");
    EXPECT_TRUE(t.view.Messages().empty());
}

TEST(Undo, ALogThatCannotBeWrittenIsReportedAndTheMoveGoesOn) {
    // When the moves log cannot be appended to, the player is told and the position is still recorded.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 3, 3, {"...", ".K.", "..."});
    g.MovesLogFile = "no-such-folder/log.txt";
    RecordMove(g);
    EXPECT_EQ(g.Undo.size(), 1u);
    EXPECT_EQ(t.view.Messages(),
              std::vector<std::string>{"Moves Log File:\r\nno-such-folder/log.txt\r\n"
                                       "could not be written, this move is not logged [vbcritical+vbok]"});
}
