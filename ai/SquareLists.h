#pragma once
#include <cstdint>
#include <string>

#include "core/Grid.h"
#include "core/Reach.h"

namespace jv {

// Target lists as the reach walk writes them (MoveTargets, a King's slide):
// four digits and a comma per entry, so entries are read by position without
// parsing. Lists from elsewhere go through ForEachSquareItem (core/Reach.h).

// The entry starting at character i.
inline void TargetAt(const std::string& targets, std::size_t i, int& col, int& row) {
    col = (targets[i] - '0') * 10 + (targets[i + 1] - '0');
    row = (targets[i + 2] - '0') * 10 + (targets[i + 3] - '0');
}

// Calls visit(col, row) for every entry, in order.
template <typename Visit>
void ForEachTarget(const std::string& targets, Visit visit) {
    for (std::size_t i = 0; i + 4 < targets.size(); i += 5) {
        int col, row;
        TargetAt(targets, i, col, row);
        visit(col, row);
    }
}

// What both players do with the squares a plan or a rule names: every
// non-blank item of squares adds the square's extra plus value to table,
// once for each time it is named. Items outside the table are skipped.
inline void AddToNamedSquares(Grid<std::int32_t>& table, const Grid<std::int32_t>& extra, const std::string& squares,
                              int value) {
    ForEachSquareItem(squares, [&](int col, int row) {
        if (col < Grid<int>::Low || col > Grid<int>::High || row < Grid<int>::Low || row > Grid<int>::High) return;
        table(col, row) += extra(col, row) + value;
    });
}

}  // namespace jv
