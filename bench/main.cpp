#include <cstdio>
#include <string>
#include <vector>

#include "BenchPerft.h"
#include "BenchRank.h"
#include "Timing.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "records/LayoutFile.h"
#include "support/RecordingView.h"

namespace {

struct Position {
    const char* name;
    std::string path;
};

std::vector<Position> Positions() {
    return {
        {"patf.txt (11x11)", std::string(JARLSVAKT_DATA_DIR) + "/patf.txt"},
        {"crowded 14x14", std::string(JARLSVAKT_TEST_DATA_DIR) + "/crowded14.txt"},
    };
}

}  // namespace

int main() {
    using namespace jv;
    std::printf("%-28s %-22s %15s\n", "what", "position", "median per call");
    for (const Position& p : Positions()) {
        test::RecordingView view;
        Game g;
        g.View = &view;
        BuildColumnLetters(g);
        if (ReadLayoutFile(g, p.path)) {
            std::printf("cannot read %s\n", p.path.c_str());
            return 2;
        }
        bench::Report("AnalysePosition", p.name, bench::MedianMicros([&] { AnalysePosition(g); }));
    }
    if (!bench::BenchPerft()) return 2;
    if (!bench::BenchRank()) return 2;
    return 0;
}
