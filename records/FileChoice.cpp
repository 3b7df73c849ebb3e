#include "records/FileChoice.h"

#include <filesystem>
#include <system_error>

namespace jv {

std::string ChooseGameFile(Game& g, FileMode mode, const std::string& title) {
    namespace fs = std::filesystem;
    std::error_code remembered;
    const fs::path before = fs::current_path(remembered);
    std::string name = g.View->ChooseFile(mode, title, "*.txt", "Game Files");
    std::error_code ignored;
    if (!remembered) fs::current_path(before, ignored);
    return name;
}

}  // namespace jv
