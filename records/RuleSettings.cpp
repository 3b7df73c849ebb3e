#include "records/RuleSettings.h"

#include "core/Rules.h"
#include "core/VbText.h"
#include "records/TextFile.h"

namespace jv {

ReadResult ReadRulesText(RuleChoice& choice, std::string_view text) {
    RuleChoice read = choice;
    for (const std::string& line : SplitLines(text)) {
        const std::string trimmed = Trim(line);
        if (trimmed.empty()) continue;
        const std::size_t gap = trimmed.find(' ');
        const std::string name = trimmed.substr(0, gap);
        const std::string value = gap == std::string::npos ? "" : Trim(std::string_view(trimmed).substr(gap));
        const Rules* rules = name == "rules" ? FindRules(value) : nullptr;
        if (rules != nullptr) read.Rules = rules->Name;
        else if (name == "opening" && !value.empty()) read.Opening = value;
        else return ReadResult::Refused("line \"" + line + "\" is no setting of the rules");
    }
    choice = read;
    return ReadResult::Read();
}

std::string RulesText(const RuleChoice& choice) {
    std::string text = "rules " + choice.Rules + "\r\n";
    if (!choice.Opening.empty()) text += "opening " + choice.Opening + "\r\n";
    return text;
}

}  // namespace jv
