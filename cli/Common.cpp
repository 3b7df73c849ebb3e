#include <filesystem>
#include <iostream>

#include "cli/Commands.h"
#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/ProgramFolder.h"
#include "records/TextFile.h"

namespace jv::cli {

void PrepareGame(Game& g, GameView& view) {
    g.View = &view;
    g.ProgramFolder = FindProgramFolder();
    BuildColumnLetters(g);
}

std::string ResolveArgument(const Game& g, const std::string& name) {
    std::error_code ec;
    if (std::filesystem::is_regular_file(name, ec)) return std::filesystem::absolute(name, ec).string();
    return InProgramFolder(g, name);
}

bool ReadLayoutArgument(Game& g, const std::string& name) {
    bool failed;
    if (name == "-") {
        std::string line;
        failed = !std::getline(std::cin, line);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!failed) failed = ApplyLayoutLine(g, line);
    } else {
        failed = ReadLayoutFile(g, ResolveArgument(g, name));
    }
    if (failed) std::cerr << "Error reading Layout File:\n" << name << '\n';
    return !failed;
}

bool ReadMovesLogArgument(const Game& g, const std::string& name, std::vector<std::string>& lines) {
    if (!ReadLines(ResolveArgument(g, name), lines)) {
        std::cerr << "Moves Log File:\n" << name << "\ncould not be read\n";
        return false;
    }
    if (lines.empty()) {
        std::cerr << "No layouts in the Moves Log File:\n" << name << '\n';
        return false;
    }
    return true;
}

}  // namespace jv::cli
