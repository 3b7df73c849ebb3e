#include <charconv>
#include <filesystem>
#include <iostream>

#include "cli/Commands.h"
#include "core/VbText.h"
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

bool ReadRulesOption(const std::string& name, Rules& rules) {
    if (const Rules* found = FindRules(name)) {
        rules = *found;
        return true;
    }
    std::cerr << "jarlsvakt-cli: no rule set is named " << name << "; the rule sets:";
    for (const Rules& set : RuleSets()) std::cerr << ' ' << set.Name;
    std::cerr << '\n';
    return false;
}

bool ReadFileAndRules(const Args& args, std::string& file, Rules& rules) {
    rules = Rules::Classic();
    const auto plain = [&](const std::string& a) { return file.empty() && !(file = a).empty(); };
    const auto option = [&](const std::string& a, const std::string& value) {
        return a == "--rules" && ReadRulesOption(value, rules);
    };
    return ReadArguments(args, plain, option) && !file.empty();
}

bool ClassicPlayersMayPlay(const Rules& rules, const std::string& what) {
    if (rules == Rules::Classic()) return true;
    std::cerr << "jarlsvakt-cli " << what << ": the classic computer players are made for the classic rules alone, "
              << "not for " << rules.Name
              << "; the strong player plays every rule set (match --attackers strong --defenders strong)\n";
    return false;
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

bool IsGameRecord(const std::string& name) { return name.size() > 4 && Lower(name.substr(name.size() - 4)) == ".otg"; }

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
