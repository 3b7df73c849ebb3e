#pragma once
#include <array>
#include <cassert>

namespace jv {

// A per-square table over the board's whole index range: Col and Row each
// run from -2 to 16, which covers the squares in play (1..14), the frame and
// two spare rings. Every test that looks up to two squares past a square in
// play therefore stays inside the array without a bounds check.
template <typename T>
class Grid {
public:
    static constexpr int Low = -2;
    static constexpr int High = 16;
    static constexpr int Span = High - Low + 1;   // 19

    T& operator()(int col, int row) { return cells_[Checked(col, row)]; }
    const T& operator()(int col, int row) const { return cells_[Checked(col, row)]; }

    void Fill(const T& value) { cells_.fill(value); }

    bool operator==(const Grid&) const = default;

    // Flat element number: col + 19 * row + 40, row after row of 19.
    static constexpr int Index(int col, int row) { return col + Span * row + 40; }

private:
    static int Checked(int col, int row) {
        assert(col >= Low && col <= High && row >= Low && row <= High);
        return Index(col, row);
    }
    std::array<T, Span * Span> cells_{};
};

}  // namespace jv
