// The layout editor: edits go to its grid and become the new game when it is switched off.
#include <gtest/gtest.h>

#include <filesystem>

#include "session/LayoutEditor.h"
#include "session/LayoutCommands.h"
#include "records/PositionRecord.h"
#include "session/Undo.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
// A 7x7 game loaded from a file: the King on D4, defenders on C4 and D3, attackers on A4, D1 and D7.
const std::string Seven = "07070404HEE1EEHEEEEEEEEEE0EEE1E00EE1EEEEEEEEEEEEEEHEEEEEH";

struct Editing : TestGame {
    Editing() {
        WriteFile("seven.txt", Seven + "\r\n");
        LoadLayout(g, "seven.txt");
        SwitchEditorOn(g);
        view.Clear();
    }
};
}  // namespace

TEST(LayoutEditor, EditsBecomeTheNewGameWhenTheEditorIsSwitchedOff) {
    // The editor's edits become the new game when it is switched off, the King keeping his row.
    const struct { const char* why; int col, row, code; const char* after; } rows[] = {
        {"no change", 0, 0, 0, "07070404HEE1EEHEEEEEEEEEE0EEE1E00EE1EEEEEEEEEEEEEEHEEEEEH"},
        {"an attacker on B2", 2, 2, AttackerCode, "07070404HEE1EEHE1EEEEEEEE0EEE1E00EE1EEEEEEEEEEEEEEHEEEEEH"},
        {"C4 emptied", 3, 4, EmptyCode, "07070404HEE1EEHEEEEEEEEEEEEEE1E00EE1EEEEEEEEEEEEEEHEEEEEH"},
        {"the King along his row", 6, 4, EditorKingCode, "07070604HEE1EEHEEEEEEEEEE0EEE1E0EEE1EEEEEEEEEE0EEEHEEEEEH"},
        {"the King to another row", 4, 6, EditorKingCode, "07070004HEE1EEHEEEEEEEEEE0EEE1E0EE01EEEEEEEEEEEEEEHEEEEEH"},
    };
    for (const auto& r : rows) {
        Editing t;
        if (r.col) ASSERT_TRUE(PlaceInEditor(t.g, r.col, r.row, r.code)) << r.why;
        EXPECT_EQ(LayoutLine(t.g), Seven) << r.why;
        t.g.Undo = {"an old record"};
        EditorCommand(t.g);
        EXPECT_EQ(LayoutLine(t.g), r.after) << r.why;
        EXPECT_EQ(t.g.LayoutFile, t.Path("temporarylayout.txt")) << r.why;
        EXPECT_TRUE(t.g.Undo.empty()) << r.why;
    }
}

TEST(LayoutEditor, CornersAndTheKingsSquareAreNeverPaintedOver) {
    // The editor never paints over a Home corner or the King, nor off the board or while it is off.
    Editing t;
    Game& g = t.g;
    const struct { int col, row, code; } refused[] = {
        {1, 1, AttackerCode}, {7, 7, EditorKingCode}, {4, 4, EmptyCode}, {4, 4, AttackerCode},
        {0, 3, AttackerCode}, {8, 3, AttackerCode}, {2, 2, HomeCode}, {2, 2, 5}, {2, 2, EmptyCode}};
    for (const auto& r : refused) EXPECT_FALSE(PlaceInEditor(g, r.col, r.row, r.code)) << r.col << "," << r.row;
    g.EditorGrid(4, 4) = EmptyCode;
    g.EditorGrid(7, 1) = EditorKingCode;
    EXPECT_TRUE(PlaceInEditor(g, 6, 1, EditorKingCode));
    EXPECT_EQ(g.EditorGrid(7, 1), HomeCode);
    SwitchEditorOff(g);
    EXPECT_FALSE(PlaceInEditor(g, 2, 2, AttackerCode));
}

TEST(LayoutEditor, AnUnwritableFolderKeepsTheEditorOpen) {
    // When "temporarylayout.txt" cannot be written the player is told and the editor stays on.
    Editing t;
    std::filesystem::create_directory(t.Path("temporarylayout.txt.tmp"));
    SwitchEditorOff(t.g);
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Layout File:\r\n" + t.Path("temporarylayout.txt") +
                                                          "\r\ncould not be written, the editor stays open [vbcritical+vbok]"});
    EXPECT_TRUE(t.g.EditorOn);
    EXPECT_EQ(t.g.LayoutFile, "seven.txt");
}
