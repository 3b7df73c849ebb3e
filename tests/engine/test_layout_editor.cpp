#include <gtest/gtest.h>

#include <filesystem>

#include "session/LayoutEditor.h"
#include "session/LayoutCommands.h"
#include "session/Recording.h"
#include "records/PositionRecord.h"
#include "session/Undo.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {

// A 7x7 game loaded from a file: the King on D4 among two defenders, three
// attackers.
//   col A: H . . a . . H
//   col B: . . . . . . .
//   col C: . . . d . . .
//   col D: a . d K . . a
//   col E: . . . . . . .
//   col F: . . . . . . .
//   col G: H . . . . . H
const std::string Seven = "07070404HEE1EEHEEEEEEEEEE0EEE1E00EE1EEEEEEEEEEEEEEHEEEEEH";

struct Editing : TestGame {
    Editing() {
        WriteFile("seven.txt", Seven + "\r\n");
        LoadLayout(g, "seven.txt");
        view.Clear();
    }
};

}  // namespace

TEST(LayoutEditor, OnAndOffWithoutAChangeKeepsThePositionAndTheKing) {
    // Switching the editor on and off without a change reloads the same position from
    // "temporarylayout.txt", with the King where he was, as a new game.
    Editing t;
    Game& g = t.g;
    ASSERT_EQ(LayoutLine(g), Seven);
    g.Undo = {"an old record"};

    EditorCommand(g);
    EXPECT_TRUE(g.EditorOn);
    EXPECT_TRUE(t.view.EditorVisible);
    EXPECT_EQ(g.EditorGrid(4, 4), EditorKingCode);
    EXPECT_EQ(g.EditorGrid(1, 1), HomeCode);
    EXPECT_EQ(g.EditorGrid(1, 4), AttackerCode);
    EXPECT_EQ(g.EditorGrid(3, 4), DefenderCode);
    EXPECT_EQ(g.EditorGrid(2, 2), EmptyCode);

    EditorCommand(g);
    EXPECT_FALSE(g.EditorOn);
    EXPECT_FALSE(t.view.EditorVisible);
    EXPECT_EQ(t.ReadFile("temporarylayout.txt"), Seven + "\r\n");
    EXPECT_EQ(LayoutLine(g), Seven);
    EXPECT_EQ(g.KingCol, 4);
    EXPECT_EQ(g.KingRow, 4);
    EXPECT_EQ(g.LayoutFile, t.Path("temporarylayout.txt"));
    EXPECT_EQ(t.view.LayoutCaption, "temporarylayout.txt");
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_EQ(g.EventLog.front(), "Loaded Layout: " + t.Path("temporarylayout.txt"));
}

TEST(LayoutEditor, TheBoardStaysAsItIsUntilTheEditorIsSwitchedOff) {
    // Edits go to the editor grid; the board changes only when the editor is switched off.
    Editing t;
    Game& g = t.g;
    SwitchEditorOn(g);
    EXPECT_TRUE(PlaceInEditor(g, 2, 2, AttackerCode));
    EXPECT_TRUE(PlaceInEditor(g, 3, 4, EmptyCode));
    EXPECT_TRUE(PlaceInEditor(g, 5, 4, DefenderCode));
    EXPECT_EQ(LayoutLine(g), Seven);

    Game shown;
    EditorPosition(g, shown);
    EXPECT_EQ(shown.Board(2, 2), AttackerCode);
    EXPECT_EQ(shown.Board(3, 4), EmptyCode);
    EXPECT_EQ(shown.Board(4, 4), DefenderCode);
    EXPECT_EQ(shown.KingCol, 4);
    EXPECT_EQ(shown.KingRow, 4);

    SwitchEditorOff(g);
    EXPECT_EQ(g.Board(2, 2), AttackerCode);
    EXPECT_EQ(g.Board(3, 4), EmptyCode);
    EXPECT_EQ(g.Board(5, 4), DefenderCode);
    EXPECT_EQ(g.AttackerCount, 4);
    EXPECT_EQ(g.DefenderCount, 2);
}

TEST(LayoutEditor, WhatMayBePlacedWhere) {
    // The Home corners and the King's square are never painted over; placing the King moves the one
    // King; a King leaving a corner leaves it Home; nothing is placed off the board or with the editor off.
    Editing t;
    Game& g = t.g;
    EXPECT_FALSE(PlaceInEditor(g, 2, 2, AttackerCode));   // the editor is off
    SwitchEditorOn(g);
    EXPECT_FALSE(PlaceInEditor(g, 1, 1, AttackerCode));
    EXPECT_FALSE(PlaceInEditor(g, 7, 7, EditorKingCode));
    EXPECT_FALSE(PlaceInEditor(g, 4, 4, EmptyCode));
    EXPECT_FALSE(PlaceInEditor(g, 4, 4, AttackerCode));
    EXPECT_FALSE(PlaceInEditor(g, 0, 3, AttackerCode));
    EXPECT_FALSE(PlaceInEditor(g, 8, 3, AttackerCode));
    EXPECT_FALSE(PlaceInEditor(g, 2, 2, HomeCode));
    EXPECT_FALSE(PlaceInEditor(g, 2, 2, 5));
    EXPECT_FALSE(PlaceInEditor(g, 2, 2, EmptyCode));   // already empty: nothing changes
    EXPECT_EQ(g.EditorGrid(1, 1), HomeCode);
    EXPECT_EQ(g.EditorGrid(4, 4), EditorKingCode);

    EXPECT_TRUE(PlaceInEditor(g, 4, 6, EditorKingCode));
    EXPECT_EQ(g.EditorGrid(4, 6), EditorKingCode);
    EXPECT_EQ(g.EditorGrid(4, 4), EmptyCode);

    // The King on a corner (a finished game's position) leaves Home behind him.
    g.EditorGrid(4, 6) = EmptyCode;
    g.EditorGrid(7, 1) = EditorKingCode;
    EXPECT_TRUE(PlaceInEditor(g, 6, 1, EditorKingCode));
    EXPECT_EQ(g.EditorGrid(7, 1), HomeCode);
    EXPECT_EQ(g.EditorGrid(6, 1), EditorKingCode);
}

TEST(LayoutEditor, AKingMovedToAnotherRowIsLeftWithColumnZero) {
    // The King's row is kept; his column is the edited King's column only when that lies on his old
    // row, otherwise 0: moved to another row he is off the board and his square holds a defender.
    {
        Editing t;
        Game& g = t.g;
        SwitchEditorOn(g);
        ASSERT_TRUE(PlaceInEditor(g, 6, 4, EditorKingCode));   // F4: same row
        SwitchEditorOff(g);
        EXPECT_EQ(g.KingCol, 6);
        EXPECT_EQ(g.KingRow, 4);
        EXPECT_EQ(g.Board(6, 4), DefenderCode);
        EXPECT_EQ(g.Board(4, 4), EmptyCode);
        EXPECT_EQ(t.ReadFile("temporarylayout.txt").substr(0, 8), "07070604");
    }
    {
        Editing t;
        Game& g = t.g;
        SwitchEditorOn(g);
        ASSERT_TRUE(PlaceInEditor(g, 4, 6, EditorKingCode));   // D6: another row
        SwitchEditorOff(g);
        EXPECT_FALSE(g.EditorOn);
        EXPECT_EQ(g.KingCol, 0);
        EXPECT_EQ(g.KingRow, 4);
        EXPECT_EQ(g.Board(4, 6), DefenderCode);
        EXPECT_EQ(g.Board(4, 4), EmptyCode);
        EXPECT_EQ(t.ReadFile("temporarylayout.txt").substr(0, 8), "07070004");
    }
}

TEST(LayoutEditor, CommandsDoNothingWhileTheEditorIsOn) {
    // While the editor is on, load, save, reset, undo and recording do nothing: no question, no file
    // dialog, no file, the position and the undo history as they were.
    Editing t;
    Game& g = t.g;
    g.Undo = {"0404" + Seven.substr(8)};
    SwitchEditorOn(g);
    t.view.Clear();
    t.view.FileChoices = {"pattern1.txt", "saved.txt", "moves.txt"};
    t.view.Answers = {6, 6, 6};
    LoadCommand(g);
    SaveCommand(g);
    ResetCommand(g);
    UndoCommand(g);
    RecordingSwitch(g, true);
    EXPECT_TRUE(t.view.Calls.empty());
    EXPECT_EQ(t.view.FileChoices.size(), 3u);
    EXPECT_FALSE(std::filesystem::exists(t.Path("saved.txt")));
    EXPECT_EQ(LayoutLine(g), Seven);
    EXPECT_EQ(g.Undo.size(), 1u);
    EXPECT_TRUE(g.MovesLogFile.empty());
    EXPECT_TRUE(g.EditorOn);
}

TEST(LayoutEditor, AnUnwritableFolderKeepsTheEditorOpen) {
    // When "temporarylayout.txt" cannot be written the player is told and the editor stays on.
    Editing t;
    Game& g = t.g;
    SwitchEditorOn(g);
    ASSERT_TRUE(PlaceInEditor(g, 2, 2, AttackerCode));
    std::filesystem::create_directory(t.Path("temporarylayout.txt.tmp"));
    t.view.Clear();
    SwitchEditorOff(g);
    EXPECT_EQ(t.view.Messages(),
              std::vector<std::string>{"Layout File:\r\n" + t.Path("temporarylayout.txt") +
                                       "\r\ncould not be written, the editor stays open [vbcritical+vbok]"});
    EXPECT_TRUE(g.EditorOn);
    EXPECT_TRUE(t.view.EditorVisible);
    EXPECT_EQ(g.LayoutFile, "seven.txt");
}

TEST(LayoutEditor, AFinishedGameCanBeEdited) {
    // Switching the editor on opens the board to the pointer again, and repaints it.
    Editing t;
    Game& g = t.g;
    g.BoardEnabled = false;
    t.view.BoardEnabled = false;
    SwitchEditorOn(g);
    EXPECT_TRUE(t.view.BoardEnabled);
    EXPECT_EQ(t.view.Calls.back(), "DrawBoard");
}
