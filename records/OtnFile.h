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

// Loads the position of an .otn file: it becomes the layout file
// "otnlayout.txt" of the program's folder, which LoadLayout then loads like
// any layout, so the game starts as from a layout file. A file that cannot
// be read or holds no position of this program is reported and the game
// stays as it was; false then.
bool LoadOtnFile(Game& g, const std::string& name);

// Writes the OTN of the board and CR LF, replacing the file through a
// temporary file. False when it cannot be written.
bool WriteOtnFile(const Game& g, const std::string& path);

}  // namespace jv
