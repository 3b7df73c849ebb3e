#pragma once
// Each reader of outside data driven on one input the way the program drives
// it, followed by the checks of what that reader promises (docs/readers.md).
// The readers are handed the input as text, without a file, and work on games
// reset between inputs, so that a run costs what the reader costs (the file
// layer around them is the same for all and has tests of its own).
// A run answers "" when all is well, else what went wrong. The fuzzing
// harnesses abort on an answer; the engine test that replays the kept inputs
// (tests/data/fuzz/<reader>/ and the seed corpora) expects "" for each.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Board.h"
#include "core/Game.h"
#include "core/VbText.h"
#include "fuzz/FuzzView.h"
#include "records/ColourScheme.h"
#include "records/Configuration.h"
#include "records/GameRecord.h"
#include "records/LayoutFile.h"
#include "session/Recording.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"

namespace jv::fuzz {

// The 7x7 layout the runs start from (pattern1.txt): King on D4.
inline constexpr std::string_view StartLayout = "07070404HEE1EEHEEE1EEEEEE0EEE1100011EEE0EEEEEE1EEEHEE1EEH";

// A game with a quiet view in the scratch folder.
struct ScratchGame {
    Game g;
    QuietView view;
    ScratchGame() {
        g.View = &view;
        g.ProgramFolder = ScratchFolder();
        BuildColumnLetters(g);
    }
    ScratchGame(const ScratchGame&) = delete;
    ScratchGame& operator=(const ScratchGame&) = delete;

    // Puts the game and its view back as the model has them: every field is
    // copied, so nothing a run leaves behind reaches the next run's checks.
    void ResetTo(const ScratchGame& model) {
        g = model.g;
        view = model.view;
        g.View = &view;
    }
};

// The models the games of the runs are reset to: a new game, and one with
// the start layout loaded.
inline const ScratchGame& NewGame() {
    static const ScratchGame model;
    return model;
}
inline const ScratchGame& StartedGame() {
    struct Started : ScratchGame {
        Started() { (void)ApplyLayoutLine(g, std::string(StartLayout)); }
    };
    static const Started model;
    return model;
}

// The games of one process: a run works on the first, a check that needs a
// game of its own on the second. Each comes back reset to the model, which
// costs a small part of building a game and loading a layout afresh.
inline constexpr std::size_t RunSlot = 0, CheckSlot = 1;
inline ScratchGame& CleanGame(std::size_t slot, const ScratchGame& model = NewGame()) {
    static std::array<ScratchGame, 2> games;
    ScratchGame& s = games.at(slot);
    s.ResetTo(model);
    return s;
}

// Characters from..from+count of a text, as much of them as there is.
inline std::string_view Part(std::string_view text, std::size_t from, std::size_t count) {
    return from >= text.size() ? std::string_view() : text.substr(from, count);
}

// The square code of a position-record letter, or false for any other byte.
inline bool LetterCode(char letter, int& code) {
    switch (letter) {
        case 'H': code = HomeCode; return true;
        case 'E': code = EmptyCode; return true;
        case '0': code = DefenderCode; return true;
        case '1': code = AttackerCode; return true;
        default: return false;
    }
}

// What any position on the board must be, whatever file it came from: a size
// the tables take, the King's square within them, only the four codes on the
// squares, Home in the corners and on the frame, and a layout line that reads
// back to itself.
inline std::string PositionProblem(const Game& g) {
    const int w = g.BoardWidth, h = g.BoardHeight;
    if (w < 0 || h < 0 || w > MaxBoardSide || h > MaxBoardSide) return "board size out of range";
    if (g.KingCol < 0 || g.KingRow < 0 || g.KingCol > MaxBoardSide || g.KingRow > MaxBoardSide)
        return "King's square out of range";
    for (int col = 0; col <= w + 1; ++col)
        for (int row = 0; row <= h + 1; ++row) {
            const int code = g.Board(col, row);
            const bool frame = col == 0 || row == 0 || col == w + 1 || row == h + 1;
            if ((frame || IsCorner(g, col, row)) && code != HomeCode) return "frame or corner not Home";
            if (!frame && code != HomeCode && code != EmptyCode && code != DefenderCode && code != AttackerCode)
                return "a square holds an unknown code";
        }
    ScratchGame& copy = CleanGame(CheckSlot);
    const std::string line = LayoutLine(g);
    if (!ApplyLayoutLine(copy.g, line).Ok()) return "its own layout line is refused";
    if (LayoutLine(copy.g) != line) return "its layout line does not read back the same";
    return "";
}

// The King's square and the squares of a record applied over the board
// before: characters 1-4 are the King's square, held within 0..14; square k
// (column by column) takes character 4+k when it is one of the four letters
// and keeps its code otherwise; the corners are Home whatever the record says.
inline std::string RecordProblem(const Game& g, std::string_view record, const Grid<std::int32_t>& before) {
    if (g.KingCol != std::clamp(ValInt(Part(record, 0, 2)), 0, MaxBoardSide) ||
        g.KingRow != std::clamp(ValInt(Part(record, 2, 2)), 0, MaxBoardSide))
        return "the King's square is not the record's";
    const int h = g.BoardHeight;
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= h; ++row) {
            const std::size_t k = static_cast<std::size_t>((col - 1) * h + row);
            int code = before(col, row);
            if (k + 3 < record.size()) LetterCode(record[k + 3], code);
            if (IsCorner(g, col, row)) code = HomeCode;
            if (g.Board(col, row) != code) return "square " + SquareName(g, col, row) + " is not the record's";
        }
    return "";
}

// ReadLayoutText on the input as a layout file's text, over the start layout.
inline std::string RunLayoutFile(std::string_view input) {
    Game& g = CleanGame(RunSlot, StartedGame()).g;
    const std::string before = LayoutLine(g);
    const bool failed = !ReadLayoutText(g, input).Ok();

    const std::string line = FirstLine(input);
    const int w = ValInt(Part(line, 0, 2)), h = ValInt(Part(line, 2, 2));
    // A text without a first line (an empty one) has no layout to read.
    const bool playable = !line.empty() && w >= 0 && h >= 0 && w <= MaxBoardSide && h <= MaxBoardSide;
    if (failed == playable) return failed ? "a playable layout was refused" : "an unplayable size was taken";
    if (failed) return LayoutLine(g) == before ? "" : "a refused layout changed the board";

    if (g.BoardWidth != w || g.BoardHeight != h) return "the board size is not the file's";
    // The record goes onto a fresh board, all of whose squares are empty.
    Grid<std::int32_t> empty;
    empty.Fill(EmptyCode);
    const std::string problem = RecordProblem(g, Part(line, 4, std::string_view::npos), empty);
    if (!problem.empty()) return problem;
    for (int col = -1; col <= w + 1; ++col)
        for (int row = -1; row <= h + 1; ++row)
            if (g.SquareWeight(col, row) != 10) return "a square weight is not 10";
    return PositionProblem(g);
}

// ApplyPositionRecord of the input from its third byte on, over a board whose
// size the first two bytes choose, filled beforehand with pieces of every kind.
inline std::string RunPositionRecord(std::string_view input) {
    if (input.size() < 2) return "";
    Game& g = CleanGame(RunSlot).g;
    const int w = static_cast<unsigned char>(input[0]) % (MaxBoardSide + 1);
    const int h = static_cast<unsigned char>(input[1]) % (MaxBoardSide + 1);
    const std::string record(input.substr(2));
    NewBoard(g, w, h);
    constexpr std::array<int, 3> Codes{EmptyCode, DefenderCode, AttackerCode};
    for (int col = 1; col <= w; ++col)
        for (int row = 1; row <= h; ++row) g.Board(col, row) = Codes[static_cast<std::size_t>((col + 2 * row) % 3)];
    g.KingCol = w / 2 + 1;
    g.KingRow = h / 2 + 1;
    const Grid<std::int32_t> before = g.Board;

    ApplyPositionRecord(g, record);

    const std::string problem = RecordProblem(g, record, before);
    if (!problem.empty()) return problem;
    return PositionProblem(g);
}

inline bool SameSettings(const Game& a, const Game& b) {
    return a.SchemeFile == b.SchemeFile && a.LayoutFile == b.LayoutFile && a.PictureFiles == b.PictureFiles &&
           a.PieceColours == b.PieceColours && a.BoardStyle == b.BoardStyle && a.SquareGap == b.SquareGap &&
           a.ShowLabels == b.ShowLabels && a.ColourMode == b.ColourMode && a.ColourTable == b.ColourTable;
}

// Settings no configuration file gives, each unlike a new game's.
inline void MarkSettings(Game& g) {
    g.SchemeFile = g.LayoutFile = "marked";
    g.PictureFiles.fill("marked");
    g.PieceColours.fill(-7);
    g.BoardStyle = g.SquareGap = g.ShowLabels = g.ColourMode = g.ColourTable[13] = -7;
}

// ReadConfigurationText on the input as the text of jarlsvakt.cfg, in a
// program folder that holds the layout patf.txt and no picture.
inline std::string RunConfiguration(std::string_view input) {
    [[maybe_unused]] static const std::string layout =
        WriteScratchFile("patf.txt", std::string(StartLayout) + "\r\n");
    ScratchGame& s = CleanGame(RunSlot);
    Game& g = s.g;
    const bool taken = ReadConfigurationText(g, input);
    if (s.view.Shows != 0) return "reading showed a message: " + s.view.LastText;
    if (!taken) return SameSettings(g, CleanGame(CheckSlot).g) ? "" : "a refused text changed a setting";

    if (SplitLines(input).size() < 8) return "a text of fewer than eight lines was taken";
    if (Trim(g.SchemeFile).empty()) return "the scheme name is blank";
    if (g.LayoutFile != "patf.txt" && !FileExists(InProgramFolder(g, g.LayoutFile)))
        return "the layout names a missing file";
    for (std::size_t i = 0; i < g.PictureFiles.size(); ++i)
        if (g.PictureFiles[i] != DefaultPictures[i] && !FileExists(InProgramFolder(g, g.PictureFiles[i])))
            return "a picture names a missing file";

    // Taken whole: read over other settings, the text gives the same ones.
    Game& other = CleanGame(CheckSlot).g;
    MarkSettings(other);
    if (!ReadConfigurationText(other, input)) return "a second reading refused the text";
    return SameSettings(g, other) ? "" : "a setting was kept from before the reading";
}

// LoadColourScheme and FillSchemeList on the lines of an all.col holding the
// input after its first line; the first line is the scheme asked for. Then
// every listed name is loaded as the options dialog would load it.
inline std::string RunColourScheme(std::string_view input) {
    const std::size_t lf = input.find('\n');
    const std::string name = FirstLine(input);
    const std::vector<std::string> lines =
        SplitLines(lf == std::string_view::npos ? std::string_view() : input.substr(lf + 1));

    ScratchGame& s = CleanGame(RunSlot);
    Game& g = s.g;
    // A mark no scheme can give (colours have a clear top byte).
    for (std::size_t i = 0; i < g.ColourTable.size(); ++i) g.ColourTable[i] = 0x7F000000 + static_cast<int>(i);
    const auto marked = g.ColourTable;
    g.SchemeFile = "before.col";

    const std::vector<std::string> names = FillSchemeList(lines);
    const auto headers = std::count_if(lines.begin(), lines.end(),
                                       [](const std::string& l) { return l.find(".col") != std::string::npos; });
    if (static_cast<std::ptrdiff_t>(names.size()) != headers) return "the list does not have one name per header";
    for (const std::string& n : names)
        if (n.find(".col") != std::string::npos) return "a listed name holds .col";

    const bool found = LoadColourScheme(g, lines, name);
    const auto header = std::find(lines.begin(), lines.end(), name);
    if (found != (header != lines.end())) return "the scheme was found where it is not, or missed";
    if (!found) {
        if (g.ColourTable != marked) return "a scheme not found changed the colours";
        if (g.SchemeFile != "xp.col") return "a scheme not found did not fall back to xp.col";
        if (s.view.LastText != "Colour Scheme: " + name + " not found") return "wrong message for a missing scheme";
        return "";
    }
    const std::size_t loaded = std::min<std::size_t>(13, static_cast<std::size_t>(lines.end() - header - 1));
    for (std::size_t i = 0; i < g.ColourTable.size(); ++i) {
        const bool colour = (g.ColourTable[i] & 0x7F000000) == 0;
        if (colour != (i < loaded)) return "colour table entry " + std::to_string(i) + " loaded wrongly";
    }
    if (s.view.Shows != 0) return "a found scheme showed a message";
    if (g.SchemeFile != "before.col") return "a found scheme changed the scheme name";

    for (std::size_t i = 0; i < names.size() && i < 16; ++i) LoadColourScheme(g, lines, names[i] + ".col");
    return "";
}

// The answers to the message box from a script line: 'y' Yes, 'c' Cancel,
// any other character No.
inline std::deque<int> ScriptedAnswers(std::string_view script) {
    std::deque<int> answers;
    for (char c : script) answers.push_back(c == 'y' || c == 'Y' ? 6 : c == 'c' || c == 'C' ? 2 : 7);
    return answers;
}

// How many steps of n the answers let the replay ask about (Yes and Cancel
// end the steps, and so does the last line), and whether it stops on one.
inline std::pair<std::size_t, bool> StepsAsked(const std::deque<int>& answers, int then, std::size_t n) {
    for (std::size_t k = 0; k < n; ++k) {
        const int answer = k < answers.size() ? answers[k] : then;
        if (answer == 6 || answer == 2) return {k + 1, answer == 6};
    }
    return {n, false};
}

// Checks each step of a replay when it is asked about: the question, and the
// board against the step's line applied over the board before it.
class StepChecker : public QuietView {
public:
    StepChecker(const Game& g, const std::vector<std::string>& lines) : g_(g), lines_(lines), before_(g.Board) {}
    std::string Problem;

    int Show(const std::string& text, const std::string& style) override {
        if (Problem.empty()) Problem = StepProblem(static_cast<std::size_t>(Shows), text, style);
        before_ = g_.Board;
        return QuietView::Show(text, style);
    }

private:
    std::string StepProblem(std::size_t k, const std::string& text, const std::string& style) const {
        if (k >= lines_.size()) return "a step past the log's last line";
        const std::string n = std::to_string(lines_.size());
        if (text != "Step " + std::to_string(k + 1) + " of " + n + "\r\nStop ?" || style != "vbquestion+vbYesNoCancel")
            return "step " + std::to_string(k + 1) + " was asked as: " + text;
        return RecordProblem(g_, Part(lines_[k], 4, std::string_view::npos), before_);
    }
    const Game& g_;
    const std::vector<std::string>& lines_;
    Grid<std::int32_t> before_;
};

// At most this many steps are answered from the script; the next is answered
// Cancel. Every step runs the same code, so a longer replay only repeats it:
// the cap keeps the runs on what the lines hold rather than on hundreds of
// steps through the same empty line.
inline constexpr std::size_t MaxScriptedAnswers = 16;

// The replay of a moves log holding the input after its first line, on a game
// in progress: the log's text read as a layout, then its steps, the first
// line scripting the answers to the step questions.
inline std::string RunMovesLog(std::string_view input) {
    const std::size_t lf = input.find('\n');
    const std::string_view script = input.substr(0, lf);
    const std::string_view log = lf == std::string_view::npos ? std::string_view() : input.substr(lf + 1);
    const std::vector<std::string> lines = SplitLines(log);

    Game& g = CleanGame(RunSlot, StartedGame()).g;
    g.Board(2, 2) = AttackerCode;   // a game in progress: a refused layout line leaves it on the board
    (void)ReadLayoutText(g, log);
    StepChecker view(g, lines);
    view.Answers = ScriptedAnswers(script.substr(0, MaxScriptedAnswers));
    view.DefaultAnswer = 2;
    const auto [asked, stops] = StepsAsked(view.Answers, view.DefaultAnswer, lines.size());
    g.View = &view;
    const bool stopped = StepThroughLog(g, lines);
    g.View = nullptr;   // the view ends with this run

    if (!view.Problem.empty()) return view.Problem;
    if (static_cast<std::size_t>(view.Shows) != asked || stopped != stops)
        return "the steps did not end where the answers say";
    return PositionProblem(g);
}

// Val and ValInt: never NaN, blanks in front and a non-digit behind change
// nothing, and a short whole number reads as itself.
inline std::string RunVal(std::string_view input) {
    const double v = Val(input);
    if (std::isnan(v)) return "Val gave NaN";
    const std::string text(input);
    if (ValInt(" \t " + text) != ValInt(text)) return "leading blanks changed ValInt";
    const double after = Val(text + "x");
    if (!(after == v)) return "a trailing letter changed Val";
    std::size_t i = text.find_first_not_of(" \t");
    if (i == std::string::npos) return v == 0 ? "" : "a blank text is not 0";
    std::size_t digits = i + (text[i] == '-' || text[i] == '+');
    std::size_t end = digits;
    while (end < text.size() && end - digits < 10 && text[end] >= '0' && text[end] <= '9') ++end;
    const bool whole = end > digits && end - digits <= 9 && (end == text.size() || (text[end] != '.' && (text[end] < '0' || text[end] > '9')));
    if (whole && v != static_cast<double>(std::strtol(text.c_str() + i, nullptr, 10)))
        return "a whole number did not read as itself";
    if (whole && ValInt(text) != std::strtol(text.c_str() + i, nullptr, 10)) return "ValInt differs on a whole number";
    // More than ten digits, the first not 0, is beyond 32 bits however many
    // there are: ValInt saturates.
    std::size_t run = digits;
    while (run < text.size() && text[run] >= '0' && text[run] <= '9') ++run;
    if (run - digits > 10 && text[digits] != '0' &&
        ValInt(text) != (text[i] == '-' ? std::numeric_limits<std::int32_t>::min() : std::numeric_limits<std::int32_t>::max()))
        return "ValInt of a long number did not saturate";
    return "";
}

// ReadOtnGame on the input as the text of an .otg file. It reads every move
// or gives its reason; every position it gives is a layout line of the
// start's board that reads back to itself; and those positions, written as a
// game record under the rules read, read back to the same positions under the
// same rules: what the reader takes is a game the program can write.
inline std::string RunGameRecord(std::string_view input) {
    const OtnGameResult game = ReadOtnGame(std::string(input));
    if (game.Ok == !game.Reason.empty()) return game.Ok ? "a record read whole has a reason" : "a refusal without a reason";
    if (game.Positions.empty()) return game.Ok ? "a record read whole has no start" : "";
    Game& g = CleanGame(RunSlot).g;
    for (const std::string& line : game.Positions) {
        if (line.compare(0, 4, game.Positions.front(), 0, 4) != 0) return "a position of another board size";
        if (!ApplyLayoutLine(g, line).Ok() || LayoutLine(g) != line) return "a position does not read back as itself";
    }
    const GameRecordResult record = MakeGameRecord(game.Positions, game.GameRules);
    if (!record.Ok) return "the game read is not written: line " + std::to_string(record.BadLine) + ": " + record.Reason;
    const OtnGameResult again = ReadOtnGame(JoinLines(record.Lines));
    if (!again.Ok) return "the record written is refused: " + again.Reason;
    if (!(again.GameRules == game.GameRules)) return "the record written reads back under other rules";
    return again.Positions == game.Positions ? "" : "the record written reads back to other positions";
}

// The readers by name, the name being the folder of their kept inputs.
struct Reader {
    const char* Name;
    std::string (*Run)(std::string_view);
};

inline const std::array<Reader, 7>& Readers() {
    static const std::array<Reader, 7> readers{{{"layout_file", RunLayoutFile},
                                                {"position_record", RunPositionRecord},
                                                {"configuration", RunConfiguration},
                                                {"colour_scheme", RunColourScheme},
                                                {"moves_log", RunMovesLog},
                                                {"val", RunVal},
                                                {"game_record", RunGameRecord}}};
    return readers;
}

// For a harness: stops the run with the problem when there is one.
inline void Expect(const std::string& problem) {
    if (problem.empty()) return;
    std::fprintf(stderr, "reader check failed: %s\n", problem.c_str());
    std::abort();
}

}  // namespace jv::fuzz

// The entry point of a harness that drives one reader run.
#define JARLSVAKT_FUZZ_TARGET(run)                                                           \
    extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {   \
        jv::fuzz::Expect(run(std::string_view(reinterpret_cast<const char*>(data), size))); \
        return 0;                                                                           \
    }
