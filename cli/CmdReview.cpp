#include <iostream>
#include <vector>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "records/GameRecord.h"
#include "records/LayoutFile.h"
#include "records/TextFile.h"
#include "session/Review.h"

namespace jv::cli {

namespace {

const char* const ReviewUsage = "usage: jarlsvakt-cli review FILE [--ms N | --depth D] [--rules NAME]\n";

struct ReviewOptions {
    std::string File;
    SearchLimits Limits;
    Rules GameRules = Rules::Classic();
    bool RulesNamed = false;
};

bool ParseOptions(const Args& args, ReviewOptions& o) {
    bool timed = false, deep = false;
    const auto file = [&](const std::string& a) { return o.File.empty() && !(o.File = a).empty(); };
    const auto option = [&](const std::string& a, const std::string& value) {
        long long n = 0;
        if (a == "--ms" && ReadCount(value, n) && n > 0) {
            o.Limits.Millis = static_cast<int>(n);
            timed = true;
        } else if (a == "--depth" && ReadCount(value, n) && n > 0 && n <= SearchMaxPly / 2) {
            o.Limits.MaxDepth = static_cast<int>(n);
            deep = true;
        } else if (a == "--rules" && ReadRulesOption(value, o.GameRules)) {
            o.RulesNamed = true;
        } else {
            return false;
        }
        return true;
    };
    if (!ReadArguments(args, file, option)) return false;
    // Without a limit each position is thought about for a second.
    if (!timed && !deep) o.Limits.Millis = 1000;
    return !o.File.empty() && !(timed && deep);
}

// The game's positions and rules: an OpenTafl game record's own (its
// rules unless --rules names others), or a moves log's under --rules.
bool ReadGame(const Game& g, ReviewOptions& o, std::vector<std::string>& lines) {
    if (!IsGameRecord(o.File)) return ReadMovesLogArgument(g, o.File, lines);
    std::string text;
    if (!ReadWholeFile(ResolveArgument(g, o.File), text)) {
        std::cerr << "Error reading game record:\n" << o.File << '\n';
        return false;
    }
    const OtnGameResult record = ReadOtnGame(text);
    if (!record.Ok) {
        std::cerr << "Error in game record " << o.File << ":\n" << record.Reason << '\n';
        return false;
    }
    lines = record.Positions;
    if (!o.RulesNamed) o.GameRules = record.GameRules;
    return true;
}

}  // namespace

// Every move of a moves log or a game record with the strong player's score
// after it, its loss, its mark and the better move, then a summary per side.
int RunReview(const Args& args) {
    ReviewOptions o;
    if (!ParseOptions(args, o)) {
        std::cerr << ReviewUsage;
        return 1;
    }
    CommandGame game(true);
    game.g.TaflCoordinates = true;   // the tool writes moves as the records do
    std::vector<std::string> lines;
    if (!ReadGame(game.g, o, lines)) return 2;
    const GameMovesResult moves = ReadGameMoves(lines, o.GameRules);
    if (!moves.Ok) {
        std::cerr << o.File << "\nline " << moves.BadLine << ": " << moves.Reason << '\n';
        return 2;
    }
    (void)ApplyLayoutLine(game.g, lines.front());   // the board's size names the squares; the read has checked it
    const GameReview review = ReviewGame(lines.front(), moves.Moves, o.GameRules, o.Limits);
    for (std::size_t i = 0; i < moves.Moves.size(); ++i) std::cout << ReviewLine(game.g, moves.Moves, review, i) << '\n';
    const auto sides = Summarise(review, moves.Moves);
    for (int side : {AttackerCode, DefenderCode}) std::cout << SummaryLine(side, sides[static_cast<std::size_t>(side)]) << '\n';
    return 0;
}

}  // namespace jv::cli
