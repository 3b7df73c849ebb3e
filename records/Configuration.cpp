#include "records/Configuration.h"

#include <cctype>
#include <cmath>
#include <filesystem>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/GameView.h"
#include "core/VbText.h"
#include "records/TextFile.h"

namespace jv {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// List input on one line: a text field ends at a comma or the line end and
// loses its surrounding quotes; numbers are separated by blanks or commas.
class ListInput {
public:
    explicit ListInput(std::string_view line) : line_(line) {}

    std::string Text() {
        SkipBlanks();
        std::string text;
        if (pos_ < line_.size() && line_[pos_] == '"') {
            const std::size_t close = line_.find('"', pos_ + 1);
            const std::size_t end = close == std::string_view::npos ? line_.size() : close;
            text = std::string(line_.substr(pos_ + 1, end - pos_ - 1));
            pos_ = end;
            SkipPast(',');
            return text;
        }
        const std::size_t comma = line_.find(',', pos_);
        const std::size_t end = comma == std::string_view::npos ? line_.size() : comma;
        text = std::string(line_.substr(pos_, end - pos_));
        while (!text.empty() && IsBlank(text.back())) text.pop_back();
        pos_ = end;
        SkipPast(',');
        return text;
    }

    // A whole number, or nothing when the line has ended or the field is not
    // a number (or does not fit 32 bits).
    std::optional<std::int32_t> Number() {
        SkipBlanks();
        if (pos_ >= line_.size()) return std::nullopt;
        std::size_t end = pos_;
        while (end < line_.size() && line_[end] != ',' && !IsBlank(line_[end])) ++end;
        std::string_view field = line_.substr(pos_, end - pos_);
        if (field.size() >= 2 && field.front() == '"' && field.back() == '"') field = field.substr(1, field.size() - 2);
        pos_ = end;
        SkipBlanks();
        if (pos_ < line_.size() && line_[pos_] == ',') ++pos_;
        if (field.empty()) return 0;   // two commas in a row: an empty number is 0
        if (!IsNumber(field)) return std::nullopt;
        const double value = std::nearbyint(Val(field));
        if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
            return std::nullopt;
        return static_cast<std::int32_t>(value);
    }

private:
    static bool IsNumber(std::string_view field) {
        std::size_t i = 0;
        if (i < field.size() && (field[i] == '-' || field[i] == '+')) ++i;
        bool digits = false;
        for (; i < field.size() && std::isdigit(static_cast<unsigned char>(field[i])); ++i) digits = true;
        if (i < field.size() && field[i] == '.')
            for (++i; i < field.size() && std::isdigit(static_cast<unsigned char>(field[i])); ++i) digits = true;
        return digits && i == field.size();
    }
    void SkipBlanks() {
        while (pos_ < line_.size() && IsBlank(line_[pos_])) ++pos_;
    }
    void SkipPast(char c) {
        const std::size_t found = line_.find(c, pos_);
        pos_ = found == std::string_view::npos ? line_.size() : found + 1;
    }

    std::string_view line_;
    std::size_t pos_ = 0;
};

// The settings as read from the file, taken over only once all eight lines
// have been read.
struct StoredSettings {
    std::string Scheme, Layout;
    std::array<std::string, 4> Pictures;
    std::array<std::int32_t, 4> Colours{};
    std::array<std::int32_t, 5> Display{};
};

bool ReadNumbers(std::string_view line, std::int32_t* out, int count) {
    ListInput input(line);
    for (int i = 0; i < count; ++i) {
        const std::optional<std::int32_t> n = input.Number();
        if (!n) return false;
        out[i] = *n;
    }
    return true;
}

// Reads the eight lines; a missing file named on line 2 to 6 falls back to
// its default name. False when the text cannot be read whole.
bool ReadSettings(const Game& g, std::string_view text, StoredSettings& s) {
    const std::vector<std::string> lines = SplitLines(text);
    if (lines.size() < 8) return false;
    s.Scheme = ListInput(lines[0]).Text();
    if (Trim(s.Scheme).empty()) s.Scheme = "xp.col";
    s.Layout = ListInput(lines[1]).Text();
    if (!FileExists(InProgramFolder(g, s.Layout))) s.Layout = "patf.txt";
    for (std::size_t i = 0; i < 4; ++i) {
        s.Pictures[i] = ListInput(lines[2 + i]).Text();
        if (!FileExists(InProgramFolder(g, s.Pictures[i]))) s.Pictures[i] = DefaultPictures[i];
    }
    return ReadNumbers(lines[6], s.Colours.data(), 4) && ReadNumbers(lines[7], s.Display.data(), 5);
}

void Apply(Game& g, const StoredSettings& s) {
    g.SchemeFile = s.Scheme;
    g.LayoutFile = s.Layout;
    g.PictureFiles = s.Pictures;
    g.PieceColours = s.Colours;
    g.BoardStyle = s.Display[0];
    g.SquareGap = s.Display[1];
    g.ShowLabels = s.Display[2];
    g.ColourMode = s.Display[3];
    g.ColourTable[13] = s.Display[4];
}

std::string ConfigurationText(const Game& g) {
    std::vector<std::string> lines{g.SchemeFile, g.LayoutFile};
    for (const std::string& picture : g.PictureFiles) lines.push_back(picture);
    std::string colours;
    for (std::int32_t c : g.PieceColours) colours += (colours.empty() ? "" : " ") + std::to_string(c);
    lines.push_back(colours);
    lines.push_back(std::to_string(g.BoardStyle) + " " + std::to_string(g.SquareGap) + " " +
                    std::to_string(g.ShowLabels) + " " + std::to_string(g.ColourMode) + " " +
                    std::to_string(g.ColourTable[13]));
    return JoinLines(lines);
}

}  // namespace

bool ReadConfigurationText(Game& g, std::string_view text) {
    StoredSettings s;
    if (!ReadSettings(g, text, s)) return false;
    Apply(g, s);
    return true;
}

void ReadConfiguration(Game& g, const std::string& name) {
    const std::string path = InProgramFolder(g, name);
    std::string text;
    if (ReadWholeFile(path, text) && ReadConfigurationText(g, text)) return;
    WriteDefaultConfiguration(g, path);
}

void WriteDefaultConfiguration(Game& g, const std::string& name) {
    g.SchemeFile = "xp.col";
    g.LayoutFile = "patf.txt";
    for (std::size_t i = 0; i < 4; ++i) g.PictureFiles[i] = DefaultPictures[i];
    g.PieceColours = DefaultPieceColours;
    g.BoardStyle = 0;
    g.SquareGap = 1;
    // ShowLabels, ColourMode and the fifth setting keep their values. A
    // defaults file that cannot be written is not reported: the defaults are
    // in force all the same.
    (void)WriteFileAtomically(InProgramFolder(g, name), ConfigurationText(g));
}

bool WriteConfiguration(Game& g, const std::string& name) {
    const std::string path = InProgramFolder(g, name);
    const WriteResult written = WriteFileAtomically(path, ConfigurationText(g));
    if (written.Ok()) return true;
    g.View->Show("Configuration file:\r\n" + path + "\r\n" + written.Problem("could not be accessed") + ", options not saved",
                 "vbok+vbcritical");
    return false;
}

bool FileExists(const std::string& name) {
    if (name.empty() || name.back() == '\\' || name.back() == '/') return false;
    std::error_code ec;
    return std::filesystem::is_regular_file(name, ec);
}

}  // namespace jv
