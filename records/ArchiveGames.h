#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace jv {

// The recorded games of a public tafl archive, one file a rule set: a first
// line naming the opening as an OpenTafl position ("...; opening (OTN, rank 1
// first): /3ttttt3/..."), then one game a line, its fields parted by tabs: the
// game's id, the side that moved first, the winner ("attackers", "defenders",
// "draw") and its moves ("d5-d6xc6xe6", or "d11d9" without a hyphen), the
// last perhaps a word that ended it without a move ("resigned", "timeout").

struct ArchiveGame {
    std::string Id, First, Winner;
    std::vector<std::string> Moves;   // as the archive writes them
    std::string Ending;               // the closing word; "" when a move ends the game
};

struct GameArchive {
    std::string Opening;   // the OpenTafl position the games start from
    std::vector<ArchiveGame> Games;
};

// The archive's text read; a line without its first three fields is left out.
GameArchive ReadGameArchive(std::string_view text);

// A move as the archive writes it ("d5-d6xc6xe6", "d11d9") in the program's
// written form ("d5-d6xc6/e6", "d11-d9").
std::string WrittenArchiveMove(std::string move);

}  // namespace jv
