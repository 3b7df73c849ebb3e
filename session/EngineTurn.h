#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/Game.h"
#include "session/EngineLink.h"

namespace jv {

// An outside engine of the OpenTafl Engine Protocol as the computer player
// of a side in the window: started from the players' command line when it
// first moves in a game, told each move of its opponent, asked for its move
// on a worker thread while the window's events run, and ended at once when
// the game changes under it or the user stops it. An engine that fails
// loses the game, and the message box and the event log say what it did.

// How an engine's link is made from its command line: null when it cannot
// be started. The program starts a process (EngineProcess).
using EngineStarter = std::function<std::unique_ptr<EngineLink>(const std::string& commandLine)>;

// The engines of a game's session, one seat a side.
struct EngineSeats;

// The engine's move for side, checked by the rule board, or none: the side
// cannot move, the game changed or was stopped (then stopped is set), or the
// engine failed (it has lost the game, and stopped is set).
std::optional<Move> ThinkEngine(Game& g, int side, bool* stopped);

// Engines of this session are started by start from now on (a test's
// scripted engines).
void SetEngineStarter(Game& g, EngineStarter start);

}  // namespace jv
