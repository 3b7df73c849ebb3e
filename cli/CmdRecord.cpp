#include <iostream>
#include <vector>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "records/GameRecord.h"

namespace jv::cli {

// A moves log as an OpenTafl game record under the rule set named (the
// classic rules unless named); a log whose positions are not one move apart,
// in turn, is reported at its first bad line.
int RunRecord(const Args& args) {
    std::string log;
    Rules rules;
    if (!ReadFileAndRules(args, log, rules)) {
        std::cerr << "usage: jarlsvakt-cli record LOGFILE [--rules NAME]\n";
        return 1;
    }
    CommandGame game;
    std::vector<std::string> lines;
    if (!ReadMovesLogArgument(game.g, log, lines)) return 2;
    const GameRecordResult record = MakeGameRecord(lines, rules);
    if (!record.Ok) {
        std::cerr << "Moves Log File:\n" << log << "\nline " << record.BadLine << ": " << record.Reason << '\n';
        return 2;
    }
    for (const std::string& line : record.Lines) std::cout << line << '\n';
    return 0;
}

}  // namespace jv::cli
