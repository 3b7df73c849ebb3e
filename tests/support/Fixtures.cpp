#include "support/Fixtures.h"

#include <atomic>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "core/Board.h"

namespace jv::test {

namespace fs = std::filesystem;

TestGame::TestGame() {
    static std::atomic<int> counter{0};
    folder = fs::temp_directory_path() /
             ("jarlsvakt-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    fs::remove_all(folder);
    fs::create_directories(folder);
    g.ProgramFolder = folder.string() + "/";
    g.View = &view;
    BuildColumnLetters(g);
}

TestGame::~TestGame() {
    std::error_code ec;
    fs::remove_all(folder, ec);
}

void TestGame::CopyData(const std::string& name) {
    for (const auto& entry : fs::directory_iterator(fs::path(JARLSVAKT_DATA_DIR)))
        if (name.empty() || entry.path().filename() == name)
            fs::copy_file(entry.path(), folder / entry.path().filename(), fs::copy_options::overwrite_existing);
}

std::string TestGame::WriteFile(const std::string& name, const std::string& content) {
    const std::string path = Path(name);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string TestGame::ReadFile(const std::string& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string TestGame::Path(const std::string& name) const { return (folder / name).string(); }

std::string DataPath(const std::string& name) { return std::string(JARLSVAKT_DATA_DIR) + "/" + name; }
std::string TestDataPath(const std::string& name) { return std::string(JARLSVAKT_TEST_DATA_DIR) + "/" + name; }

}  // namespace jv::test
