#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/Board.h"
#include "core/Perft.h"

namespace jv::cli {

namespace {

const char* const PerftUsage = "usage: jarlsvakt-cli perft FILE|- DEPTH [--side attackers|defenders] [--rules NAME]\n";

bool ParseDepth(const std::string& text, int& depth) {
    if (text.empty() || text.size() > 3) return false;
    for (char c : text)
        if (c < '0' || c > '9') return false;
    depth = std::stoi(text);
    return true;
}

}  // namespace

int RunPerft(const Args& args) {
    int depth = 0;
    int side = -1;   // the rule set's first side unless named
    Rules rules = Rules::Classic();
    std::vector<std::string> plain;
    const auto keep = [&](const std::string& a) {
        plain.push_back(a);
        return true;
    };
    const auto option = [&](const std::string& a, const std::string& value) {
        if (a == "--rules") return ReadRulesOption(value, rules);
        if (a != "--side" || (value != "attackers" && value != "defenders")) return false;
        side = value == "attackers" ? AttackerCode : DefenderCode;
        return true;
    };
    if (!ReadArguments(args, keep, option) || plain.size() != 2 || !ParseDepth(plain[1], depth)) {
        std::cerr << PerftUsage;
        return 1;
    }
    if (side < 0) side = rules.AttackersFirst ? AttackerCode : DefenderCode;

    CommandGame game(true);
    Game& g = game.g;
    g.GameRules = rules;
    if (!ReadLayoutArgument(g, plain[0])) return 2;

    std::uint64_t total = depth == 0 ? 1 : 0;
    for (const PerftLine& line : PerftDivide(g, depth, side)) {
        const Move& m = line.First;
        std::cout << SquareText(m.From.Col, m.From.Row) << '>' << SquareText(m.To.Col, m.To.Row) << ": " << line.Count
                  << '\n';
        total += line.Count;
    }
    std::cout << "total: " << total << '\n';
    return 0;
}

}  // namespace jv::cli
