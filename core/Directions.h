#pragma once
#include <array>

namespace jv {

// The four directions a piece moves and captures in, the one table of them:
// up and down a row (the column falls and rises), then left and right along
// a column (the row falls and rises), each with the letter the reach lists use.

struct Direction {
    char Letter;
    int Col;
    int Row;
};

inline constexpr std::array<Direction, 4> Directions{{{'U', -1, 0}, {'D', 1, 0}, {'L', 0, -1}, {'R', 0, 1}}};

// The direction of a letter, either case; nullptr for a letter that is none.
constexpr const Direction* DirectionOf(char letter) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    for (const Direction& d : Directions)
        if (d.Letter == letter) return &d;
    return nullptr;
}

// The order in which a moved piece looks for the pieces it sandwiches: the
// row below and above it, then the column to its right and left. It decides
// which captures a sandwiched King cuts short.
inline constexpr std::array<int, 4> SandwichOrder{2, 3, 1, 0};

}  // namespace jv
