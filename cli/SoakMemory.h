#pragma once
#include <cstdint>

#include "core/Game.h"

namespace jv::cli {

// The process's memory at one moment.
struct MemoryReading {
    std::int64_t InUse = -1;     // bytes the allocator has handed out and not had back; -1 unknown
    std::int64_t Held = 0;       // of which the game's texts and lists hold (see HeldBytes)
    std::int64_t RssKiB = -1;    // resident set; -1 unknown
    std::int64_t PeakRssKiB = -1;
};

MemoryReading ReadMemory(const Game& g);

// The bytes the allocator gives the game's texts: every list (the undo
// history and the event log among them), the move targets of every square
// and the analysis texts, each string counted as the heap block it takes.
std::int64_t HeldBytes(const Game& g);

}  // namespace jv::cli
