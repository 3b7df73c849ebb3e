// An impatient user: commands that arrive while a move waits in one of its
// pauses (the computer's move shown for a second, each capture's second, the
// message at the end of a game) or while the automatic game runs.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "ai/AttackerRank.h"
#include "session/ComputerMoves.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "session/LayoutEditor.h"
#include "core/Move.h"
#include "session/PlayerMoves.h"
#include "session/Pointer.h"
#include "session/Session.h"
#include "records/Configuration.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "session/Recording.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/Undo.h"
#include "support/Fixtures.h"
#include "support/Soundness.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::RecordingView;
using jv::test::TestGame;
using jv::test::BadLayoutLines;
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
    // Writes the pieces as a layout file of the program's folder and loads
    // it as the game; returns the loaded position's record.
    std::string Load(const std::string& name, int width, int height, std::initializer_list<const char*> cols) {
        PlacePieces(g, width, height, cols);
        WriteLayoutFile(g, t.Path(name));
        LoadLayout(g, name);
        view.Clear();
        view.Events = 0;
        view.At.clear();
        return EncodePosition(g);
    }
    bool Logged(const std::string& start) const {
        for (const std::string& line : g.EventLog)
            if (line.rfind(start, 0) == 0) return true;
        return false;
    }
};

// 11 by 11, the King on F6. The user's defender from D9 to D5 takes the
// attacker on C5 against the defender on B5; the computer's attacker from I6
// to I3 takes the defender on H3 against the attacker on G3.
std::string LoadCaptures(Impatient& s) {
    return s.Load("captures.txt", 11, 11,
                  {".", "....d", "....a", "........d", ".", ".....K", "..a", "..d", ".....a", ".", "."});
}

// The layout line of pattern1.txt, the shipped 7 by 7 board.
std::string Pattern1Line() {
    std::string line;
    ReadFirstLine(jv::test::DataPath("pattern1.txt"), line);
    return line;
}

// The user drags the piece on from and drops it on to.
bool UserMove(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    return BeginDrag(g, fromCol, fromRow) && EndDrag(g, toCol, toRow);
}

}  // namespace

TEST(ImpatientUser, AResetDuringTheComputersMoveLeavesTheNewGameAsLoaded) {
    // A reset while the computer's move is shown, or while its capture waits, starts the new game from its
    // layout: nothing of the interrupted move, neither the move itself nor its capture, is made in it.
    for (int at : {1, 2}) {
        Impatient s;
        Game& g = s.g;
        const std::string loaded = LoadCaptures(s);
        s.view.At[at] = [&] { ResetCommand(g); };
        MakeAttackerMove(g, {{9, 6}, {9, 3}});
        EXPECT_EQ(EncodePosition(g), loaded) << "reset at event " << at;
        EXPECT_TRUE(g.Undo.empty());
        EXPECT_EQ(g.EventLog, Lines{"Loaded Layout: captures.txt"});
        EXPECT_EQ(Unsound(g), "");
        EXPECT_EQ(StaleAnalysis(g), "");
    }
    // The computer defender's move alike.
    Impatient s;
    Game& g = s.g;
    const std::string loaded = LoadCaptures(s);
    s.view.At[1] = [&] { ResetCommand(g); };
    MakeDefenderMove(g, {{4, 9}, {4, 5}});
    EXPECT_EQ(EncodePosition(g), loaded);
    EXPECT_EQ(g.EventLog, Lines{"Loaded Layout: captures.txt"});
}

TEST(ImpatientUser, ASmallerBoardLoadedDuringAMoveKeepsItsFrameAndItsKing) {
    // A 7 by 7 layout loaded while an 11 by 11 move waits: the piece due to be taken beyond the new board's
    // edge leaves the new frame whole, and a King's move due from the square where the new King stands does
    // not carry him off the board.
    {
        Impatient s;
        Game& g = s.g;
        LoadCaptures(s);
        s.view.FileChoices = {"pattern1.txt"};
        s.view.At[2] = [&] { LoadCommand(g); };   // the capture's pause
        MakeAttackerMove(g, {{9, 6}, {9, 3}});
        EXPECT_EQ(g.BoardWidth, 7);
        EXPECT_EQ(g.Board(8, 3), HomeCode);
        EXPECT_EQ(LayoutLine(g), Pattern1Line());
        EXPECT_FALSE(s.Logged("  Player 2 captures"));
        EXPECT_EQ(Unsound(g), "");
    }
    Impatient s;
    Game& g = s.g;
    s.Load("king.txt", 11, 11, {".", ".", ".", "...K"});
    s.view.FileChoices = {"pattern1.txt"};   // its King stands on D4 too
    s.view.At[1] = [&] { LoadCommand(g); };  // the move's animation
    MakeDefenderMove(g, {{4, 4}, {4, 10}});
    EXPECT_EQ(g.KingCol, 4);
    EXPECT_EQ(g.KingRow, 4);
    EXPECT_EQ(LayoutLine(g), Pattern1Line());
    EXPECT_EQ(Unsound(g), "");
    EXPECT_EQ(StaleAnalysis(g), "");
}

TEST(ImpatientUser, AResetDuringTheUsersCaptureGetsNoAnswerFromTheComputer) {
    // The user's move waits a second for its capture; a reset then starts a game in which nobody has moved,
    // so the computer does not answer the interrupted move in it.
    Impatient s;
    Game& g = s.g;
    const std::string loaded = LoadCaptures(s);
    g.Check1 = true;
    s.view.At[1] = [&] { ResetCommand(g); };
    ASSERT_TRUE(UserMove(g, 4, 9, 4, 5));
    EXPECT_EQ(EncodePosition(g), loaded);
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_FALSE(s.Logged("  Player2 Move"));
    EXPECT_TRUE(g.BoardEnabled);
    EXPECT_EQ(Unsound(g), "");
}

TEST(ImpatientUser, ANewGameBegunWhileTheEndOfTheLastIsAnnouncedStaysOpen) {
    // The end of a game closes that game's board; a reset clicked while the end's message lets events run
    // begins a game whose board takes the pointer.
    Impatient s;
    Game& g = s.g;
    // The attacker from F9 to F7 completes the ring round the King on F6.
    const std::string loaded = s.Load("ring.txt", 11, 11, {".", ".", ".", ".", ".....a", "....aK..a", ".....a"});
    s.view.At[2] = [&] { ResetCommand(g); };   // 1: the animation, 2: after "King Captured !"
    MakeAttackerMove(g, {{6, 9}, {6, 7}});
    EXPECT_EQ(s.view.Messages().front(), "King Captured !\r\nClick Reset to start a new game [vbcritical+vbok]");
    EXPECT_EQ(EncodePosition(g), loaded);
    EXPECT_FALSE(g.GameOver);
    EXPECT_TRUE(g.BoardEnabled);
    EXPECT_TRUE(s.view.BoardEnabled);

    // The King's winning drop on a Home corner alike.
    const std::string home = s.Load("home.txt", 11, 11, {"....K"});
    s.view.At[1] = [&] { ResetCommand(g); };
    ASSERT_TRUE(UserMove(g, 1, 5, 1, 1));
    EXPECT_EQ(s.view.Messages().front(), "King at Home !\r\nClick Reset to start a new game [vbhappy+vbok]");
    EXPECT_EQ(EncodePosition(g), home);
    EXPECT_FALSE(g.GameOver);
    EXPECT_TRUE(g.BoardEnabled);
}

TEST(ImpatientUser, AnUndoDuringACaptureTakesOnlyPiecesStillSandwiched) {
    // Taking the move back while its capture waits leaves the position before the move: the attacker about
    // to be taken stays, as nothing sandwiches it any more.
    Impatient s;
    Game& g = s.g;
    const std::string before = LoadCaptures(s);
    g.Check1 = false;
    s.view.At[1] = [&] { UndoCommand(g); };
    ASSERT_TRUE(UserMove(g, 4, 9, 4, 5));
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_FALSE(s.Logged("  Player 1 captures"));
    EXPECT_EQ(StaleAnalysis(g), "");

    // Clicking an earlier entry of the Undo list, one in which the King stood where a defender is about to
    // be taken, shows that position whole: the King is never taken by two.
    LoadCaptures(s);
    Game earlier;
    earlier.View = &s.view;
    PlacePieces(earlier, 11, 11, {".", "....d", "....a", "........d", ".", ".", "..a", "..K", ".....a"});
    g.Undo = {EncodePosition(earlier)};
    s.view.At[2] = [&] { Undo_MouseUp(g, 1); };   // 1: the animation, 2: the capture of H3
    MakeAttackerMove(g, {{9, 6}, {9, 3}});
    EXPECT_EQ(g.KingCol, 8);
    EXPECT_EQ(g.KingRow, 3);
    EXPECT_EQ(g.Board(8, 3), DefenderCode);
    EXPECT_EQ(Unsound(g), "");
}

TEST(ImpatientUser, AComputerMoveWhosePieceWasMovedMeanwhileIsNotMade) {
    // A second computer move asked for while the first is shown moves first; the first, whose piece has
    // left its square, is then not made: no empty square is carried over and no piece vanishes.
    Impatient s;
    Game& g = s.g;
    LoadCaptures(s);
    s.view.At[1] = [&] { MakeAttackerMove(g, {{9, 6}, {9, 8}}); };
    MakeAttackerMove(g, {{9, 6}, {9, 3}});
    EXPECT_EQ(g.Board(9, 8), AttackerCode);
    EXPECT_EQ(g.Board(9, 3), EmptyCode);
    EXPECT_EQ(g.Board(8, 3), DefenderCode);
    EXPECT_FALSE(s.Logged("  Player0"));
    EXPECT_EQ(g.AttackerCount, 3);
    EXPECT_EQ(Unsound(g), "");
    EXPECT_EQ(StaleAnalysis(g), "");
}

TEST(ImpatientUser, ASecondDropDuringTheUsersCaptureIsAMoveOfItsOwn) {
    // The board takes the pointer while the user's capture waits: a second drop then is a move of its own,
    // recorded and answered by the computer like the first, and the first capture is still made.
    Impatient s;
    Game& g = s.g;
    LoadCaptures(s);
    g.Check1 = true;
    s.view.At[1] = [&] { EXPECT_TRUE(UserMove(g, 8, 3, 8, 1)); };
    ASSERT_TRUE(UserMove(g, 4, 9, 4, 5));
    EXPECT_EQ(g.Undo.size(), 4u);   // two user moves and two answers
    int answers = 0;
    for (const std::string& line : g.EventLog) answers += line.rfind("  Player2 Move", 0) == 0;
    EXPECT_EQ(answers, 2);
    EXPECT_TRUE(s.Logged("  Player 1 captures C5"));
    EXPECT_EQ(Unsound(g), "");
    EXPECT_EQ(StaleAnalysis(g), "");
}

TEST(ImpatientUser, WhileTheComputerMovesTheBoardRefusesADragAndTheButtonsWork) {
    // During the computer's move the board takes no drag; the buttons act at once: the attackers' ranking
    // is listed again and the computer's move is still made.
    Impatient s;
    Game& g = s.g;
    LoadCaptures(s);
    bool dragged = true;
    s.view.At[1] = [&] {
        dragged = BeginDrag(g, 4, 9);
        g.List1A.clear();
        GetAttackerRank(g);
    };
    MakeRedAutoMove(g);
    EXPECT_FALSE(dragged);
    EXPECT_FALSE(g.List1A.empty());
    EXPECT_TRUE(s.Logged("  Player2 Move"));
    EXPECT_EQ(g.Undo.size(), 1u);
    EXPECT_TRUE(g.BoardEnabled);
    EXPECT_EQ(Unsound(g), "");
    EXPECT_EQ(StaleAnalysis(g), "");
}

TEST(ImpatientUser, TheEditorSwitchedOnDuringAMoveKeepsItsPosition) {
    // The editor switched on while the computer's move is shown edits the position of that moment; the
    // move is made on the board underneath, and switching the editor off replaces it with the edited one.
    Impatient s;
    Game& g = s.g;
    const std::string before = LoadCaptures(s);
    s.view.At[1] = [&] { EditorCommand(g); };
    MakeAttackerMove(g, {{9, 6}, {9, 3}});
    EXPECT_TRUE(g.EditorOn);
    EXPECT_EQ(g.Board(9, 3), AttackerCode);
    EXPECT_EQ(Unsound(g), "");
    EditorCommand(g);
    EXPECT_FALSE(g.EditorOn);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_EQ(g.LayoutFile, s.t.Path("temporarylayout.txt"));
}

TEST(ImpatientUser, ExitDuringAMoveEndsItAndLeavesEveryFileWhole) {
    // "Exit?" answered Yes while a capture waits ends the program there: the configuration is written
    // whole, and neither the rest of the move nor the computer's answer adds to the moves log.
    Impatient s;
    Game& g = s.g;
    LoadCaptures(s);
    g.Check1 = true;
    g.Clock = [] { return ClockReading{3, 14, 9, 5}; };
    RecordingSwitch(g, true);
    g.BoardStyle = 2;
    s.view.At[1] = [&] { EXPECT_TRUE(ExitCommand(g)); };
    ASSERT_TRUE(UserMove(g, 4, 9, 4, 5));
    EXPECT_TRUE(g.Ending);
    EXPECT_FALSE(s.Logged("  Player2 Move"));
    std::size_t lines = 0;
    EXPECT_EQ(BadLayoutLines(s.t.Path(g.MovesLogFile), lines), "");
    EXPECT_EQ(lines, 1u);   // the position before the user's move

    Impatient next;
    next.t.WriteFile("jarlsvakt.cfg", s.t.ReadFile("jarlsvakt.cfg"));
    ReadConfiguration(next.g, "jarlsvakt.cfg");
    EXPECT_EQ(next.g.BoardStyle, 2);
    EXPECT_EQ(next.t.ReadFile("jarlsvakt.cfg"), s.t.ReadFile("jarlsvakt.cfg"));   // not rewritten as unreadable
}

TEST(ImpatientUser, EveryCommandAtEveryPauseOfAMoveAndItsAnswerLeavesASoundGame) {
    // Whatever command arrives during the user's capture, the computer's answer or its capture, the game
    // stays sound (frame, corners, King, undo records), and the moves log and the saved layouts hold only
    // whole layout lines.
    using Command = std::function<void(Impatient&)>;
    const std::vector<std::pair<const char*, Command>> commands = {
        {"reset", [](Impatient& s) { ResetCommand(s.g); }},
        {"load 7x7", [](Impatient& s) { s.view.FileChoices = {"pattern1.txt"}; LoadCommand(s.g); }},
        {"load 13x13", [](Impatient& s) { s.view.FileChoices = {"pattern4.txt"}; LoadCommand(s.g); }},
        {"undo", [](Impatient& s) { UndoCommand(s.g); }},
        {"undo list", [](Impatient& s) { Undo_MouseUp(s.g, static_cast<int>(s.g.Undo.size()) - 1); }},
        {"editor", [](Impatient& s) { EditorCommand(s.g); }},
        {"editor twice", [](Impatient& s) { EditorCommand(s.g); EditorCommand(s.g); }},
        {"save", [](Impatient& s) { s.view.FileChoices = {"saved.txt"}; SaveCommand(s.g); }},
        {"recording", [](Impatient& s) { RecordingSwitch(s.g, !s.g.Check2); }},
        {"replay", [](Impatient& s) { s.view.FileChoices = {s.g.MovesLogFile}; ReplayCommand(s.g); }},
        {"second drop", [](Impatient& s) { UserMove(s.g, 8, 3, 8, 1); }},
        {"attacker", [](Impatient& s) { MakeRedAutoMove(s.g); }},
        {"defender", [](Impatient& s) { MakeGreenAutoMove(s.g); }},
        {"random", [](Impatient& s) { RedGreenRandom(s.g); }},
        {"exit", [](Impatient& s) { ExitCommand(s.g); }},
    };
    for (const auto& [name, command] : commands)
        for (int at = 1; at <= 4; ++at) {
            Impatient s;
            Game& g = s.g;
            LoadCaptures(s);
            g.Check1 = true;
            g.Clock = [] { return ClockReading{3, 14, 9, 5}; };
            RecordingSwitch(g, true);
            const std::string log = g.MovesLogFile;
            s.view.At[at] = [&s, &command] { command(s); };
            UserMove(g, 4, 9, 4, 5);
            const std::string where = std::string(name) + " at event " + std::to_string(at);
            EXPECT_EQ(Unsound(g), "") << where;
            std::size_t lines = 0;
            EXPECT_EQ(BadLayoutLines(s.t.Path(log), lines), "") << where;
            EXPECT_GE(lines, 1u) << where;
            for (const char* file : {"saved.txt", "temporarylayout.txt", "templayout.txt"})
                if (!s.t.ReadFile(file).empty()) {
                    EXPECT_EQ(BadLayoutLines(s.t.Path(file), lines), "") << where;
                }
        }
}

TEST(ImpatientUser, AutoGameSurvivesEveryCommandUntilTheExit) {
    // The automatic game lets events run before every move: resets, loads of other boards, undos, the
    // editor, random moves, a second automatic game and finally the exit arrive while it plays, and it
    // goes on on whatever board there is until the program ends.
    Impatient s;
    Game& g = s.g;
    s.t.CopyData("patf.txt");
    LoadLayout(g, "patf.txt");
    g.Clock = [] { return ClockReading{3, 14, 9, 5}; };
    RecordingSwitch(g, true);
    int tick = 0;
    g.Random.Timer = [&tick] { return 100.0 + tick++ / 64.0; };
    const std::vector<std::function<void()>> schedule = {
        [&] { ResetCommand(g); },
        [&] { UndoCommand(g); },
        [&] { s.view.FileChoices = {"pattern1.txt"}; LoadCommand(g); },
        [&] { EditorCommand(g); },
        [&] { RedGreenRandom(g); },
        [&] { EditorCommand(g); },
        [&] { s.view.FileChoices = {"pattern4.txt"}; LoadCommand(g); },
        [&] { Undo_MouseUp(g, 0); },
        [&] { AutoGame(g); },
        [&] { RedGreenRandom(g); },
    };
    for (std::size_t k = 0; k < schedule.size(); ++k) s.view.At[static_cast<int>(7 * k + 3)] = schedule[k];
    const int exitAt = static_cast<int>(7 * schedule.size() + 10);
    s.view.At[exitAt] = [&] { ExitCommand(g); };
    AutoGame(g);
    EXPECT_TRUE(g.Ending);
    EXPECT_GE(s.view.Events, exitAt);
    EXPECT_EQ(Unsound(g), "");
    std::size_t lines = 0;
    EXPECT_EQ(BadLayoutLines(s.t.Path(g.MovesLogFile), lines), "");
    EXPECT_GT(lines, 5u);
}
