#pragma once
#include <atomic>
#include <cstdint>
#include <memory>

#include "core/RuleBoard.h"

namespace jv {

// The strong player's memory of searched positions, by Zobrist key: the best
// move found, the score and whether it is exact or a bound, and the depth it
// was searched to. One entry per slot; a new result replaces the old. Threads
// searching together share one table without a lock: a slot holds its entry
// and the entry's bits mixed into the key, so an entry torn by two threads
// writing at once no longer matches its key and is not found.

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

    // The entry of the key into `entry`; false when the table has none.
    bool Find(std::uint64_t key, TableEntry& entry) const;
    void Store(const TableEntry& entry);

private:
    struct Slot {
        std::atomic<std::uint64_t> Check{0};   // the key mixed with the data
        std::atomic<std::uint64_t> Data{0};
    };
    std::unique_ptr<Slot[]> slots_;
    std::uint64_t mask_ = 0;
};

}  // namespace jv
