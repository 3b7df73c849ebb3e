#pragma once
#include <cstdint>
#include <string>

#include "cli/SoakMemory.h"

namespace jv::cli {

// The soak run: a test of the program over a long session, not a way the
// game is played. The two computer players play each other from one layout
// with the moves log on and no pauses. Where a side's computer player finds
// no move (the computer defender finds none from most openings), the debug
// buttons' random mover moves for that side, so the run keeps going; a game
// that ends (the King taken, or seeing a corner along a free line on the
// defenders' turn, or neither kind of move left) starts again from the layout.
struct SoakOptions {
    std::string Layout;     // the layout file, as LoadLayout opens it
    std::string MovesLog;   // the moves log's full name; replaced
    long long Moves = 10000;
    long long Seed = 1;     // where the timer that seeds the random draws starts
};

struct SoakReport {
    long long Moves = 0, Games = 0;
    long long ComputerMoves = 0, RandomDefenderMoves = 0, RandomAttackerMoves = 0;
    long long KingsTaken = 0, FreeRuns = 0, Stalemates = 0;
    double Seconds = 0;

    // Memory after the first games (Start) and at the end (End); Peak is the
    // most the game's texts held at any move in between.
    MemoryReading Start, End;
    std::int64_t PeakHeld = 0;

    // The moves log read back through the replay path.
    long long LogLines = 0;
    long long LinesReplayed = 0;   // lines that came back as written and led to the next
    std::string FirstFault;        // "" when every line replayed
    bool FinalMatches = false;     // the last line is the final position and follows from the one before

    bool Passed() const;
    // The memory the game's texts do not account for: the growth in use
    // beyond the growth of what they hold.
    std::int64_t Unexplained() const;
};

// Plays the run and checks it; false when the layout cannot be read.
bool RunSoakOn(const SoakOptions& options, SoakReport& report);

}  // namespace jv::cli
