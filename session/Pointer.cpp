#include "session/Pointer.h"

#include <string_view>

#include "core/Board.h"
#include "core/Move.h"
#include "core/Reach.h"
#include "core/RuleBoard.h"
#include "session/PlayerMoves.h"

namespace jv {

namespace {

bool InPlay(const Game& g, int col, int row) {
    return col >= 1 && col <= g.BoardWidth && row >= 1 && row <= g.BoardHeight;
}

// True when the target list ("0305,0306,") holds the square (squares in
// play have two-digit numbers).
bool ListsSquare(std::string_view targets, int col, int row) {
    const char item[4] = {static_cast<char>('0' + col / 10), static_cast<char>('0' + col % 10),
                          static_cast<char>('0' + row / 10), static_cast<char>('0' + row % 10)};
    for (std::size_t i = 0; i + 4 <= targets.size(); i += 5)
        if (targets.compare(i, 4, std::string_view(item, 4)) == 0) return true;
    return false;
}

void CancelDrag(Game& g) {
    HideDragLine(g);
    g.DragSource = Square{};
}

}  // namespace

std::string PieceTargets(const Game& g, int col, int row) {
    std::string targets;
    if (PlaysClassicRules(g)) {
        for (char d : {'U', 'D', 'L', 'R'}) AppendReach(g, col, row, d, targets);
        return targets;
    }
    if (!InPlay(g, col, row)) return targets;
    const RuleBoard board(g, g.Board(col, row) == AttackerCode ? AttackerCode : DefenderCode);
    BoardMove moves[MaxMoves];
    const int n = board.Generate(moves);
    for (int i = 0; i < n; ++i)
        if (moves[i].From == CellOf(col, row)) {
            AppendSquareText(targets, ColOf(moves[i].To), RowOf(moves[i].To));
            targets += ',';
        }
    return targets;
}

bool CanStartDrag(const Game& g, int col, int row) {
    return g.BoardEnabled && InPlay(g, col, row) && g.Board(col, row) == g.Players.UserSide;
}

bool BeginDrag(Game& g, int col, int row) {
    if (!CanStartDrag(g, col, row)) return false;
    g.DragSource = Square{col, row};
    ShowDragLine(g, {{col, row}, {col, row}});
    return true;
}

bool AcceptsDrop(const Game& g, int col, int row) {
    const Square source = g.DragSource;
    if (!g.BoardEnabled || !InPlay(g, source.Col, source.Row) || !InPlay(g, col, row)) return false;
    if (ListsSquare(PieceTargets(g, source.Col, source.Row), col, row)) return true;
    // The King's way home ends on a corner, which no reach list holds.
    return IsCorner(g, col, row) && IsLegalMove(g, DefenderCode, Move{source, Square{col, row}});
}

bool EndDrag(Game& g, int col, int row) {
    if (g.DragSource.Col == -1) return false;
    if (!AcceptsDrop(g, col, row)) {
        CancelDrag(g);
        return false;
    }
    const Square source = g.DragSource;
    g.PointerSquare = Square{col, row};
    DropPiece(g, col, row);
    // The drag is over unless another one began while the move's pauses let
    // events run.
    if (g.DragSource.Col == source.Col && g.DragSource.Row == source.Row && !g.DragLineVisible)
        g.DragSource = Square{};
    return true;
}

std::string PointerHint(const Game& g, int col, int row) {
    if (!InPlay(g, col, row)) return "";
    const char* what = "empty";
    const int code = g.Board(col, row);
    if (IsKingOn(g, col, row) && code == DefenderCode) what = "King";
    else if (code == DefenderCode) what = "defender";
    else if (code == AttackerCode) what = "attacker";
    else if (code == HomeCode) what = "Home";
    else if (HasThrone(g) && col == g.CentreCol && row == g.CentreRow) what = "throne";
    return SquareName(g, col, row) + ": " + what;
}

}  // namespace jv
