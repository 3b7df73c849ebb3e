#pragma once
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv {

// "moveslogfile" MMDDhhmm ".txt" for the given moment.
std::string MovesLogFileName(const ClockReading& now);

// The recording switch Check2 after the user has changed it to ticked;
// while the layout editor is on it stays as it was.
void RecordingSwitch(Game& g, bool ticked);

// Steps through positions given as layout lines (a moves log, or the
// positions of an OpenTafl game) at the board size of the first, asking
// after each one. True when the player stopped on a position.
bool StepThroughLog(Game& g, const std::vector<std::string>& lines);

// The replay command (cmdloadlog).
void ReplayCommand(Game& g);

// The replay's steps through the lines of a log already in hand, at the board
// size in force: each line from its fifth character is applied as a position
// record and the player asked whether to stop there. True when the player
// stopped on a position.
bool StepThroughLog(Game& g, const std::vector<std::string>& lines);

}  // namespace jv
