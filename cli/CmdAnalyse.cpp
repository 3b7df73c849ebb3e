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

// The analysis lines, in the order a reader of them expects.
void PrintAnalysis(Game& g) {
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
}

}  // namespace

int RunAnalyse(const Args& args) { return RunOnLayoutArgument(args, "analyse FILE|-", PrintAnalysis); }

}  // namespace jv::cli
