#pragma once
#include <cstdio>
#include <string>
#include <vector>

#include "core/Board.h"
#include "core/SilentView.h"
#include "records/LayoutFile.h"

namespace jv::bench {

// The benchmarks' positions: every shipped layout, then the crowded 14x14
// position of the tests.
struct BenchPosition {
    const char* Name;
    std::string Path;
};

// Reads a shipped layout onto a game with the silent view; says so and
// answers false when it cannot.
inline bool ReadBenchLayout(Game& g, SilentView& view, const std::string& name) {
    const std::string path = std::string(JARLSVAKT_DATA_DIR) + "/" + name;
    g.View = &view;
    BuildColumnLetters(g);
    if (ReadLayoutFile(g, path).Ok()) return true;
    std::printf("cannot read %s\n", path.c_str());
    return false;
}

inline std::vector<BenchPosition> BenchPositions() {
    const std::string data = std::string(JARLSVAKT_DATA_DIR) + "/";
    return {
        {"patf.txt (11x11)", data + "patf.txt"},
        {"pattern1.txt (7x7)", data + "pattern1.txt"},
        {"pattern2.txt (9x9)", data + "pattern2.txt"},
        {"pattern3.txt (11x11)", data + "pattern3.txt"},
        {"pattern4.txt (13x13)", data + "pattern4.txt"},
        {"pattern5.txt (11x11)", data + "pattern5.txt"},
        {"crowded 14x14", std::string(JARLSVAKT_TEST_DATA_DIR) + "/crowded14.txt"},
    };
}

}  // namespace jv::bench
