#pragma once
#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

#include "core/Game.h"

namespace jv {

// The strong player: iterative deepening alpha-beta over the game's own
// rules for either side, on its own copy of the position, so it may run on a
// worker thread while the game stays untouched.

struct SearchLimits {
    int MaxDepth = 64;
    int Millis = 0;                             // 0: no time limit
    const std::atomic<bool>* Stop = nullptr;    // set to cancel at once
    std::size_t TableMegabytes = 16;            // 0: search without a table
    // The keys (PositionKey) of the positions the game has already been in: a
    // line that comes back to one scores as a draw.
    std::vector<std::uint64_t> Played;
    // Threads searching together on one table; one searches exactly as
    // always, move for move and node for node.
    int Threads = 1;
    // Millis is then the most the search may take: it stops sooner once the
    // best move is clear (the only move, or the same move for several depths
    // with a steady score).
    bool StopWhenClear = false;
};

// Scores are from the side to move, in hundredths of a defender; a won game
// scores SearchWin less the number of moves to the win, a lost one the
// negation.
constexpr int SearchWin = 1000000;
constexpr int SearchMaxPly = 128;

struct SearchProgress {
    int Depth = 0;
    int Score = 0;
    std::uint64_t Nodes = 0;
    double NodesPerSecond = 0;
    std::vector<Move> Pv;
};

struct SearchResult {
    bool HasMove = false;   // false when the game is over or the side cannot move
    Move Best;
    int Score = 0;
    int Depth = 0;          // the deepest completed iteration
    std::uint64_t Nodes = 0;
    double Millis = 0;
    std::vector<Move> Pv;
};

// The threads the machine runs at once (at least one): the window's and the
// engine's strong player search on all of them.
int MachineThreads();

// The search's key of the game's position with side to move.
std::uint64_t PositionKey(const Position& g, int side);

// True when a score says the side to move wins (or loses, negated) by force.
inline bool IsWinScore(int score) { return score > SearchWin - SearchMaxPly; }

// The best move for side (AttackerCode or DefenderCode) in the game's
// position, searched until the depth, the time or the stop is reached;
// onProgress (when given) hears of every completed depth. The same position,
// side and depth give the same move every time.
SearchResult SearchBestMove(const Position& g, int side, const SearchLimits& limits,
                            const std::function<void(const SearchProgress&)>& onProgress = {});

}  // namespace jv
