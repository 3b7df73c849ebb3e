#pragma once
#include <string>
#include <vector>

namespace jv {

// A game in standard move notation, made from the positions of a game: a
// moves log, or the undo history with the position on the board after it.
// Each move is read off two positions that follow one another: the piece
// that left one square for another along a free straight line, and the
// enemy pieces gone, which must be exactly those the move takes by the
// game's rules (CaptureAround; after an attacker's move the King taken as
// CheckKingCapture finds him, which takes nothing else; the King on a corner
// takes nothing). Two equal positions in a row (the recording switch writes
// the position as it stands) are no move.
//
//   [layout "<the first position's layout line>"]
//   [size "WxH"]                   W and H of the layout line
//   (an empty line, when moves follow)
//   1. f4-d4 a4-b4xb5/c4           the defenders' move first, then the attackers'
//   2. ... k8-f8                   an attackers' move without a defenders' move before it
//   7. f6-a1--                     the King reaches a corner
//   9. ... d2-d4#                  the attackers take the King
struct GameRecordResult {
    bool Ok = false;
    std::vector<std::string> Lines;   // the record, line by line, when Ok
    int BadLine = 0;                  // the first position (1 for the first) that is refused
    std::string Reason;               // why, in words
};

// layoutLines: the positions as layout lines, oldest first; all must be of
// the first one's size.
GameRecordResult MakeGameRecord(const std::vector<std::string>& layoutLines);

}  // namespace jv
