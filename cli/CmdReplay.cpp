#include <iostream>
#include <vector>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/VbText.h"
#include "records/GameRecord.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"

namespace jv::cli {

namespace {

const char* const ReplayUsage = "replay LOGFILE|RECORD.otg";

void PrintStep(const Game& g, long long k, long long n) {
    std::cout << "Step" << Str(k) << " of" << Str(n) << '\n';
    PrintGrid(g, std::cout);
}

// Every position of an OpenTafl game record, its start first; a move the
// rules refuse ends the replay with the reason.
int ReplayGameRecord(const std::string& name) {
    CommandGame game;
    std::string text;
    if (!ReadWholeFile(ResolveArgument(game.g, name), text)) {
        std::cerr << "Error reading game record:\n" << name << '\n';
        return 2;
    }
    const OtnGameResult record = ReadOtnGame(text);
    game.g.GameRules = record.GameRules;
    const long long n = static_cast<long long>(record.Positions.size());
    for (long long k = 1; k <= n; ++k) {
        if (!ApplyLayoutLine(game.g, record.Positions[static_cast<std::size_t>(k - 1)]).Ok()) break;
        PrintStep(game.g, k, n);
    }
    if (record.Ok) return 0;
    std::cerr << "Error in game record " << name << ":\n" << record.Reason << '\n';
    return 2;
}

}  // namespace

// Every logged position, at the board size of the log's first line, as the
// replay in the program shows them; or every position of a game record.
int RunReplay(const Args& args) {
    if (args.size() == 1 && IsGameRecord(args[0])) return ReplayGameRecord(args[0]);
    return RunOnMovesLogArgument(args, ReplayUsage, [&](Game& g, const std::vector<std::string>& lines) {
        if (!ApplyLayoutLine(g, lines.front()).Ok()) {
            std::cerr << "Error reading Layout File:\n" << args[0] << '\n';
            return 2;
        }
        const long long n = static_cast<long long>(lines.size());
        for (long long k = 1; k <= n; ++k) {
            const std::string& line = lines[static_cast<std::size_t>(k - 1)];
            ApplyPositionRecord(g, line.size() > 4 ? line.substr(4) : std::string());
            PrintStep(g, k, n);
        }
        return 0;
    });
}

}  // namespace jv::cli
