#include "records/OtnFile.h"

#include "core/VbText.h"
#include "records/Otn.h"
#include "records/RulesRecord.h"
#include "records/TextFile.h"

namespace jv {

const char* const PositionFilePatterns = "*.txt;;*.otn";
const char* const PositionFileDescriptions = "Game Files;;OpenTafl positions";
const char* const LoadFilePatterns = "*.txt;;*.otn;;*.otg";
const char* const LoadFileDescriptions = "Game Files;;OpenTafl positions;;OpenTafl games";

namespace {

bool EndsWith(const std::string& name, const char* extension) {
    return name.size() >= 4 && Lower(name.substr(name.size() - 4)) == extension;
}

}  // namespace

bool IsOtnFileName(const std::string& name) { return EndsWith(name, ".otn"); }

bool IsOtnGameFileName(const std::string& name) { return EndsWith(name, ".otg"); }

std::string OtnFileLine(const Game& g) {
    if (g.GameRules == Rules::Classic()) return OtnPosition(g);
    return "dim:" + std::to_string(g.BoardWidth) + " " + RulesRecordKeys(g.GameRules, g.GameRules.AttackersFirst) +
           " start:" + OtnPosition(g);
}

WriteResult WriteOtnFile(const Game& g, const std::string& path) {
    const std::string refusal = OtnRefusal(g);
    if (!refusal.empty()) return {false, "cannot hold this position: " + refusal};
    return WriteFileAtomically(path, OtnFileLine(g) + "\r\n");
}

}  // namespace jv
