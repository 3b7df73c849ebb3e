#include "ai/SearchBoard.h"

#include <algorithm>
#include <bitset>

#include "core/Board.h"

namespace jv {

namespace {

// The four directions, in the order the game looks for sandwiches: the row
// down and up, then the column up and down.
constexpr int Steps[4] = {-SearchStride, SearchStride, 1, -1};

// Fixed pseudo-random keys (splitmix64 from a constant seed), so that keys
// and therefore searches repeat from run to run.
struct ZobristKeys {
    std::array<std::array<std::uint64_t, SearchCells>, 4> Piece{};
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

}  // namespace

std::uint64_t SearchBoard::PieceKey(int piece, int cell) { return Keys().Piece[piece][cell]; }
std::uint64_t SearchBoard::SideKey() { return Keys().Side; }

SearchBoard::SearchBoard(const Position& g, int side)
    : width_(g.BoardWidth), height_(g.BoardHeight), centre_(CellOf(g.CentreCol, g.CentreRow)), side_(side) {
    cells_.fill(CellWall);
    for (int col = 1; col <= width_; ++col)
        for (int row = 1; row <= height_; ++row) {
            const int cell = CellOf(col, row);
            const int code = g.Board(col, row);
            const bool king = col == g.KingCol && row == g.KingRow && code == DefenderCode;
            std::int8_t piece = CellEmpty;
            if (IsCorner(g, col, row)) piece = king ? CellKing : CellCorner;
            else if (king) piece = CellKing;
            else if (code == DefenderCode) piece = CellDefender;
            else if (code == AttackerCode) piece = CellAttacker;
            cells_[cell] = piece;
            if (piece == CellKing) king_ = cell;
            if (piece == CellAttacker || piece == CellDefender) {
                const int list = ListOf(piece);
                slot_[cell] = static_cast<std::uint8_t>(pieceCount_[list]);
                pieces_[list][pieceCount_[list]++] = static_cast<std::uint8_t>(cell);
            }
            if (piece >= CellAttacker && piece <= CellKing) key_ ^= PieceKey(piece, cell);
        }
    if (king_ >= 0 && IsCorner(g, ColOf(king_), RowOf(king_))) status_ = SearchStatus::KingHome;
    if (side_ == AttackerCode) key_ ^= SideKey();
}

int SearchBoard::Generate(SearchMove* out) const {
    int n = 0;
    auto slide = [&](int from, bool king) {
        for (int step : Steps) {
            int to = from + step;
            for (; cells_[to] == CellEmpty; to += step)
                if (to != centre_ || king) out[n++] = SearchMove{static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)};
            if (king && cells_[to] == CellCorner) out[n++] = SearchMove{static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)};
        }
    };
    const int list = side_ == AttackerCode ? 1 : 0;
    if (list == 0 && king_ >= 0) slide(king_, true);
    for (int i = 0; i < pieceCount_[list]; ++i) slide(pieces_[list][i], false);
    return n;
}

int SearchBoard::GenerateOnto(const std::uint8_t* targets, int count, SearchMove* out) const {
    int n = 0;
    for (int t = 0; t < count; ++t) {
        const int to = targets[t];
        const bool corner = cells_[to] == CellCorner;
        if (cells_[to] != CellEmpty && !corner) continue;
        for (int step : Steps) {
            int from = to + step;
            while (cells_[from] == CellEmpty) from += step;
            const int piece = cells_[from];
            const bool mine = side_ == AttackerCode ? piece == CellAttacker : piece == CellDefender || piece == CellKing;
            // Only the King stops on the centre or goes home.
            if (!mine || ((to == centre_ || corner) && piece != CellKing)) continue;
            out[n++] = SearchMove{static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)};
        }
    }
    return n;
}

int SearchBoard::GenerateTactical(SearchMove* out) const {
    std::uint8_t targets[SearchCells];
    std::bitset<SearchCells> listed;
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
        for (int step : Steps)
            if (Hostile(enemy - step, mover)) add(enemy + step);
    }
    if (king_ >= 0 && side_ == AttackerCode)
        for (int step : Steps) add(king_ + step);
    int n = GenerateOnto(targets, count, out);
    if (king_ < 0 || side_ != DefenderCode) return n;
    // The King's moves onto the squares listed already are there.
    for (int step : Steps)
        for (int to = king_ + step; cells_[to] == CellEmpty || cells_[to] == CellCorner; to += step) {
            if (!listed[to]) out[n++] = SearchMove{static_cast<std::uint8_t>(king_), static_cast<std::uint8_t>(to)};
            if (cells_[to] == CellCorner) break;
        }
    return n;
}

// True when the cell closes a sandwich for a piece of the mover's side: one
// of the mover's own pieces (the King among the defenders) or a Home corner.
bool SearchBoard::Hostile(int cell, int mover) const {
    const int piece = cells_[cell];
    if (piece == CellCorner) return true;
    return mover == CellAttacker ? piece == CellAttacker : piece == CellDefender || piece == CellKing;
}

bool SearchBoard::Captures(SearchMove m) const {
    const int mover = cells_[m.From] == CellAttacker ? CellAttacker : CellDefender;
    const int enemy = mover == CellAttacker ? CellDefender : CellAttacker;
    for (int step : Steps) {
        const int victim = m.To + step, far = victim + step;
        if (cells_[victim] == enemy && far != m.From && Hostile(far, mover)) return true;
    }
    return false;
}

void SearchBoard::RemovePiece(int list, int cell, SearchUndo& undo) {
    const int slot = slot_[cell];
    const int last = pieces_[list][--pieceCount_[list]];
    pieces_[list][slot] = static_cast<std::uint8_t>(last);
    slot_[last] = static_cast<std::uint8_t>(slot);
    undo.Victims[undo.Count] = static_cast<std::uint8_t>(cell);
    undo.Slots[undo.Count++] = static_cast<std::uint8_t>(slot);
}

// The sandwiches of the piece that has just moved to at, direction by
// direction in the game's order; a sandwiched King stops the search there.
void SearchBoard::Capture(int at, SearchUndo& undo) {
    const int mover = cells_[at] == CellAttacker ? CellAttacker : CellDefender;
    const int enemy = mover == CellAttacker ? CellDefender : CellAttacker;
    undo.Captured = static_cast<std::int8_t>(enemy);
    for (int step : Steps) {
        const int victim = at + step;
        const bool sandwiched = (cells_[victim] == enemy || (victim == king_ && mover == CellAttacker)) && Hostile(victim + step, mover);
        if (!sandwiched) continue;
        if (victim == king_) return;
        RemovePiece(ListOf(enemy), victim, undo);
        cells_[victim] = CellEmpty;
        key_ ^= PieceKey(enemy, victim);
    }
}

void SearchBoard::Make(SearchMove m, SearchUndo& undo) {
    undo.Count = 0;
    undo.Status = status_;
    undo.Key = key_;
    const int piece = cells_[m.From];
    key_ ^= PieceKey(piece, m.From) ^ PieceKey(piece, m.To) ^ SideKey();
    cells_[m.From] = CellEmpty;
    if (piece == CellKing) {
        const bool home = cells_[m.To] == CellCorner;
        cells_[m.To] = CellKing;
        king_ = m.To;
        side_ ^= 1;
        if (home) {
            status_ = SearchStatus::KingHome;
            return;
        }
    } else {
        cells_[m.To] = static_cast<std::int8_t>(piece);
        const int list = ListOf(piece);
        pieces_[list][slot_[m.From]] = m.To;
        slot_[m.To] = slot_[m.From];
        side_ ^= 1;
        // The King's capture is the whole move: nothing else is taken.
        if (piece == CellAttacker && KingSurrounded()) {
            status_ = SearchStatus::KingTaken;
            return;
        }
    }
    Capture(m.To, undo);
}

void SearchBoard::Unmake(SearchMove m, const SearchUndo& undo) {
    for (int i = undo.Count - 1; i >= 0; --i) {
        const int victim = undo.Victims[i], slot = undo.Slots[i];
        const int list = ListOf(undo.Captured);
        const int moved = pieces_[list][slot];
        pieces_[list][pieceCount_[list]] = static_cast<std::uint8_t>(moved);
        slot_[moved] = static_cast<std::uint8_t>(pieceCount_[list]++);
        pieces_[list][slot] = static_cast<std::uint8_t>(victim);
        slot_[victim] = static_cast<std::uint8_t>(slot);
        cells_[victim] = undo.Captured;
    }
    const int piece = cells_[m.To];
    cells_[m.From] = static_cast<std::int8_t>(piece);
    if (piece == CellKing) {
        king_ = m.From;
        cells_[m.To] = status_ == SearchStatus::KingHome && undo.Status != SearchStatus::KingHome ? CellCorner : CellEmpty;
    } else {
        cells_[m.To] = CellEmpty;
        pieces_[ListOf(piece)][slot_[m.To]] = m.From;
        slot_[m.From] = slot_[m.To];
    }
    side_ ^= 1;
    status_ = undo.Status;
    key_ = undo.Key;
}

int SearchBoard::KingRoutes(std::array<bool, SearchCells>* lines) const {
    if (king_ < 0) return 0;
    int routes = 0;
    for (int step : Steps) {
        int to = king_ + step;
        while (cells_[to] == CellEmpty) to += step;
        if (cells_[to] != CellCorner) continue;
        ++routes;
        if (lines)
            for (int c = king_ + step; c != to; c += step) (*lines)[c] = true;
    }
    return routes;
}

bool SearchBoard::KingSurrounded() const {
    if (king_ < 0) return false;
    auto closed = [this](int cell) { return cells_[cell] == CellAttacker || cells_[cell] == CellCorner; };
    const bool colDown = closed(king_ - 1), colUp = closed(king_ + 1);
    const bool rowDown = closed(king_ - SearchStride), rowUp = closed(king_ + SearchStride);
    const int col = ColOf(king_), row = RowOf(king_);
    if (row == 1 && colDown && colUp && rowUp) return true;
    if (row == height_ && colDown && colUp && rowDown) return true;
    if (col == 1 && rowDown && rowUp && colUp) return true;
    if (col == width_ && rowDown && rowUp && colDown) return true;
    return colDown && colUp && rowDown && rowUp;
}

std::uint64_t SearchBoard::Perft(int depth) {
    if (depth <= 0) return depth == 0 ? 1 : 0;
    if (status_ != SearchStatus::Playing) return 0;
    SearchMove moves[MaxSearchMoves];
    const int n = Generate(moves);
    if (depth == 1) return static_cast<std::uint64_t>(n);
    std::uint64_t total = 0;
    for (int i = 0; i < n; ++i) {
        SearchUndo undo;
        Make(moves[i], undo);
        total += Perft(depth - 1);
        Unmake(moves[i], undo);
    }
    return total;
}

bool SearchBoard::Allows(const Move& m) const {
    const auto onBoard = [this](Square s) { return s.Col >= 1 && s.Col <= width_ && s.Row >= 1 && s.Row <= height_; };
    if (!onBoard(m.From) || !onBoard(m.To) || status_ != SearchStatus::Playing) return false;
    SearchMove moves[MaxSearchMoves];
    const int n = Generate(moves);
    const SearchMove wanted{static_cast<std::uint8_t>(CellOf(m.From.Col, m.From.Row)),
                            static_cast<std::uint8_t>(CellOf(m.To.Col, m.To.Row))};
    return std::find(moves, moves + n, wanted) != moves + n;
}

bool IsLegalMove(const Position& g, int side, const Move& m) {
    return SearchBoard(g, side).Allows(m);
}

}  // namespace jv
