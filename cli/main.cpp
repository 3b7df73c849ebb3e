#include <iostream>
#include <map>
#include <string>

#include "cli/Commands.h"

namespace {

struct Command {
    int (*run)(const jv::cli::Args&);
    const char* usage;
};

// The commands, by name.
const std::map<std::string, Command>& Commands() {
    using namespace jv::cli;
    static const std::map<std::string, Command> commands = {
        {"analyse", {RunAnalyse, "analyse FILE|-      print the analysis of a layout"}},
        {"bench", {RunBench, "bench               the fixed benchmark work: its times, node count and signature"}},
        {"layout", {RunLayout, "layout FILE|-       print a layout line and its board"}},
        {"replay", {RunReplay, "replay LOGFILE|RECORD.otg  print every position of a moves log or an OpenTafl game record"}},
        {"play", {RunPlay, "play FILE [--auto-reply] [--seed N] [--rules NAME] MOVE...  play moves and print what happens"}},
        {"perft", {RunPerft, "perft FILE|- DEPTH [--side attackers|defenders] [--rules NAME]  count the move sequences"}},
        {"rank", {RunRank, "rank attackers FILE | rank defenders FILE [--mode 1]  print a side's ranking"}},
        {"selfplay", {RunSelfplay, "selfplay FILE --games N [--max-moves M] [--seed S] [--log DIR] [--rules NAME]  computer against computer"}},
        {"soak", {RunSoak, "soak FILE... [--moves N] [--seed S] [--log DIR] [--rules NAME]  a long self-play test, its moves log replayed"}},
        {"otn", {RunOtn, "otn FILE|- [--rules NAME]  print the OpenTafl position of a layout (with the rules record of a rule set)"}},
        {"from-otn", {RunFromOtn, "from-otn POSITION OUT  write an OpenTafl position as a layout file"}},
        {"bestmove", {RunBestmove, "bestmove FILE --side attackers|defenders [--ms N | --depth D] [--rules NAME]  the strong player's move"}},
        {"match", {RunMatch, "match --attackers PLAYER --defenders PLAYER --games N [--paired] [--sprt ELO0,ELO1] [--clock MAIN+INC] ... LAYOUT...  the players against each other: score, Elo, SPRT (all options: match alone)"}},
        {"record", {RunRecord, "record LOGFILE [--rules NAME]  print a moves log as a game record in standard move notation"}},
        {"review", {RunReview, "review LOGFILE|RECORD.otg [--ms N | --depth D] [--rules NAME]  the strong player's verdict on every move"}},
        {"rules", {RunRules, "rules               list the rule sets: name, board, opening layout, OpenTafl rules keys"}},
        {"tune", {RunTune, "tune GAMES.tsv [--rules NAME] [--from PLY]  fit the strong player's weights to recorded games"}},
        {"engine", {RunEngine, "engine              the strong player as an OpenTafl engine on standard input and output"}},
    };
    return commands;
}

int Usage() {
    std::cerr << "usage: jarlsvakt-cli COMMAND ARGS...\ncommands:\n";
    for (const auto& [name, command] : Commands()) std::cerr << "  " << command.usage << '\n';
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return Usage();
    const auto found = Commands().find(argv[1]);
    if (found == Commands().end()) return Usage();
    return found->second.run(jv::cli::Args(argv + 2, argv + argc));
}
