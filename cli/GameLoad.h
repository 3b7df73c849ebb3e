#pragma once
#include <string>

#include "core/Game.h"

namespace jv::cli {

// Starts a game on the layout file named on the command line the way the
// program does, through LoadLayout, so the game's tables are those of a
// freshly loaded layout. On failure prints "Error reading Layout File:" and
// the name on standard error and returns false.
bool LoadLayoutArgument(Game& g, const std::string& name);

}  // namespace jv::cli
