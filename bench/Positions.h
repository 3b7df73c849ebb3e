#pragma once
#include <string>
#include <vector>

namespace jv::bench {

// The benchmarks' positions: every shipped layout, then the crowded 14x14
// position of the tests.
struct BenchPosition {
    const char* Name;
    std::string Path;
};

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
