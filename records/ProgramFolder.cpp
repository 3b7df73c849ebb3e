#include "records/ProgramFolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace jv {

namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

// The standard application data location of the desktop (the one Qt names
// AppDataLocation), so that the folder is the same whichever part asks.
fs::path UserDataFolder() {
    const std::string xdg = Environment("XDG_DATA_HOME");
    const fs::path base = xdg.empty() ? fs::path(Environment("HOME")) / ".local/share" : fs::path(xdg);
    return base / "JarlsVakt";
}

// Copies the shipped files the user does not have yet; a file the user has
// changed (a scheme, a layout) is never overwritten.
void FillFrom(const fs::path& shipped, const fs::path& folder) {
    std::error_code ec;
    fs::create_directories(folder, ec);
    for (const auto& entry : fs::directory_iterator(shipped, ec)) {
        fs::copy_file(entry.path(), folder / entry.path().filename(), fs::copy_options::skip_existing, ec);
    }
}

std::string ExecutableFolder() {
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec) return fs::current_path(ec).string();
    const fs::path folder = exe.parent_path();
    // A build folder has the shipped data beside the executable; an installed
    // program cannot write beside itself, so it works in the user's folder.
    const fs::path shipped = folder.parent_path() / "share/jarlsvakt";
    if (fs::exists(folder / "all.col", ec) || !fs::exists(shipped / "all.col", ec)) return folder.string();
    const fs::path user = UserDataFolder();
    FillFrom(shipped, user);
    return user.string();
}

}  // namespace

std::string FindProgramFolder() {
    std::string folder = Environment("JARLSVAKT_HOME");
    if (folder.empty()) folder = ExecutableFolder();
    if (folder.empty() || (folder.back() != '/' && folder.back() != '\\')) folder += '/';
    return folder;
}

}  // namespace jv
