#pragma once
#include <string>
#include <string_view>

#include "core/Game.h"

namespace jv {

// OpenTafl positions (OTN): the ranks from the top of the board down (the
// first is Col 1), each between "/" signs, each from file "a" across: "t" an
// attacker, "T" a defender, "K" the King, a number for a run of empty
// squares. The Home corners are empty squares in OTN. The 11x11 opening of
// patf.txt reads /3ttttt3/5t5/11/t4T4t/t3TTT3t/tt1TTKTT1tt/t3TTT3t/t4T4t/11/5t5/3ttttt3/.

// The OTN of the board as it stands. The King is written where KingCol and
// KingRow put him (on a corner too, after his escape); a position without a
// King on the board is written without one.
std::string OtnPosition(const Game& g);

// Reads an OTN position (blanks around it, and the outer "/" signs, may be
// left out) into a layout line. False, with the reason in words, for a
// position that is no board of this program: more than 14 ranks or files,
// ranks of different lengths, an empty rank, a letter other than t, T and
// K, not exactly one King, or a piece on a corner.
bool OtnToLayoutLine(std::string_view otn, std::string& line, std::string& reason);

}  // namespace jv
