#pragma once
#include <string>

#include "core/Game.h"
#include "core/GameView.h"

namespace jv {

// The file dialog for game files ("*.txt", "Game Files"), opened in the
// program's folder; the current folder is the same afterwards as before.
// Empty when no file was chosen.
std::string ChooseGameFile(Game& g, FileMode mode, const std::string& title);

}  // namespace jv
