#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <vector>

#include "cli/Commands.h"
#include "cli/Soak.h"
#include "core/Board.h"

namespace jv::cli {

namespace {

const char* const SoakUsage =
    "usage: jarlsvakt-cli soak FILE... [--moves N] [--seed S] [--log DIR] [--rules NAME]\n"
    "  a test run: the computer players play each other for N moves (10000) per layout, the random\n"
    "  mover standing in for a side whose player finds no move, each game that ends started again;\n"
    "  the moves log (DIR/soak-FILE, DIR the system's temporary folder by default) is then replayed\n";

struct Options {
    std::vector<std::string> Layouts;
    long long Moves = 10000;
    long long Seed = 1;
    std::string LogFolder = std::filesystem::temp_directory_path().string();
    Rules GameRules = Rules::Classic();
};

bool ParseOptions(const Args& args, Options& o) {
    const auto layout = [&](const std::string& a) {
        o.Layouts.push_back(a);
        return true;
    };
    const auto option = [&](const std::string& a, const std::string& value) {
        if (a == "--log") return !(o.LogFolder = value).empty();
        if (a == "--moves") return ReadCount(value, o.Moves) && o.Moves > 0;
        if (a == "--rules") return ReadRulesOption(value, o.GameRules);
        return a == "--seed" && ReadCount(value, o.Seed);
    };
    return ReadArguments(args, layout, option) && !o.Layouts.empty();
}

// Why no game can be played from the layout as loaded ("" when one can): a
// run on it would only report the engine failing. A 2x2 board is all
// corners, so its King is on one or there is none.
std::string UnplayableLayout(const Game& g) {
    const int col = g.KingCol, row = g.KingRow;
    if (col < 1 || col > g.BoardWidth || row < 1 || row > g.BoardHeight) return "there is no King on the board";
    const std::string square = SquareName(g, col, row);
    if (IsCorner(g, col, row)) return "the King stands on the corner " + square + ": the game is over before it starts";
    if (g.Board(col, row) == AttackerCode) return "the King's square " + square + " holds an attacker";
    if (g.Board(col, row) != DefenderCode) return "the King's square " + square + " holds no piece";
    return "";
}

// Loads a layout as the run will: false, reported, when it cannot be read
// or played.
bool PlayableLayout(const std::string& layout) {
    CommandGame game(true);
    if (!LoadLayoutArgument(game.g, layout)) return false;
    const std::string reason = UnplayableLayout(game.g);
    if (reason.empty()) return true;
    std::cerr << "Layout File:\n" << layout << "\ncannot be played: " << reason << '\n';
    return false;
}

double KiB(std::int64_t bytes) { return static_cast<double>(bytes) / 1024.0; }

void Print(const std::string& name, const SoakReport& r) {
    std::printf("%s: %lld moves in %lld games, %.1f s (%.0f moves/s)\n", name.c_str(), r.Moves, r.Games, r.Seconds,
                r.Seconds > 0 ? static_cast<double>(r.Moves) / r.Seconds : 0.0);
    std::printf("  moves: %lld by the computer players, %lld random for the defenders, %lld random for the attackers\n",
                r.ComputerMoves, r.RandomDefenderMoves, r.RandomAttackerMoves);
    std::printf("  games ended: King taken %lld, King with a free run %lld, no move for either side %lld\n",
                r.KingsTaken, r.FreeRuns, r.Stalemates);
    std::printf("  moves log: %lld lines, %lld replayed, final position %s%s%s\n", r.LogLines, r.LinesReplayed,
                r.FinalMatches ? "matches" : "DIFFERS", r.FirstFault.empty() ? "" : "; ", r.FirstFault.c_str());
    if (r.Start.InUse >= 0)
        std::printf("  memory in use: %+.0f KiB; held by the undo history, event log and lists: %+.0f KiB (at most "
                    "%.0f KiB); not held by them: %+.1f KiB\n",
                    KiB(r.End.InUse - r.Start.InUse), KiB(r.End.Held - r.Start.Held), KiB(r.PeakHeld),
                    KiB(r.Unexplained()));
    std::printf("  resident: %lld KiB after the first tenth, %lld KiB at the end, peak %lld KiB\n",
                static_cast<long long>(r.Start.RssKiB), static_cast<long long>(r.End.RssKiB),
                static_cast<long long>(r.End.PeakRssKiB));
    std::printf("  %s\n", r.Passed() ? "passed" : "FAILED");
}

}  // namespace

int RunSoak(const Args& args) {
    Options o;
    if (!ParseOptions(args, o)) {
        std::cerr << SoakUsage;
        return 1;
    }
    // The soak's players are the classic ones.
    if (!ClassicPlayersMayPlay(o.GameRules, "soak")) return 1;
    // Every layout is looked at before the first run starts, so a bad one at
    // the end of the list does not stop a long run halfway.
    for (const std::string& layout : o.Layouts)
        if (!PlayableLayout(layout)) return 2;
    std::error_code ec;
    std::filesystem::create_directories(o.LogFolder, ec);
    bool passed = true;
    for (const std::string& layout : o.Layouts) {
        SoakOptions run;
        run.Layout = layout;
        run.Moves = o.Moves;
        run.Seed = o.Seed;
        const std::string name = std::filesystem::path(layout).filename().string();
        run.MovesLog = std::filesystem::absolute(std::filesystem::path(o.LogFolder) / ("soak-" + name)).string();
        SoakReport report;
        if (!RunSoakOn(run, report)) return 2;
        Print(name, report);
        std::fflush(stdout);
        passed = passed && report.Passed();
    }
    return passed ? 0 : 3;
}

}  // namespace jv::cli
