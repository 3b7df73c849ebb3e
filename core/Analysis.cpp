#include "core/Analysis.h"

#include <algorithm>

#include "core/Board.h"
#include "core/GameView.h"
#include "core/Reach.h"

namespace jv {

namespace {

void AppendItem(std::string& text, int col, int row) {
    AppendSquareText(text, col, row);
    text += ',';
}

// The four tests on three squares in a line, P, Q and R, in their order.
void TestThree(Game& g, int pc, int pr, int qc, int qr, int rc, int rr) {
    const int p = g.Board(pc, pr), q = g.Board(qc, qr), r = g.Board(rc, rr);
    const bool kingOnQ = qc == g.KingCol && qr == g.KingRow;
    if (q == DefenderCode && p == AttackerCode && r == EmptyCode) {
        AppendItem(g.CaptureChances[0], rc, rr);
        if (kingOnQ) AppendItem(g.KingCaptureSquares, rc, rr);
    }
    if (p == EmptyCode && q == DefenderCode && r == AttackerCode) {
        AppendItem(g.CaptureChances[0], pc, pr);
        if (kingOnQ) AppendItem(g.KingCaptureSquares, pc, pr);
    }
    if (p == DefenderCode && q == AttackerCode && r == EmptyCode) AppendItem(g.CaptureChances[1], rc, rr);
    if (p == EmptyCode && q == AttackerCode && r == DefenderCode) AppendItem(g.CaptureChances[1], pc, pr);
}

}  // namespace

void FindCaptureChances(Game& g) {
    g.CaptureChances[0].clear();
    g.CaptureChances[1].clear();
    g.KingCaptureSquares.clear();
    for (int a = 1; a <= g.BoardWidth; ++a)
        for (int b = 1; b <= g.BoardHeight - 2; ++b) TestThree(g, a, b, a, b + 1, a, b + 2);
    for (int a = 1; a <= g.BoardWidth - 2; ++a)
        for (int b = 1; b <= g.BoardHeight; ++b) TestThree(g, a, b, a + 1, b, a + 2, b);
}

void UpdateCounters(Game& g) {
    int defenders = -1;   // the King's square holds a defender code but is not counted
    int attackers = 0;
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            const int code = g.Board(col, row);
            if (code == DefenderCode) ++defenders;
            if (code == AttackerCode) ++attackers;
        }
    // A board without a King (an empty board) counts no defender below none.
    defenders = std::max(defenders, 0);
    g.DefenderCount = defenders;
    g.AttackerCount = attackers;
    g.View->UpdateCounters(defenders, attackers);
}

void AnalysePosition(Game& g) {
    BuildReachTables(g);
    FindCaptureChances(g);
    UpdateCounters(g);
}

}  // namespace jv
