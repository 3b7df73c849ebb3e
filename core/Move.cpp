#include "core/Move.h"

#include "ai/AutoMove.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/DrawCode.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/VbText.h"
#include "records/Undo.h"

namespace jv {

namespace {

const char* const ResetHint = "\r\nClick Reset to start a new game";

bool IsKingSquare(const Game& g, int col, int row) { return col == g.KingCol && row == g.KingRow; }

// A move's pauses let pending events run, so the user's clicks arrive in the
// middle of it. What is left of the move belongs to the game it began in:
// once a load has set up another board (reset, load, the editor switched
// off, a replay) or the program is ending, it has nothing left to act on.
bool GameGoesOn(const Game& g, int gameNumber) { return !g.Ending && g.GameNumber == gameNumber; }

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

// The end of a game: the message, pending events, and the board stops
// taking pointer input. Buttons and menus stay available.
void EndGame(Game& g, const std::string& headline, const char* style) {
    const int gameNumber = g.GameNumber;
    g.View->Show(headline + ResetHint, style);
    g.View->DoEvents();
    // A reset clicked meanwhile has begun the next game: its board stays open.
    if (g.GameNumber != gameNumber) return;
    g.GameOver = true;
    g.BoardEnabled = false;
    g.View->EnableBoard(false);
}

void MoveAndMark(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    MovePiece(g, fromCol, fromRow, toCol, toRow);
    g.View->DrawMoveMark(fromCol, fromRow, toCol, toRow);
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
           r == victimRow && !IsKingSquare(g, c, r);
}

// Shows a computer move for a second, then tells whether it is still to be
// made: in the same game, with its two squares holding what they held. A
// move whose piece an undo or another move has taken away meanwhile would
// otherwise carry an empty square over, or a piece that is not its own.
bool ShowComputerMove(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    const int gameNumber = g.GameNumber;
    const int from = g.Board(fromCol, fromRow), to = g.Board(toCol, toRow);
    AnimateMove(g, fromCol, fromRow, toCol, toRow);
    return GameGoesOn(g, gameNumber) && g.Board(fromCol, fromRow) == from && g.Board(toCol, toRow) == to;
}

bool IsAttacker(const Game& g, int col, int row) { return g.Board(col, row) == AttackerCode; }

bool KingSurrounded(const Game& g) {
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

void ShowDragLine(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    g.DragLineVisible = true;
    g.View->ShowDragLine(fromCol, fromRow, toCol, toRow);
}

void HideDragLine(Game& g) {
    g.DragLineVisible = false;
    g.View->HideDragLine();
}

void MovePiece(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    const bool kingMoves = IsKingSquare(g, fromCol, fromRow);
    g.Board(toCol, toRow) = g.Board(fromCol, fromRow);
    g.Board(fromCol, fromRow) = EmptyCode;
    if (kingMoves) {
        g.KingCol = toCol;
        g.KingRow = toRow;
    }
    const std::string moveText = SquareName(g, fromCol, fromRow) + " > " + SquareName(g, toCol, toRow);

    g.View->DrawSquare(fromCol, fromRow, BoardBackColourValue(g));
    RepaintDestination(g, toCol, toRow);

    // The colour argument tells the sides apart: 1 defenders, 2 attackers,
    // 0 the King.
    int n = g.Board(toCol, toRow) + 1;
    std::string subject = "Player" + std::to_string(n) + " ";
    if (kingMoves) {
        subject = "King ";
        n = 0;
    }
    PrintLog(g, "  " + subject + "Move " + moveText, n, 0);
}

void AnimateMove(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    ShowDragLine(g, fromCol, fromRow, toCol, toRow);
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
        if (IsKingSquare(g, victimCol, victimRow)) return;

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

int CheckKingCapture(Game& g) {
    // A King that is not on the board (the editor can leave him off it)
    // cannot be surrounded; his neighbours would also lie outside the grid.
    if (g.KingCol < 1 || g.KingCol > g.BoardWidth || g.KingRow < 1 || g.KingRow > g.BoardHeight) return 0;
    SetHomeSquares(g, AttackerCode);
    const bool captured = KingSurrounded(g);
    SetHomeSquares(g, HomeCode);
    return captured ? 99 : 0;
}

void MakeAttackerMove(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    RecordMove(g);
    if (!ShowComputerMove(g, fromCol, fromRow, toCol, toRow)) return;
    MoveAndMark(g, fromCol, fromRow, toCol, toRow);
    if (CheckKingCapture(g) == 99) {
        // The King's capture is the whole move: no sandwich is taken and the
        // position is not analysed.
        HideDragLine(g);
        EndGame(g, "King Captured !", "vbcritical+vbok");
        return;
    }
    CaptureAround(g, toCol, toRow);
    AnalysePosition(g);
}

void MakeDefenderMove(Game& g, int fromCol, int fromRow, int toCol, int toRow) {
    RecordMove(g);
    if (!ShowComputerMove(g, fromCol, fromRow, toCol, toRow)) return;
    MoveAndMark(g, fromCol, fromRow, toCol, toRow);

    // The test for the King beside a Home corner reads its row from a value
    // that is never given the King's row: it only ever holds the result of a
    // comparison, true, which is -1. No row in play is -1, so the test never
    // succeeds and a computer defender move never ends the game. That is how
    // the game has always played (the automatic game runs on after the King
    // is home), so the test stays as it is.
    const int rowValue = -1;
    const bool besideHome =
        (g.KingCol == 1 && (rowValue == 2 || rowValue == g.BoardHeight - 1)) ||
        (g.KingCol == g.BoardWidth && (rowValue == 2 || rowValue == g.BoardHeight - 1)) ||
        (rowValue == 1 && (g.KingCol == 2 || g.KingCol == g.BoardWidth - 1)) ||
        (rowValue == g.BoardHeight && (g.KingCol == 2 || g.KingCol == g.BoardWidth - 1));
    if (besideHome) {
        HideDragLine(g);
        EndGame(g, "King Home !", "vbcritical+vbok");
        return;
    }
    CaptureAround(g, toCol, toRow);
    AnalysePosition(g);
}

void DropPiece(Game& g, int col, int row) {
    // Only squares of the board are dropped on; anything else is no drop.
    if (col < 1 || col > g.BoardWidth || row < 1 || row > g.BoardHeight) return;
    if (!g.DragLineVisible) return;
    const Square source = g.DragSource;
    if (col == source.Col && row == source.Row) return;
    if (source.Col < 1 || source.Col > g.BoardWidth || source.Row < 1 || source.Row > g.BoardHeight) return;
    const bool kingMoves = IsKingSquare(g, source.Col, source.Row);

    const int target = g.Board(col, row);
    if (target == HomeCode && kingMoves) {
        // The winning move is not recorded for undo, nor logged.
        HideDragLine(g);
        g.Board(source.Col, source.Row) = EmptyCode;
        g.KingCol = col;
        g.KingRow = row;
        g.Board(col, row) = DefenderCode;
        g.View->DrawBoard();
        EndGame(g, "King at Home !", "vbhappy+vbok");
        return;
    }
    if (target != EmptyCode) return;   // refused; the drag line stays
    if (col == g.CentreCol && row == g.CentreRow && !kingMoves) {
        HideDragLine(g);   // only the King may stop on the centre
        return;
    }

    RecordMove(g);
    MoveAndMark(g, source.Col, source.Row, col, row);
    if (KingAtHome(g) == 99) {
        HideDragLine(g);
        EndGame(g, "King at Home !", "vbhappy+vbok");
        return;
    }
    const int gameNumber = g.GameNumber;
    CaptureAround(g, col, row);
    // A game begun during the capture's pause has no move to answer.
    if (!GameGoesOn(g, gameNumber)) return;
    AnalysePosition(g);
    HideDragLine(g);
    if (g.Check1) MakeRedAutoMove(g);
}

}  // namespace jv
