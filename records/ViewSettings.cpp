#include "records/ViewSettings.h"

#include <sstream>

#include "records/TextFile.h"

namespace jv {

ReadResult ReadViewText(bool& taflCoordinates, std::string_view text) {
    bool read = taflCoordinates;
    for (const std::string& line : SplitLines(text)) {
        std::istringstream words(line);
        std::string name, value, extra;
        if (!(words >> name)) continue;   // a blank line
        words >> value;
        if (name != "coordinates" || (value != "board" && value != "tafl") || (words >> extra))
            return ReadResult::Refused("line \"" + line + "\" is no setting of the view");
        read = value == "tafl";
    }
    taflCoordinates = read;
    return ReadResult::Read();
}

std::string ViewText(bool taflCoordinates) {
    return std::string("coordinates ") + (taflCoordinates ? "tafl" : "board") + "\r\n";
}

}  // namespace jv
