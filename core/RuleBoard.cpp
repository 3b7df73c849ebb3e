#include "core/RuleBoard.h"

#include <algorithm>
#include <bit>
#include <bitset>
#include <cstdlib>

#include "core/Board.h"

namespace jv {

namespace {

// Fixed pseudo-random keys (splitmix64 from a constant seed), so that keys
// and therefore searches repeat from run to run.
struct ZobristKeys {
    std::array<std::array<std::uint64_t, CellCount>, 4> Piece{};
    std::uint64_t Side = 0;
    ZobristKeys() {
        std::uint64_t state = 0x4a61726c73566b74ULL;
        auto next = [&state] {
            std::uint64_t z = (state += 0x9e3779b97f4a7c15ULL);
            z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
            z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
            return z ^ (z >> 31);
        };
        for (auto& cells : Piece)
            for (auto& key : cells) key = next();
        Side = next();
    }
};

const ZobristKeys& Keys() {
    static const ZobristKeys keys;
    return keys;
}

// The piece list of a cell's piece: 0 defenders (the King is kept apart), 1 attackers.
int ListOf(int piece) { return piece == CellAttacker ? 1 : 0; }

bool IsPiece(int cell) { return cell == CellAttacker || cell == CellDefender || cell == CellKing; }

// The empty squares on both sides of bit `at` of a line's taken bits: the
// bits of the two pieces, walls or corners that end them. Bit 0 and the bit
// past the board are walls, so both searches find a bit.
struct Run {
    int Above, Below;
    int Squares() const { return Above - Below - 2; }
    // True when one of the bits lies in the run.
    bool Holds(std::uint32_t bits, int at) const {
        return (bits & ((1u << Above) - (2u << Below)) & ~(1u << at)) != 0;
    }
    int EndsOn(std::uint32_t bits) const { return static_cast<int>(((bits >> Above) & 1) + ((bits >> Below) & 1)); }
};

Run RunAround(std::uint32_t taken, int at) {
    const int above = std::countr_zero(taken >> (at + 1)) + at + 1;
    const int below = static_cast<int>(std::bit_width(taken & ((1u << at) - 1))) - 1;
    return Run{above, below};
}

}  // namespace

std::uint64_t RuleBoard::PieceKey(int piece, int cell) { return Keys().Piece[piece][cell]; }
std::uint64_t RuleBoard::SideKey() { return Keys().Side; }

RuleBoard::RuleBoard(const Position& g, int side)
    : rules_(g.GameRules), width_(g.BoardWidth), height_(g.BoardHeight), centre_(CellOf(g.CentreCol, g.CentreRow)),
      side_(side) {
    cells_.fill(CellWall);
    rowTaken_.fill(0xffff);
    colTaken_.fill(0xffff);
    // A mover's own pieces close a sandwich, the King among the defenders
    // when he is armed, and the corners when they are hostile.
    hostile_[1][CellAttacker] = true;
    hostile_[0][CellDefender] = true;
    hostile_[0][CellKing] = rules_.KingArmed;
    hostile_[0][CellCorner] = hostile_[1][CellCorner] = rules_.CornersHostile;
    if (rules_.ThroneHostile) throne_ = centre_;
    const bool corners = rules_.KingEscape == Escape::Corners;
    for (int col = 1; col <= width_; ++col)
        for (int row = 1; row <= height_; ++row) {
            const int cell = CellOf(col, row);
            const int code = g.Board(col, row);
            const bool king = col == g.KingCol && row == g.KingRow && code == DefenderCode;
            std::int8_t piece = CellEmpty;
            if (corners && IsCorner(g, col, row)) piece = king ? CellKing : CellCorner;
            else if (king) piece = CellKing;
            else if (code == DefenderCode) piece = CellDefender;
            else if (code == AttackerCode) piece = CellAttacker;
            cells_[cell] = piece;
            if (piece == CellEmpty) {
                rowTaken_[row] &= ~(1u << col);
                colTaken_[col] &= ~(1u << row);
            }
            if (cell == centre_ && rules_.CentreForKingOnly && !(corners && IsCorner(g, col, row))) {
                rowKingOnly_[row] |= 1u << col;
                colKingOnly_[col] |= 1u << row;
            }
            if (piece == CellCorner) {
                rowCorners_[row] |= 1u << col;
                colCorners_[col] |= 1u << row;
            }
            if (piece == CellKing) king_ = cell;
            if (piece == CellAttacker || piece == CellDefender) {
                const int list = ListOf(piece);
                slot_[cell] = static_cast<std::uint8_t>(pieceCount_[list]);
                pieces_[list][pieceCount_[list]++] = static_cast<std::uint8_t>(cell);
            }
            if (IsPiece(piece)) key_ ^= PieceKey(piece, cell);
        }
    if (king_ >= 0 && Escaped(king_)) state_ = GameState::KingHome;
    if (side_ == AttackerCode) key_ ^= SideKey();
}

// A cell changes what it holds; the taken bits of its row and column follow.
void RuleBoard::Place(int cell, int piece) {
    cells_[cell] = static_cast<std::int8_t>(piece);
    rowTaken_[RowOf(cell)] |= 1u << ColOf(cell);
    colTaken_[ColOf(cell)] |= 1u << RowOf(cell);
}

void RuleBoard::Clear(int cell) {
    cells_[cell] = CellEmpty;
    rowTaken_[RowOf(cell)] &= ~(1u << ColOf(cell));
    colTaken_[ColOf(cell)] &= ~(1u << RowOf(cell));
}

bool RuleBoard::Mine(int piece) const {
    return side_ == AttackerCode ? piece == CellAttacker : piece == CellDefender || piece == CellKing;
}

int RuleBoard::Generate(BoardMove* out) const {
    int n = 0;
    auto slide = [&](int from, bool king) {
        for (int step : CellSteps) {
            int to = from + step;
            for (; cells_[to] == CellEmpty; to += step)
                if (to != centre_ || king || !rules_.CentreForKingOnly)
                    out[n++] = BoardMove{static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)};
            if (king && cells_[to] == CellCorner)
                out[n++] = BoardMove{static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)};
        }
    };
    const int list = side_ == AttackerCode ? 1 : 0;
    if (list == 0 && king_ >= 0) slide(king_, true);
    for (int i = 0; i < pieceCount_[list]; ++i) slide(pieces_[list][i], false);
    return n;
}

// The moves of the piece on the cell, counted from the taken bits of its row
// and column.
int RuleBoard::CountFrom(int cell, bool king) const {
    const int col = ColOf(cell), row = RowOf(cell);
    const Run along = RunAround(rowTaken_[row], col), across = RunAround(colTaken_[col], row);
    const int squares = along.Squares() + across.Squares();
    if (king) return squares + along.EndsOn(rowCorners_[row]) + across.EndsOn(colCorners_[col]);
    return squares - along.Holds(rowKingOnly_[row], col) - across.Holds(colKingOnly_[col], row);
}

int RuleBoard::CountMoves() const {
    const int list = side_ == AttackerCode ? 1 : 0;
    int n = list == 0 && king_ >= 0 ? CountFrom(king_, true) : 0;
    for (int i = 0; i < pieceCount_[list]; ++i) n += CountFrom(pieces_[list][i], false);
    return n;
}

// Most positions show a move at once: a piece beside an empty square that is
// not the centre may always step there. Only without one are the moves counted.
bool RuleBoard::HasMove() const {
    const int list = side_ == AttackerCode ? 1 : 0;
    const auto stepsOut = [&](int cell) {
        for (int step : CellSteps)
            if (cells_[cell + step] == CellEmpty && cell + step != centre_) return true;
        return false;
    };
    if (list == 0 && king_ >= 0 && stepsOut(king_)) return true;
    for (int i = 0; i < pieceCount_[list]; ++i)
        if (stepsOut(pieces_[list][i])) return true;
    return CountMoves() > 0;
}

int RuleBoard::GenerateOnto(const std::uint8_t* targets, int count, BoardMove* out) const {
    int n = 0;
    for (int t = 0; t < count; ++t) {
        const int to = targets[t];
        const bool corner = cells_[to] == CellCorner;
        if (cells_[to] != CellEmpty && !corner) continue;
        const bool kingOnly = corner || (to == centre_ && rules_.CentreForKingOnly);
        for (int step : CellSteps) {
            int from = to + step;
            while (cells_[from] == CellEmpty) from += step;
            const int piece = cells_[from];
            if (!Mine(piece) || (kingOnly && piece != CellKing)) continue;
            out[n++] = BoardMove{static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)};
        }
    }
    return n;
}

int RuleBoard::GenerateTactical(BoardMove* out) const {
    std::uint8_t targets[CellCount];
    std::bitset<CellCount> listed;
    int count = 0;
    auto add = [&](int cell) {
        if (cells_[cell] != CellEmpty || listed[cell]) return;
        listed[cell] = true;
        targets[count++] = static_cast<std::uint8_t>(cell);
    };
    const int mover = side_ == AttackerCode ? CellAttacker : CellDefender;
    const int enemies = side_ == AttackerCode ? 0 : 1;
    for (int i = 0; i < pieceCount_[enemies]; ++i) {
        const int enemy = pieces_[enemies][i];
        for (int step : CellSteps)
            if (Hostile(enemy - step, mover)) add(enemy + step);
    }
    if (king_ >= 0 && side_ == AttackerCode)
        for (int step : CellSteps) add(king_ + step);
    int n = GenerateOnto(targets, count, out);
    if (king_ < 0 || side_ != DefenderCode) return n;
    // The King's moves onto the squares listed already are there.
    for (int step : CellSteps)
        for (int to = king_ + step; cells_[to] == CellEmpty || cells_[to] == CellCorner; to += step) {
            if (!listed[to]) out[n++] = BoardMove{static_cast<std::uint8_t>(king_), static_cast<std::uint8_t>(to)};
            if (cells_[to] == CellCorner) break;
        }
    return n;
}

// True when the victim's cell holds an enemy of the mover (the King among
// the defenders) and the far cell closes the sandwich.
bool RuleBoard::Sandwiched(int victim, int far, int mover, int enemy) const {
    return (cells_[victim] == enemy || (victim == king_ && mover == CellAttacker)) && Hostile(far, mover);
}

bool RuleBoard::Captures(BoardMove m) const {
    const int piece = cells_[m.From];
    if (piece == CellKing && !rules_.KingArmed) return false;
    const int mover = piece == CellAttacker ? CellAttacker : CellDefender;
    const int enemy = mover == CellAttacker ? CellDefender : CellAttacker;
    for (int step : CellSteps) {
        const int victim = m.To + step, far = victim + step;
        if (cells_[victim] == enemy && far != m.From && Hostile(far, mover)) return true;
    }
    return false;
}

// Calls take(victim) for each piece that the piece on the cell, had it just
// moved there, takes, in the order it takes them.
template <typename Take>
void RuleBoard::ForEachTaken(int cell, Take take) const {
    const int piece = cells_[cell];
    if (!IsPiece(piece) || (piece == CellKing && !rules_.KingArmed)) return;
    const int mover = piece == CellAttacker ? CellAttacker : CellDefender;
    const int enemy = mover == CellAttacker ? CellDefender : CellAttacker;
    for (int step : CellSteps) {
        const int victim = cell + step;
        if (!Sandwiched(victim, victim + step, mover, enemy)) continue;
        if (victim != king_) take(victim);
        else if (rules_.SandwichedKingEndsCaptures) return;
    }
    if (rules_.Shieldwall) ForEachWallTaken(cell, take);
}

// The shieldwalls the piece that has just moved to `at` on the edge closes:
// along the edge each way, a row of two or more enemies that ends on one of
// the mover's pieces or a hostile corner, every one of them faced from
// inside the board by one of the mover's pieces. The King in such a row
// stands, the others are taken.
template <typename Take>
void RuleBoard::ForEachWallTaken(int at, Take take) const {
    const int col = ColOf(at), row = RowOf(at);
    const int inward = col == 1 ? 1 : col == width_ ? -1 : row == 1 ? CellStride : row == height_ ? -CellStride : 0;
    if (inward == 0) return;
    const int mover = cells_[at] == CellAttacker ? CellAttacker : CellDefender;
    const int along = inward == 1 || inward == -1 ? CellStride : 1;
    const auto mine = [&](int c) { return cells_[c] == mover || (mover == CellDefender && cells_[c] == CellKing && rules_.KingArmed); };
    const auto enemy = [&](int c) { return IsPiece(cells_[c]) && !mine(c) && !(mover == CellAttacker && cells_[c] == CellAttacker); };
    for (int step : {along, -along}) {
        int end = at + step, length = 0;
        bool faced = true;
        for (; enemy(end); end += step, ++length) faced = faced && mine(end + inward);
        const bool bracketed = mine(end) || (cells_[end] == CellCorner && rules_.CornersHostile);
        if (length < 2 || !faced || !bracketed) continue;
        for (int c = at + step; c != end; c += step)
            if (c != king_) take(c);
    }
}

int RuleBoard::TakenBy(int cell, std::uint8_t* taken) const {
    int n = 0;
    ForEachTaken(cell, [&](int victim) { taken[n++] = static_cast<std::uint8_t>(victim); });
    return n;
}

void RuleBoard::RemovePiece(int list, int cell, MoveUndo& undo) {
    const int slot = slot_[cell];
    const int last = pieces_[list][--pieceCount_[list]];
    pieces_[list][slot] = static_cast<std::uint8_t>(last);
    slot_[last] = static_cast<std::uint8_t>(slot);
    undo.Taken[undo.Count] = static_cast<std::uint8_t>(cell);
    undo.Slots[undo.Count++] = static_cast<std::uint8_t>(slot);
}

// Takes what the piece that has just moved to `at` sandwiches.
void RuleBoard::Capture(int at, MoveUndo& undo) {
    const int enemy = cells_[at] == CellAttacker ? CellDefender : CellAttacker;
    undo.TakenPiece = static_cast<std::int8_t>(enemy);
    ForEachTaken(at, [&](int victim) {
        RemovePiece(ListOf(enemy), victim, undo);
        Clear(victim);
        key_ ^= PieceKey(enemy, victim);
    });
}

void RuleBoard::Make(BoardMove m, MoveUndo& undo) {
    undo.Count = 0;
    undo.State = state_;
    undo.Key = key_;
    const int piece = cells_[m.From];
    key_ ^= PieceKey(piece, m.From) ^ PieceKey(piece, m.To) ^ SideKey();
    Clear(m.From);
    side_ ^= 1;
    if (piece == CellKing) {
        Place(m.To, CellKing);
        king_ = m.To;
        if (Escaped(m.To)) {
            state_ = GameState::KingHome;
            if (rules_.KingHomeIsWholeMove) return;
        }
    } else {
        Place(m.To, piece);
        const int list = ListOf(piece);
        pieces_[list][slot_[m.From]] = m.To;
        slot_[m.To] = slot_[m.From];
        if (piece == CellAttacker && KingTakenBy(m.To)) {
            state_ = GameState::KingTaken;
            if (rules_.KingCaptureIsWholeMove) return;
        }
    }
    Capture(m.To, undo);
    if (state_ != GameState::GoesOn) return;
    // A move that takes nothing and cuts no way through leaves a way to the edge open.
    if (piece == CellAttacker ? rules_.Encirclement && (undo.Count > 0 || MayCloseRing(m.To)) && DefendersEncircled()
                              : rules_.ExitFort && KingInFort())
        state_ = piece == CellAttacker ? GameState::DefendersEncircled : GameState::KingInFort;
}

void RuleBoard::Unmake(BoardMove m, const MoveUndo& undo) {
    for (int i = undo.Count - 1; i >= 0; --i) {
        const int victim = undo.Taken[i], slot = undo.Slots[i];
        const int list = ListOf(undo.TakenPiece);
        const int moved = pieces_[list][slot];
        pieces_[list][pieceCount_[list]] = static_cast<std::uint8_t>(moved);
        slot_[moved] = static_cast<std::uint8_t>(pieceCount_[list]++);
        pieces_[list][slot] = static_cast<std::uint8_t>(victim);
        slot_[victim] = static_cast<std::uint8_t>(slot);
        Place(victim, undo.TakenPiece);
    }
    const int piece = cells_[m.To];
    Place(m.From, piece);
    if (piece == CellKing) {
        king_ = m.From;
        // Only the King enters a corner, and his move there ends the game.
        if (state_ == GameState::KingHome && undo.State != GameState::KingHome && rules_.KingEscape == Escape::Corners)
            Place(m.To, CellCorner);
        else
            Clear(m.To);
    } else {
        Clear(m.To);
        pieces_[ListOf(piece)][slot_[m.To]] = m.From;
        slot_[m.From] = slot_[m.To];
    }
    side_ ^= 1;
    state_ = undo.State;
    key_ = undo.Key;
}

int RuleBoard::KingRoutes(std::array<bool, CellCount>* lines) const {
    if (king_ < 0) return 0;
    const int col = ColOf(king_), row = RowOf(king_);
    if (!lines && rules_.KingEscape == Escape::Corners)
        return RunAround(rowTaken_[row], col).EndsOn(rowCorners_[row]) +
               RunAround(colTaken_[col], row).EndsOn(colCorners_[col]);
    int routes = 0;
    for (int step : CellSteps) {
        int to = king_ + step;
        while (cells_[to] == CellEmpty) to += step;
        // On the edge escape the line's last empty square is on the edge.
        const bool route = rules_.KingEscape == Escape::Corners ? cells_[to] == CellCorner
                                                               : cells_[to] == CellWall && to != king_ + step;
        if (!route) continue;
        ++routes;
        if (lines)
            for (int c = king_ + step; c != to; c += step) (*lines)[c] = true;
    }
    return routes;
}

bool RuleBoard::KingMoveHome(BoardMove& move) const {
    if (king_ < 0) return false;
    for (int step : CellSteps) {
        int to = king_ + step;
        while (cells_[to] == CellEmpty) to += step;
        if (rules_.KingEscape == Escape::Edges && cells_[to] == CellWall && to != king_ + step) to -= step;
        else if (cells_[to] != CellCorner) continue;
        move = BoardMove{static_cast<std::uint8_t>(king_), static_cast<std::uint8_t>(to)};
        return true;
    }
    return false;
}

bool RuleBoard::OnEdge(int cell) const {
    const int col = ColOf(cell), row = RowOf(cell);
    return col == 1 || col == width_ || row == 1 || row == height_;
}

// The King on the square has escaped: on a corner, or on the edge.
bool RuleBoard::Escaped(int cell) const {
    if (rules_.KingEscape == Escape::Edges) return OnEdge(cell);
    const int col = ColOf(cell), row = RowOf(cell);
    return (col == 1 || col == width_) && (row == 1 || row == height_);
}

// A side of the King closed against him: an attacker, a hostile empty
// corner or a hostile empty throne.
bool RuleBoard::ClosesOnKing(int cell) const {
    const int piece = cells_[cell];
    return piece == CellAttacker || (piece == CellCorner && rules_.CornersHostile) ||
           (cell == throne_ && piece == CellEmpty);
}

bool RuleBoard::KingSurrounded() const {
    if (king_ < 0) return false;
    int closed = 0, edges = 0;
    for (int step : CellSteps) {
        if (ClosesOnKing(king_ + step)) ++closed;
        else if (cells_[king_ + step] == CellWall) ++edges;
    }
    const bool againstTheEdge = rules_.KingTaken == KingCapture::FourOrThreeAgainstTheEdge && edges == 1 && closed == 3;
    return closed == 4 || againstTheEdge;
}

// True when the attacker that has just moved to `at` takes the King: under
// the classic rules any attacker move that leaves him surrounded does; else
// the mover must stand beside him and close his last side, or, away from the
// throne where two take him, sandwich him against an attacker or a hostile
// square.
bool RuleBoard::KingTakenBy(int at) const {
    if (king_ < 0) return false;
    if (rules_.KingTaken == KingCapture::FourOrThreeAgainstTheEdge) return KingSurrounded();
    int step = 0;
    for (int s : CellSteps)
        if (at + s == king_) step = s;
    if (step == 0) return false;
    const bool nearThrone = king_ == centre_ || std::abs(king_ - centre_) == 1 || std::abs(king_ - centre_) == CellStride;
    if (rules_.KingTaken == KingCapture::FourNearTheThroneElseTwo && !nearThrone) return ClosesOnKing(king_ + step);
    return KingSurrounded();
}

// The King on the edge, free to move, where the squares he can reach hold
// no attacker and border only on defenders that no attacker can take: each
// has, along each line, a side that is the edge, a defender, the King or
// one of those squares.
bool RuleBoard::KingInFort() const {
    if (king_ < 0 || !OnEdge(king_)) return false;
    std::bitset<CellCount> inside;
    std::uint8_t todo[CellCount];
    int count = 0;
    inside[king_] = true;
    todo[count++] = static_cast<std::uint8_t>(king_);
    std::bitset<CellCount> walls;
    while (count > 0) {
        const int cell = todo[--count];
        for (int step : CellSteps) {
            const int next = cell + step, piece = cells_[next];
            if (piece == CellAttacker) return false;
            if (piece == CellDefender) walls[next] = true;
            if (piece != CellEmpty || inside[next]) continue;
            inside[next] = true;
            todo[count++] = static_cast<std::uint8_t>(next);
        }
    }
    if (inside.count() == 1) return false;   // the King cannot move
    const auto safe = [&](int cell) { return cells_[cell] == CellWall || cells_[cell] == CellDefender || inside[cell]; };
    for (int cell = 0; cell < CellCount; ++cell)
        if (walls[cell] && ((!safe(cell - 1) && !safe(cell + 1)) || (!safe(cell - CellStride) && !safe(cell + CellStride))))
            return false;
    return true;
}

// Whether an attacker arriving on the cell, taking nothing, may close a ring:
// on the edge, or where the squares free of attackers beside him are no
// longer joined around him. Elsewhere every way that ran over the cell runs
// round it, and the defenders reach the edge as before.
bool RuleBoard::MayCloseRing(int cell) const {
    if (OnEdge(cell)) return true;
    constexpr int Ring[8] = {-CellStride, -CellStride + 1, 1, CellStride + 1, CellStride, CellStride - 1, -1, -CellStride - 1};
    const auto open = [&](int offset) { return cells_[cell + offset] != CellAttacker && cells_[cell + offset] != CellWall; };
    int sides = 0, joins = 0;
    for (int k = 0; k < 8; k += 2) {
        const bool side = open(Ring[k]);
        sides += side;
        joins += side && open(Ring[k + 1]) && open(Ring[(k + 2) % 8]);
    }
    // The open sides form a ring of groups; four joins close it into one.
    return sides - (joins == 4 ? 3 : joins) > 1;
}

// No defender, the King among them, can reach the edge over squares that
// hold no attacker. The squares reached grow a row at a time, each row a
// mask of its columns, until they touch the edge or stop growing.
bool RuleBoard::DefendersEncircled() const {
    std::array<std::uint32_t, CellStride> open{}, reached{};
    const std::uint32_t edgeCols = (1u << 1) | (1u << width_);
    for (int row = 1; row <= height_; ++row) open[row] = ((1u << width_) - 1) << 1;
    for (int i = 0; i < pieceCount_[1]; ++i) open[RowOf(pieces_[1][i])] &= ~(1u << ColOf(pieces_[1][i]));
    if (king_ >= 0) reached[RowOf(king_)] |= 1u << ColOf(king_);
    for (int i = 0; i < pieceCount_[0]; ++i) reached[RowOf(pieces_[0][i])] |= 1u << ColOf(pieces_[0][i]);
    for (bool grew = true; grew;) {
        grew = false;
        for (int row = 1; row <= height_; ++row) {
            std::uint32_t now = reached[row] | ((reached[row - 1] | reached[row + 1]) & open[row]);
            for (std::uint32_t before = 0; now != before;) {
                before = now;
                now |= ((now << 1) | (now >> 1)) & open[row];
            }
            if (now == 0) continue;
            if ((now & edgeCols) != 0 || row == 1 || row == height_) return false;
            grew = grew || now != reached[row];
            reached[row] = now;
        }
    }
    return true;
}

std::uint64_t RuleBoard::Perft(int depth) {
    if (depth <= 0) return depth == 0 ? 1 : 0;
    if (state_ != GameState::GoesOn) return 0;
    if (depth == 1) return static_cast<std::uint64_t>(CountMoves());
    BoardMove moves[MaxMoves];
    const int n = Generate(moves);
    std::uint64_t total = 0;
    for (int i = 0; i < n; ++i) {
        MoveUndo undo;
        Make(moves[i], undo);
        total += Perft(depth - 1);
        Unmake(moves[i], undo);
    }
    return total;
}

MoveCheck RuleBoard::Check(const Move& m) const {
    const auto onBoard = [this](Square s) { return s.Col >= 1 && s.Col <= width_ && s.Row >= 1 && s.Row <= height_; };
    if (!onBoard(m.From) || !onBoard(m.To)) return {Refusal::OffTheBoard, {}};
    if (state_ != GameState::GoesOn) return {Refusal::GameOver, {}};
    const int from = CellOf(m.From), to = CellOf(m.To), piece = cells_[from];
    if (!Mine(piece)) return {Refusal::NotYourPiece, m.From};
    if (from == to || (m.From.Col != m.To.Col && m.From.Row != m.To.Row)) return {Refusal::NotStraight, {}};
    const int step = m.From.Col == m.To.Col ? (to > from ? CellStride : -CellStride) : (to > from ? 1 : -1);
    for (int c = from + step; c != to; c += step)
        if (cells_[c] != CellEmpty) return {Refusal::PassesOver, {ColOf(c), RowOf(c)}};
    if (cells_[to] == CellCorner) return {piece == CellKing ? Refusal::None : Refusal::CornerForKing, m.To};
    if (cells_[to] != CellEmpty) return {Refusal::TargetTaken, m.To};
    if (to == centre_ && rules_.CentreForKingOnly && piece != CellKing) return {Refusal::CentreForKing, m.To};
    return {};
}

void RuleBoard::WriteTo(Position& g) const {
    for (int col = 1; col <= width_; ++col)
        for (int row = 1; row <= height_; ++row) {
            const int cell = cells_[CellOf(col, row)];
            g.Board(col, row) = cell == CellAttacker                       ? AttackerCode
                                : cell == CellDefender || cell == CellKing ? DefenderCode
                                : cell == CellCorner                       ? HomeCode
                                                                           : EmptyCode;
        }
    if (king_ < 0) return;
    g.KingCol = ColOf(king_);
    g.KingRow = RowOf(king_);
}

RuleBoard BoardAfter(const Position& g, int side, const Move& m) {
    RuleBoard board(g, side);
    MoveUndo undo;
    board.Make(RuleBoard::ToBoardMove(m), undo);
    return board;
}

Position PositionAfter(const Position& g, int side, const Move& m) {
    Position after = g;
    BoardAfter(g, side, m).WriteTo(after);
    return after;
}

bool IsLegalMove(const Position& g, int side, const Move& m) {
    return RuleBoard(g, side).Allows(m);
}

}  // namespace jv
