#include "records/PositionRecord.h"

#include <algorithm>

#include "core/Analysis.h"
#include "core/Board.h"
#include "core/GameView.h"
#include "core/VbText.h"

namespace jv {

std::string EncodePosition(const Position& g) {
    std::string record = Format(g.KingCol, "00") + Format(g.KingRow, "00");
    record.reserve(record.size() + static_cast<std::size_t>(g.BoardWidth * g.BoardHeight));
    // The letter is deliberately not reset between squares: a square with an
    // unknown code repeats the previous square's letter.
    std::string letter;
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            switch (g.Board(col, row)) {
                case HomeCode: letter = "H"; break;
                case EmptyCode: letter = "E"; break;
                case DefenderCode: letter = "0"; break;
                case AttackerCode: letter = "1"; break;
                default: break;
            }
            record += letter;
        }
    return record;
}

void ApplyPositionRecord(Game& g, const std::string& record) {
    const std::string_view r(record);
    // A King's square outside the tables (a malformed record) is kept within
    // them, so that every look at the King's neighbours stays in the array.
    g.KingCol = std::clamp(ValInt(r.substr(0, 2)), 0, MaxBoardSide);
    g.KingRow = std::clamp(ValInt(r.substr(std::min<std::size_t>(2, r.size()), 2)), 0, MaxBoardSide);
    const int squares = g.BoardWidth * g.BoardHeight;
    for (std::size_t i = 4; i < r.size() && static_cast<int>(i) - 3 <= squares; ++i) {
        const int n = static_cast<int>(i) - 3;
        int& square = g.Board(g.SquareCol[n], g.SquareRow[n]);
        switch (r[i]) {
            case 'E': square = EmptyCode; break;
            case 'H': square = HomeCode; break;
            case '0': square = DefenderCode; break;
            case '1': square = AttackerCode; break;
            default: break;
        }
    }
    SetHomeSquares(g, HomeCode);
    AnalysePosition(g);
    g.View->DrawBoard();
}

std::string LayoutLine(const Game& g) {
    return Format(g.BoardWidth, "00") + Format(g.BoardHeight, "00") + EncodePosition(g);
}

}  // namespace jv
