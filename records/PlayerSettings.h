#pragma once
#include <string>
#include <string_view>

#include "core/Game.h"
#include "records/ReadResult.h"

namespace jv {

// The players' settings file, "players.cfg" beside the configuration file:
// one "name value" line each, "attackers classic|strong|engine",
// "defenders classic|strong|engine", "think 200|1000|3000|10000"
// (milliseconds), "user defenders|attackers" (the side the user plays) and
// "engine COMMAND LINE" (the outside engine's command line, the rest of the
// line as written; no line when none is set).

inline constexpr const char* PlayersFile = "players.cfg";

// The thinking times the strong player is offered, in milliseconds.
inline constexpr int ThinkingTimes[] = {200, 1000, 3000, 10000};

// Takes the settings of the text; refused, the choice left as it was, when a
// line names no setting or gives it a value it does not take.
ReadResult ReadPlayersText(PlayerChoice& players, std::string_view text);

// The text of the settings, each line ended by CR LF.
std::string PlayersText(const PlayerChoice& players);

// "Classic", "Strong" or "Engine", as the window and the log name a player.
const char* PlayerName(PlayerKind kind);

}  // namespace jv
