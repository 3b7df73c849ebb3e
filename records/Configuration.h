#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// Reads the configuration file into the game's settings; a file that cannot
// be read whole is rewritten with the defaults.
void ReadConfiguration(Game& g, const std::string& name);
void WriteDefaultConfiguration(Game& g, const std::string& name);
// Writes the current settings; on failure shows the message and returns false.
bool WriteConfiguration(Game& g, const std::string& name);

// True when a file of that name exists (false for "" or a name ending in a
// folder separator).
bool FileExists(const std::string& name);

}  // namespace jv
