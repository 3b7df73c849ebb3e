#include "cli/SoakMemory.h"

#include <fstream>
#include <string>
#include <vector>

// The C library's count of memory in use, where the allocator is its own:
// under AddressSanitizer it is not.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define JARLSVAKT_MALLINFO 1
#include <malloc.h>
#endif

namespace jv::cli {

namespace {

// The heap block the C library's allocator takes for a request of n bytes:
// n and its 8-byte header rounded up to 16, at least 32.
std::int64_t BlockBytes(std::size_t n) {
    const std::size_t block = (n + 8 + 15) & ~static_cast<std::size_t>(15);
    return static_cast<std::int64_t>(block < 32 ? 32 : block);
}

// A string's own heap block; short texts live inside the string object.
std::int64_t TextBytes(const std::string& text) {
    return text.capacity() > 15 ? BlockBytes(text.capacity() + 1) : 0;
}

std::int64_t ListBytes(const std::vector<std::string>& list) {
    std::int64_t bytes = list.capacity() > 0 ? BlockBytes(list.capacity() * sizeof(std::string)) : 0;
    for (const std::string& line : list) bytes += TextBytes(line);
    return bytes;
}

// "VmRSS:     1234 kB" from /proc/self/status; -1 when there is none.
std::int64_t StatusKiB(const std::string& field) {
    std::ifstream status("/proc/self/status");
    std::string name;
    std::int64_t value = -1;
    while (status >> name) {
        if (name == field + ":") {
            status >> value;
            return value;
        }
        status.ignore(1 << 16, '\n');
    }
    return -1;
}

}  // namespace

std::int64_t HeldBytes(const Game& g) {
    std::int64_t bytes = 0;
    for (const auto* list : {&g.List1A, &g.List2A, &g.List3, &g.List1, &g.List1D, &g.List2D,
                             &g.AttackerMovesRank, &g.DefenderMovesRank, &g.Undo, &g.EventLog})
        bytes += ListBytes(*list);
    for (int col = Grid<int>::Low; col <= Grid<int>::High; ++col)
        for (int row = Grid<int>::Low; row <= Grid<int>::High; ++row) bytes += TextBytes(g.MoveTargets(col, row));
    for (const std::string& text : g.CaptureChances) bytes += TextBytes(text);
    return bytes + TextBytes(g.KingCaptureSquares);
}

MemoryReading ReadMemory(const Game& g) {
    MemoryReading m;
#if defined(JARLSVAKT_MALLINFO)
    const struct mallinfo2 info = mallinfo2();
    m.InUse = static_cast<std::int64_t>(info.uordblks + info.hblkhd);
#endif
    m.Held = HeldBytes(g);
    m.RssKiB = StatusKiB("VmRSS");
    m.PeakRssKiB = StatusKiB("VmHWM");
    return m;
}

}  // namespace jv::cli
