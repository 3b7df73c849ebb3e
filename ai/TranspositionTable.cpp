#include "ai/TranspositionTable.h"

namespace jv {

TranspositionTable::TranspositionTable(std::size_t megabytes) {
    if (megabytes == 0) return;
    // A power of two, so that a key's slot is a mask of its low bits.
    std::size_t size = 1;
    while (size * 2 * sizeof(TableEntry) <= megabytes * 1024 * 1024) size *= 2;
    entries_.resize(size);
    mask_ = size - 1;
}

const TableEntry* TranspositionTable::Find(std::uint64_t key) const {
    if (entries_.empty()) return nullptr;
    const TableEntry& entry = entries_[key & mask_];
    return entry.Kind != Bound::None && entry.Key == key ? &entry : nullptr;
}

void TranspositionTable::Store(const TableEntry& entry) {
    if (!entries_.empty()) entries_[entry.Key & mask_] = entry;
}

}  // namespace jv
