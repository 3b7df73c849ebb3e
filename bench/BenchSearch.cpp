#include "BenchSearch.h"

#include <chrono>
#include <cstdio>
#include <string>

#include "Positions.h"
#include "Timing.h"
#include "session/ComputerMoves.h"
#include "ai/Search.h"
#include "core/Board.h"
#include "records/LayoutFile.h"
#include "core/SilentView.h"

namespace jv::bench {

namespace {

const char* SideName(int side) { return side == AttackerCode ? "attackers" : "defenders"; }

struct Timed {
    SearchResult Result;
    double WallMillis = 0, CpuMillis = 0;
};

Timed TimedSearch(const Game& g, int side, const SearchLimits& limits) {
    Timed t;
    const double cpu = ThreadCpuSeconds();
    const auto wall = std::chrono::steady_clock::now();
    t.Result = SearchBestMove(g, side, limits);
    t.WallMillis = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - wall).count();
    t.CpuMillis = (ThreadCpuSeconds() - cpu) * 1000;
    return t;
}

// patf.txt after rounds of ten seeded random moves a side: a middle game
// with the pieces spread out and nothing taken.
void MiddleGame(Game& g, int rounds, double seed) {
    g.Random.Timer = TickingClock(seed);
    for (int round = 0; round < rounds; ++round) RedGreenRandom(g);
}

}  // namespace

bool BenchSearch() {
    SilentView view;
    Game g;
    if (!ReadBenchLayout(g, view, "patf.txt")) return false;
    std::printf("\n%-12s %-10s %5s %12s %10s %10s %14s\n", "position", "side", "depth", "nodes", "wall ms",
                "cpu ms", "nodes/cpu s");
    auto print = [](const char* position, int side, const Timed& t) {
        const SearchResult& r = t.Result;
        std::printf("%-12s %-10s %5d %12llu %10.1f %10.1f %14.0f\n", position, SideName(side), r.Depth,
                    static_cast<unsigned long long>(r.Nodes), t.WallMillis, t.CpuMillis,
                    t.CpuMillis > 0 ? r.Nodes / (t.CpuMillis / 1000) : 0.0);
    };
    for (int side : {DefenderCode, AttackerCode})
        for (int depth : {5, 6}) {
            SearchLimits limits;
            limits.MaxDepth = depth;
            print("opening", side, TimedSearch(g, side, limits));
        }
    struct Middle {
        const char* Name;
        int Rounds;
        double Seed;
    };
    for (const Middle& m : {Middle{"middle 1", 1, 17}, Middle{"middle 2", 2, 34}, Middle{"middle 3", 2, 5}}) {
        Game middle = g;
        MiddleGame(middle, m.Rounds, m.Seed);
        const std::string name = m.Name;
        for (int side : {DefenderCode, AttackerCode}) {
            SearchLimits limits;
            limits.Millis = 2000;
            print(name.c_str(), side, TimedSearch(middle, side, limits));
        }
    }
    return true;
}

}  // namespace jv::bench
