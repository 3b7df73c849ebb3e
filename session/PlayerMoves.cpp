#include "session/PlayerMoves.h"

#include "core/Analysis.h"
#include "core/Board.h"
#include "core/GameView.h"
#include "core/Move.h"
#include "core/RuleBoard.h"
#include "records/PositionRecord.h"
#include "session/ComputerMoves.h"
#include "session/GameEnding.h"
#include "session/Undo.h"

namespace jv {

namespace {

void MoveAndMark(Game& g, const Move& m) {
    MovePiece(g, m);
    g.View->DrawMoveMark(m);
}

// Shows a computer move for a second, then tells whether it is still to be
// made: in the same game, with its two squares holding what they held. A
// move whose piece an undo or another move has taken away meanwhile would
// otherwise carry an empty square over, or a piece that is not its own.
bool ShowComputerMove(Game& g, const Move& m) {
    const int gameNumber = g.GameNumber;
    const int from = g.Board(m.From.Col, m.From.Row), to = g.Board(m.To.Col, m.To.Row);
    AnimateMove(g, m);
    return GameGoesOn(g, gameNumber) && g.Board(m.From.Col, m.From.Row) == from && g.Board(m.To.Col, m.To.Row) == to;
}

// A move under a rule set other than the classic one, once shown: recorded,
// made and its captures taken in the game's order, then the end the rule
// board foresaw on a copy announced. True when the game goes on.
bool PlayUnderRuleSet(Game& g, int side, const Move& m) {
    const MoveEnd end = ForeseeMove(g, side, m);
    const int gameNumber = g.GameNumber;
    RecordMove(g);
    MoveAndMark(g, m);
    CaptureAround(g, m.To.Col, m.To.Row);
    if (!GameGoesOn(g, gameNumber)) return false;
    AnalysePosition(g);
    // An undo or another move during the captures' pauses has put another
    // position on the board: the end foreseen is not this board's.
    if (end.Ending == GameEnding::None || EncodePosition(g) != end.After) return true;
    HideDragLine(g);
    AnnounceEnding(g, end.Ending);
    return false;
}

// After the user's move the computer answers with the other side, when it
// is to.
void AnswerDrop(Game& g, int mover) {
    HideDragLine(g);
    if (g.Check1) MakeAutoMove(g, OtherSide(mover));
}

}  // namespace

void MakeAttackerMove(Game& g, const Move& m) {
    if (!PlaysClassicRules(g)) {
        if (ShowComputerMove(g, m)) PlayUnderRuleSet(g, AttackerCode, m);
        return;
    }
    RecordMove(g);
    if (!ShowComputerMove(g, m)) return;
    MoveAndMark(g, m);
    if (CheckKingCapture(g)) {
        // The King's capture is the whole move: no sandwich is taken and the
        // position is not analysed.
        HideDragLine(g);
        EndGame(g, GameEnding::KingTaken, "King Captured !", "vbcritical+vbok");
        return;
    }
    CaptureAround(g, m.To.Col, m.To.Row);
    AnalysePosition(g);
}

void MakeDefenderMove(Game& g, const Move& m) {
    if (!PlaysClassicRules(g)) {
        if (ShowComputerMove(g, m)) PlayUnderRuleSet(g, DefenderCode, m);
        return;
    }
    RecordMove(g);
    if (!ShowComputerMove(g, m)) return;
    MoveAndMark(g, m);

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
        EndGame(g, GameEnding::KingHome, "King Home !", "vbcritical+vbok");
        return;
    }
    CaptureAround(g, m.To.Col, m.To.Row);
    AnalysePosition(g);
}

void DropPiece(Game& g, int col, int row) {
    // Only squares of the board are dropped on; anything else is no drop.
    if (col < 1 || col > g.BoardWidth || row < 1 || row > g.BoardHeight) return;
    if (!g.DragLineVisible) return;
    const Square source = g.DragSource;
    if (col == source.Col && row == source.Row) return;
    if (source.Col < 1 || source.Col > g.BoardWidth || source.Row < 1 || source.Row > g.BoardHeight) return;
    const int mover = g.Board(source.Col, source.Row) == AttackerCode ? AttackerCode : DefenderCode;
    const Move move{source, {col, row}};

    RuleBoard board(g, mover);
    const Refusal refusal = board.Check(move).Why;
    // A drop on the centre is cancelled; any other refused drop leaves the
    // drag line where it is.
    if (refusal == Refusal::CentreForKing) HideDragLine(g);
    if (refusal != Refusal::None) return;
    if (!PlaysClassicRules(g)) {
        if (PlayUnderRuleSet(g, mover, move)) AnswerDrop(g, mover);
        return;
    }
    MoveUndo undo;
    board.Make(RuleBoard::ToBoardMove(move), undo);
    if (board.State() == GameState::KingHome) {
        // The winning move is not recorded for undo, nor logged.
        HideDragLine(g);
        board.WriteTo(g);
        g.View->DrawBoard();
        EndGame(g, GameEnding::KingHome, "King at Home !", "vbhappy+vbok");
        return;
    }

    RecordMove(g);
    MoveAndMark(g, move);
    if (board.State() == GameState::KingTaken) {
        // As for the computer's attackers: the King's capture is the whole move.
        HideDragLine(g);
        EndGame(g, GameEnding::KingTaken, "King Captured !", "vbcritical+vbok");
        return;
    }
    const int gameNumber = g.GameNumber;
    CaptureAround(g, col, row);
    // A game begun during the capture's pause has no move to answer.
    if (!GameGoesOn(g, gameNumber)) return;
    AnalysePosition(g);
    AnswerDrop(g, mover);
}

}  // namespace jv
