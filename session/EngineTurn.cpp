#include "session/EngineTurn.h"

#include <chrono>
#include <future>

#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/RuleBoard.h"
#include "records/PositionRecord.h"
#include "session/EngineHost.h"
#include "session/EngineProcess.h"

namespace jv {

namespace {

// How often the waiting game lets the window's events run.
constexpr auto EventInterval = std::chrono::milliseconds(25);

// How long an engine may take to start and greet its host.
constexpr int EngineStartMillis = 10000;

std::unique_ptr<EngineLink> StartProcess(const std::string& commandLine) {
    auto process = std::make_unique<EngineProcess>(commandLine);
    if (!process->Started()) return nullptr;
    return process;
}

}  // namespace

// A side's engine in this game: its link and host, the game it plays and
// the position it knows, which its opponent's next move must follow.
struct EngineSeat {
    std::unique_ptr<EngineLink> Link;
    std::unique_ptr<EngineHost> Host;
    int GameNumber = -1;
    Position Known;
};

struct EngineSeats {
    EngineStarter Start = StartProcess;
    EngineSeat Seats[2];
};

namespace {

EngineSeats& SeatsOf(Game& g) {
    if (!g.Engines) g.Engines = std::make_shared<EngineSeats>();
    return *g.Engines;
}

void EndSeat(EngineSeat& seat) {
    if (seat.Link) seat.Link->Stop();
    seat = EngineSeat{};
}

// The opponent's one move that leads from the position the engine knows to
// the game's; false when the game does not follow from it (an undo, a load,
// the editor).
bool OpponentMove(const EngineSeat& seat, const Game& g, int opponent, Move& m) {
    m = MoveMade(seat.Known, g, opponent);
    return IsLegalMove(seat.Known, opponent, m) &&
           EncodePosition(PositionAfter(seat.Known, opponent, m)) == EncodePosition(g);
}

// The engine has lost: it is ended, the game is over and the automatic game
// stops, and the message box and the log say what it did.
void EngineLost(Game& g, int side, EngineSeat& seat, const std::string& failure) {
    EndSeat(seat);
    g.GameOver = true;
    g.AutoGameRunning = false;
    const std::string text = std::string(side == AttackerCode ? "The attackers'" : "The defenders'") +
                             " engine has lost: " + failure;
    PrintLog(g, text, side + 1, 0);
    g.View->Show(text + "\r\nClick Reset to start another Game", "Vbcritical+vbok");
}

}  // namespace

std::optional<Move> ThinkEngine(Game& g, int side, bool* stopped) {
    *stopped = true;
    if (g.GameOver) return std::nullopt;
    *stopped = false;
    if (!RuleBoard(g, side).HasMove()) return std::nullopt;   // no engine is asked for a move there is not
    *stopped = true;
    EngineSeats& seats = SeatsOf(g);
    EngineSeat& seat = seats.Seats[side];
    Move told;
    const bool follows = seat.Host && seat.GameNumber == g.GameNumber && OpponentMove(seat, g, side ^ 1, told);
    if (!follows) {
        EndSeat(seat);
        seat.Link = seats.Start(g.Players.EngineCommand);
        if (!seat.Link) {
            EngineLost(g, side, seat, "the command line \"" + g.Players.EngineCommand + "\" could not be started");
            return std::nullopt;
        }
        seat.Host = std::make_unique<EngineHost>(*seat.Link);
        seat.GameNumber = g.GameNumber;
    }
    const int gameNumber = g.GameNumber, millis = g.Players.ThinkMillis;
    const std::string position = EncodePosition(g);
    const Position copy = g;   // the worker reads its own copy, never the shared game
    EngineHost& host = *seat.Host;
    std::string failure;
    Move move;
    auto answer = std::async(std::launch::async, [&] {
        if (!follows && !host.Start(copy, side, side, EngineStartMillis, failure)) return false;
        if (follows) host.TellMove(told, copy);
        return host.AskMove(copy, side, millis, move, failure);
    });
    const auto gameChanged = [&] {
        return g.Ending || g.StopThinking || g.GameNumber != gameNumber || EncodePosition(g) != position;
    };
    g.StopThinking = false;
    g.View->SetBusy(true);
    // The events run at least once, so a click that came with the turn is
    // seen before the move is made.
    bool interrupted = false;
    do {
        g.View->DoEvents();
        if (!interrupted && gameChanged()) {
            seat.Link->Interrupt();
            interrupted = true;
        }
    } while (answer.wait_for(EventInterval) != std::future_status::ready);
    const bool answered = answer.get();
    g.View->SetBusy(false);
    if (gameChanged()) {
        EndSeat(seat);
        return std::nullopt;
    }
    if (!answered) {
        EngineLost(g, side, seat, failure);
        return std::nullopt;
    }
    seat.Known = PositionAfter(copy, side, move);
    *stopped = false;
    return move;
}

void SetEngineStarter(Game& g, EngineStarter start) { SeatsOf(g).Start = std::move(start); }

}  // namespace jv
