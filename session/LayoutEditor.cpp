#include "session/LayoutEditor.h"

#include "core/Board.h"
#include "core/GameView.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"

namespace jv {

namespace {

bool OnBoard(const Game& g, int col, int row) {
    return col >= 1 && col <= g.BoardWidth && row >= 1 && row <= g.BoardHeight;
}

// The square holding the King in the editor grid; Col -1 when there is none.
Square EditorKingSquare(const Game& g) {
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row)
            if (g.EditorGrid(col, row) == EditorKingCode) return {col, row};
    return {};
}

// What a square holds once the King has left it: a Home corner is Home again.
int LeftByTheKing(const Game& g, int col, int row) { return IsHomeSquare(g, col, row) ? HomeCode : EmptyCode; }

}  // namespace

void EditorCommand(Game& g) {
    if (g.EditorOn) SwitchEditorOff(g);
    else SwitchEditorOn(g);
}

void SwitchEditorOn(Game& g) {
    g.EditorGrid.Fill(EmptyCode);
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) g.EditorGrid(col, row) = g.Board(col, row);
    if (OnBoard(g, g.KingCol, g.KingRow)) g.EditorGrid(g.KingCol, g.KingRow) = EditorKingCode;
    g.EditorOn = true;
    g.View->ShowEditor(true);
    // A finished game leaves the board closed to the pointer; the editor
    // needs it open.
    g.View->EnableBoard(true);
    g.View->DrawBoard();
}

void SwitchEditorOff(Game& g) {
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            const int code = g.EditorGrid(col, row);
            if (code != EditorKingCode) {
                g.Board(col, row) = code;
                continue;
            }
            g.Board(col, row) = DefenderCode;
            // The King's row stays as it was: a King moved to another row
            // is left with column 0, off the board, and stays a defender.
            g.KingCol = g.KingRow == row ? col : 0;
        }
    const std::string path = g.ProgramFolder + "temporarylayout.txt";
    const WriteResult written = WriteLayoutFile(g, path);
    if (!written.Ok()) {
        g.View->Show("Layout File:\r\n" + path + "\r\n" + written.Problem("could not be written") +
                         ", the editor stays open",
                     "vbcritical+vbok");
        return;
    }
    // The load hides the palette and switches the editor off.
    LoadLayout(g, path);
}

bool PlaceInEditor(Game& g, int col, int row, int kind) {
    if (!g.EditorOn || !OnBoard(g, col, row)) return false;
    if (kind != AttackerCode && kind != DefenderCode && kind != EmptyCode && kind != EditorKingCode) return false;
    int& square = g.EditorGrid(col, row);
    if (square == EditorKingCode || IsHomeSquare(g, col, row)) return false;
    if (square == kind) return false;
    if (kind == EditorKingCode) {
        const Square king = EditorKingSquare(g);
        if (king.Col != -1) g.EditorGrid(king.Col, king.Row) = LeftByTheKing(g, king.Col, king.Row);
    }
    square = kind;
    return true;
}

void EditorPosition(const Game& g, Game& shown) {
    shown = g;
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            const int code = g.EditorGrid(col, row);
            shown.Board(col, row) = code == EditorKingCode ? DefenderCode : code;
        }
    const Square king = EditorKingSquare(g);
    shown.KingCol = king.Col == -1 ? 0 : king.Col;
    shown.KingRow = king.Col == -1 ? 0 : king.Row;
}

}  // namespace jv
