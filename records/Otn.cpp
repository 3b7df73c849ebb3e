#include "records/Otn.h"

#include <algorithm>
#include <vector>

#include "core/VbText.h"
#include "records/Notation.h"

namespace jv {

namespace {

// A square of an OTN rank: '.' empty, 't', 'T' or 'K'.
using Rank = std::vector<char>;

char OtnLetter(const Game& g, int col, int row) {
    const int code = g.Board(col, row);
    const bool kingHere = col == g.KingCol && row == g.KingRow;
    if (kingHere && (code == DefenderCode || code == HomeCode)) return 'K';
    if (code == AttackerCode) return 't';
    if (code == DefenderCode) return 'T';
    return '.';
}

void AppendRun(std::string& out, int& empties) {
    if (empties > 0) out += std::to_string(empties);
    empties = 0;
}

std::string_view TrimBlanks(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> SplitRanks(std::string_view text) {
    std::vector<std::string_view> ranks;
    std::size_t start = 0;
    for (;;) {
        const std::size_t slash = text.find('/', start);
        ranks.push_back(text.substr(start, slash == std::string_view::npos ? std::string_view::npos : slash - start));
        if (slash == std::string_view::npos) return ranks;
        start = slash + 1;
    }
}

std::string Printable(char c) {
    if (c > ' ' && c < 127) return std::string("'") + c + "'";
    return "a character that is no letter";
}

// One rank's squares; false with the reason when it cannot be read.
bool ReadRank(std::string_view text, int rankNumber, Rank& squares, std::string& reason) {
    const std::string where = "rank " + std::to_string(rankNumber) + ": ";
    squares.clear();
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            int run = 0;
            for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
                run = std::min(run * 10 + (text[i] - '0'), 100);
            if (run == 0) {
                reason = where + "a run of no empty squares";
                return false;
            }
            if (squares.size() + run > static_cast<std::size_t>(MaxBoardSide)) {
                reason = where + "more than 14 squares";
                return false;
            }
            squares.insert(squares.end(), static_cast<std::size_t>(run), '.');
            continue;
        }
        if (c != 't' && c != 'T' && c != 'K') {
            reason = where + Printable(c) + " is not t, T or K";
            return false;
        }
        if (squares.size() == static_cast<std::size_t>(MaxBoardSide)) {
            reason = where + "more than 14 squares";
            return false;
        }
        squares.push_back(c);
        ++i;
    }
    if (squares.empty()) {
        reason = where + "no squares";
        return false;
    }
    return true;
}

// The board's rules for a position: one King, nothing on a corner.
bool CheckPieces(const std::vector<Rank>& board, std::string& reason) {
    const int width = static_cast<int>(board.size());
    const int height = static_cast<int>(board.front().size());
    int kings = 0;
    for (const Rank& rank : board)
        for (char c : rank) kings += c == 'K';
    if (kings != 1) {
        reason = kings == 0 ? "the position has no King" : "the position has " + std::to_string(kings) + " Kings";
        return false;
    }
    for (int col : {1, width})
        for (int row : {1, height})
            if (board[col - 1][row - 1] != '.') {
                reason = "a piece stands on the corner " + StandardSquareName(width, col, row);
                return false;
            }
    return true;
}

std::string LayoutLineOf(const std::vector<Rank>& board) {
    const int width = static_cast<int>(board.size());
    const int height = static_cast<int>(board.front().size());
    std::string king, squares;
    for (int col = 1; col <= width; ++col)
        for (int row = 1; row <= height; ++row) {
            const char c = board[col - 1][row - 1];
            if (c == 'K') king = Format(col, "00") + Format(row, "00");
            const bool corner = (col == 1 || col == width) && (row == 1 || row == height);
            squares += corner ? 'H' : c == 't' ? '1' : c == '.' ? 'E' : '0';
        }
    return Format(width, "00") + Format(height, "00") + king + squares;
}

}  // namespace

std::string OtnPosition(const Game& g) {
    std::string out = "/";
    for (int col = g.BoardWidth; col >= 1; --col) {
        int empties = 0;
        for (int row = 1; row <= g.BoardHeight; ++row) {
            const char c = OtnLetter(g, col, row);
            if (c == '.') {
                ++empties;
                continue;
            }
            AppendRun(out, empties);
            out += c;
        }
        AppendRun(out, empties);
        out += '/';
    }
    return out;
}

std::string OtnRefusal(const Game& g) {
    std::string line, reason;
    OtnToLayoutLine(OtnPosition(g), line, reason);
    return reason;
}

bool OtnToLayoutLine(std::string_view otn, std::string& line, std::string& reason, bool topRankFirst) {
    std::string_view text = TrimBlanks(otn);
    if (!text.empty() && text.front() == '/') text.remove_prefix(1);
    if (!text.empty() && text.back() == '/') text.remove_suffix(1);
    if (text.empty()) {
        reason = "the position is empty";
        return false;
    }
    const std::vector<std::string_view> texts = SplitRanks(text);
    const int width = static_cast<int>(texts.size());
    if (width > MaxBoardSide) {
        reason = "the position has " + std::to_string(width) + " ranks, more than 14";
        return false;
    }
    // The board by Col: Col 1 is the top rank, the last Col rank 1.
    std::vector<Rank> board(texts.size());
    const int firstRank = topRankFirst ? width : 1;
    const Rank& first = board[static_cast<std::size_t>(width - firstRank)];
    for (int i = 0; i < width; ++i) {
        const int rank = topRankFirst ? width - i : i + 1;
        Rank& squares = board[static_cast<std::size_t>(width - rank)];
        if (!ReadRank(texts[i], rank, squares, reason)) return false;
        if (squares.size() != first.size()) {
            reason = "rank " + std::to_string(rank) + " has " + std::to_string(squares.size()) + " squares, rank " +
                     std::to_string(firstRank) + " has " + std::to_string(first.size());
            return false;
        }
    }
    if (board.front().size() != texts.size()) {
        reason = "the position has " + std::to_string(width) + " ranks of " + std::to_string(board.front().size()) +
                 " squares: an OpenTafl board is square";
        return false;
    }
    if (!CheckPieces(board, reason)) return false;
    line = LayoutLineOf(board);
    return true;
}

}  // namespace jv
