#include "cli/MatchPlayer.h"

#include "cli/Commands.h"

namespace jv::cli {

namespace {

// A positive count, such as the MS or the N of a player.
bool ReadPositive(const std::string& text, int& value) {
    long long count = 0;
    if (!ReadCount(text, count) || count == 0) return false;
    value = static_cast<int>(count);
    return true;
}

// The ":MS" and ":tN" that may follow "strong", each at most once, in that order.
bool ReadStrongLimits(std::string rest, MatchPlayer& p) {
    const auto next = [&rest] {
        const std::size_t colon = rest.find(':', 1);
        std::string part = rest.substr(1, colon == std::string::npos ? std::string::npos : colon - 1);
        rest = colon == std::string::npos ? "" : rest.substr(colon);
        return part;
    };
    if (rest.empty()) return true;
    if (rest[0] != ':') return false;
    std::string part = next();
    if (part[0] != 't') {
        if (!ReadPositive(part, p.Millis)) return false;
        if (rest.empty()) return true;
        part = next();
    }
    return rest.empty() && part[0] == 't' && ReadPositive(part.substr(1), p.Threads);
}

}  // namespace

bool ReadMatchPlayer(const std::string& text, MatchPlayer& p) {
    if (text == "classic") return true;
    p.Strong = true;   // the engine plays any rule set, as the strong player does
    if (text.rfind("strong", 0) == 0) return ReadStrongLimits(text.substr(6), p);
    if (text.rfind("engine:", 0) != 0) return false;
    p.Millis = 1000;
    std::string rest = text.substr(7);
    const std::size_t colon = rest.find(':');
    if (colon != std::string::npos && ReadPositive(rest.substr(0, colon), p.Millis)) rest = rest.substr(colon + 1);
    p.Engine = rest;
    return !p.Engine.empty();
}

std::string MatchPlayerName(const MatchPlayer& p) {
    if (!p.Engine.empty()) return "engine:" + std::to_string(p.Millis) + ":" + p.Engine;
    if (!p.Strong) return "classic";
    return "strong:" + std::to_string(p.Millis) + (p.Threads > 1 ? ":t" + std::to_string(p.Threads) : "");
}

}  // namespace jv::cli
