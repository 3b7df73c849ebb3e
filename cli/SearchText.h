#pragma once
#include <string>
#include <vector>

#include "ai/Search.h"
#include "core/Game.h"

namespace jv::cli {

// The strong player's moves and settings as the command line writes and
// reads them: moves in standard tafl notation ("d1-d4"), numbers in plain digits.

std::string MoveText(const Game& g, const Move& move);
// The moves separated by spaces.
std::string LineText(const Game& g, const std::vector<Move>& line);


}  // namespace jv::cli
