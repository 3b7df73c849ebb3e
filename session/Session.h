#pragma once
#include <functional>

#include "core/Game.h"

namespace jv {

// The configuration file read at start-up and written by the exit command.
inline constexpr const char* ConfigurationFile = "jarlsvakt.cfg";

// Brings the game up in the start-up order, under the rule set and on the
// opening that rules.cfg keeps. False when "all.col" is missing:
// the message has been shown and the program ends.
bool StartUp(Game& g);
// The same, with the window's own set-up (applying the colours, building the
// board images) run once the configuration and the colour scheme are read and
// before the layout is loaded.
bool StartUp(Game& g, const std::function<void()>& applySettings);

// True once a game has ended (the King captured or at Home): the board no
// longer takes pointer input until the next layout is loaded.
bool GameFinished(const Game& g);

// Plays both sides until the user stops it or the program ends; pressed
// while it plays, it stops. Under the classic rules each round begins with
// the defenders; under any other rule set the side to move begins. The
// classic pair plays on after a game has ended; with any other player on a
// side the end of the game, or a side without a move, stops it, said once.
void AutoGame(Game& g);

// The exit command (cmdexit): asks "Exit?"; on Yes writes the configuration
// and the rules file and ends the program. True when the program ends.
bool ExitCommand(Game& g);

}  // namespace jv
