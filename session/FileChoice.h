#pragma once
#include <string>

#include "core/Game.h"
#include "core/GameView.h"

namespace jv {

// The file dialog for game files ("*.txt", "Game Files", or the filters
// given: patterns and descriptions each joined by ";;", the first filter
// first); the view opens it in the program's folder. The current folder is
// the same afterwards as before, whatever the dialog did to it. Empty when
// no file was chosen.
std::string ChooseGameFile(Game& g, FileMode mode, const std::string& title, const std::string& patterns = "*.txt",
                           const std::string& descriptions = "Game Files");

}  // namespace jv
