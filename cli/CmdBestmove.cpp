#include <iostream>

#include "ai/Search.h"
#include "cli/CliView.h"
#include "cli/Commands.h"
#include "cli/SearchText.h"

namespace jv::cli {

namespace {

// More threads than this would only share out the same cores.
constexpr long long MaxThreads = 64;

const char* const BestmoveUsage =
    "usage: jarlsvakt-cli bestmove FILE --side attackers|defenders [--ms N | --depth D] [--threads N] [--rules NAME]\n";

struct BestmoveOptions {
    std::string File;
    int Side = -1;
    SearchLimits Limits;
    Rules GameRules = Rules::Classic();
};

bool ParseOptions(const Args& args, BestmoveOptions& o) {
    bool timed = false, deep = false;
    const auto file = [&](const std::string& a) { return o.File.empty() && !(o.File = a).empty(); };
    const auto option = [&](const std::string& a, const std::string& value) {
        long long n = 0;
        if (a == "--side" && (value == "attackers" || value == "defenders")) {
            o.Side = value == "attackers" ? AttackerCode : DefenderCode;
        } else if (a == "--ms" && ReadCount(value, n) && n > 0) {
            o.Limits.Millis = static_cast<int>(n);
            timed = true;
        } else if (a == "--depth" && ReadCount(value, n) && n > 0 && n <= SearchMaxPly / 2) {
            o.Limits.MaxDepth = static_cast<int>(n);
            deep = true;
        } else if (a == "--threads" && ReadCount(value, n) && n > 0 && n <= MaxThreads) {
            o.Limits.Threads = static_cast<int>(n);
        } else if (a != "--rules" || !ReadRulesOption(value, o.GameRules)) {
            return false;
        }
        return true;
    };
    if (!ReadArguments(args, file, option)) return false;
    // Without a limit the search thinks for a second.
    if (!timed && !deep) o.Limits.Millis = 1000;
    return !o.File.empty() && o.Side >= 0 && !(timed && deep);
}

}  // namespace

int RunBestmove(const Args& args) {
    BestmoveOptions o;
    if (!ParseOptions(args, o)) {
        std::cerr << BestmoveUsage;
        return 1;
    }
    CliView view;
    view.Quiet = true;
    Game g;
    PrepareGame(g, view);
    g.GameRules = o.GameRules;
    if (!ReadLayoutArgument(g, o.File)) return 2;

    const SearchResult r = SearchBestMove(g, o.Side, o.Limits, [&g](const SearchProgress& p) {
        std::cout << "depth " << p.Depth << " score " << p.Score << " nodes " << p.Nodes << " nps "
                  << static_cast<long long>(p.NodesPerSecond) << " pv " << LineText(g, p.Pv) << '\n';
    });
    if (!r.HasMove) {
        std::cout << "no move\n";
        return 0;
    }
    const double nps = r.Millis > 0 ? r.Nodes / (r.Millis / 1000) : 0;
    std::cout << "move: " << MoveText(g, r.Best) << '\n'
              << "score: " << r.Score << '\n'
              << "depth: " << r.Depth << '\n'
              << "nodes: " << r.Nodes << '\n'
              << "nodes per second: " << static_cast<long long>(nps) << '\n'
              << "time: " << static_cast<long long>(r.Millis) << " ms\n"
              << "pv: " << LineText(g, r.Pv) << '\n';
    return 0;
}

}  // namespace jv::cli
