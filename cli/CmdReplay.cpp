#include <iostream>
#include <vector>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/VbText.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"

namespace jv::cli {

// Every logged position, at the board size of the log's first line, as the
// replay in the program shows them.
int RunReplay(const Args& args) {
    return RunOnMovesLogArgument(args, "replay LOGFILE", [&](Game& g, const std::vector<std::string>& lines) {
        if (!ApplyLayoutLine(g, lines.front()).Ok()) {
            std::cerr << "Error reading Layout File:\n" << args[0] << '\n';
            return 2;
        }
        const long long n = static_cast<long long>(lines.size());
        for (long long k = 1; k <= n; ++k) {
            const std::string& line = lines[static_cast<std::size_t>(k - 1)];
            ApplyPositionRecord(g, line.size() > 4 ? line.substr(4) : std::string());
            std::cout << "Step" << Str(k) << " of" << Str(n) << '\n';
            PrintGrid(g, std::cout);
        }
        return 0;
    });
}

}  // namespace jv::cli
