#include "records/PlayerSettings.h"

#include <sstream>
#include <utility>

#include "records/TextFile.h"

namespace jv {

namespace {

constexpr std::pair<PlayerKind, const char*> KindWords[] = {
    {PlayerKind::Classic, "classic"}, {PlayerKind::Strong, "strong"}, {PlayerKind::Engine, "engine"}};

bool ReadKind(const std::string& value, PlayerKind& kind) {
    for (const auto& [k, word] : KindWords)
        if (value == word) {
            kind = k;
            return true;
        }
    return false;
}

bool ReadThinkingTime(const std::string& value, int& millis) {
    for (int offered : ThinkingTimes)
        if (value == std::to_string(offered)) {
            millis = offered;
            return true;
        }
    return false;
}

bool ReadYes(const std::string& value, bool& yes) {
    if (value != "yes" && value != "no") return false;
    yes = value == "yes";
    return true;
}

bool ReadSide(const std::string& value, int& side) {
    if (value != "defenders" && value != "attackers") return false;
    side = value == "attackers" ? AttackerCode : DefenderCode;
    return true;
}

std::string KindWord(PlayerKind kind) { return KindWords[static_cast<int>(kind)].second; }

// The rest of an "engine" line, the command line as the user wrote it.
std::string CommandOf(const std::string& line) {
    const std::size_t start = line.find_first_not_of(" \t", line.find("engine") + 6);
    return start == std::string::npos ? std::string() : line.substr(start);
}

}  // namespace

ReadResult ReadPlayersText(PlayerChoice& players, std::string_view text) {
    PlayerChoice read = players;
    for (const std::string& line : SplitLines(text)) {
        std::istringstream words(line);
        std::string name, value, extra;
        if (!(words >> name)) continue;   // a blank line
        if (name == "engine") {
            read.EngineCommand = CommandOf(line);
            continue;
        }
        words >> value;
        const bool taken = !(words >> extra) &&
                           ((name == "attackers" && ReadKind(value, read.Attackers)) ||
                            (name == "defenders" && ReadKind(value, read.Defenders)) ||
                            (name == "think" && ReadThinkingTime(value, read.ThinkMillis)) ||
                            (name == "early" && ReadYes(value, read.StopWhenClear)) ||
                            (name == "user" && ReadSide(value, read.UserSide)));
        if (!taken) return ReadResult::Refused("line \"" + line + "\" is no setting of the players");
    }
    players = read;
    return ReadResult::Read();
}

std::string PlayersText(const PlayerChoice& players) {
    return "attackers " + KindWord(players.Attackers) + "\r\ndefenders " + KindWord(players.Defenders) +
           "\r\nthink " + std::to_string(players.ThinkMillis) + (players.StopWhenClear ? "\r\nearly yes" : "") +
           "\r\nuser " +
           (players.UserSide == AttackerCode ? "attackers" : "defenders") + "\r\n" +
           (players.EngineCommand.empty() ? "" : "engine " + players.EngineCommand + "\r\n");
}

const char* PlayerName(PlayerKind kind) {
    return kind == PlayerKind::Engine ? "Engine" : kind == PlayerKind::Strong ? "Strong" : "Classic";
}

}  // namespace jv
