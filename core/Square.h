#pragma once

namespace jv {

// The two types every rule speaks in: a square of the board and a move
// between two squares.

// A square of the board by column and row, 1-based; -1 is no square.
struct Square {
    int Col = -1;
    int Row = -1;
    friend bool operator==(const Square&, const Square&) = default;
};

// A move: the piece on From carried to To.
struct Move {
    Square From;
    Square To;
    friend bool operator==(const Move&, const Move&) = default;
};

}  // namespace jv
