#pragma once
// A game of its own for each test: a recording view and a temporary program folder, removed afterwards.
#include <filesystem>
#include <string>

#include "core/Game.h"
#include "support/RecordingView.h"

namespace jv::test {

// A game with a recording view and a program folder of its own (a fresh
// temporary folder, removed afterwards), with the column letters built.
struct TestGame {
    TestGame();
    ~TestGame();
    TestGame(const TestGame&) = delete;
    TestGame& operator=(const TestGame&) = delete;

    Game g;
    RecordingView view;
    std::filesystem::path folder;

    // Copies shipped data files (all of them when no name is given) into the
    // program folder.
    void CopyData(const std::string& name = "");
    // Writes a file into the program folder; returns its full path.
    std::string WriteFile(const std::string& name, const std::string& content);
    // Reads a file of the program folder whole ("" when missing).
    std::string ReadFile(const std::string& name) const;
    // A full path in the program folder.
    std::string Path(const std::string& name) const;
};

// The shipped data folder and the test data folder of the source tree.
std::string DataPath(const std::string& name);
std::string TestDataPath(const std::string& name);

}  // namespace jv::test
