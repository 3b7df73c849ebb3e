#include "records/FileTarget.h"

#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace fs = std::filesystem;

namespace jv {

namespace {

// As many links as the system itself follows before it gives up on a path.
constexpr int MaxLinks = 40;

// The refusal for a file of this type ("" for a regular file).
std::string RefusalOfType(mode_t mode) {
    if (S_ISREG(mode)) return "";
    if (S_ISDIR(mode)) return "is a folder, not a file";
    if (S_ISCHR(mode) || S_ISBLK(mode)) return "is a device, not a file";
    if (S_ISFIFO(mode)) return "is a pipe, not a file";
    if (S_ISSOCK(mode)) return "is a socket, not a file";
    return "is not a file";
}

}  // namespace

FileTarget FindFileTarget(const std::string& path) {
    FileTarget target;
    fs::path at(path);
    for (int links = 0;; ++links) {
        struct stat st {};
        if (::lstat(at.c_str(), &st) != 0) {
            target.Path = at.string();   // nothing there yet, or a folder that cannot be looked into
            return target;
        }
        if (!S_ISLNK(st.st_mode)) {
            target.Path = at.string();
            target.Refusal = RefusalOfType(st.st_mode);
            target.Exists = target.Refusal.empty();
            target.Permissions = st.st_mode & 07777;
            target.Owner = st.st_uid;
            target.Group = st.st_gid;
            return target;
        }
        std::error_code ec;
        const fs::path next = fs::read_symlink(at, ec);
        if (ec || links == MaxLinks) {
            target.Path = at.string();
            target.Refusal = "is a circle of symbolic links, not a file";
            return target;
        }
        at = next.is_absolute() ? next : at.parent_path() / next;
    }
}

}  // namespace jv
