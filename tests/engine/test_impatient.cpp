// Commands that arrive while a move waits in one of its pauses, or while the automatic game runs, leave a
// sound game.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>

#include "ai/AttackerRank.h"
#include "session/PlayerMoves.h"
#include "session/ComputerMoves.h"
#include "core/Board.h"
#include "session/LayoutEditor.h"
#include "core/Move.h"
#include "session/Pointer.h"
#include "session/Session.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/Undo.h"
#include "support/Fixtures.h"
#include "support/Soundness.h"

using namespace jv;
using jv::test::RecordingView;
using jv::test::TestGame;
using jv::test::StaleAnalysis;
using jv::test::Unsound;
using Lines = std::vector<std::string>;

namespace {

// The view of an impatient user: what arrives at the n-th pause or DoEvents
// (counted from 1, nested ones included) is run there. The questions that
// start or end something are answered Yes, every other one OK.
class ImpatientView : public RecordingView {
public:
    std::map<int, std::function<void()>> At;
    int Events = 0;

    ImpatientView() {
        OnEvents = [this] {
            const auto found = At.find(++Events);
            if (found != At.end()) found->second();
        };
    }
    int Show(const std::string& text, const std::string& style) override {
        RecordingView::Show(text, style);
        const bool yes = text == "Reset layout?" || text == "Exit?" || text.find("OverWrite file?") != std::string::npos;
        return yes ? 6 : 1;
    }
};

struct Impatient {
    TestGame t;
    ImpatientView view;
    Game& g = t.g;

    Impatient() {
        g.View = &view;
        g.Random.Timer = [] { return 5.0; };
        t.CopyData("pattern1.txt");
        t.CopyData("pattern4.txt");
    }
    // Writes the layout line as a file of the program's folder and loads it
    // as the game; returns the loaded position's record.
    std::string Load(const std::string& name, const std::string& line) {
        t.WriteFile(name, line + "\r\n");
        LoadLayout(g, name);
        view.Clear();
        view.Events = 0;
        view.At.clear();
        return EncodePosition(g);
    }
    // How many lines of the log start with start.
    long Logged(const std::string& start) const {
        return std::count_if(g.EventLog.begin(), g.EventLog.end(), [&](const std::string& l) { return l.rfind(start, 0) == 0; });
    }
    // What is unsound or stale in the game ("" when nothing is).
    std::string Unsoundness() const { return Unsound(g) + StaleAnalysis(g); }
};

// 11 by 11, the King on F6. The user's defender from D9 to D5 takes the
// attacker on C5 against the defender on B5; the computer's attacker from I6
// to I3 takes the defender on H3 against the attacker on G3.
std::string LoadCaptures(Impatient& s) {
    return s.Load("captures.txt", "11110606" "HEEEEEEEEEH" "EEEE0EEEEEE" "EEEE1EEEEEE" "EEEEEEEE0EE" "EEEEEEEEEEE"
                  "EEEEE0EEEEE" "EE1EEEEEEEE" "EE0EEEEEEEE" "EEEEE1EEEEE" "EEEEEEEEEEE" "HEEEEEEEEEH");
}

// The user drags the piece on from and drops it on to.
bool UserMove(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    return BeginDrag(g, fromCol, fromRow) && EndDrag(g, toCol, toRow);
}

}  // namespace

TEST(ImpatientUser, AResetDuringAMoveLeavesTheNewGameAsLoaded) {
    // A reset in the middle of a move starts the new game as loaded, with nothing of the interrupted move.
    const struct { const char* move; int at; std::function<void(Game&)> make; } rows[] = {
        {"the computer's attacker, shown", 1, [](Game& g) { MakeAttackerMove(g, {{9, 6}, {9, 3}}); }},
        {"the computer's attacker, capturing", 2, [](Game& g) { MakeAttackerMove(g, {{9, 6}, {9, 3}}); }},
        {"the computer's defender", 1, [](Game& g) { MakeDefenderMove(g, {{4, 9}, {4, 5}}); }},
        {"the user's, capturing", 1, [](Game& g) { g.Check1 = true, UserMove(g, 4, 9, 4, 5); }},
    };
    for (const auto& r : rows) {
        Impatient s;
        const std::string loaded = LoadCaptures(s);
        s.view.At[r.at] = [&] { ResetCommand(s.g); };
        r.make(s.g);
        EXPECT_EQ(EncodePosition(s.g), loaded) << r.move;
        EXPECT_TRUE(s.g.Undo.empty()) << r.move;
        EXPECT_EQ(s.g.EventLog, Lines{"Loaded Layout: captures.txt"}) << r.move;
        EXPECT_EQ(s.Unsoundness(), "") << r.move;
    }
}

TEST(ImpatientUser, ASmallerBoardLoadedDuringAMoveKeepsItsKing) {
    // A smaller board loaded during a King's move keeps its own King on the board.
    Impatient s;
    s.Load("king.txt", "11110404" "HEEEEEEEEEH" + std::string(22, 'E') + "EEE0EEEEEEE" + std::string(66, 'E') + "HEEEEEEEEEH");
    s.view.FileChoices = {"pattern1.txt"};
    s.view.At[1] = [&] { LoadCommand(s.g); };   // the move's animation; pattern1's King stands on D4 too
    MakeDefenderMove(s.g, {{4, 4}, {4, 10}});
    std::string pattern1;
    ASSERT_TRUE(ReadFirstLine(jv::test::DataPath("pattern1.txt"), pattern1));
    EXPECT_EQ(LayoutLine(s.g), pattern1);
    EXPECT_EQ(s.Unsoundness(), "");
}

TEST(ImpatientUser, ANewGameBegunWhileTheEndOfTheLastIsAnnouncedStaysOpen) {
    // A game begun while the end of the last is announced keeps its board open.
    const struct { const char* end; std::string layout; int at; std::function<void(Game&)> make; } rows[] = {
        {"King Captured !", "11110606" "HEEEEEEEEEH" + std::string(33, 'E') + "EEEEE1EEEEE" "EEEE10EE1EE" "EEEEE1EEEEE" +
                                std::string(33, 'E') + "HEEEEEEEEEH", 2, [](Game& g) { MakeAttackerMove(g, {{6, 9}, {6, 7}}); }},
        {"King at Home !", "11110105" "HEEE0EEEEEH" + std::string(99, 'E') + "HEEEEEEEEEH", 1,
         [](Game& g) { UserMove(g, 1, 5, 1, 1); }},
    };
    for (const auto& r : rows) {
        Impatient s;
        const std::string loaded = s.Load("end.txt", r.layout);
        s.view.At[r.at] = [&] { ResetCommand(s.g); };
        r.make(s.g);
        EXPECT_EQ(s.view.Messages().at(0).rfind(r.end, 0), 0u) << r.end;
        EXPECT_EQ(EncodePosition(s.g), loaded) << r.end;
        EXPECT_FALSE(s.g.GameOver) << r.end;
        EXPECT_TRUE(s.view.BoardEnabled) << r.end;
    }
}

TEST(ImpatientUser, AnUndoDuringACaptureTakesOnlyPiecesStillSandwiched) {
    // An undo during a capture's pause takes only pieces still sandwiched, never the King.
    Impatient s;
    const std::string before = LoadCaptures(s);
    s.g.Check1 = false;
    s.view.At[1] = [&] { UndoCommand(s.g); };
    ASSERT_TRUE(UserMove(s.g, 4, 9, 4, 5));
    EXPECT_EQ(EncodePosition(s.g), before);
    EXPECT_EQ(s.Logged("  Player 1 captures"), 0);
    EXPECT_EQ(s.Unsoundness(), "");

    LoadCaptures(s);
    Game earlier;
    earlier.View = &s.view;
    ASSERT_TRUE(ApplyLayoutLine(earlier, "11110803" "HEEEEEEEEEH" "EEEE0EEEEEE" "EEEE1EEEEEE" "EEEEEEEE0EE" "EEEEEEEEEEE"
                                          "EEEEEEEEEEE" "EE1EEEEEEEE" "EE0EEEEEEEE" "EEEEE1EEEEE" "EEEEEEEEEEE" "HEEEEEEEEEH").Ok());
    s.g.Undo = {EncodePosition(earlier)};
    s.view.At[2] = [&] { Undo_MouseUp(s.g, 1); };   // 1: the animation, 2: the capture of H3
    MakeAttackerMove(s.g, {{9, 6}, {9, 3}});
    EXPECT_EQ(std::tie(s.g.Board(8, 3), s.g.KingCol, s.g.KingRow), std::tuple(DefenderCode, 8, 3));
}

TEST(ImpatientUser, AMoveWhosePieceWasMovedMeanwhileIsNotMadeAndASecondDropIsAMoveOfItsOwn) {
    // A move whose piece has gone meanwhile is not made; a second drop meanwhile is a move of its own.
    Impatient s;
    LoadCaptures(s);
    s.view.At[1] = [&] { MakeAttackerMove(s.g, {{9, 6}, {9, 8}}); };
    MakeAttackerMove(s.g, {{9, 6}, {9, 3}});
    EXPECT_EQ(std::tie(s.g.Board(9, 8), s.g.Board(9, 3), s.g.AttackerCount), std::tuple(AttackerCode, EmptyCode, 3));
    EXPECT_EQ(s.Unsoundness(), "");

    LoadCaptures(s);
    s.g.Check1 = true;
    s.view.At[1] = [&] { EXPECT_TRUE(UserMove(s.g, 8, 3, 8, 1)); };
    ASSERT_TRUE(UserMove(s.g, 4, 9, 4, 5));
    EXPECT_EQ(s.g.Undo.size(), 4u);   // two user moves and two answers
    EXPECT_EQ(std::tuple(s.Logged("  Player2 Move"), s.Logged("  Player 1 captures C5")), std::tuple(2, 1));
    EXPECT_EQ(s.Unsoundness(), "");
}

TEST(ImpatientUser, WhileTheComputerMovesTheBoardRefusesADragAndTheButtonsWork) {
    // While the computer moves the board refuses a drag and the buttons still act.
    Impatient s;
    const std::string before = LoadCaptures(s);
    bool dragged = true;
    s.view.At[1] = [&] { dragged = BeginDrag(s.g, 4, 9); GetAttackerRank(s.g); EditorCommand(s.g); };
    MakeRedAutoMove(s.g);
    EXPECT_FALSE(dragged);
    EXPECT_FALSE(s.g.List1A.empty());
    EXPECT_EQ(s.Logged("  Player2 Move"), 1);
    EXPECT_TRUE(s.g.EditorOn);
    EXPECT_EQ(Unsound(s.g), "");
    EditorCommand(s.g);
    EXPECT_EQ(EncodePosition(s.g), before);
    EXPECT_EQ(s.g.LayoutFile, s.t.Path("temporarylayout.txt"));
}
