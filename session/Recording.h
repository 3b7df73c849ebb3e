#pragma once
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv {

// "moveslogfile" MMDDhhmm ".txt" for the given moment.
std::string MovesLogFileName(const ClockReading& now);

// The recording switch Check2 after the user has changed it to ticked.
void RecordingSwitch(Game& g, bool ticked);

// Steps through positions given as layout lines (a moves log, or the
// positions of an OpenTafl game) at the board size of the first, asking
// after each one. True when the player stopped on a position.
bool StepThroughLog(Game& g, const std::vector<std::string>& lines);

// The replay command (cmdloadlog).
void ReplayCommand(Game& g);

}  // namespace jv
