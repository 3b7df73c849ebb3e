#include <cstdio>

#include "BenchPerft.h"
#include "BenchRank.h"
#include "Positions.h"
#include "Timing.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/SilentView.h"
#include "records/LayoutFile.h"

int main() {
    using namespace jv;
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
    return 0;
}
