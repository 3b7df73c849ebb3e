#include "records/PlayerSettings.h"

#include <sstream>

#include "records/TextFile.h"

namespace jv {

namespace {

bool ReadKind(const std::string& value, PlayerKind& kind) {
    if (value != "classic" && value != "strong") return false;
    kind = value == "strong" ? PlayerKind::Strong : PlayerKind::Classic;
    return true;
}

bool ReadThinkingTime(const std::string& value, int& millis) {
    for (int offered : ThinkingTimes)
        if (value == std::to_string(offered)) {
            millis = offered;
            return true;
        }
    return false;
}

bool ReadSide(const std::string& value, int& side) {
    if (value != "defenders" && value != "attackers") return false;
    side = value == "attackers" ? AttackerCode : DefenderCode;
    return true;
}

std::string KindWord(PlayerKind kind) { return kind == PlayerKind::Strong ? "strong" : "classic"; }

}  // namespace

ReadResult ReadPlayersText(PlayerChoice& players, std::string_view text) {
    PlayerChoice read = players;
    for (const std::string& line : SplitLines(text)) {
        std::istringstream words(line);
        std::string name, value, extra;
        if (!(words >> name)) continue;   // a blank line
        words >> value;
        const bool taken = !(words >> extra) &&
                           ((name == "attackers" && ReadKind(value, read.Attackers)) ||
                            (name == "defenders" && ReadKind(value, read.Defenders)) ||
                            (name == "think" && ReadThinkingTime(value, read.ThinkMillis)) ||
                            (name == "user" && ReadSide(value, read.UserSide)));
        if (!taken) return ReadResult::Refused("line \"" + line + "\" is no setting of the players");
    }
    players = read;
    return ReadResult::Read();
}

std::string PlayersText(const PlayerChoice& players) {
    return "attackers " + KindWord(players.Attackers) + "\r\ndefenders " + KindWord(players.Defenders) +
           "\r\nthink " + std::to_string(players.ThinkMillis) + "\r\nuser " +
           (players.UserSide == AttackerCode ? "attackers" : "defenders") + "\r\n";
}

const char* PlayerName(PlayerKind kind) { return kind == PlayerKind::Strong ? "Strong" : "Classic"; }

}  // namespace jv
