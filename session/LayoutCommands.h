#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// The one way every game begins: reads the layout, and on success starts a
// new game on it; on failure reports it and loads the previous layout again
// (then the shipped opening, then an empty board). True when path was loaded.
bool LoadLayout(Game& g, const std::string& path);

// Loads the position of an .otn file: it becomes the layout file
// "otnlayout.txt" of the program's folder, which LoadLayout then loads like
// any layout, so the game starts as from a layout file. A bare position is
// played under the rules in play; a rules record with its start ("dim:7 ...
// start:...") under its rules. A file that cannot be read or holds no
// position or rules of this program is reported and the game stays as it
// was; false then.
bool LoadOtnFile(Game& g, const std::string& name);

// Loads an OpenTafl game record (.otg, records/GameRecord.h): the game starts
// on its start position under the record's rules, then its positions are
// stepped through as a replayed moves log is (StepThroughLog), the board
// left on the last one shown. A record whose moves the rules refuse is
// stepped through up to the last move allowed, then the refusal is shown.
// False, with the game as it was, when the file cannot be read or its start
// cannot be played.
bool LoadOtnGame(Game& g, const std::string& name);

// Shows the part of LayoutFile after its last folder separator as the
// layout caption, with the whole name as tool tip.
void ShowLayoutName(Game& g);

// The load (cmdload), save (cmdsave) and reset (cmdreset) commands; each does
// nothing while the layout editor is on.
void LoadCommand(Game& g);
void SaveCommand(Game& g);
void ResetCommand(Game& g);

}  // namespace jv
