#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/Analysis.h"
#include "core/Board.h"

namespace jv::cli {

namespace {
void PrintSquaresWhere(const Game& g, const char* label, const Grid<std::int8_t>& flags) {
    std::string items;
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row)
            if (flags(col, row)) items += SquareItem(col, row);
    std::cout << label << ' ' << items << '\n';
}
}  // namespace

int RunAnalyse(const Args& args) {
    if (args.size() != 1) {
        std::cerr << "usage: jarlsvakt-cli analyse FILE|-\n";
        return 1;
    }
    CliView view;
    Game g;
    PrepareGame(g, view);
    if (!ReadLayoutArgument(g, args[0])) return 2;
    AnalysePosition(g);

    std::cout << "size " << g.BoardWidth << ' ' << g.BoardHeight << '\n';
    std::cout << "king " << SquareText(g.KingCol, g.KingRow) << '\n';
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row)
            if (!g.MoveTargets(col, row).empty())
                std::cout << "targets " << SquareText(col, row) << ' ' << g.MoveTargets(col, row) << '\n';
    PrintSquaresWhere(g, "reach0", g.ReachMap[0]);
    PrintSquaresWhere(g, "reach1", g.ReachMap[1]);
    std::cout << "chances0 " << g.CaptureChances[0] << '\n';
    std::cout << "chances1 " << g.CaptureChances[1] << '\n';
    std::cout << "kingcapture " << g.KingCaptureSquares << '\n';
    std::cout << "counters " << g.DefenderCount << ' ' << g.AttackerCount << '\n';
    return 0;
}

}  // namespace jv::cli
