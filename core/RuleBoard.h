#pragma once
#include <array>
#include <cstdint>
#include <vector>

#include "core/Directions.h"
#include "core/Game.h"
#include "core/Rules.h"

namespace jv {

// The one place a rule is decided: a position built for speed under a rule
// set, with the legal moves of a side, a move made and taken back in place,
// what the move took and how the game stands after it. It knows no screen,
// makes no pause and never touches the Game it was built from.

// What a cell holds. Wall is everything off the board; Corner is an empty
// corner, where only the King may go.
enum BoardCell : std::int8_t { CellEmpty, CellAttacker, CellDefender, CellKing, CellWall, CellCorner };

// Cells are numbered col + 16 * row; the board's squares have col and row
// 1..14, so every square has a wall or a square on each side.
constexpr int CellStride = 16;
constexpr int CellCount = CellStride * CellStride;
constexpr int CellOf(int col, int row) { return col + CellStride * row; }
constexpr int ColOf(int cell) { return cell % CellStride; }
constexpr int RowOf(int cell) { return cell / CellStride; }
constexpr int CellOf(Square s) { return CellOf(s.Col, s.Row); }

// The steps between cells of the four directions, in the order a moved piece
// looks for its captures; moves are listed in the same order.
constexpr std::array<int, 4> CellSteps{
    Directions[SandwichOrder[0]].Col + CellStride * Directions[SandwichOrder[0]].Row,
    Directions[SandwichOrder[1]].Col + CellStride * Directions[SandwichOrder[1]].Row,
    Directions[SandwichOrder[2]].Col + CellStride * Directions[SandwichOrder[2]].Row,
    Directions[SandwichOrder[3]].Col + CellStride * Directions[SandwichOrder[3]].Row};

// Every empty square is reached by at most one piece from each side of it,
// and the King has at most four moves onto a corner.
constexpr int MaxMoves = 4 * MaxBoardSide * MaxBoardSide + 4;

struct BoardMove {
    std::uint8_t From = 0, To = 0;
    bool operator==(const BoardMove&) const = default;
};

// How the game stands after the last move: it goes on, the King has escaped
// (home on a corner, or on the edge), the King is taken, the King stands in
// an exit fort, or the attackers have closed every defender in.
enum class GameState : std::uint8_t { GoesOn, KingHome, KingTaken, KingInFort, DefendersEncircled };

// What Make changed, for Unmake, and what the move took.
struct MoveUndo {
    // Four sandwiches and two shieldwalls along an edge at the most.
    static constexpr int MaxTaken = 4 + 2 * MaxBoardSide;
    std::uint8_t Taken[MaxTaken] = {};   // the cells of the pieces taken, in the order they were taken
    std::uint8_t Slots[MaxTaken] = {};   // each one's place in its piece list
    std::uint8_t Count = 0;
    std::int8_t TakenPiece = CellEmpty;
    GameState State = GameState::GoesOn;
    std::uint64_t Key = 0;
};

// Why a move is not allowed, and the square that stops it where there is one.
enum class Refusal : std::uint8_t {
    None,
    OffTheBoard,      // a square of the move lies off the board
    GameOver,         // the King is home or taken already
    NotYourPiece,     // the square moved from holds no piece of the side to move
    NotStraight,      // the move runs along neither a row nor a column
    PassesOver,       // a piece or a corner stands between (At)
    TargetTaken,      // the square moved to is not empty
    CornerForKing,    // only the King may enter a corner
    CentreForKing,    // only the King may stop on the centre
};

struct MoveCheck {
    Refusal Why = Refusal::None;
    Square At;
};

class RuleBoard {
public:
    // The game's position with side (AttackerCode or DefenderCode) to move,
    // under the position's rule set.
    RuleBoard(const Position& g, int side);

    const Rules& RuleSet() const { return rules_; }
    int SideToMove() const { return side_; }
    std::uint64_t Key() const { return key_; }
    GameState State() const { return state_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    int At(int cell) const { return cells_[cell]; }
    int King() const { return king_; }   // -1 when the King is not on the board
    int Attackers() const { return pieceCount_[1]; }
    int Defenders() const { return pieceCount_[0]; }   // without the King
    const std::uint8_t* AttackerCells() const { return pieces_[1].data(); }
    const std::uint8_t* DefenderCells() const { return pieces_[0].data(); }

    // The moves of the side to move, into out; returns their number. The
    // King comes first, then each piece direction by direction, nearest
    // square first.
    int Generate(BoardMove* out) const;
    // The number of moves of the side to move, counted without listing them.
    int CountMoves() const;
    // The moves of the side to move that end on one of the cells (each cell
    // listed once), found by looking back from each cell along its four lines.
    int GenerateOnto(const std::uint8_t* targets, int count, BoardMove* out) const;
    // The side to move's captures and its moves onto the squares beside the
    // King; for the defenders also every King move.
    int GenerateTactical(BoardMove* out) const;
    // Whether the side to move may make the move between the two squares,
    // and why not.
    MoveCheck Check(const Move& m) const;
    bool Allows(const Move& m) const { return Check(m).Why == Refusal::None; }
    // True when the move takes at least one piece (the King aside).
    bool Captures(BoardMove m) const;

    // Makes a move of the side to move: captures, the King home or taken.
    void Make(BoardMove m, MoveUndo& undo);
    void Unmake(BoardMove m, const MoveUndo& undo);
    // Passes the turn.
    void MakeNull() { side_ ^= 1; key_ ^= SideKey(); }
    void UnmakeNull() { MakeNull(); }

    // The pieces that the piece on the cell, had it just moved there, would
    // take, in the order it takes them; the board is left as it is.
    int TakenBy(int cell, std::uint8_t* taken) const;

    // The King's moves that escape now (0 to 4): onto a corner, or onto the
    // edge; when lines is given, the cells of those lines (the empty squares
    // between him and the square he escapes on) are marked in it.
    int KingRoutes(std::array<bool, CellCount>* lines = nullptr) const;
    // The King's first escaping move, in the order moves are listed; false
    // when he has none.
    bool KingMoveHome(BoardMove& move) const;
    // The King stands with every side closed as the rule set takes him: by
    // attackers, hostile squares and, under the classic rules, the edge.
    bool KingSurrounded() const;
    // True when the side to move has a move.
    bool HasMove() const;

    // The number of move sequences of exactly depth moves; a line that ends
    // early (the King home or taken) adds nothing.
    std::uint64_t Perft(int depth);

    // Writes the pieces back into a position of the same size: the codes of
    // its squares, the Home corners and the King's square.
    void WriteTo(Position& g) const;

    static Move ToMove(BoardMove m) { return Move{{ColOf(m.From), RowOf(m.From)}, {ColOf(m.To), RowOf(m.To)}}; }
    static BoardMove ToBoardMove(const Move& m) {
        return BoardMove{static_cast<std::uint8_t>(CellOf(m.From)), static_cast<std::uint8_t>(CellOf(m.To))};
    }

private:
    static std::uint64_t PieceKey(int piece, int cell);
    static std::uint64_t SideKey();
    bool Mine(int piece) const;
    bool Hostile(int cell, int mover) const {
        if (cell == throne_) return mover == CellAttacker ? cells_[cell] == CellEmpty : true;
        return hostile_[mover == CellAttacker][cells_[cell]];
    }
    bool ClosesOnKing(int cell) const;
    bool KingTakenBy(int mover) const;
    bool OnEdge(int cell) const;
    bool Escaped(int cell) const;
    template <typename Take>
    void ForEachWallTaken(int at, Take take) const;
    bool KingInFort() const;
    bool MayCloseRing(int cell) const;
    bool DefendersEncircled() const;
    bool Sandwiched(int victim, int far, int mover, int enemy) const;
    template <typename Take>
    void ForEachTaken(int cell, Take take) const;
    void Capture(int at, MoveUndo& undo);
    void RemovePiece(int list, int cell, MoveUndo& undo);
    void Place(int cell, int piece);
    void Clear(int cell);
    int CountFrom(int cell, bool king) const;

    Rules rules_;
    std::array<std::int8_t, CellCount> cells_{};
    std::array<std::uint8_t, CellCount> slot_{};   // a piece's place in its list
    std::array<std::array<std::uint8_t, MaxBoardSide * MaxBoardSide>, 2> pieces_{};   // 0 defenders, 1 attackers
    std::array<int, 2> pieceCount_{};
    // The taken cells of each row (bit col) and each column (bit row), walls
    // and corners included, the squares where only the King may stop, and the
    // empty corners, for counting moves without walking them.
    std::array<std::uint32_t, CellStride> rowTaken_{}, colTaken_{};
    std::array<std::uint32_t, CellStride> rowKingOnly_{}, colKingOnly_{};
    std::array<std::uint32_t, CellStride> rowCorners_{}, colCorners_{};
    // Whether a cell closes a sandwich, by what it holds: [0] for a moving
    // defender, [1] for a moving attacker.
    std::array<std::array<bool, CellCorner + 1>, 2> hostile_{};
    int width_ = 0, height_ = 0, centre_ = 0, king_ = -1, side_ = 0;
    // The throne when it is hostile, else a cell no square has.
    int throne_ = -1;
    GameState state_ = GameState::GoesOn;
    std::uint64_t key_ = 0;
};

// The rule board after the side's move in the position; the board must
// allow the move.
RuleBoard BoardAfter(const Position& g, int side, const Move& m);
// The position after the side's move, which the rule board must allow.
Position PositionAfter(const Position& g, int side, const Move& m);

// True when side (AttackerCode or DefenderCode) may make the move in the
// game's position as it stands, the King's move onto a corner included.
bool IsLegalMove(const Position& g, int side, const Move& m);

}  // namespace jv
