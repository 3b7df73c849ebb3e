#include "core/Perft.h"

#include <array>

#include "core/Board.h"

namespace jv {

namespace {

using Cells = Grid<std::int32_t>;

constexpr int CellCount = Cells::Span * Cells::Span;
constexpr int Up = -1, Down = 1, Left = -Cells::Span, Right = Cells::Span;

// Every empty square is reached by at most one piece from each side of it,
// and the King has at most four Home moves.
constexpr int MaxMoves = 4 * MaxBoardSide * MaxBoardSide + 4;

struct FlatMove {
    std::int16_t From, To;
};

// One search over the game's board, addressed by flat element numbers so
// that a step is one addition. The King's square is followed locally; the
// game's KingCol and KingRow are left alone.
class Search {
public:
    explicit Search(Position& g)
        : cells_(&g.Board(Cells::Low, Cells::Low)), width_(g.BoardWidth), height_(g.BoardHeight),
          centre_(Cells::Index(g.CentreCol, g.CentreRow)) {
        const bool kingInPlay = g.KingCol >= 1 && g.KingCol <= width_ && g.KingRow >= 1 && g.KingRow <= height_;
        king_ = kingInPlay ? Cells::Index(g.KingCol, g.KingRow) : -1;
        for (int col = 1; col <= width_; ++col)
            for (int row = 1; row <= height_; ++row) {
                const int i = Cells::Index(col, row);
                col_[i] = static_cast<std::int8_t>(col);
                row_[i] = static_cast<std::int8_t>(row);
                corner_[i] = IsCorner(g, col, row);
            }
    }

    // True when the game is already over: the King stands on a corner.
    bool KingHome() const { return king_ >= 0 && corner_[king_]; }

    int Generate(int side, FlatMove* out) const {
        int n = 0;
        ForEachMove(side, [&](int from, int to) { out[n++] = FlatMove{static_cast<std::int16_t>(from), static_cast<std::int16_t>(to)}; });
        return n;
    }

    std::uint64_t CountMoves(int side) const {
        std::uint64_t n = 0;
        ForEachMove(side, [&](int, int) { ++n; });
        return n;
    }

    std::uint64_t Count(int depth, int side) {
        if (depth == 0) return 1;
        if (depth == 1) return CountMoves(side);
        FlatMove moves[MaxMoves];
        const int n = Generate(side, moves);
        std::uint64_t total = 0;
        for (int i = 0; i < n; ++i) total += CountAfter(moves[i], depth, side);
        return total;
    }

    // The sequences of depth moves that begin with the move.
    std::uint64_t CountAfter(FlatMove move, int depth, int side) {
        if (depth == 1) return 1;
        if (corner_[move.To]) return 0;   // the King is home: the line ends
        Taken taken;
        const bool kingTaken = Make(move, side, taken);
        const std::uint64_t count = kingTaken ? 0 : Count(depth - 1, 1 - side);
        Unmake(move, taken);
        return count;
    }

    Move Describe(FlatMove move) const {
        return Move{col_[move.From], row_[move.From], col_[move.To], row_[move.To]};
    }

private:
    struct Taken {
        int King = -1;
        int Victims[4] = {};
        int Count = 0;
        std::int32_t Code = EmptyCode;
    };

    template <typename Visit>
    void ForEachMove(int side, Visit visit) const {
        static constexpr int Steps[4] = {Up, Down, Left, Right};
        for (int col = 1; col <= width_; ++col)
            for (int row = 1; row <= height_; ++row) {
                const int from = Cells::Index(col, row);
                if (cells_[from] != side) continue;
                const bool isKing = side == DefenderCode && from == king_;
                for (int step : Steps) {
                    int to = from + step;
                    for (; cells_[to] == EmptyCode; to += step)
                        if (to != centre_ || isKing) visit(from, to);
                    if (isKing && corner_[to]) visit(from, to);
                }
            }
    }

    // Makes a move that does not end on a corner. True when it takes the
    // King; then it has taken nothing else.
    bool Make(FlatMove move, int side, Taken& taken) {
        taken.King = king_;
        cells_[move.To] = cells_[move.From];
        cells_[move.From] = EmptyCode;
        if (move.From == king_) king_ = move.To;
        if (side == AttackerCode && KingSurrounded()) return true;
        CaptureFrom(move.To, taken);
        return false;
    }

    void Unmake(FlatMove move, const Taken& taken) {
        for (int i = 0; i < taken.Count; ++i) cells_[taken.Victims[i]] = taken.Code;
        cells_[move.From] = cells_[move.To];
        cells_[move.To] = EmptyCode;
        king_ = taken.King;
    }

    // The sandwiches of the piece that has just moved to `at`, direction by
    // direction in CaptureAround's order; the Home corners count as the
    // mover's. A sandwiched King stops the search.
    void CaptureFrom(int at, Taken& taken) {
        static constexpr int Steps[4] = {Left, Right, Down, Up};
        const std::int32_t mover = cells_[at];
        if (mover != AttackerCode && mover != DefenderCode) return;
        const std::int32_t enemy = 1 - mover;
        taken.Code = enemy;
        for (int step : Steps) {
            const int victim = at + step, far = victim + step;
            if (cells_[victim] != enemy || (cells_[far] != mover && !corner_[far])) continue;
            if (victim == king_) return;
            cells_[victim] = EmptyCode;
            taken.Victims[taken.Count++] = victim;
        }
    }

    bool Attacker(int i) const { return cells_[i] == AttackerCode || corner_[i]; }

    // Four attackers round the King, or three against the edge; a Home
    // corner counts as an attacker.
    bool KingSurrounded() const {
        if (king_ < 0) return false;
        const bool up = Attacker(king_ + Up), down = Attacker(king_ + Down);
        const bool left = Attacker(king_ + Left), right = Attacker(king_ + Right);
        const int col = col_[king_], row = row_[king_];
        if (row == 1 && down && up && right) return true;
        if (row == height_ && down && up && left) return true;
        if (col == 1 && right && left && down) return true;
        if (col == width_ && right && left && up) return true;
        return up && down && left && right;
    }

    std::int32_t* cells_;
    int width_, height_, centre_, king_;
    std::array<std::int8_t, CellCount> col_{}, row_{};
    std::array<bool, CellCount> corner_{};
};

}  // namespace

std::uint64_t Perft(Position& g, int depth, int side) {
    if (depth < 0) return 0;
    Search search(g);
    if (depth > 0 && search.KingHome()) return 0;
    return search.Count(depth, side);
}

std::vector<PerftLine> PerftDivide(Position& g, int depth, int side) {
    std::vector<PerftLine> lines;
    Search search(g);
    if (depth <= 0 || search.KingHome()) return lines;
    std::vector<FlatMove> moves(MaxMoves);
    moves.resize(search.Generate(side, moves.data()));
    for (const FlatMove& move : moves)
        lines.push_back(PerftLine{search.Describe(move), search.CountAfter(move, depth, side)});
    return lines;
}

}  // namespace jv
