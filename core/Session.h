#pragma once
#include "core/Game.h"

namespace jv {

// Brings the game up in the start-up order. False when "all.col" is missing:
// the message has been shown and the program ends.
bool StartUp(Game& g);

// True once a game has ended (the King captured or at Home): the board no
// longer takes pointer input until the next layout is loaded.
bool GameFinished(const Game& g);

// Plays both sides, defenders first, until the program ends.
void AutoGame(Game& g);

// The exit command (cmdexit): asks "Exit?"; on Yes writes the configuration
// and ends the program. True when the program ends.
bool ExitCommand(Game& g);

}  // namespace jv
