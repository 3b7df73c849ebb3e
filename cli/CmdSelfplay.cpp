#include <chrono>
#include <filesystem>
#include <iostream>
#include <map>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/VbText.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/SelfPlay.h"

namespace jv::cli {

namespace {

const char* const SelfplayUsage =
    "usage: jarlsvakt-cli selfplay FILE --games N [--max-moves M] [--seed S] [--log DIR] [--rules NAME]\n";

struct SelfplayOptions {
    std::string File;
    int Games = 0;
    int MaxMoves = 300;
    bool Seeded = false;
    long long Seed = 0;
    std::string LogFolder;
    Rules GameRules = Rules::Classic();
};

bool ParseOptions(const Args& args, SelfplayOptions& o) {
    const auto file = [&](const std::string& a) { return o.File.empty() && !(o.File = a).empty(); };
    const auto option = [&](const std::string& a, const std::string& value) {
        long long n = 0;
        if (a == "--log") o.LogFolder = value;
        else if (a == "--rules") return ReadRulesOption(value, o.GameRules);
        else if (!ReadCount(value, n)) return false;
        else if (a == "--games") o.Games = static_cast<int>(n);
        else if (a == "--max-moves") o.MaxMoves = static_cast<int>(n);
        else if (a == "--seed") o.Seed = n;
        else return false;
        o.Seeded = o.Seeded || a == "--seed";
        return true;
    };
    return ReadArguments(args, file, option) && !o.File.empty() && o.Games > 0;
}

// With a seed, the timer that seeds the random draws runs from a fixed
// start in steps of one tick, so a run can be repeated exactly.
void SeedTimer(Game& g, long long seed, int game) {
    g.Random.Timer = TickingClock(static_cast<double>(seed) + 1000.0 * game);
}

}  // namespace

int RunSelfplay(const Args& args) {
    SelfplayOptions o;
    if (!ParseOptions(args, o)) {
        std::cerr << SelfplayUsage;
        return 1;
    }
    // The automatic game is the classic players' alone.
    if (!ClassicPlayersMayPlay(o.GameRules, "selfplay")) return 1;
    if (!o.LogFolder.empty()) {
        std::error_code ec;
        std::filesystem::create_directories(o.LogFolder, ec);
    }

    std::map<GameEnd, int> ends;
    long long totalMoves = 0;
    const auto started = std::chrono::steady_clock::now();
    for (int game = 1; game <= o.Games; ++game) {
        CommandGame played(true);
        Game& g = played.g;
        if (!LoadLayoutArgument(g, o.File)) return 2;
        if (o.Seeded) SeedTimer(g, o.Seed, game);
        if (!o.LogFolder.empty()) {
            g.MovesLogFile = (std::filesystem::absolute(o.LogFolder) / ("game" + Format(game, "0000") + ".txt")).string();
            g.Check2 = true;
        }

        const AutoGameResult result = PlayAutoGame(g, o.MaxMoves);
        // The last line holds the final position, as when recording stops.
        const WriteResult last = g.MovesLogFile.empty() ? WriteResult{true, ""} : AppendLine(g.MovesLogFile, LayoutLine(g));
        if (!last.Ok())
            std::cerr << "Moves Log File:\n" << g.MovesLogFile << '\n' << last.Problem("could not be written") << '\n';
        std::cout << "game " << game << ": " << GameEndText(result.End) << " after " << result.Moves << " moves\n";
        ++ends[result.End];
        totalMoves += result.Moves;
    }
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - started;

    std::cout << o.Games << " games:";
    const char* separator = " ";
    for (GameEnd end : {GameEnd::KingCaptured, GameEnd::KingAtHome, GameEnd::KingFreeRun,
                        GameEnd::DefendersWithoutMove, GameEnd::AttackersWithoutMove, GameEnd::MoveLimit}) {
        std::cout << separator << GameEndText(end) << ' ' << ends[end];
        separator = ", ";
    }
    std::cout << '\n' << totalMoves << " moves in " << Format(static_cast<long long>(spent.count() * 1000), "0")
              << " ms\n";
    return 0;
}

}  // namespace jv::cli
