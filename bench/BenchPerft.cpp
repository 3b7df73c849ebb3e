#include "BenchPerft.h"

#include <cstdio>
#include <string>

#include "Positions.h"
#include "Timing.h"
#include "core/Board.h"
#include "core/Perft.h"
#include "core/SilentView.h"
#include "records/LayoutFile.h"

namespace jv::bench {

bool BenchPerft() {
    SilentView view;
    Game g;
    if (!ReadBenchLayout(g, view, "patf.txt")) return false;
    for (int depth : {3, 4}) {
        std::uint64_t leaves = 0;
        const double micros = MedianMicros([&] { leaves = Perft(g, depth, DefenderCode); }, depth == 3 ? 11 : 5, 1);
        char what[32];
        std::snprintf(what, sizeof what, "Perft depth %d", depth);
        Report(what, "patf.txt (11x11)", micros);
        std::printf("%-28s %-22s %12llu leaves, %.1f million leaves per second\n", "", "",
                    static_cast<unsigned long long>(leaves), leaves / micros);
    }
    // Depth 5 with the attackers first is the count other tafl programs publish for this opening.
    const double start = ThreadCpuSeconds();
    const std::uint64_t leaves = Perft(g, 5, AttackerCode);
    const double seconds = ThreadCpuSeconds() - start;
    std::printf("%-28s %-22s %12.2f s processor time\n", "Perft depth 5, attackers", "patf.txt (11x11)", seconds);
    std::printf("%-28s %-22s %12llu leaves, %.1f million leaves per second\n", "", "",
                static_cast<unsigned long long>(leaves), leaves / seconds / 1e6);
    return true;
}

}  // namespace jv::bench
