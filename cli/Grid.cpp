#include <iomanip>
#include <ostream>

#include "cli/Commands.h"

namespace jv::cli {

namespace {
char SquareLetter(const Game& g, int col, int row) {
    switch (g.Board(col, row)) {
        case HomeCode: return 'H';
        case EmptyCode: return '.';
        case AttackerCode: return 'a';
        case DefenderCode: return col == g.KingCol && row == g.KingRow ? 'K' : 'd';
        default: return '?';
    }
}
}  // namespace

void PrintGrid(const Game& g, std::ostream& out) {
    out << "  ";
    for (int row = 1; row <= g.BoardHeight; ++row) out << std::setw(3) << row;
    out << '\n';
    for (int col = 1; col <= g.BoardWidth; ++col) {
        out << g.ColumnLetters[static_cast<std::size_t>(col)] << ' ';
        for (int row = 1; row <= g.BoardHeight; ++row) out << "  " << SquareLetter(g, col, row);
        out << '\n';
    }
}

}  // namespace jv::cli
