#pragma once
#include <cstdint>
#include <vector>

#include "core/RuleBoard.h"

namespace jv {

// The strong player's memory of searched positions, by Zobrist key: the best
// move found, the score and whether it is exact or a bound, and the depth it
// was searched to. One entry per slot; a new result replaces the old.

enum class Bound : std::uint8_t { None, Exact, Lower, Upper };

struct TableEntry {
    std::uint64_t Key = 0;
    std::int32_t Score = 0;
    BoardMove Move;
    std::int8_t Depth = 0;
    Bound Kind = Bound::None;
};

class TranspositionTable {
public:
    // A table of about the given size; 0 makes a table that remembers nothing.
    explicit TranspositionTable(std::size_t megabytes);

    // The entry of the key, or nullptr.
    const TableEntry* Find(std::uint64_t key) const;
    void Store(const TableEntry& entry);

private:
    std::vector<TableEntry> entries_;
    std::uint64_t mask_ = 0;
};

}  // namespace jv
