#include "records/ArchiveGames.h"

#include <algorithm>
#include <sstream>

#include "records/Notation.h"
#include "records/TextFile.h"

namespace jv {

std::string WrittenArchiveMove(std::string move) {
    if (move.find('-') == std::string::npos) {
        const auto second = std::find_if(move.begin() + 1, move.end(), [](char c) { return c >= 'a' && c <= 'z'; });
        move.insert(second, '-');
    }
    const std::size_t first = move.find('x');
    if (first != std::string::npos) std::replace(move.begin() + static_cast<long>(first) + 1, move.end(), 'x', '/');
    return move;
}

GameArchive ReadGameArchive(std::string_view text) {
    GameArchive archive;
    const std::vector<std::string> lines = SplitLines(text);
    if (lines.empty()) return archive;
    const std::size_t opening = lines.front().find("): ");
    if (opening != std::string::npos) archive.Opening = lines.front().substr(opening + 3);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (lines[i].empty() || lines[i][0] == '#') continue;
        std::istringstream fields(lines[i]);
        ArchiveGame game;
        if (!std::getline(fields, game.Id, '\t') || !std::getline(fields, game.First, '\t') ||
            !std::getline(fields, game.Winner, '\t'))
            continue;
        for (std::string move; fields >> move;) game.Moves.push_back(move);
        if (!game.Moves.empty() && !IsStandardMoveText(WrittenArchiveMove(game.Moves.back()))) {
            game.Ending = game.Moves.back();
            game.Moves.pop_back();
        }
        archive.Games.push_back(game);
    }
    return archive;
}

}  // namespace jv
