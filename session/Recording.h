#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// "moveslogfile" MMDDhhmm ".txt" for the given moment.
std::string MovesLogFileName(const ClockReading& now);

// The recording switch Check2 after the user has changed it to ticked;
// while the layout editor is on it stays as it was.
void RecordingSwitch(Game& g, bool ticked);

// The replay command (cmdloadlog).
void ReplayCommand(Game& g);

}  // namespace jv
