#include "core/DrawCode.h"

#include <algorithm>

namespace jv {

int DrawCode(const Game& g, int col, int row) {
    if (col == g.KingCol && row == g.KingRow) return 3;
    switch (g.Board(col, row)) {
        case DefenderCode: return 0;
        case AttackerCode: return 1;
        case HomeCode: return 2;
        default: return -1;
    }
}

std::int32_t SquareColour(const Game& g, int drawCode) {
    return g.PieceColours[static_cast<std::size_t>(std::clamp(drawCode, 0, 3))];
}

std::int32_t BoardBackColourValue(const Game& g) { return g.ColourTable[2]; }

}  // namespace jv
