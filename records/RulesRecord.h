#pragma once
#include <string>
#include <string_view>

#include "core/Rules.h"

namespace jv {

// The keys of an OpenTafl rules record ("esc:c ks:y cenh: ...") read into
// the rule set they describe, and a rule set written back as keys.
//
// A key left out takes OpenTafl's default (esc:c surf:y atkf:y tfr:d ka:y
// ks:s, the centre hostile to the attackers and, while empty, to everyone,
// stopped on by the King alone, the corners hostile to everyone and stopped
// on by the King alone, no shieldwall, no edge fort). The record names one of
// RuleSets() when that set plays the same rules (atkf aside: it only says who
// moves first in the record; among sets that play alike, the one its name:
// key names); otherwise the rules are made from the keys, named "OpenTafl".

// Reads the keys of a rules record; dim:, start: and starti: (read with the
// position) and name: are passed over. False, with the reason naming the key
// and value, for a key OpenTafl does not write, or a value that asks for a
// rule the rule board has no parameter for (a King taken by two everywhere,
// a jumping or unarmed-hammer King, fortresses, berserk moves, ...).
bool ReadRulesRecord(std::string_view keys, Rules& rules, bool& attackersFirst, std::string& reason);

// The keys of the rules, atkf naming the side that moves first: a rule set's
// own string (Rules::OpenTafl), or for rules made from a record the keys that
// read back to them. Without dim: and start:.
std::string RulesRecordKeys(const Rules& rules, bool attackersFirst);

}  // namespace jv
