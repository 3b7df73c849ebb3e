#pragma once
#include <string>

namespace jv::cli {

// A player of `match` as its command line names it: "classic", the ranked
// lists; "strong[:MS][:tN]", the strong player thinking MS a move on N
// threads; "engine[:MS]:COMMAND", an outside engine started from its command
// line and given MS a move.

struct MatchPlayer {
    bool Strong = false;   // true for the engine too: both play any rule set
    int Millis = 200;
    int Threads = 0;       // the strong player's; 0 until the match's default is known
    std::string Engine;    // the engine's command line; empty for the program's own players
};

// False when the text names no player.
bool ReadMatchPlayer(const std::string& text, MatchPlayer& p);

// The player as the command line would name it; the threads only when more than one.
std::string MatchPlayerName(const MatchPlayer& p);

}  // namespace jv::cli
