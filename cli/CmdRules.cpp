#include <iomanip>
#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "records/LayoutFile.h"
#include "records/TextFile.h"

namespace jv::cli {

// Every rule set, one a line: its name, the board of its opening, the
// opening's layout file in the program's folder, and its OpenTafl rules keys.
// An opening that cannot be read shows its board as "?" and exits with 2.
int RunRules(const Args& args) {
    if (!HasArguments(args, 0, "rules")) return 1;
    int exitCode = 0;
    for (const Rules& rules : RuleSets()) {
        CommandGame game(true);
        const std::string layout(rules.Layout);
        std::string board = "?";
        if (ReadLayoutFile(game.g, InProgramFolder(game.g, layout)).Ok())
            board = std::to_string(game.g.BoardWidth) + "x" + std::to_string(game.g.BoardHeight);
        else
            exitCode = 2;
        std::cout << std::left << std::setw(11) << rules.Name << ' ' << std::setw(6) << board << ' ' << std::setw(15)
                  << layout << ' ' << rules.OpenTafl << '\n';
    }
    return exitCode;
}

}  // namespace jv::cli
