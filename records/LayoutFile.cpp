#include "records/LayoutFile.h"

#include "core/Board.h"
#include "core/VbText.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"

namespace jv {

WriteResult WriteLayoutFile(const Game& g, const std::string& path) {
    return WriteFileAtomically(path, LayoutLine(g) + "\r\n");
}

ReadResult ApplyLayoutLine(Game& g, const std::string& line) {
    const std::string_view l(line);
    const int width = ValInt(l.substr(0, 2));
    const int height = ValInt(l.substr(std::min<std::size_t>(2, l.size()), 2));
    // The per-square tables end at 14; a larger (or negative) size cannot be
    // played and counts as a file that cannot be read.
    if (width < 0 || height < 0 || width > MaxBoardSide || height > MaxBoardSide)
        return ReadResult::Refused("a board of " + std::to_string(width) + " by " + std::to_string(height) +
                                   " squares: each side is 0 to 14");
    NewBoard(g, width, height);
    ApplyPositionRecord(g, std::string(l.substr(std::min<std::size_t>(4, l.size()))));
    for (int col = -1; col <= width + 1; ++col)
        for (int row = -1; row <= height + 1; ++row) g.SquareWeight(col, row) = 10;
    return ReadResult::Read();
}

ReadResult ReadLayoutText(Game& g, std::string_view text) {
    // An empty text has no first line to read: it fails like a missing file.
    const std::string line = FirstLine(text);
    if (line.empty()) return ReadResult::Refused("no layout line: the first line is empty");
    return ApplyLayoutLine(g, line);
}

ReadResult ReadLayoutFile(Game& g, const std::string& path) {
    std::string text;
    if (!ReadWholeFile(path, text)) return ReadResult::Refused("the file cannot be read");
    return ReadLayoutText(g, text);
}

}  // namespace jv
