#include "ui/UndoLine.h"

#include <algorithm>

#include "core/Board.h"
#include "core/VbText.h"

namespace jv::ui {

std::string UndoLine(const Game& g, const std::vector<std::string>& undo, std::size_t i) {
    const std::string& record = undo[i];
    const int move = static_cast<int>(undo.size() - i);
    const int kingCol = ValInt(record.substr(0, std::min<std::size_t>(2, record.size())));
    const int kingRow = record.size() >= 4 ? ValInt(record.substr(2, 2)) : 0;
    const std::string squares = record.size() > 4 ? record.substr(4) : std::string();
    // The King's own square holds a defender's letter.
    const auto defenders = std::count(squares.begin(), squares.end(), '0') - 1;
    const auto attackers = std::count(squares.begin(), squares.end(), '1');
    return "Before move " + std::to_string(move) + ": King " + SquareName(g, kingCol, kingRow) + ", " +
           std::to_string(std::max<long>(defenders, 0)) + " v " + std::to_string(attackers);
}

}  // namespace jv::ui
