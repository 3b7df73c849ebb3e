#include "session/SquareNames.h"

#include "core/Board.h"
#include "records/Notation.h"
#include "records/TextFile.h"
#include "records/ViewSettings.h"

namespace jv {

namespace {

// "F6": a row letter of ColumnLetters, then a column number without a
// leading zero.
bool ReadBoardSquare(const Game& g, std::string_view text, Square& square) {
    if (text.size() < 2 || text.size() > 3 || text[1] < '1' || text[1] > '9') return false;
    int col = 0, number = 0;
    for (int c = 1; c <= g.BoardWidth && c <= 16; ++c)
        if (g.ColumnLetters[c] == text.substr(0, 1)) col = c;
    for (char c : text.substr(1)) {
        if (c < '0' || c > '9') return false;
        number = number * 10 + (c - '0');
    }
    if (col == 0 || number > g.BoardHeight) return false;
    square = Square{col, number};
    return true;
}

}  // namespace

std::string ShownSquare(const Game& g, int col, int row) {
    return g.TaflCoordinates ? StandardSquare(g, col, row) : SquareName(g, col, row);
}

std::string ShownMove(const Game& g, const Move& m) {
    return ShownSquare(g, m.From.Col, m.From.Row) + "-" + ShownSquare(g, m.To.Col, m.To.Row);
}

bool ReadShownSquare(const Game& g, std::string_view text, Square& square) {
    if (!g.TaflCoordinates) return ReadBoardSquare(g, text, square);
    return ReadStandardSquare(g, text, square.Col, square.Row);
}

bool ReadShownMove(const Game& g, std::string_view text, Move& move) {
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos) return false;
    Move read;
    if (!ReadShownSquare(g, text.substr(0, dash), read.From) || !ReadShownSquare(g, text.substr(dash + 1), read.To))
        return false;
    move = read;
    return true;
}

void ReadViewSettings(Game& g) {
    std::string text;
    if (ReadWholeFile(InProgramFolder(g, ViewFile), text)) (void)ReadViewText(g.TaflCoordinates, text);
}

bool WriteViewSettings(const Game& g) {
    return WriteFileAtomically(InProgramFolder(g, ViewFile), ViewText(g.TaflCoordinates)).Ok();
}

}  // namespace jv
