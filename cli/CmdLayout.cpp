#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "records/PositionRecord.h"

namespace jv::cli {

int RunLayout(const Args& args) {
    if (args.size() != 1) {
        std::cerr << "usage: jarlsvakt-cli layout FILE|-\n";
        return 1;
    }
    CliView view;
    Game g;
    PrepareGame(g, view);
    if (!ReadLayoutArgument(g, args[0])) return 2;
    std::cout << LayoutLine(g) << '\n';
    PrintGrid(g, std::cout);
    return 0;
}

}  // namespace jv::cli
