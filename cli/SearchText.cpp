#include "cli/SearchText.h"

#include <charconv>

#include "records/Notation.h"

namespace jv::cli {

std::string MoveText(const Game& g, const Move& move) {
    return StandardSquare(g, move.From.Col, move.From.Row) + "-" + StandardSquare(g, move.To.Col, move.To.Row);
}

std::string LineText(const Game& g, const std::vector<Move>& line) {
    std::string text;
    for (const Move& move : line) text += (text.empty() ? "" : " ") + MoveText(g, move);
    return text;
}


}  // namespace jv::cli
