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
#include "session/GameEnding.h"
#include "session/LayoutCommands.h"
#include "session/NewGame.h"
#include "session/SquareNames.h"
#include "session/StrongTurn.h"

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
    ReadViewSettings(g);
    ReadRules(g);
    LoadColourScheme(g, g.SchemeFile);
    if (applySettings) applySettings();

    LoadLayout(g, g.LayoutFile);
    LogFirstMover(g);
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
    // The user's stop or the program's end stops it at once, even between
    // the two moves of a round. The classic pair runs on after a game has
    // ended, the defenders moving first in every round; with any other
    // player on a side, or under any other rule set, the end of the game
    // stops it too, and under any other rule set the side to move begins.
    g.AutoGameRunning = true;
    const bool overBefore = g.GameOver;
    const auto goesOn = [&g] { return g.AutoGameRunning && !g.Ending && (ClassicPairPlays(g) || !g.GameOver); };
    while (goesOn()) {
        const std::string before = EncodePosition(g);
        g.View->DoEvents();
        if (!goesOn()) break;
        const int first = PlaysClassicRules(g) ? DefenderCode : SideToMove(g);
        MakeAutoMove(g, first);
        if (!goesOn()) break;
        MakeAutoMove(g, OtherSide(first));
        // Neither side could move: without a pause the two messages would
        // follow each other with no moment for Stop or Exit.
        if (goesOn() && EncodePosition(g) == before) g.View->Pause(1000);
    }
    g.AutoGameRunning = false;
    // Stopped by the end of the game under the classic rules, whose message
    // box wrote no log line: the log says how it ended.
    if (g.GameOver && !overBefore && PlaysClassicRules(g) && !ClassicPairPlays(g) && g.Result != GameEnding::None)
        LogEnding(g, g.Result);
}

bool ExitCommand(Game& g) {
    if (g.View->Show("Exit?", "vbQuestion + vbYesNo") != ButtonYes) return false;
    // A configuration that cannot be written is reported and the program
    // still ends.
    WriteConfiguration(g, ConfigurationFile);
    WriteRules(g);
    EndProgram(g);
    return true;
}

}  // namespace jv
