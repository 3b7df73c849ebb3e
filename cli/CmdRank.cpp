#include <iostream>

#include "ai/AttackerRank.h"
#include "ai/DefenderRank.h"
#include "cli/CliView.h"
#include "cli/Commands.h"

namespace jv::cli {

namespace {

const char* const RankUsage = "usage: jarlsvakt-cli rank attackers FILE | rank defenders FILE [--mode 1]\n";

void PrintLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) std::cout << line << '\n';
}

}  // namespace

int RunRank(const Args& args) {
    const std::string side = args.empty() ? "" : args[0];
    const bool attackers = side == "attackers" && args.size() == 2;
    const bool defenders = side == "defenders" && (args.size() == 2 || (args.size() == 4 && args[2] == "--mode"));
    if (!attackers && !defenders) {
        std::cerr << RankUsage;
        return 1;
    }
    int mode = 0;
    if (args.size() == 4) {
        if (args[3] != "0" && args[3] != "1") {
            std::cerr << RankUsage;
            return 1;
        }
        mode = args[3] == "1" ? 1 : 0;
    }

    CommandGame game(true);
    Game& g = game.g;
    if (!LoadLayoutArgument(g, args[1])) return 2;

    if (attackers) {
        GetAttackerRank(g);
        PrintLines(g.AttackerMovesRank);
        std::cout << "--\n";
        PrintLines(g.List1A);
    } else {
        GetDefenderRank(g, mode);
        PrintLines(g.DefenderMovesRank);
        std::cout << "--\n";
        PrintLines(g.List1D);
    }
    return 0;
}

}  // namespace jv::cli
