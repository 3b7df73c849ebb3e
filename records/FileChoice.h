#pragma once
#include <string>

#include "core/Game.h"
#include "core/GameView.h"

namespace jv {

// The file dialog for game files ("*.txt", "Game Files"); the view opens it
// in the program's folder. The current folder is the same afterwards as
// before, whatever the dialog did to it. Empty when no file was chosen.
std::string ChooseGameFile(Game& g, FileMode mode, const std::string& title);

}  // namespace jv
