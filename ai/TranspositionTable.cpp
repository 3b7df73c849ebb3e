#include "ai/TranspositionTable.h"

namespace jv {

namespace {

std::uint64_t Pack(const TableEntry& e) {
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(e.Score)) |
           static_cast<std::uint64_t>(e.Move.From) << 32 | static_cast<std::uint64_t>(e.Move.To) << 40 |
           static_cast<std::uint64_t>(static_cast<std::uint8_t>(e.Depth)) << 48 |
           static_cast<std::uint64_t>(e.Kind) << 56;
}

TableEntry Unpack(std::uint64_t key, std::uint64_t data) {
    TableEntry e;
    e.Key = key;
    e.Score = static_cast<std::int32_t>(static_cast<std::uint32_t>(data));
    e.Move = BoardMove{static_cast<std::uint8_t>(data >> 32), static_cast<std::uint8_t>(data >> 40)};
    e.Depth = static_cast<std::int8_t>(static_cast<std::uint8_t>(data >> 48));
    e.Kind = static_cast<Bound>(data >> 56);
    return e;
}

}  // namespace

TranspositionTable::TranspositionTable(std::size_t megabytes) {
    if (megabytes == 0) return;
    // A power of two, so that a key's slot is a mask of its low bits.
    std::size_t size = 1;
    while (size * 2 * sizeof(Slot) <= megabytes * 1024 * 1024) size *= 2;
    slots_ = std::make_unique<Slot[]>(size);
    mask_ = size - 1;
}

bool TranspositionTable::Find(std::uint64_t key, TableEntry& entry) const {
    if (!slots_) return false;
    const Slot& slot = slots_[key & mask_];
    const std::uint64_t data = slot.Data.load(std::memory_order_relaxed);
    if ((slot.Check.load(std::memory_order_relaxed) ^ data) != key) return false;
    entry = Unpack(key, data);
    return entry.Kind != Bound::None;
}

void TranspositionTable::Store(const TableEntry& entry) {
    if (!slots_) return;
    Slot& slot = slots_[entry.Key & mask_];
    const std::uint64_t data = Pack(entry);
    slot.Check.store(entry.Key ^ data, std::memory_order_relaxed);
    slot.Data.store(data, std::memory_order_relaxed);
}

}  // namespace jv
