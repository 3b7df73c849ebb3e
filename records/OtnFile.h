#pragma once
#include <string>

#include "core/Game.h"
#include "records/WriteResult.h"

namespace jv {

// The load and save dialogs offer layout files first, then OpenTafl
// positions: an .otn file holds one OTN line (records/Otn.h). The load
// dialog offers OpenTafl games (.otg, records/GameRecord.h) too.
extern const char* const PositionFilePatterns;       // "*.txt;;*.otn"
extern const char* const PositionFileDescriptions;   // "Game Files;;OpenTafl positions"
extern const char* const LoadFilePatterns;           // "*.txt;;*.otn;;*.otg"
extern const char* const LoadFileDescriptions;       // "Game Files;;OpenTafl positions;;OpenTafl games"

// True for a name ending in ".otn" (in any case).
bool IsOtnFileName(const std::string& name);
// True for a name ending in ".otg" (in any case).
bool IsOtnGameFileName(const std::string& name);

// Writes the OTN of the board and CR LF, replacing the file through a
// temporary file (WriteFileAtomically). Refused, writing nothing, when the
// position is one the OTN reader would refuse (OtnRefusal).
WriteResult WriteOtnFile(const Game& g, const std::string& path);

}  // namespace jv
