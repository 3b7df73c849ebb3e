#pragma once
// Checks of a game's state that hold whatever the user did in the middle of
// a move, shared by the engine's and the window's tests of an impatient user.
// Header only: the window tests link the recording view but not GoogleTest.
#include <sstream>
#include <string>
#include <vector>

#include "core/Analysis.h"
#include "core/Board.h"
#include "core/Game.h"
#include "records/TextFile.h"
#include "support/RecordingView.h"

namespace jv::test {

// What is unsound in the game's state: the frame round the board, the Home
// corners, the codes of the squares in play, the King's square and the undo
// records. Empty when nothing is.
inline std::string Unsound(const Game& g) {
    std::ostringstream out;
    const int w = g.BoardWidth, h = g.BoardHeight;
    if (w < 0 || w > MaxBoardSide || h < 0 || h > MaxBoardSide) return "board size";
    const bool hasKing = g.KingCol != 0 || g.KingRow != 0;
    for (int c = 0; c <= w + 1; ++c)
        for (int r = 0; r <= h + 1; ++r) {
            const int code = g.Board(c, r);
            const bool king = hasKing && c == g.KingCol && r == g.KingRow;
            if (c == 0 || r == 0 || c == w + 1 || r == h + 1) {
                if (code != HomeCode) out << "frame " << c << "," << r << " holds " << code << "; ";
            } else if (IsCorner(g, c, r)) {
                if (code != HomeCode && !(king && code == DefenderCode)) out << "corner " << c << "," << r << "; ";
            } else if (code != EmptyCode && code != DefenderCode && code != AttackerCode) {
                out << "square " << c << "," << r << " holds " << code << "; ";
            }
        }
    if (hasKing && (g.KingCol < 1 || g.KingCol > w || g.KingRow < 1 || g.KingRow > h))
        out << "King off the board at " << g.KingCol << "," << g.KingRow << "; ";
    else if (hasKing && g.Board(g.KingCol, g.KingRow) != DefenderCode)
        out << "the King's square holds " << g.Board(g.KingCol, g.KingRow) << "; ";
    for (const std::string& record : g.Undo)
        if (record.size() != static_cast<std::size_t>(4 + w * h) ||
            record.find_first_not_of("HE01", 4) != std::string::npos)
            out << "undo record " << record << "; ";
    return out.str();
}

// Where the analysis tables differ from those of the position as it stands
// (after a completed move they never do). Empty when nowhere.
inline std::string StaleAnalysis(const Game& g) {
    RecordingView quiet;
    Game fresh = g;
    fresh.View = &quiet;
    AnalysePosition(fresh);
    std::ostringstream out;
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r)
            if (fresh.MoveTargets(c, r) != g.MoveTargets(c, r)) out << "targets of " << c << "," << r << "; ";
    if (fresh.DefenderCount != g.DefenderCount || fresh.AttackerCount != g.AttackerCount) out << "counters; ";
    if (fresh.CaptureChances != g.CaptureChances) out << "capture chances; ";
    return out.str();
}

// The lines of a file that are not layout lines of a board that fits: two
// digits each for the width, the height, the King's column and row, then one
// letter of "HE01" per square. Empty when every line is one; count gets the
// number of lines.
inline std::string BadLayoutLines(const std::string& path, std::size_t& count) {
    std::vector<std::string> lines;
    count = 0;
    if (!ReadLines(path, lines)) return "unreadable";
    count = lines.size();
    std::string bad;
    for (const std::string& line : lines) {
        const bool digits = line.size() >= 8 && line.find_first_not_of("0123456789") >= 8;
        const int w = digits ? std::stoi(line.substr(0, 2)) : -1, h = digits ? std::stoi(line.substr(2, 2)) : -1;
        if (!digits || w > MaxBoardSide || h > MaxBoardSide || line.size() != static_cast<std::size_t>(8 + w * h) ||
            line.find_first_not_of("HE01", 8) != std::string::npos)
            bad += line + "\n";
    }
    return bad;
}

}  // namespace jv::test
