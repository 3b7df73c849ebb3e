#pragma once
#include <string>
#include <string_view>

#include "core/Game.h"

namespace jv {

// OpenTafl positions (OTN): the ranks from rank 1 (the bottom of the board,
// the last Col) up, each between "/" signs, each from file "a" across: "t" an
// attacker, "T" a defender, "K" the King, a number for a run of empty
// squares. The Home corners are empty squares in OTN, and the board is
// square. The King on c1 of a 7x7 board: /1tK1t2/2t1T2/7/7/7/7/7/.

// The OTN of the board as it stands. The King is written where KingCol and
// KingRow put him (on a corner too, after his escape); a position without a
// King on the board is written without one.
std::string OtnPosition(const Game& g);

// Why the board's OTN would be refused when read back ("" when it would be
// read): a board that is not square, no King on it (none in the layout, or
// his square holding another piece), the King on a corner. Such a position is
// never written: a file or record that no reader takes back helps no one.
std::string OtnRefusal(const Game& g);

// Reads an OTN position (blanks around it, and the outer "/" signs, may be
// left out) into a layout line; topRankFirst reads the inverted form that
// lists the top rank first. False, with the reason in words, for a position
// that is no board of this program: more than 14 ranks or files, ranks of
// different lengths, as many ranks as files, an empty rank, a letter other
// than t, T and K, not exactly one King, or a piece on a corner.
bool OtnToLayoutLine(std::string_view otn, std::string& line, std::string& reason, bool topRankFirst = false);

}  // namespace jv
