#pragma once
#include "cli/CliView.h"
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv::cli {

// Each command takes its arguments (after the command's name) and returns
// the process exit code: 0 done, 1 refused usage, 2 input refused (a file
// that cannot be read, a layout or a move that cannot be played).
using Args = std::vector<std::string>;

int RunAnalyse(const Args& args);
int RunBench(const Args& args);
int RunLayout(const Args& args);
int RunReplay(const Args& args);
int RunPerft(const Args& args);
int RunPlay(const Args& args);
int RunRank(const Args& args);
int RunSelfplay(const Args& args);
int RunSoak(const Args& args);
int RunOtn(const Args& args);
int RunFromOtn(const Args& args);
int RunRecord(const Args& args);
int RunBestmove(const Args& args);
int RunMatch(const Args& args);
int RunRules(const Args& args);
int RunEngine(const Args& args);
int RunTune(const Args& args);
int RunReview(const Args& args);

// A game set up for one command: its own view, the program's folder and the
// column letters.
struct CommandGame {
    explicit CommandGame(bool quiet = false);
    CommandGame(const CommandGame&) = delete;
    CommandGame& operator=(const CommandGame&) = delete;
    CliView view;
    Game g;
};

// Prepares a game for a command: the program's folder, the column letters,
// the given view.
void PrepareGame(Game& g, GameView& view);

// A count on the command line: up to nine digits.
bool ReadCount(const std::string& text, long long& value);

// Walks a command's arguments: each one that does not start with "--" goes to
// plain, each "--name value" pair to option. False as soon as either refuses
// its argument or an option has no value.
bool ReadArguments(const Args& args, const std::function<bool(const std::string&)>& plain,
                   const std::function<bool(const std::string& name, const std::string& value)>& option);

// The rule set "--rules NAME" names, in any case. An unknown name is refused
// on standard error with the names of the rule sets; false then.
bool ReadRulesOption(const std::string& name, Rules& rules);

// "FILE [--rules NAME]": the file and the rule set (the classic rules unless
// named). False when the arguments are not of that form.
bool ReadFileAndRules(const Args& args, std::string& file, Rules& rules);

// True when the classic computer players (the ranked lists), made for the
// classic rules alone, may play under the rules; otherwise says so on
// standard error, naming `what` of the command would have them play and
// that the strong player plays every rule set, and returns false.
bool ClassicPlayersMayPlay(const Rules& rules, const std::string& what);

// True when the command got exactly count arguments; else prints its usage
// line on standard error.
bool HasArguments(const Args& args, std::size_t count, const char* usage);

// The commands that print something of one layout (FILE, or "-" for a layout
// line on standard input): checks the arguments, reads the layout into a new
// game and hands it to print. Returns the command's exit code.
int RunOnLayoutArgument(const Args& args, const char* usage, const std::function<void(Game&)>& print);

// The commands that print something of one moves log: checks the arguments,
// reads the log's lines and hands them to print, which returns the exit code.
int RunOnMovesLogArgument(const Args& args, const char* usage,
                          const std::function<int(Game&, const std::vector<std::string>&)>& print);

// True when a file's name ends in ".otg", in any case: an OpenTafl game record.
bool IsGameRecord(const std::string& name);

// A file named on the command line: as given when it exists from the current
// folder, else taken from the program's folder like every name without a folder.
std::string ResolveArgument(const Game& g, const std::string& name);

// Reads a layout from a file name, or a layout line from standard input
// when the name is "-". On failure prints "Error reading Layout File:" and
// the name on standard error and returns false.
bool ReadLayoutArgument(Game& g, const std::string& name);

// Starts a game on the layout file named on the command line the way the
// program does, through LoadLayout, so the game's tables are those of a
// freshly loaded layout. On failure prints "Error reading Layout File:" and
// the name on standard error and returns false.
bool LoadLayoutArgument(Game& g, const std::string& name);

// Reads every line of a moves log named on the command line. On failure (a
// log that cannot be read, or holds no line) prints the reason on standard
// error, as the replay in the program words it, and returns false.
bool ReadMovesLogArgument(const Game& g, const std::string& name, std::vector<std::string>& lines);

// The board as a grid: a line of row numbers, then one line per Col with its
// letter: H Home, . empty, d defender, K King, a attacker.
void PrintGrid(const Game& g, std::ostream& out);

}  // namespace jv::cli
