#pragma once
#include <string>
#include <sys/types.h>

namespace jv {

// Where a write to a path lands: the file the path names once its symbolic
// links are followed, and whether a file may be written there at all.
struct FileTarget {
    std::string Path;             // the path with every symbolic link followed
    bool Exists = false;          // a regular file stands there
    mode_t Permissions = 0;       // its permission bits, when it exists
    uid_t Owner = 0;              // its owner and group, when it exists
    gid_t Group = 0;
    std::string Refusal;          // when something else stands there: "is a folder, not a file" and the like

    bool Refused() const { return !Refusal.empty(); }
};

// Follows the path's symbolic links (a relative link from its own folder,
// link after link) and looks at what stands at the end. A path where nothing
// stands yet, or whose folder cannot be looked into, is no refusal: the write
// itself then succeeds or fails.
FileTarget FindFileTarget(const std::string& path);

}  // namespace jv
