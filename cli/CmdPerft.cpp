#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/Board.h"
#include "core/Perft.h"

namespace jv::cli {

namespace {

const char* const PerftUsage = "usage: jarlsvakt-cli perft FILE|- DEPTH [--side attackers|defenders]\n";

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
    int side = DefenderCode;   // the defenders move first in the program
    std::vector<std::string> plain;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] != "--side") {
            plain.push_back(args[i]);
            continue;
        }
        const std::string value = i + 1 < args.size() ? args[++i] : "";
        if (value != "attackers" && value != "defenders") {
            std::cerr << PerftUsage;
            return 1;
        }
        side = value == "attackers" ? AttackerCode : DefenderCode;
    }
    if (plain.size() != 2 || !ParseDepth(plain[1], depth)) {
        std::cerr << PerftUsage;
        return 1;
    }

    CommandGame game(true);
    Game& g = game.g;
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
