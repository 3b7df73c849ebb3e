#pragma once
#include <initializer_list>
#include <string>

namespace jv::test {

// A layout line of a board built from one text per Col, one character per Row: '.' empty, 'd' defender,
// 'a' attacker, 'K' the King, 'H' a corner.
inline std::string LayoutText(std::initializer_list<const char*> cols) {
    auto two = [](int n) { return std::string{static_cast<char>('0' + n / 10), static_cast<char>('0' + n % 10)}; };
    int kingCol = 0, kingRow = 0, col = 0;
    std::string squares;
    for (const std::string text : cols) {
        ++col;
        for (std::size_t row = 0; row < text.size(); ++row) {
            if (text[row] == 'K') kingCol = col, kingRow = static_cast<int>(row) + 1;
            const char c = text[row];
            squares += c == 'a' ? '1' : c == 'd' || c == 'K' ? '0' : c == 'H' ? 'H' : 'E';
        }
    }
    return two(col) + two(static_cast<int>(squares.size()) / col) + two(kingCol) + two(kingRow) + squares + "\r\n";
}

}  // namespace jv::test
