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
    return true;
}

}  // namespace jv::bench
