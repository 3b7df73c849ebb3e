#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// Appends a line to the event log and prints it with its two colour
// arguments (the side's number and 0: 1 defenders, 2 attackers, 0 the King).
void PrintLog(Game& g, const std::string& text, int colour, int background);

// Empties the event log.
void ClearEventLog(Game& g);

}  // namespace jv
