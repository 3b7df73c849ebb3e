#include <cstdio>
#include <string>

#include "BenchPerft.h"
#include "BenchRank.h"
#include "BenchSearch.h"
#include "Positions.h"
#include "Timing.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/SilentView.h"
#include "records/LayoutFile.h"

int main(int argc, char** argv) {
    using namespace jv;
    // "search" alone runs only the strong player's figures.
    if (argc > 1 && std::string(argv[1]) == "search") return bench::BenchSearch() ? 0 : 2;
    std::printf("%-28s %-22s %15s\n", "what", "position", "median per call");
    for (const bench::BenchPosition& p : bench::BenchPositions()) {
        SilentView view;
        Game g;
        g.View = &view;
        BuildColumnLetters(g);
        if (!ReadLayoutFile(g, p.Path).Ok()) {
            std::printf("cannot read %s\n", p.Path.c_str());
            return 2;
        }
        bench::Report("AnalysePosition", p.Name, bench::MedianMicros([&] { AnalysePosition(g); }));
    }
    if (!bench::BenchPerft()) return 2;
    if (!bench::BenchRank()) return 2;
    if (!bench::BenchSearch()) return 2;
    return 0;
}
