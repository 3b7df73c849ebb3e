#include "session/Session.h"

#include "core/Board.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "records/ColourScheme.h"
#include "records/Configuration.h"
#include "records/PositionRecord.h"
#include "records/ProgramFolder.h"
#include "records/TextFile.h"
#include "session/ComputerMoves.h"
#include "session/StrongTurn.h"
#include "session/LayoutCommands.h"

namespace jv {

namespace {

void EndProgram(Game& g) {
    g.Ending = true;
    g.View->EndProgram();
}

}  // namespace

bool StartUp(Game& g) { return StartUp(g, {}); }

bool StartUp(Game& g, const std::function<void()>& applySettings) {
    g.Check1 = true;   // automatic replies are on from the start
    if (g.ProgramFolder.empty()) g.ProgramFolder = FindProgramFolder();

    if (!FileExists(InProgramFolder(g, "all.col"))) {
        g.View->Show("File: all.col is missing\r\nProgram cannot run without this file", "vbok+vbcritical");
        g.View->DoEvents();
        EndProgram(g);
        return false;
    }

    g.PictureFiles = {"player00.ico", "player10.ico", "home0.ico", "king0.ico"};
    BuildColumnLetters(g);
    g.SchemeFile = "xp.col";
    ReadConfiguration(g, ConfigurationFile);
    ReadPlayers(g);
    LoadColourScheme(g, g.SchemeFile);
    if (applySettings) applySettings();

    LoadLayout(g, g.LayoutFile);
    // The defenders, the user's side, move first.
    PrintLog(g, "  Player1 to move ...", 1, 0);
    return true;
}

bool GameFinished(const Game& g) { return g.GameOver; }

void AutoGame(Game& g) {
    // A press while it runs is the user's stop.
    if (g.AutoGameRunning) {
        g.AutoGameRunning = false;
        g.StopThinking = true;
        return;
    }
    // Runs on after a game has ended: only the user's stop or the program's
    // end stops it, at once, even between the two moves of a round.
    g.AutoGameRunning = true;
    const auto goesOn = [&g] { return g.AutoGameRunning && !g.Ending; };
    while (goesOn()) {
        const std::string before = EncodePosition(g);
        g.View->DoEvents();
        if (!goesOn()) break;
        MakeGreenAutoMove(g);
        if (!goesOn()) break;
        MakeRedAutoMove(g);
        // Neither side could move: without a pause the two messages would
        // follow each other with no moment for Stop or Exit.
        if (goesOn() && EncodePosition(g) == before) g.View->Pause(1000);
    }
    g.AutoGameRunning = false;
}

bool ExitCommand(Game& g) {
    if (g.View->Show("Exit?", "vbQuestion + vbYesNo") != ButtonYes) return false;
    // A configuration that cannot be written is reported and the program
    // still ends.
    WriteConfiguration(g, ConfigurationFile);
    EndProgram(g);
    return true;
}

}  // namespace jv
