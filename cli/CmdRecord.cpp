#include <iostream>
#include <vector>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "records/GameRecord.h"

namespace jv::cli {

// A moves log as an OpenTafl game record; a log whose positions are not one
// move apart, in turn, is reported at its first bad line.
int RunRecord(const Args& args) {
    return RunOnMovesLogArgument(args, "record LOGFILE", [&](Game&, const std::vector<std::string>& lines) {
        const GameRecordResult record = MakeGameRecord(lines, Rules::Classic());
        if (!record.Ok) {
            std::cerr << "Moves Log File:\n" << args[0] << "\nline " << record.BadLine << ": " << record.Reason << '\n';
            return 2;
        }
        for (const std::string& line : record.Lines) std::cout << line << '\n';
        return 0;
    });
}

}  // namespace jv::cli
