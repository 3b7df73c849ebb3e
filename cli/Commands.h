#pragma once
#include <iosfwd>
#include <string>
#include <vector>

#include "core/Game.h"

namespace jv::cli {

// Each command takes its arguments (after the command's name) and returns
// the process exit code: 0 done, 1 refused usage, 2 unreadable input.
using Args = std::vector<std::string>;

int RunAnalyse(const Args& args);
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

// Prepares a game for a command: the program's folder, the column letters,
// the given view.
void PrepareGame(Game& g, GameView& view);

// A file named on the command line: as given when it exists from the current
// folder, else taken from the program's folder like every name without a folder.
std::string ResolveArgument(const Game& g, const std::string& name);

// Reads a layout from a file name, or a layout line from standard input
// when the name is "-". On failure prints "Error reading Layout File:" and
// the name on standard error and returns false.
bool ReadLayoutArgument(Game& g, const std::string& name);

// Reads every line of a moves log named on the command line. On failure (a
// log that cannot be read, or holds no line) prints the reason on standard
// error, as the replay in the program words it, and returns false.
bool ReadMovesLogArgument(const Game& g, const std::string& name, std::vector<std::string>& lines);

// The board as a grid: a line of row numbers, then one line per Col with its
// letter: H Home, . empty, d defender, K King, a attacker.
void PrintGrid(const Game& g, std::ostream& out);

}  // namespace jv::cli
