#pragma once
// A view that keeps next to nothing, for driving the readers on thousands of
// inputs a second, and a scratch program folder for the files they look for.
// Header only: the fuzzing harnesses and the engine test that replays their
// findings both include it.

#include <cstdint>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <stdlib.h>   // mkdtemp

#include "core/SilentView.h"

namespace jv::fuzz {

// Answers the message box from a script (then DefaultAnswer) and the file
// dialog with one fixed name; remembers only how often it was asked and the
// last question, the rest of the screen is dropped.
class QuietView : public SilentView {
public:
    std::deque<int> Answers;
    int DefaultAnswer = 1;
    std::string FileChoice;

    int Shows = 0;
    std::string LastText, LastStyle;
    int LastAnswer = 0;

    int Show(const std::string& text, const std::string& style) override {
        ++Shows;
        LastText = text;
        LastStyle = style;
        LastAnswer = DefaultAnswer;
        if (!Answers.empty()) {
            LastAnswer = Answers.front();
            Answers.pop_front();
        }
        return LastAnswer;
    }
    std::string ChooseFile(FileMode, const std::string&, const std::string&, const std::string&) override {
        return FileChoice;
    }
};

// A program folder of this process's own (with a trailing "/"), made on first
// use and removed when the process ends normally.
inline const std::string& ScratchFolder() {
    struct Folder {
        std::string Path;
        Folder() {
            std::string pattern = (std::filesystem::temp_directory_path() / "jarlsvakt-fuzz-XXXXXX").string();
            if (!::mkdtemp(pattern.data())) std::abort();
            Path = pattern + "/";
        }
        ~Folder() {
            std::error_code ec;
            std::filesystem::remove_all(Path, ec);
        }
    };
    static const Folder folder;
    return folder.Path;
}

// Writes bytes to a file of the scratch folder, replacing it; returns its path.
inline std::string WriteScratchFile(const std::string& name, std::string_view content) {
    const std::string path = ScratchFolder() + name;
    std::ofstream(path, std::ios::binary | std::ios::trunc).write(content.data(),
                                                                  static_cast<std::streamsize>(content.size()));
    return path;
}

}  // namespace jv::fuzz
