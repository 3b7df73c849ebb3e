// `bench`: the fixed benchmark work, the rankings of both sides and perft on
// every shipped layout, timed, and its node count and signature, which change
// only when what the computer plays or what the rules allow changes.
#include <chrono>
#include <cinttypes>
#include <cstdio>

#include "ai/AttackerRank.h"
#include "ai/DefenderRank.h"
#include "cli/Commands.h"
#include "core/Perft.h"

namespace jv::cli {

namespace {

constexpr int BenchPerftDepth = 3;
const char* const ShippedLayouts[] = {"patf.txt",     "pattern1.txt", "pattern2.txt",
                                      "pattern3.txt", "pattern4.txt", "pattern5.txt"};

// FNV-1a over the lines, each ended by a line feed.
void Mix(std::uint64_t& hash, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        for (unsigned char c : line) hash = (hash ^ c) * 1099511628211ULL;
        hash = (hash ^ '\n') * 1099511628211ULL;
    }
}

void Mix(std::uint64_t& hash, std::uint64_t number) { Mix(hash, {std::to_string(number)}); }

double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The work on one layout: each ranking on a freshly loaded game, then perft
// from the opening with the defenders first. Adds its nodes (ranked moves and
// perft leaves) and mixes its lists into the signature.
bool BenchLayout(const char* name, std::uint64_t& nodes, std::uint64_t& signature) {
    CommandGame attackers(true), defenders(true), counted(true);
    if (!LoadLayoutArgument(attackers.g, name) || !LoadLayoutArgument(defenders.g, name) ||
        !LoadLayoutArgument(counted.g, name))
        return false;
    const auto start = std::chrono::steady_clock::now();
    GetAttackerRank(attackers.g);
    GetDefenderRank(defenders.g, 1);
    const double rankSeconds = SecondsSince(start);
    const auto perftStart = std::chrono::steady_clock::now();
    const std::uint64_t leaves = Perft(counted.g, BenchPerftDepth, DefenderCode);
    const double perftSeconds = SecondsSince(perftStart);

    for (const auto* list : {&attackers.g.AttackerMovesRank, &attackers.g.List1A, &defenders.g.DefenderMovesRank,
                             &defenders.g.List1D})
        Mix(signature, *list);
    Mix(signature, leaves);
    const std::uint64_t ranked = attackers.g.AttackerMovesRank.size() + defenders.g.DefenderMovesRank.size();
    nodes += ranked + leaves;
    std::printf("%-13s rankings %4" PRIu64 " moves %9.0f us   perft %d %10" PRIu64 " leaves %8.1f ms\n", name,
                ranked, rankSeconds * 1e6, BenchPerftDepth, leaves, perftSeconds * 1e3);
    return true;
}

}  // namespace

int RunBench(const Args& args) {
    if (!HasArguments(args, 0, "bench")) return 1;
    std::uint64_t nodes = 0, signature = 1469598103934665603ULL;
    const auto start = std::chrono::steady_clock::now();
    for (const char* name : ShippedLayouts)
        if (!BenchLayout(name, nodes, signature)) return 2;
    const double seconds = SecondsSince(start);
    std::printf("time %.3f s, %.0f nodes per second\n", seconds, nodes / seconds);
    std::printf("nodes %" PRIu64 "\nsignature %016" PRIx64 "\n", nodes, signature);
    return 0;
}

}  // namespace jv::cli
