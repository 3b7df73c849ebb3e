#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "fuzz/ReaderRuns.h"
#include "records/TextFile.h"
#include "support/Fixtures.h"

using jv::fuzz::Reader;
using jv::fuzz::Readers;

namespace jv::fuzz {
// A reader shows as its name in the test's messages.
void PrintTo(const Reader& reader, std::ostream* out) { *out << reader.Name; }
}  // namespace jv::fuzz

namespace {

namespace fs = std::filesystem;

// The files of a folder, in name order (none when the folder is missing).
std::vector<fs::path> FilesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(folder, ec))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

class FuzzRegressions : public testing::TestWithParam<Reader> {};

}  // namespace

TEST_P(FuzzRegressions, EveryKeptInputIsReadWithinTheReadersPromises) {
    // Bad files never crash a reader, and each keeps its promises: what it
    // accepts, what it refuses and what it leaves as it was.
    const Reader reader = GetParam();
    std::vector<fs::path> files = FilesIn(fs::path(jv::test::TestDataPath("fuzz")) / reader.Name);
    const std::vector<fs::path> seeds = FilesIn(fs::path(JARLSVAKT_DATA_DIR) / ".." / "fuzz" / "corpus" / reader.Name);
    ASSERT_FALSE(seeds.empty()) << "no seed inputs for " << reader.Name;
    files.insert(files.end(), seeds.begin(), seeds.end());
    for (const fs::path& file : files) {
        std::string text;
        ASSERT_TRUE(jv::ReadWholeFile(file.string(), text)) << file;
        EXPECT_EQ(reader.Run(text), "") << file;
    }
}

INSTANTIATE_TEST_SUITE_P(Readers, FuzzRegressions, testing::ValuesIn(Readers()),
                         [](const testing::TestParamInfo<Reader>& info) { return std::string(info.param.Name); });
