#include "BenchRank.h"

#include <chrono>
#include <ctime>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "Positions.h"
#include "Timing.h"
#include "ai/AttackerRank.h"
#include "ai/DefenderRank.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/SilentView.h"
#include "session/ComputerMoves.h"
#include "session/LayoutCommands.h"
#include "session/SelfPlay.h"

namespace jv::bench {

namespace {

// A game freshly loaded from a layout file, as the program starts one.
struct LoadedGame {
    SilentView View;
    Game G;
    bool Load(const std::string& path) {
        G.View = &View;
        G.ProgramFolder = std::string(JARLSVAKT_DATA_DIR) + "/";
        BuildColumnLetters(G);
        LoadLayout(G, path);
        return G.LayoutFile == path;
    }
};

// Processor time of one call, in microseconds, averaged over calls: on a
// shared machine it shows the cost of the work without the waits that the
// other processes cause in the median of Timing.h.
template <typename Body>
double CpuMicros(Body body, int calls = 200) {
    timespec start{}, end{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &start);
    for (int i = 0; i < calls; ++i) body();
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
    return ((end.tv_sec - start.tv_sec) * 1e6 + (end.tv_nsec - start.tv_nsec) / 1e3) / calls;
}

// Games between the two computer players on patf.txt. From the opening
// itself no defender rule names a square a defender can reach, so each game
// starts after ten rounds of random moves; the random draws are seeded from a
// clock that ticks once per reading, so the games repeat exactly.
void BenchSelfPlay() {
    long long moves = 0;
    double seconds = 0;
    std::string ends;
    for (int game = 1; game <= 10; ++game) {
        LoadedGame loaded;
        if (!loaded.Load(std::string(JARLSVAKT_DATA_DIR) + "/patf.txt")) return;
        loaded.G.Random.Timer = TickingClock(1000.0 * game);
        RedGreenRandom(loaded.G);
        const auto start = std::chrono::steady_clock::now();
        const AutoGameResult result = PlayAutoGame(loaded.G, 300);
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
        seconds += spent.count();
        moves += result.Moves;
        ends += std::string(ends.empty() ? "" : "; ") + GameEndText(result.End) + " after " +
                std::to_string(result.Moves);
    }
    std::printf("%-28s %-22s %12.0f moves/s\n", "self-play (10 games)", "patf.txt + 20 random", moves / seconds);
    std::printf("self-play games: %s\n", ends.c_str());
}

}  // namespace

bool BenchRank() {
    for (const BenchPosition& p : BenchPositions()) {
        LoadedGame loaded;
        if (!loaded.Load(p.Path)) {
            std::printf("cannot read %s\n", p.Path.c_str());
            return false;
        }
        Game& g = loaded.G;
        // Each call starts from freshly analysed tables, as after a move; the
        // analysis is a few microseconds of the figure.
        auto attackers = [&] {
            AnalysePosition(g);
            GetAttackerRank(g);
        };
        auto defenders = [&] {
            AnalysePosition(g);
            GetDefenderRank(g, 1);
        };
        Report("GetAttackerRank", p.Name, MedianMicros(attackers, 11, 20));
        Report("  processor time", p.Name, CpuMicros(attackers));
        Report("GetDefenderRank(1)", p.Name, MedianMicros(defenders, 11, 20));
        Report("  processor time", p.Name, CpuMicros(defenders));
    }
    BenchSelfPlay();
    return true;
}

}  // namespace jv::bench
