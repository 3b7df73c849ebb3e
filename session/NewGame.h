#pragma once
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv {

// A new game under a rule set: the choice of the rules, the opening and the
// user's side, kept in the settings files beside the configuration; the game
// begun on the opening; and the computer's first move when it plays the side
// that moves first.

struct GameChoice {
    std::string Rules;     // a name of RuleSets()
    std::string Opening;   // a layout file
    int UserSide = DefenderCode;
};

// A rule set in plain sentences: who moves first, where the King wins, how
// he is taken, and what else the rule set plays.
std::string RulesSummary(const Rules& rules);

// The openings offered for a rule set: its own layout first, then the other
// rule sets' layouts and the layout in play, each once.
std::vector<std::string> OpeningsFor(const Game& g, const Rules& rules);

// Game > New Game: the choice is kept (rules.cfg, players.cfg), the game
// begins under the rule set on the opening, the side to move is named in the
// event log and the computer makes the first move when it is its own.
// Nothing while the layout editor is on, or for a rule set the program does
// not play.
void NewGameCommand(Game& g, const GameChoice& choice);

// The event log's line naming the side that moves first ("  Player1 to
// move ..." when the defenders do).
void LogFirstMover(Game& g);

// When the computer plays the side that moves first, no move has been made
// yet and the computer answers by itself ("Computer Moves Auto after User
// Move"), it makes the first move.
void ComputerOpens(Game& g);

// Reset (cmdreset): ResetCommand, then the computer's first move when a new
// game has begun and the first move is its own.
void ResetGameCommand(Game& g);

// rules.cfg at start-up: the rule set of the game and its opening, which
// becomes the layout to load. A missing or unreadable file leaves the
// classic rules and the configuration's layout. It is written with the rule
// set and the layout in play by New Game and at exit.
void ReadRules(Game& g);
bool WriteRules(const Game& g);

}  // namespace jv
