#pragma once
#include <string>

#include "core/Game.h"
#include "records/WriteResult.h"

namespace jv {

// The load and save dialogs offer layout files first, then OpenTafl
// positions: an .otn file holds one OTN line (records/Otn.h), or a rules
// record with its start position. The load
// dialog offers OpenTafl games (.otg, records/GameRecord.h) too.
extern const char* const PositionFilePatterns;       // "*.txt;;*.otn"
extern const char* const PositionFileDescriptions;   // "Game Files;;OpenTafl positions"
extern const char* const LoadFilePatterns;           // "*.txt;;*.otn;;*.otg"
extern const char* const LoadFileDescriptions;       // "Game Files;;OpenTafl positions;;OpenTafl games"

// True for a name ending in ".otn" (in any case).
bool IsOtnFileName(const std::string& name);
// True for a name ending in ".otg" (in any case).
bool IsOtnGameFileName(const std::string& name);

// The line of an .otn file for the position: its OTN under the classic
// rules; under another rule set the rules record that OpenTafl's variant
// files hold, "dim:7 <the rule set's keys> start:<OTN>", which carries the
// rules with the position.
std::string OtnFileLine(const Game& g);

// Writes OtnFileLine and CR LF, replacing the file through a temporary file
// (WriteFileAtomically). Refused, writing nothing, when the position is one
// the OTN reader would refuse (OtnRefusal).
WriteResult WriteOtnFile(const Game& g, const std::string& path);

}  // namespace jv
