#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// The load and save dialogs offer layout files first, then OpenTafl
// positions: an .otn file holds one OTN line (records/Otn.h).
extern const char* const PositionFilePatterns;       // "*.txt;;*.otn"
extern const char* const PositionFileDescriptions;   // "Game Files;;OpenTafl positions"

// True for a name ending in ".otn" (in any case).
bool IsOtnFileName(const std::string& name);

// Writes the OTN of the board and CR LF, replacing the file through a
// temporary file. False when it cannot be written.
bool WriteOtnFile(const Game& g, const std::string& path);

}  // namespace jv
