#include "records/ColourScheme.h"

#include <algorithm>

#include "core/GameView.h"
#include "core/VbText.h"
#include "records/TextFile.h"

namespace jv {

namespace {

struct Rgb {
    long long Red = 0, Green = 0, Blue = 0;
};

// The lines of "all.col"; none when it cannot be read, which lists no scheme
// and finds none.
std::vector<std::string> ColourFileLines(const Game& g) {
    std::vector<std::string> lines;
    ReadLines(g.ProgramFolder + "all.col", lines);
    return lines;
}

// red;green;blue, each part read as Val (a missing part is 0).
Rgb ParseColourLine(const std::string& line) {
    Rgb c;
    long long* parts[3] = {&c.Red, &c.Green, &c.Blue};
    std::size_t start = 0;
    for (long long* part : parts) {
        if (start > line.size()) break;
        const std::size_t end = std::min(line.find(';', start), line.size());
        *part = ValInt(std::string_view(line).substr(start, end - start));
        start = end + 1;
    }
    return c;
}

// Entry 3: the board colour raised by 32; a raised value above 256 becomes
// 254 (256 itself stays and is taken as 255).
long long Lighter(long long v) {
    v += 32;
    return v > 256 ? 254 : v;
}

// Entry 5: the grid colour lowered by 32; below 1 becomes 8.
long long Darker(long long v) {
    v -= 32;
    return v < 1 ? 8 : v;
}

// A component above 255 counts as 255; a negative one (only a malformed
// file gives one) as 0.
std::int32_t Rgb32(const Rgb& c) {
    auto part = [](long long v) { return static_cast<std::int32_t>(std::clamp<long long>(v, 0, 255)); };
    return part(c.Red) | part(c.Green) << 8 | part(c.Blue) << 16;
}

}  // namespace

std::vector<std::string> FillSchemeList(const std::vector<std::string>& lines) {
    std::vector<std::string> names;
    for (const std::string& line : lines) {
        const std::size_t found = line.find(".col");
        if (found != std::string::npos) names.push_back(line.substr(0, found));
    }
    return names;
}

bool LoadColourScheme(Game& g, const std::vector<std::string>& lines, const std::string& name) {
    const auto header = std::find(lines.begin(), lines.end(), name);
    if (header == lines.end()) {
        g.View->Show("Colour Scheme: " + name + " not found", "vbok+vbcritical");
        g.SchemeFile = "xp.col";
        return false;
    }
    // A scheme cut short by the end of the file keeps the entries read so
    // far; the rest of the table stays as it was.
    Rgb c;
    auto line = header + 1;
    for (int i = 0; i <= 12 && line != lines.end(); ++i, ++line) {
        if (i == 3) {
            c = {Lighter(c.Red), Lighter(c.Green), Lighter(c.Blue)};
        } else if (i == 5) {
            c = {Darker(c.Red), Darker(c.Green), Darker(c.Blue)};
        } else {
            c = ParseColourLine(*line);
        }
        g.ColourTable[static_cast<std::size_t>(i)] = Rgb32(c);
    }
    return true;
}

std::vector<std::string> FillSchemeList(const Game& g) { return FillSchemeList(ColourFileLines(g)); }

bool LoadColourScheme(Game& g, const std::string& name) { return LoadColourScheme(g, ColourFileLines(g), name); }

}  // namespace jv
