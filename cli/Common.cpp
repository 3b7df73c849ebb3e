#include <charconv>
#include <filesystem>
#include <iostream>

#include "cli/Commands.h"
#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/ProgramFolder.h"
#include "records/TextFile.h"
#include "session/LayoutCommands.h"

namespace jv::cli {

CommandGame::CommandGame(bool quiet) {
    view.Quiet = quiet;
    PrepareGame(g, view);
}

bool ReadCount(const std::string& text, long long& value) {
    if (text.empty() || text.size() > 9) return false;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && value >= 0;
}

bool ReadArguments(const Args& args, const std::function<bool(const std::string&)>& plain,
                   const std::function<bool(const std::string& name, const std::string& value)>& option) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i].rfind("--", 0) != 0) {
            if (!plain(args[i])) return false;
            continue;
        }
        if (i + 1 >= args.size() || !option(args[i], args[i + 1])) return false;
        ++i;
    }
    return true;
}

bool HasArguments(const Args& args, std::size_t count, const char* usage) {
    if (args.size() == count) return true;
    std::cerr << "usage: jarlsvakt-cli " << usage << '\n';
    return false;
}

int RunOnLayoutArgument(const Args& args, const char* usage, const std::function<void(Game&)>& print) {
    if (!HasArguments(args, 1, usage)) return 1;
    CommandGame game;
    if (!ReadLayoutArgument(game.g, args[0])) return 2;
    print(game.g);
    return 0;
}

int RunOnMovesLogArgument(const Args& args, const char* usage,
                          const std::function<int(Game&, const std::vector<std::string>&)>& print) {
    if (!HasArguments(args, 1, usage)) return 1;
    CommandGame game;
    std::vector<std::string> lines;
    if (!ReadMovesLogArgument(game.g, args[0], lines)) return 2;
    return print(game.g, lines);
}

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
        if (!failed) failed = !ApplyLayoutLine(g, line).Ok();
    } else {
        failed = !ReadLayoutFile(g, ResolveArgument(g, name)).Ok();
    }
    if (failed) std::cerr << "Error reading Layout File:\n" << name << '\n';
    return !failed;
}

bool LoadLayoutArgument(Game& g, const std::string& name) {
    const std::string path = ResolveArgument(g, name);
    std::string line;
    // LoadLayout falls back on the previous layout when a file cannot be
    // read; a command must not work on some other position instead.
    if (ReadFirstLine(path, line) && !line.empty() && LoadLayout(g, path)) return true;
    std::cerr << "Error reading Layout File:\n" << name << '\n';
    return false;
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
