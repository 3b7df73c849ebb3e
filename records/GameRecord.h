#pragma once
#include <string>
#include <vector>

#include "core/Game.h"
#include "records/Notation.h"

namespace jv {

// Game records in OpenTafl's form (OTN), written from the positions of a
// game and read back into positions.
//
// Writing: each move is read off two positions that follow one another: the
// piece that left one square for another along a free straight line, and
// the enemy pieces gone, which must be exactly those the move takes by the
// game's rules (CaptureAround; after an attacker's move the King taken as
// CheckKingCapture finds him, which takes nothing else; the King on a corner
// takes nothing). Two equal positions in a row (the recording switch writes
// the position as it stands) are no move. The sides must take turns and the
// board must be square. The rules record is the rule set's own keys
// (RulesRecordKeys), atkf naming the side of the first move (the rule set's
// first side without a move):
//
//   [rules:dim:7 esc:c surf:n atkf:n tfr:i ka:y ks:y cenh: cenhe: start:<OTN of the first position>]
//   (an empty line, when moves follow)
//   1. d5-b5 d6-b6xb5              the moves in the order played, two to a number
//   2. Kd4-d3 a4-a2
//   7. Kf6-a1--                    the King reaches a corner
//   9. d2-d4++                     the attackers take the King
struct GameRecordResult {
    bool Ok = false;
    std::vector<std::string> Lines;   // the record, line by line, when Ok
    int BadLine = 0;                  // the first position (1 for the first) that is refused
    std::string Reason;               // why, in words
};

// layoutLines: the positions as layout lines, oldest first, played under the
// rules; all must be of the first one's size, and the first one a position
// OTN can hold (OtnRefusal).
GameRecordResult MakeGameRecord(const std::vector<std::string>& layoutLines, const Rules& rules);

// The moves read off the positions as the record writes them: each move as
// written (its squares, the King's letter, what it takes, its mark), the side
// that made it, the position it leaves (a layout line) and the number of the
// position it was read from (1 for the first).
struct PlayedMove {
    WrittenMove Written;
    bool Defenders = false;
    std::string After;
    int Line = 0;
};
struct GameMovesResult {
    bool Ok = false;
    std::vector<PlayedMove> Moves;   // the moves read before the first refused position
    int BadLine = 0;
    std::string Reason;
};
// The same positions as MakeGameRecord takes, on a board of any shape; the
// sides need not take turns.
GameMovesResult ReadGameMoves(const std::vector<std::string>& layoutLines, const Rules& rules);

// "Kd4-d3", "e5-e8xe9/d8+": a move as the record writes it.
std::string WrittenMoveText(int boardWidth, const WrittenMove& move);

// Reading: the record's tags and comments stand in brackets; the rules
// record (a [rules:...] tag or a line of its own) gives the start ("start:",
// or "starti:" listing the top rank first; a [position:...] tag replaces it),
// the side that starts ("atkf:n" the defenders) and the rules the moves are
// played under (ReadRulesRecord: a rule set of the program, or rules made
// from its keys; a key the rule board cannot play refuses the record). Turn
// numbers are skipped, and so are the variations (turns addressed "7a.1.1a."
// up to the next turn of the main line); "---" (a side resigns) ends the
// moves, and each move must be one the rules allow to the side whose turn it
// is (RefuseWrittenMove), none after the game has ended. A bracket that is
// never closed refuses the whole record.
struct OtnGameResult {
    bool Ok = false;                      // every move was read and allowed
    std::vector<std::string> Positions;   // layout lines: the start, then the position after each allowed move
    Rules GameRules;                      // the rules the moves are played under, once the rules record is read
    std::string Reason;                   // when not Ok: "move N (text): " and why, or what the rules record lacks
};
OtnGameResult ReadOtnGame(const std::string& text);

// The verdict of g's rule set on a written move of one side ('a' the
// attackers, 'd' the defenders) on g's position, which is not changed: ""
// when a piece of the side stands on its first square (the King, when
// written with his letter), its path along a rank or file is free, it stops
// on an empty square (a corner only for the King), and the captures and the
// ending it writes ("++", "--") are those it makes; otherwise the reason. The
// marks "+" and "-" are taken as written.
std::string RefuseWrittenMove(const Game& g, const WrittenMove& w, char side);

}  // namespace jv
