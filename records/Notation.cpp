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

bool IsSquareText(std::string_view text) {
    int file = 0, rank = 0;
    return SplitSquare(text, file, rank);
}

// The parts of a written move, by form only.
struct MoveParts {
    bool King = false;
    std::string_view From, To;
    std::vector<std::string_view> Captures;
    bool CapturesWritten = false;
    std::string_view Mark;
};

bool SplitMove(std::string_view text, MoveParts& parts) {
    parts = MoveParts{};
    parts.King = !text.empty() && text.front() == 'K';
    if (parts.King) text.remove_prefix(1);
    const std::size_t markAt = text.find_last_not_of("+-");
    if (markAt == std::string_view::npos) return false;
    parts.Mark = text.substr(markAt + 1);
    if (parts.Mark.size() > 2 || (parts.Mark.size() == 2 && parts.Mark[0] != parts.Mark[1])) return false;
    text = text.substr(0, markAt + 1);
    const std::size_t x = text.find('x');
    parts.CapturesWritten = x != std::string_view::npos;
    for (std::size_t at = x; at != std::string_view::npos;) {
        const std::size_t next = text.find('/', at + 1);
        parts.Captures.push_back(text.substr(at + 1, next == std::string_view::npos ? next : next - at - 1));
        if (!IsSquareText(parts.Captures.back())) return false;
        at = next;
    }
    text = text.substr(0, x);
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos) return false;
    parts.From = text.substr(0, dash);
    parts.To = text.substr(dash + 1);
    return IsSquareText(parts.From) && IsSquareText(parts.To);
}

bool ReadSquare(const Game& g, std::string_view text, Square& square) {
    return ReadStandardSquare(g, text, square.Col, square.Row);
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
    MoveParts parts;
    return SplitMove(text, parts);
}

bool ReadStandardMove(const Game& g, std::string_view text, WrittenMove& move) {
    MoveParts parts;
    if (!SplitMove(text, parts)) return false;
    WrittenMove read;
    if (!ReadSquare(g, parts.From, read.Squares.From) || !ReadSquare(g, parts.To, read.Squares.To)) return false;
    for (std::string_view capture : parts.Captures)
        if (!ReadSquare(g, capture, read.Captures.emplace_back())) return false;
    read.King = parts.King;
    read.CapturesWritten = parts.CapturesWritten;
    read.Mark = std::string(parts.Mark);
    move = read;
    return true;
}

}  // namespace jv
