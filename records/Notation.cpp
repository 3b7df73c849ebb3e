#include "records/Notation.h"

namespace jv {

namespace {

// The file letter and the rank number of a square text, by form only.
bool SplitSquare(std::string_view text, int& file, int& rank) {
    if (text.size() < 2 || text.size() > 3) return false;
    if (text[0] < 'a' || text[0] > 'z') return false;
    if (text[1] < '1' || text[1] > '9') return false;   // no leading zero
    int number = 0;
    for (char c : text.substr(1)) {
        if (c < '0' || c > '9') return false;
        number = number * 10 + (c - '0');
    }
    file = text[0] - 'a' + 1;
    rank = number;
    return true;
}

bool SplitMove(std::string_view text, std::string_view& from, std::string_view& to) {
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos) return false;
    from = text.substr(0, dash);
    to = text.substr(dash + 1);
    int file = 0, rank = 0;
    return SplitSquare(from, file, rank) && SplitSquare(to, file, rank);
}

}  // namespace

std::string StandardSquareName(int boardWidth, int col, int row) {
    return std::string(1, static_cast<char>('a' + row - 1)) + std::to_string(boardWidth - col + 1);
}

std::string StandardSquare(const Game& g, int col, int row) { return StandardSquareName(g.BoardWidth, col, row); }

bool ReadStandardSquare(const Game& g, std::string_view text, int& col, int& row) {
    int file = 0, rank = 0;
    if (!SplitSquare(text, file, rank)) return false;
    if (file > g.BoardHeight || rank > g.BoardWidth) return false;
    col = g.BoardWidth - rank + 1;
    row = file;
    return true;
}

bool IsStandardMoveText(std::string_view text) {
    std::string_view from, to;
    return SplitMove(text, from, to);
}

bool ReadStandardMove(const Game& g, std::string_view text, Move& move) {
    std::string_view from, to;
    if (!SplitMove(text, from, to)) return false;
    Move read;
    if (!ReadStandardSquare(g, from, read.From.Col, read.From.Row)) return false;
    if (!ReadStandardSquare(g, to, read.To.Col, read.To.Row)) return false;
    move = read;
    return true;
}

}  // namespace jv
