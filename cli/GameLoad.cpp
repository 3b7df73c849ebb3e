#include "cli/GameLoad.h"

#include <iostream>

#include "cli/Commands.h"
#include "session/LayoutCommands.h"
#include "records/TextFile.h"

namespace jv::cli {

bool LoadLayoutArgument(Game& g, const std::string& name) {
    const std::string path = ResolveArgument(g, name);
    std::string line;
    // LoadLayout falls back on the previous layout when a file cannot be
    // read; a command must not rank some other position instead.
    if (ReadFirstLine(path, line)) {
        LoadLayout(g, path);
        if (g.LayoutFile == path) return true;
    }
    std::cerr << "Error reading Layout File:\n" << name << '\n';
    return false;
}

}  // namespace jv::cli
