#pragma once
#include <string>
#include <string_view>

#include "records/ReadResult.h"

namespace jv {

// The rule set of the game and its opening, kept in "rules.cfg" beside the
// configuration file: one "name value" line each, "rules <rule set>" (a name
// of RuleSets(), in any case) and "opening <layout file>" (the rest of the
// line, so that a name may hold blanks).

inline constexpr const char* RulesFile = "rules.cfg";

struct RuleChoice {
    std::string Rules = "Classic";   // as RuleSets() names it
    std::string Opening;             // "" when the file names none
    friend bool operator==(const RuleChoice&, const RuleChoice&) = default;
};

// Takes the settings of the text; refused, the choice left as it was, when a
// line names no setting, no rule set the program plays, or no file.
ReadResult ReadRulesText(RuleChoice& choice, std::string_view text);

// The text of the settings, each line ended by CR LF.
std::string RulesText(const RuleChoice& choice);

}  // namespace jv
