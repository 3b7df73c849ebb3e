#pragma once
#include <string>
#include <string_view>

#include "core/Game.h"
#include "records/WriteResult.h"
#include "records/ReadResult.h"

namespace jv {

// Writes the layout line of the board as it stands, with CR LF, replacing the
// file through a temporary file (WriteFileAtomically).
WriteResult WriteLayoutFile(const Game& g, const std::string& path);

// Reads the first line of a layout file onto a fresh board and sets every
// SquareWeight to 10. Refused, the game left as it was: the file cannot be
// read, it has no first line, or its board is wider or higher than 14.
ReadResult ReadLayoutFile(Game& g, const std::string& path);

// The same for the whole text of a layout file already in hand.
ReadResult ReadLayoutText(Game& g, std::string_view text);

// The same for a layout line already in hand.
ReadResult ApplyLayoutLine(Game& g, const std::string& line);

}  // namespace jv
