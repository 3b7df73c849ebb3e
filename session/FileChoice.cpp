#include "session/FileChoice.h"

#include <filesystem>
#include <system_error>

namespace jv {

std::string ChooseGameFile(Game& g, FileMode mode, const std::string& title, const std::string& patterns,
                           const std::string& descriptions) {
    namespace fs = std::filesystem;
    std::error_code remembered;
    const fs::path before = fs::current_path(remembered);
    std::string name = g.View->ChooseFile(mode, title, patterns, descriptions);
    std::error_code ignored;
    if (!remembered) fs::current_path(before, ignored);
    return name;
}

}  // namespace jv
