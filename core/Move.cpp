#include "core/Move.h"

#include "core/Analysis.h"
#include "core/Board.h"
#include "core/DrawCode.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/VbText.h"

namespace jv {

namespace {

// Repaints the square a piece has arrived on.
void RepaintDestination(Game& g, int col, int row) {
    const int drawCode = DrawCode(g, col, row);
    if (g.ColourMode == 1) {
        g.View->DrawSquare(col, row, drawCode == EmptyCode ? BoardBackColourValue(g) : SquareColour(g, drawCode));
        return;
    }
    g.View->DrawSquare(col, row, BoardBackColourValue(g));
    if (drawCode != EmptyCode) g.View->DrawPiece(col, row, drawCode);
}


// The victim of the piece on (col, row) with code mover, in the fixed order
// of directions; false when there is none. The Home corners count as the
// mover's own pieces while the test runs.
bool FindVictim(Game& g, int col, int row, int mover, int& victimCol, int& victimRow) {
    const int enemy = mover == AttackerCode ? DefenderCode : AttackerCode;
    static constexpr int Steps[4][2] = {{0, -1}, {0, 1}, {1, 0}, {-1, 0}};
    SetHomeSquares(g, mover);
    bool found = false;
    for (const auto& step : Steps) {
        const int c = col + step[0], r = row + step[1];
        if (g.Board(c, r) == enemy && g.Board(c + step[0], r + step[1]) == mover) {
            victimCol = c;
            victimRow = r;
            found = true;
            break;
        }
    }
    SetHomeSquares(g, HomeCode);
    return found;
}

// After the capture's pause: the victim is taken only when the piece on
// (col, row) is still the mover and the search still finds that victim, not
// the King. An undo or another move made during the pause may have moved any
// of them, and a piece no longer sandwiched (the King above all) must not
// vanish.
bool VictimStillTaken(Game& g, int col, int row, int mover, int victimCol, int victimRow) {
    int c = 0, r = 0;
    return g.Board(col, row) == mover && FindVictim(g, col, row, mover, c, r) && c == victimCol &&
           r == victimRow && !IsKingOn(g, c, r);
}

bool IsAttacker(const Position& g, int col, int row) { return g.Board(col, row) == AttackerCode; }

bool KingSurrounded(const Position& g) {
    const int c = g.KingCol, r = g.KingRow;
    const bool up = IsAttacker(g, c - 1, r), down = IsAttacker(g, c + 1, r);
    const bool left = IsAttacker(g, c, r - 1), right = IsAttacker(g, c, r + 1);
    if (r == 1 && down && up && right) return true;
    if (r == g.BoardHeight && down && up && left) return true;
    if (c == 1 && right && left && down) return true;
    if (c == g.BoardWidth && right && left && up) return true;
    return up && down && left && right;
}

}  // namespace

bool GameGoesOn(const Game& g, int gameNumber) { return !g.Ending && g.GameNumber == gameNumber; }

void ShowDragLine(Game& g, const Move& m) {
    g.DragLineVisible = true;
    g.View->ShowDragLine(m);
}

void HideDragLine(Game& g) {
    g.DragLineVisible = false;
    g.View->HideDragLine();
}

void MovePiece(Game& g, const Move& m) {
    const bool kingMoves = IsKingOn(g, m.From.Col, m.From.Row);
    g.Board(m.To.Col, m.To.Row) = g.Board(m.From.Col, m.From.Row);
    g.Board(m.From.Col, m.From.Row) = EmptyCode;
    if (kingMoves) {
        g.KingCol = m.To.Col;
        g.KingRow = m.To.Row;
    }
    const std::string moveText = SquareName(g, m.From.Col, m.From.Row) + " > " + SquareName(g, m.To.Col, m.To.Row);

    g.View->DrawSquare(m.From.Col, m.From.Row, BoardBackColourValue(g));
    RepaintDestination(g, m.To.Col, m.To.Row);

    // The colour argument tells the sides apart: 1 defenders, 2 attackers,
    // 0 the King.
    int n = g.Board(m.To.Col, m.To.Row) + 1;
    std::string subject = "Player" + std::to_string(n) + " ";
    if (kingMoves) {
        subject = "King ";
        n = 0;
    }
    PrintLog(g, "  " + subject + "Move " + moveText, n, 0);
}

void AnimateMove(Game& g, const Move& m) {
    ShowDragLine(g, m);
    g.View->Pause(1000);
    HideDragLine(g);
}

void CaptureAround(Game& g, int col, int row) {
    const int gameNumber = g.GameNumber;
    HideDragLine(g);
    for (;;) {
        const int mover = g.Board(col, row);
        if (mover != AttackerCode && mover != DefenderCode) return;
        int victimCol = 0, victimRow = 0;
        if (!FindVictim(g, col, row, mover, victimCol, victimRow)) return;
        // The King is never taken by two; the directions after his are not
        // looked at, so a second piece sandwiched further on stays standing.
        if (IsKingOn(g, victimCol, victimRow)) return;

        g.View->MarkVictim(victimCol, victimRow);
        g.View->Pause(1000);
        if (!GameGoesOn(g, gameNumber)) return;
        // Otherwise the search starts again on the position as it now stands.
        if (!VictimStillTaken(g, col, row, mover, victimCol, victimRow)) continue;
        g.Board(victimCol, victimRow) = EmptyCode;
        PrintLog(g, "  Player" + Str(mover + 1) + " captures " + SquareName(g, victimCol, victimRow), mover + 1, 0);
        g.View->DrawSquare(victimCol, victimRow, BoardBackColourValue(g));
    }
}

bool CheckKingCapture(Position& g) {
    // A King that is not on the board (the editor can leave him off it)
    // cannot be surrounded; his neighbours would also lie outside the grid.
    if (g.KingCol < 1 || g.KingCol > g.BoardWidth || g.KingRow < 1 || g.KingRow > g.BoardHeight) return false;
    SetHomeSquares(g, AttackerCode);
    const bool captured = KingSurrounded(g);
    SetHomeSquares(g, HomeCode);
    return captured;
}

}  // namespace jv
