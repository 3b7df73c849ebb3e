#pragma once
#include <array>
#include <cstdint>

#include "core/Game.h"

namespace jv {

// The strong player's own copy of a position: a 16 x 16 array of cells with
// the pieces listed, moves made and taken back in place under the game's
// rules, and a Zobrist key kept up to date; it never touches the Game.

// What a cell holds. Wall is everything off the board; Corner is a Home
// corner, where only the King may go (and wins).
enum SearchCell : std::int8_t { CellEmpty, CellAttacker, CellDefender, CellKing, CellWall, CellCorner };

// Cells are numbered col + 16 * row; the board's squares have col and row 1..14.
constexpr int SearchStride = 16;
constexpr int SearchCells = SearchStride * SearchStride;
constexpr int CellOf(int col, int row) { return col + SearchStride * row; }
constexpr int ColOf(int cell) { return cell % SearchStride; }
constexpr int RowOf(int cell) { return cell / SearchStride; }

// Every empty square is reached by at most one piece from each side of it,
// and the King has at most four Home moves.
constexpr int MaxSearchMoves = 4 * MaxBoardSide * MaxBoardSide + 4;

struct SearchMove {
    std::uint8_t From = 0, To = 0;
    bool operator==(const SearchMove&) const = default;
};

// How the last move left the game.
enum class SearchStatus : std::uint8_t { Playing, KingHome, KingTaken };

// What Make changed, for Unmake.
struct SearchUndo {
    std::uint8_t Victims[4] = {};
    std::uint8_t Slots[4] = {};   // each victim's place in its piece list
    std::uint8_t Count = 0;
    std::int8_t Captured = CellEmpty;
    SearchStatus Status = SearchStatus::Playing;
    std::uint64_t Key = 0;
};

class SearchBoard {
public:
    // The game's position with side (AttackerCode or DefenderCode) to move.
    SearchBoard(const Position& g, int side);

    int SideToMove() const { return side_; }
    std::uint64_t Key() const { return key_; }
    SearchStatus Status() const { return status_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    int At(int cell) const { return cells_[cell]; }
    int King() const { return king_; }   // -1 when the King is not on the board
    int Attackers() const { return pieceCount_[1]; }
    int Defenders() const { return pieceCount_[0]; }   // without the King
    const std::uint8_t* AttackerCells() const { return pieces_[1].data(); }
    const std::uint8_t* DefenderCells() const { return pieces_[0].data(); }

    // The moves of the side to move, into out; returns their number.
    int Generate(SearchMove* out) const;
    // The moves of the side to move that end on one of the cells (each cell
    // listed once), found by looking back from each cell along its four lines.
    int GenerateOnto(const std::uint8_t* targets, int count, SearchMove* out) const;
    // The side to move's captures and its moves onto the squares beside the
    // King; for the defenders also every King move.
    int GenerateTactical(SearchMove* out) const;
    // True when the side to move may make the move between the two squares.
    bool Allows(const Move& m) const;
    // True when the move takes at least one piece (the King aside).
    bool Captures(SearchMove m) const;

    // Makes a move of the side to move: captures, the King home or taken.
    void Make(SearchMove m, SearchUndo& undo);
    void Unmake(SearchMove m, const SearchUndo& undo);
    // Passes the turn.
    void MakeNull() { side_ ^= 1; key_ ^= SideKey(); }
    void UnmakeNull() { MakeNull(); }

    // The King's moves onto a corner now (0 to 4); when lines is given, the
    // cells of those lines (the empty squares between him and the corner)
    // are marked in it.
    int KingRoutes(std::array<bool, SearchCells>* lines = nullptr) const;
    // Four attackers round the King, or three against the edge, a Home
    // corner counting as an attacker.
    bool KingSurrounded() const;

    // The number of move sequences of exactly depth moves, as jv::Perft counts them.
    std::uint64_t Perft(int depth);

private:
    static std::uint64_t PieceKey(int piece, int cell);
    static std::uint64_t SideKey();
    bool Hostile(int cell, int mover) const;
    void Capture(int at, SearchUndo& undo);
    void RemovePiece(int list, int cell, SearchUndo& undo);

    std::array<std::int8_t, SearchCells> cells_{};
    std::array<std::uint8_t, SearchCells> slot_{};   // a piece's place in its list
    std::array<std::array<std::uint8_t, MaxBoardSide * MaxBoardSide>, 2> pieces_{};   // 0 defenders, 1 attackers
    std::array<int, 2> pieceCount_{};
    int width_ = 0, height_ = 0, centre_ = 0, king_ = -1, side_ = 0;
    SearchStatus status_ = SearchStatus::Playing;
    std::uint64_t key_ = 0;
};

// True when side (AttackerCode or DefenderCode) may make the move in the
// game's position as it stands, the King's move onto a corner included.
bool IsLegalMove(const Position& g, int side, const Move& m);

}  // namespace jv
