#include "core/Board.h"

#include <algorithm>

#include "core/EventLog.h"
#include "core/GameView.h"

namespace jv {

void NewBoard(Game& g, int width, int height) {
    width = std::clamp(width, 0, MaxBoardSide);
    height = std::clamp(height, 0, MaxBoardSide);
    ++g.GameNumber;
    g.BoardWidth = width;
    g.BoardHeight = height;
    g.CentreCol = width / 2 + 1;
    g.CentreRow = height / 2 + 1;

    g.SquareNumber.Fill(0);
    int n = 0;
    for (int col = 1; col <= width; ++col)
        for (int row = 1; row <= height; ++row) {
            ++n;
            g.SquareNumber(col, row) = n;
            g.SquareCol[n] = col;
            g.SquareRow[n] = row;
        }

    for (int col = -2; col <= width + 2; ++col)
        for (int row = -2; row <= height + 2; ++row) {
            const bool frame = col == 0 || col == width + 1 || row == 0 || row == height + 1;
            g.Board(col, row) = frame ? HomeCode : EmptyCode;
        }
    SetHomeSquares(g, HomeCode);
    // The analysis clears only the board and its margin; a smaller board
    // must not inherit the lists of a larger one.
    for (int col = Grid<int>::Low; col <= Grid<int>::High; ++col)
        for (int row = Grid<int>::Low; row <= Grid<int>::High; ++row) g.MoveTargets(col, row).clear();

    g.DragLineVisible = false;
    g.DragSource = Square{};
    g.View->HideDragLine();
    g.GameOver = false;
    g.Result = GameEnding::None;
    g.BoardEnabled = true;
    g.View->EnableBoard(true);
    g.List1A.clear();
    g.View->RefreshList(ListId::List1A);
    ClearEventLog(g);
}

void SetHomeSquares(Position& g, int code) {
    const bool home = HasHomeCorners(g);
    for (int col : {1, g.BoardWidth})
        for (int row : {1, g.BoardHeight}) {
            int& square = g.Board(col, row);
            if (home) square = code;
            else if (square == HomeCode) square = EmptyCode;
        }
}

bool PlaysClassicRules(const Position& g) { return g.GameRules == Rules::Classic(); }

bool HasHomeCorners(const Position& g) { return g.GameRules.KingEscape == Escape::Corners; }

bool IsHomeSquare(const Position& g, int col, int row) { return HasHomeCorners(g) && IsCorner(g, col, row); }

bool HasThrone(const Position& g) { return g.GameRules.CentreForKingOnly && g.GameRules.ThroneHostile; }

bool IsKingOn(const Position& g, int col, int row) { return col == g.KingCol && row == g.KingRow; }

bool IsCorner(const Position& g, int col, int row) {
    return (col == 1 || col == g.BoardWidth) && (row == 1 || row == g.BoardHeight);
}

bool KingAtHome(const Position& g) {
    return IsCorner(g, g.KingCol, g.KingRow);
}

void BuildColumnLetters(Game& g) {
    for (int i = 1; i <= 16; ++i) g.ColumnLetters[i] = std::string(1, static_cast<char>('A' + i - 1));
}

std::string SquareName(const Game& g, int col, int row) {
    const std::string letter = col >= 1 && col <= 16 ? g.ColumnLetters[col] : std::string();
    return letter + std::to_string(row);
}

void AppendSquareText(std::string& out, int col, int row) {
    // Squares in play and their neighbours are 0..99, so two digits suffice;
    // they are written at once, as they are written for every trial move.
    if (col >= 0 && col < 100 && row >= 0 && row < 100) {
        const char text[4] = {static_cast<char>('0' + col / 10), static_cast<char>('0' + col % 10),
                              static_cast<char>('0' + row / 10), static_cast<char>('0' + row % 10)};
        out.append(text, 4);
        return;
    }
    // A negative index (never a square in play) is written as Format would.
    auto two = [&out](int v) {
        if (v < 0) {
            out += '-';
            v = -v;
        }
        if (v >= 100) out += std::to_string(v / 100);
        out += static_cast<char>('0' + v / 10 % 10);
        out += static_cast<char>('0' + v % 10);
    };
    two(col);
    two(row);
}

std::string SquareText(int col, int row) {
    std::string out;
    AppendSquareText(out, col, row);
    return out;
}

std::string SquareItem(int col, int row) {
    std::string out = SquareText(col, row);
    out += ',';
    return out;
}

}  // namespace jv
