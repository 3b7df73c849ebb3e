#include "core/Move.h"

#include "core/Analysis.h"
#include "core/Board.h"
#include "core/DrawCode.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/RuleBoard.h"
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


// The first piece that the piece on the square takes on the board as it
// stands, as the rule board finds it; false when it takes none.
bool FirstVictim(const Game& g, const Square& at, Square& victim) {
    std::uint8_t taken[MoveUndo::MaxTaken];
    if (RuleBoard(g, DefenderCode).TakenBy(CellOf(at), taken) == 0) return false;
    victim = Square{ColOf(taken[0]), RowOf(taken[0])};
    return true;
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
    const Square at{col, row};
    HideDragLine(g);
    for (;;) {
        const int mover = g.Board(col, row);
        Square victim;
        if (!FirstVictim(g, at, victim)) return;
        g.View->MarkVictim(victim.Col, victim.Row);
        g.View->Pause(1000);
        if (!GameGoesOn(g, gameNumber)) return;
        // An undo or another move made during the pause may have moved any
        // of them: the victim is taken only when the same piece still takes
        // it on the board as it now stands; otherwise the search starts again.
        Square again;
        if (g.Board(col, row) != mover || !FirstVictim(g, at, again) || again != victim) continue;
        g.Board(victim.Col, victim.Row) = EmptyCode;
        PrintLog(g, "  Player" + Str(mover + 1) + " captures " + SquareName(g, victim.Col, victim.Row), mover + 1, 0);
        g.View->DrawSquare(victim.Col, victim.Row, BoardBackColourValue(g));
    }
}

bool CheckKingCapture(const Position& g) { return RuleBoard(g, AttackerCode).KingSurrounded(); }

}  // namespace jv
