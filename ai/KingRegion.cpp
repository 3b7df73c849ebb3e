#include "ai/KingRegion.h"

#include <bit>
#include <cstdint>
#include <vector>

namespace jv {

namespace {

// A set of cells, one bit a cell, grown by steps of one cell in the four
// directions. The wall round the board is never open, so a step that wraps
// from one row's end to the next row's start lands on a wall and is dropped.
struct Cells {
    std::uint64_t Word[CellCount / 64] = {};

    void Add(int cell) { Word[cell / 64] |= std::uint64_t{1} << (cell % 64); }
    int Count() const {
        int n = 0;
        for (std::uint64_t w : Word) n += std::popcount(w);
        return n;
    }
    bool Meets(const Cells& other) const {
        for (int i = 0; i < CellCount / 64; ++i)
            if (Word[i] & other.Word[i]) return true;
        return false;
    }
    // The given columns (bit c is column c) of a row.
    void AddRow(int row, std::uint64_t cols) { Word[row * CellStride / 64] |= cols << (row * CellStride % 64); }
};

// The cells one step from `from` (and `from` itself), kept to the open ones.
Cells Grown(const Cells& from, const Cells& open) {
    constexpr int Words = CellCount / 64;
    Cells to;
    for (int i = 0; i < Words; ++i) {
        std::uint64_t w = from.Word[i];
        w |= from.Word[i] << 1 | (i > 0 ? from.Word[i - 1] >> 63 : 0);
        w |= from.Word[i] >> 1 | (i + 1 < Words ? from.Word[i + 1] << 63 : 0);
        w |= from.Word[i] << CellStride | (i > 0 ? from.Word[i - 1] >> (64 - CellStride) : 0);
        w |= from.Word[i] >> CellStride | (i + 1 < Words ? from.Word[i + 1] << (64 - CellStride) : 0);
        to.Word[i] = w & open.Word[i];
    }
    return to;
}

bool Same(const Cells& a, const Cells& b) {
    for (int i = 0; i < CellCount / 64; ++i)
        if (a.Word[i] != b.Word[i]) return false;
    return true;
}

// Every square the King's side may pass: all but the attackers'.
Cells OpenCells(const RuleBoard& b) {
    Cells open;
    const std::uint64_t row = ((std::uint64_t{1} << b.Width()) - 1) << 1;
    for (int r = 1; r <= b.Height(); ++r) open.AddRow(r, row);
    const std::uint8_t* attackers = b.AttackerCells();
    for (int i = 0; i < b.Attackers(); ++i) open.Word[attackers[i] / 64] &= ~(std::uint64_t{1} << (attackers[i] % 64));
    return open;
}

// The squares where the King escapes: the corners, or every edge square.
Cells EscapeCells(const RuleBoard& b) {
    Cells escape;
    const std::uint64_t ends = std::uint64_t{1} << 1 | std::uint64_t{1} << b.Width();
    const std::uint64_t whole = ((std::uint64_t{1} << b.Width()) - 1) << 1;
    const bool edges = b.RuleSet().KingEscape == Escape::Edges;
    for (int r = 1; r <= b.Height(); ++r) {
        const bool endRow = r == 1 || r == b.Height();
        escape.AddRow(r, endRow ? (edges ? whole : ends) : edges ? ends : 0);
    }
    return escape;
}

// The regions found lately on this thread, by the open squares and the
// King's square: a search meets the same ring again and again, as most moves
// leave the attackers where they were.
struct RememberedRegion {
    std::uint64_t Key = 0;
    KingRegion Region;
};

std::uint64_t RegionKey(const Cells& open, int king) {
    std::uint64_t key = static_cast<std::uint64_t>(king + 1) * 0x9E3779B97F4A7C15ull;
    for (std::uint64_t w : open.Word) key = (key ^ w) * 0xFF51AFD7ED558CCDull, key ^= key >> 29;
    return key;
}

}  // namespace

KingRegion FindKingRegion(const RuleBoard& b) {
    if (b.King() < 0) return {};
    const Cells open = OpenCells(b);
    constexpr std::size_t Remembered = 1 << 14;
    thread_local std::vector<RememberedRegion> remembered(Remembered);
    const std::uint64_t key = RegionKey(open, b.King()) ^ static_cast<std::uint64_t>(b.RuleSet().KingEscape);
    RememberedRegion& slot = remembered[key % Remembered];
    if (slot.Key == key && key != 0) return slot.Region;
    Cells region;
    region.Add(b.King());
    for (Cells next = Grown(region, open); !Same(next, region); next = Grown(region, open)) region = next;
    slot = RememberedRegion{key, KingRegion{region.Count(), region.Meets(EscapeCells(b))}};
    return slot.Region;
}

}  // namespace jv
