#include "records/ProgramFolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace jv {

std::string FindProgramFolder() {
    std::string folder;
    if (const char* home = std::getenv("JARLSVAKT_HOME"); home && *home) {
        folder = home;
    } else {
        std::error_code ec;
        const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
        folder = ec ? std::filesystem::current_path(ec).string() : exe.parent_path().string();
    }
    if (folder.empty() || (folder.back() != '/' && folder.back() != '\\')) folder += '/';
    return folder;
}

}  // namespace jv
