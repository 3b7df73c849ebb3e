#pragma once
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv {

// The names of the schemes in "all.col", in file order ("xp.col" as "xp").
std::vector<std::string> FillSchemeList(const Game& g);

// Loads the named scheme (e.g. "xp.col") into ColourTable entries 0..12.
// False, with a message, when the scheme is not in the file.
bool LoadColourScheme(Game& g, const std::string& name);

// The same two on the lines of an "all.col" already in hand.
std::vector<std::string> FillSchemeList(const std::vector<std::string>& lines);
bool LoadColourScheme(Game& g, const std::vector<std::string>& lines, const std::string& name);

}  // namespace jv
