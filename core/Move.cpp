#include "core/Move.h"

#include <algorithm>
#include <vector>

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


// The first piece that the piece on the square takes, as the rule board
// finds it on the board as it stands with the pieces this capture has taken
// already put back, those skipped; false when there is none. A move's
// captures are taken together and only shown one at a time: the pieces of a
// shieldwall hold each other up until the last is gone.
bool NextVictim(const Game& g, const Square& at, const std::vector<Square>& taken, Square& victim) {
    Position board = g;
    const int enemy = g.Board(at.Col, at.Row) == AttackerCode ? DefenderCode : AttackerCode;
    for (const Square& s : taken) board.Board(s.Col, s.Row) = enemy;
    std::uint8_t cells[MoveUndo::MaxTaken];
    const int n = RuleBoard(board, DefenderCode).TakenBy(CellOf(at), cells);
    for (int i = 0; i < n; ++i) {
        victim = Square{ColOf(cells[i]), RowOf(cells[i])};
        if (std::find(taken.begin(), taken.end(), victim) == taken.end()) return true;
    }
    return false;
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
    std::vector<Square> taken;
    Grid<std::int32_t> left = g.Board;   // the board as the capture has left it
    for (;;) {
        const int mover = g.Board(col, row);
        Square victim;
        if (!NextVictim(g, at, taken, victim)) return;
        g.View->MarkVictim(victim.Col, victim.Row);
        g.View->Pause(1000);
        if (!GameGoesOn(g, gameNumber)) return;
        // An undo or another move made during the pause may have moved any
        // of them: the capture starts again from the board as it now stands,
        // and the victim is taken only when the same piece still takes it.
        if (!(g.Board == left)) {
            taken.clear();
            left = g.Board;
        }
        Square again;
        if (g.Board(col, row) != mover || !NextVictim(g, at, taken, again) || again != victim) continue;
        g.Board(victim.Col, victim.Row) = EmptyCode;
        taken.push_back(victim);
        left = g.Board;
        PrintLog(g, "  Player" + Str(mover + 1) + " captures " + SquareName(g, victim.Col, victim.Row), mover + 1, 0);
        g.View->DrawSquare(victim.Col, victim.Row, BoardBackColourValue(g));
    }
}

bool CheckKingCapture(const Position& g) { return RuleBoard(g, AttackerCode).KingSurrounded(); }

}  // namespace jv
