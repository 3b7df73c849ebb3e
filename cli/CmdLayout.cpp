#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "records/PositionRecord.h"

namespace jv::cli {

int RunLayout(const Args& args) {
    return RunOnLayoutArgument(args, "layout FILE|-", [](Game& g) {
        std::cout << LayoutLine(g) << '\n';
        PrintGrid(g, std::cout);
    });
}

}  // namespace jv::cli
