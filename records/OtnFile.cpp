#include "records/OtnFile.h"

#include "core/VbText.h"
#include "records/Otn.h"
#include "records/TextFile.h"

namespace jv {

const char* const PositionFilePatterns = "*.txt;;*.otn";
const char* const PositionFileDescriptions = "Game Files;;OpenTafl positions";

bool IsOtnFileName(const std::string& name) {
    return name.size() >= 4 && Lower(name.substr(name.size() - 4)) == ".otn";
}

bool WriteOtnFile(const Game& g, const std::string& path) {
    return WriteFileAtomically(path, OtnPosition(g) + "\r\n");
}

}  // namespace jv
