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

bool ReadCount(const std::string& text, long long& value) {
    if (text.empty() || text.size() > 9) return false;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && value >= 0;
}

}  // namespace jv::cli
