#include <iostream>

#include "cli/Commands.h"
#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/ProgramFolder.h"

namespace jv::cli {

void PrepareGame(Game& g, GameView& view) {
    g.View = &view;
    g.ProgramFolder = FindProgramFolder();
    BuildColumnLetters(g);
}

bool ReadLayoutArgument(Game& g, const std::string& name) {
    bool failed;
    if (name == "-") {
        std::string line;
        failed = !std::getline(std::cin, line);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!failed) failed = ApplyLayoutLine(g, line);
    } else {
        failed = ReadLayoutFile(g, name);
    }
    if (failed) std::cerr << "Error reading Layout File:\n" << name << '\n';
    return !failed;
}

}  // namespace jv::cli
