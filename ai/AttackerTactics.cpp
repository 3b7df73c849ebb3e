#include "ai/AttackerTactics.h"

#include "ai/AttackerRank.h"
#include "core/Board.h"

namespace jv {

namespace {

bool Empty(const Game& g, int col, int row) { return g.Board(col, row) == EmptyCode; }
bool AttackerReaches(const Game& g, int col, int row) { return g.ReachMap[AttackerCode](col, row) >= 1; }
bool DefenderReaches(const Game& g, int col, int row) { return g.ReachMap[DefenderCode](col, row) >= 1; }
// An empty square that an attacker can move to this turn.
bool AttackerCanTake(const Game& g, int col, int row) { return Empty(g, col, row) && AttackerReaches(g, col, row); }

// The four neighbours of (c, r) as target and opposite square, in the order
// the capture stages try them.
struct Sides {
    int TargetCol, TargetRow, OppositeCol, OppositeRow;
};
void NeighbourSides(int c, int r, Sides (&out)[4]) {
    out[0] = {c, r + 1, c, r - 1};
    out[1] = {c, r - 1, c, r + 1};
    out[2] = {c + 1, r, c - 1, r};
    out[3] = {c - 1, r, c + 1, r};
}

// Stages one and two: an empty square beside a piece of code piece whose
// opposite side holds code opposite, the corners standing for cornerCode
// meanwhile; with defenderMustReach only squares a defender can move to.
void SandwichStage(Game& g, int piece, int opposite, int cornerCode, bool defenderMustReach, int value,
                   const char* literal) {
    SetHomeSquares(g, cornerCode);
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            if (g.Board(c, r) != piece) continue;
            Sides sides[4];
            NeighbourSides(c, r, sides);
            for (const Sides& s : sides)
                if (Empty(g, s.TargetCol, s.TargetRow) && g.Board(s.OppositeCol, s.OppositeRow) == opposite &&
                    (!defenderMustReach || DefenderReaches(g, s.TargetCol, s.TargetRow)))
                    AddPlanEntryAt(g, s.TargetCol, s.TargetRow, value, literal);
        }
}

// Stages three and four: a defender between two empty squares that an
// attacker can both reach; each side whose far square no defender can reach
// is a place to start a capture. (dc, dr) is the axis; the labels keep the
// program's own names for the two axes.
void PlaceBeside(Game& g, int dc, int dr, const char* nearLiteral, const char* farLiteral) {
    const int firstCol = 1 + dc, lastCol = g.BoardWidth - dc;
    const int firstRow = 1 + dr, lastRow = g.BoardHeight - dr;
    for (int c = firstCol; c <= lastCol; ++c)
        for (int r = firstRow; r <= lastRow; ++r) {
            if (g.Board(c, r) != DefenderCode) continue;
            if (!Empty(g, c + dc, r + dr) || !Empty(g, c - dc, r - dr)) continue;
            if (!AttackerReaches(g, c + dc, r + dr) || !AttackerReaches(g, c - dc, r - dr)) continue;
            if (!DefenderReaches(g, c - 2 * dc, r - 2 * dr)) AddPlanEntryAt(g, c - dc, r - dr, 100, nearLiteral);
            if (!DefenderReaches(g, c + 2 * dc, r + 2 * dr)) AddPlanEntryAt(g, c + dc, r + dr, 100, farLiteral);
        }
}

// The empty squares from (col, row) in one direction up to a piece of code;
// nothing when the run ends at another piece, a corner or the edge.
void AppendPathLine(const Game& g, int code, int col, int row, int dc, int dr, std::string& out) {
    const std::size_t start = out.size();
    for (int c = col + dc, r = row + dr; c >= 1 && c <= g.BoardWidth && r >= 1 && r <= g.BoardHeight;
         c += dc, r += dr) {
        if (g.Board(c, r) != EmptyCode) {
            if (g.Board(c, r) != code) out.resize(start);
            return;
        }
        AppendSquareText(out, c, r);
        out += ',';
    }
    out.resize(start);   // the run reached the last square of the line
}

// A defender between two empty squares that an attacker can both reach,
// along one axis: both squares named, each with its own item as label.
void LineOpportunities(Game& g, int dc, int dr, const char* literal) {
    for (int c = 1; c <= g.BoardWidth - 2 * dc; ++c)
        for (int r = 1; r <= g.BoardHeight - 2 * dr; ++r) {
            if (g.Board(c + dc, r + dr) != DefenderCode) continue;
            if (!AttackerCanTake(g, c, r) || !AttackerCanTake(g, c + 2 * dc, r + 2 * dr)) continue;
            AddPlanItemAt(g, c, r, 100, literal);
            AddPlanItemAt(g, c + 2 * dc, r + 2 * dr, 100, literal);
        }
}

// One diagonal pattern within the 3 x 3 block whose top-left square is
// (c, r), as (column, row) offsets: the two defenders, the three squares
// that must be empty and reachable, and the one of them that touches both
// defenders, which gets the entry.
struct DiagonalPattern {
    int Defenders[2][2];
    int Empties[3][2];
    int Entry[2];
    const char* Literal;
};

const DiagonalPattern kDiagonalPatterns[] = {
    {{{0, 1}, {1, 2}}, {{0, 0}, {0, 2}, {2, 2}}, {0, 2}, " : G\\ 1 opportunity"},
    {{{1, 0}, {2, 1}}, {{0, 0}, {2, 0}, {2, 2}}, {2, 0}, " : G\\ 2 opportunity"},
    {{{0, 1}, {1, 0}}, {{0, 0}, {0, 2}, {2, 0}}, {0, 0}, " : G/ 1opportunity"},
    {{{1, 2}, {2, 1}}, {{0, 2}, {2, 0}, {2, 2}}, {2, 2}, " : G/ 2opportunity"},
};

bool DiagonalMatches(const Game& g, const DiagonalPattern& p, int c, int r) {
    for (const auto& d : p.Defenders)
        if (g.Board(c + d[0], r + d[1]) != DefenderCode) return false;
    for (const auto& e : p.Empties)
        if (!AttackerCanTake(g, c + e[0], r + e[1])) return false;
    return true;
}

}  // namespace

KingNeighbours KingNeighbourCounts(const Game& g) {
    KingNeighbours n;
    const int kc = g.KingCol, kr = g.KingRow;
    const int squares[4][2] = {{kc, kr - 1}, {kc - 1, kr}, {kc, kr + 1}, {kc + 1, kr}};
    for (const auto& s : squares) {
        const int code = g.Board(s[0], s[1]);
        if (code == AttackerCode) ++n.Attackers;
        if (code == DefenderCode) ++n.Defenders;
        if (code == EmptyCode) {
            ++n.Empties;
            n.EmptyCol = s[0];
            n.EmptyRow = s[1];
        }
    }
    return n;
}

namespace plan {

void CheckKingCapture(Game& g) {
    const KingNeighbours n = KingNeighbourCounts(g);
    const int kc = g.KingCol, kr = g.KingRow;
    if (n.Empties == 1) {
        if (n.Defenders == 0)
            AddPlanEntryAt(g, n.EmptyCol, n.EmptyRow, 9999, " *** capture with one empty around King ****");
        else
            AddPlanEntryAt(g, n.EmptyCol, n.EmptyRow, 5000, " *** one empty around King ****");
        return;
    }
    if (n.Defenders != 4) {
        // The square is formed before any is chosen, so the entries name
        // (0, 0), off the board: they only add lines to AttackerMovesRank.
        const std::string squares = SquareText(0, 0);
        const std::string label = squares + " move to any empty location around King";
        const int around[4][2] = {{kc, kr - 1}, {kc, kr + 1}, {kc - 1, kr}, {kc + 1, kr}};
        for (const auto& s : around)
            if (g.Board(s[0], s[1]) == EmptyCode) AddPlanEntry(g, squares, 100, label);
        return;
    }
    // All four neighbours are defenders: every diagonal on the board adds to
    // the up-left one, the square formed first.
    const std::string squares = SquareText(kc - 1, kr - 1);
    const std::string label = squares + " all U around King, take x-empty spaces";
    const int diagonals[4][2] = {{kc - 1, kr - 1}, {kc - 1, kr + 1}, {kc + 1, kr + 1}, {kc + 1, kr - 1}};
    for (const auto& d : diagonals) {
        const int number = g.SquareNumber(d[0], d[1]);
        if (number > 0 && number <= g.BoardWidth * g.BoardHeight) AddPlanEntry(g, squares, 200, label);
    }
}

}  // namespace plan

void PlanCaptures(Game& g) {
    // Move to capture: a Home corner helps the attacker here.
    SandwichStage(g, DefenderCode, AttackerCode, AttackerCode, false, 7000, " : move to capture piece");
    // Fill to avoid capture: a Home corner counts as a defender.
    SandwichStage(g, AttackerCode, DefenderCode, DefenderCode, true, 1000, " : fill to avoid capture");
    SetHomeSquares(g, HomeCode);
    PlaceBeside(g, 0, 1, " : place left try to capture", " : place right try to capture");
    PlaceBeside(g, 1, 0, " : place above try to capture", " : place down try to capture");
}

void PlaceAroundKing(Game& g) {
    const int kc = g.KingCol, kr = g.KingRow;
    if (kc < 1 || kc > g.BoardWidth || kr < 1 || kr > g.BoardHeight) return;
    struct Place {
        int Col, Row, Value;
        const char* Literal;
    };
    const Place places[] = {
        {kc, kr - 1, 9000, " : place L to king"},      {kc, kr + 1, 9000, " : place R to king"},
        {kc - 1, kr, 9000, " : place U king"},         {kc + 1, kr, 9000, " : place D king"},
        {kc - 1, kr - 1, 5000, " : place UL to king"}, {kc - 1, kr + 1, 5000, " : place UR to king"},
        {kc + 1, kr + 1, 5000, " : place BR king"},    {kc + 1, kr - 1, 5000, " : place BL king"},
    };
    for (const Place& p : places)
        if (AttackerCanTake(g, p.Col, p.Row)) AddPlanEntryAt(g, p.Col, p.Row, p.Value, p.Literal);
}

std::string PathAroundKing(const Game& g, int code, int col, int row) {
    std::string path;
    AppendPathLine(g, code, col, row, 0, -1, path);
    AppendPathLine(g, code, col, row, 0, 1, path);
    AppendPathLine(g, code, col, row, -1, 0, path);
    AppendPathLine(g, code, col, row, 1, 0, path);
    return path;
}

void PlanBorder(Game& g) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    const int diagonals[4][2] = {{2, 2}, {2, h - 1}, {w - 1, 2}, {w - 1, h - 1}};
    for (const auto& d : diagonals)
        if (AttackerCanTake(g, d[0], d[1])) AddPlanEntryAt(g, d[0], d[1], 300, " : move to HD");
    auto boundary = [&](int col, int row) {
        if (AttackerCanTake(g, col, row)) AddPlanEntryAt(g, col, row, 50, " : move to boundary");
    };
    for (int r = 2; r <= h - 1; ++r) boundary(1, r);
    for (int r = 2; r <= h - 1; ++r) boundary(w, r);
    for (int c = 2; c <= w - 1; ++c) boundary(c, 1);
    for (int c = 2; c <= w - 1; ++c) boundary(c, h);
}

void PlanOpportunities(Game& g) {
    LineOpportunities(g, 0, 1, " .G. H opportunity");
    LineOpportunities(g, 1, 0, " : .G. V opportunity");
    for (const DiagonalPattern& p : kDiagonalPatterns)
        for (int c = 1; c <= g.BoardWidth - 2; ++c)
            for (int r = 1; r <= g.BoardHeight - 2; ++r)
                if (DiagonalMatches(g, p, c, r)) AddPlanItemAt(g, c + p.Entry[0], r + p.Entry[1], 200, p.Literal);
}

}  // namespace jv
