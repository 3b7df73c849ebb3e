#pragma once
#include <string>
#include <string_view>

#include "records/ReadResult.h"

namespace jv {

// The view's settings file, "view.cfg" beside the configuration file: one
// line, "coordinates board|tafl", the way squares are named on the board's
// edges and in the panes beyond the classic lists.

inline constexpr const char* ViewFile = "view.cfg";

// Takes the setting of the text; refused, the value left as it was, when a
// line names no setting of the view or gives it a value it does not take.
ReadResult ReadViewText(bool& taflCoordinates, std::string_view text);

// The text of the setting, ended by CR LF.
std::string ViewText(bool taflCoordinates);

}  // namespace jv
