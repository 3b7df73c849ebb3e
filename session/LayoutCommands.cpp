#include "session/LayoutCommands.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "ai/SquareWeights.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "records/GameRecord.h"
#include "records/LayoutFile.h"
#include "records/Otn.h"
#include "records/OtnFile.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/FileChoice.h"
#include "session/Recording.h"

namespace jv {

namespace {

// The opening shipped with the program, the last resort of a failed load.
const std::string ShippedOpening = "patf.txt";

// Keeps LoadLayout's nesting depth for the length of one call.
struct LoadDepth {
    explicit LoadDepth(Game& game) : g(game) { ++g.LayoutLoadDepth; }
    ~LoadDepth() { --g.LayoutLoadDepth; }
    LoadDepth(const LoadDepth&) = delete;
    LoadDepth& operator=(const LoadDepth&) = delete;
    Game& g;
};

// A new game starts with no piece in hand: no drag under way and no square
// under the pointer.
void NewGameInitialisation(Game& g) {
    g.DragSource = Square{};
    g.PointerSquare = Square{};
    g.DragLineVisible = false;
    g.View->HideDragLine();
}

// Everything a successful load does after the file has been read, except
// naming the file: the position is refreshed, the tables and counters start
// again, the undo history, the editor and the event log are cleared.
void StartGameOnBoard(Game& g) {
    SetSquareWeights(g, 400);
    g.TurnCounts = {0, 0};
    SetHomeSquares(g, HomeCode);
    g.Undo.clear();
    g.View->RefreshList(ListId::Undo);
    g.EditorOn = false;
    g.View->ShowEditor(false);
    ClearEventLog(g);
    NewGameInitialisation(g);
}

void EnablePlay(Game& g) {
    ShowLayoutName(g);
    g.BoardEnabled = true;
    g.View->EnableBoard(true);
}

// Neither the chosen layout nor the one before it can be read: rather than
// trying the same file for ever, play goes on on an empty 11 by 11 board.
void LoadEmptyBoard(Game& g, const std::string& previous) {
    g.View->Show("Layout File:\r\n" + previous + "\r\ncould not be read either, an empty board is set up",
                 "vbcritical+vbok");
    NewBoard(g, 11, 11);
    g.KingCol = 0;
    g.KingRow = 0;
    for (int col = -1; col <= 12; ++col)
        for (int row = -1; row <= 12; ++row) g.SquareWeight(col, row) = 10;
    AnalysePosition(g);
    g.View->DrawBoard();
    StartGameOnBoard(g);
    PrintLog(g, "Empty board: no layout could be read", 0, 0);
    EnablePlay(g);
}

// The file is there when its length can be read.
bool FileHasLength(const std::string& path) {
    std::error_code ec;
    [[maybe_unused]] const auto length = std::filesystem::file_size(path, ec);
    return !ec;
}

// A layout that cannot be read is reported once, and the previous layout
// comes back; when that cannot be read either, the shipped opening does, and
// only when that fails too is an empty board set up.
void ReportUnreadableLayout(Game& g, const std::string& path, const std::string& previous) {
    if (g.LayoutLoadDepth == 1) {
        g.View->Show("Error reading Layout File:\r\n" + path, "vbcritical+vbok");
        g.View->DoEvents();
        LoadLayout(g, previous);
        return;
    }
    if (g.LayoutLoadDepth == 2 && path != ShippedOpening) {
        if (LoadLayout(g, ShippedOpening))
            PrintLog(g, "Layout File: " + path + " could not be read either, " + ShippedOpening + " is loaded", 0, 0);
        return;
    }
    LoadEmptyBoard(g, path);
}

// Starts a game on a position read from an OpenTafl file: it becomes the
// layout file "otnlayout.txt", which LoadLayout then loads. False when it
// could not be (reported).
bool LoadOtnLayoutLine(Game& g, const std::string& layout) {
    const std::string path = g.ProgramFolder + "otnlayout.txt";
    const WriteResult written = WriteFileAtomically(path, layout + "\r\n");
    if (!written.Ok()) {
        g.View->Show("Layout File:\r\n" + path + "\r\n" + written.Problem("could not be written") +
                         ", the position is not loaded",
                     "vbcritical+vbok");
        return false;
    }
    LoadLayout(g, path);
    return g.LayoutFile == path;   // a failure is reported by LoadLayout
}

// The position of an .otn file's line and the rules it is played under: a
// bare OTN position under the rules in play, as a layout file, or a rules
// record with its start under its own rules. False with the reason.
bool ReadOtnLine(const Game& g, const std::string& line, std::string& layout, Rules& rules, std::string& reason) {
    rules = g.GameRules;
    if (line.find(':') == std::string::npos) return OtnToLayoutLine(line, layout, reason);
    const OtnGameResult record = ReadOtnGame(line);
    reason = record.Reason;
    if (!record.Ok) return false;
    layout = record.Positions.front();
    rules = record.GameRules;
    return true;
}

// The record's positions up to the one the board shows become the undo
// history, as if played, so the game goes on, is taken back and exported
// from there; the move list keeps the record's later moves to step to.
void TakeRecordAsPlayed(Game& g, const std::vector<std::string>& positions) {
    const auto shown = std::find(positions.begin(), positions.end(), LayoutLine(g));
    if (shown == positions.end()) return;
    g.Undo.clear();
    for (auto p = positions.begin(); p != shown; ++p) g.Undo.insert(g.Undo.begin(), p->substr(4));
    g.View->RefreshList(ListId::Undo);
    g.Browsed = {positions, g.Undo.size(), g.GameNumber};
}

}  // namespace

bool LoadLayout(Game& g, const std::string& path) {
    LoadDepth depth(g);
    const std::string previous = g.LayoutFile;
    if (!ReadLayoutFile(g, InProgramFolder(g, path)).Ok()) {
        ReportUnreadableLayout(g, path, previous);
        return false;
    }
    AnalysePosition(g);
    g.View->DrawBoard();
    g.LayoutFile = path;
    StartGameOnBoard(g);
    PrintLog(g, "Loaded Layout: " + path, 0, 0);
    EnablePlay(g);
    return true;
}

bool LoadOtnFile(Game& g, const std::string& name) {
    std::string otn, layout, reason;
    if (!ReadFirstLine(InProgramFolder(g, name), otn)) {
        g.View->Show("OpenTafl Position File:\r\n" + name + "\r\ncould not be read", "vbcritical+vbok");
        return false;
    }
    Rules rules;
    if (!ReadOtnLine(g, otn, layout, rules, reason)) {
        g.View->Show("OpenTafl Position File:\r\n" + name + "\r\nholds no position JarlsVakt can play: " + reason,
                     "vbcritical+vbok");
        return false;
    }
    if (!LoadOtnLayoutLine(g, layout)) return false;
    g.GameRules = rules;
    PrintLog(g, "OpenTafl position: " + name, 0, 0);
    return true;
}

bool LoadOtnGame(Game& g, const std::string& name) {
    std::vector<std::string> lines;
    if (!ReadLines(InProgramFolder(g, name), lines)) {
        g.View->Show("OpenTafl Game File:\r\n" + name + "\r\ncould not be read", "vbcritical+vbok");
        return false;
    }
    const OtnGameResult game = ReadOtnGame(JoinLines(lines));
    if (game.Positions.empty()) {
        g.View->Show("OpenTafl Game File:\r\n" + name + "\r\nholds no game JarlsVakt can play: " + game.Reason,
                     "vbcritical+vbok");
        return false;
    }
    if (!LoadOtnLayoutLine(g, game.Positions.front())) return false;
    g.GameRules = game.GameRules;
    PrintLog(g, "OpenTafl game: " + name, 0, 0);
    StepThroughLog(g, game.Positions);
    TakeRecordAsPlayed(g, game.Positions);
    if (!game.Ok)
        g.View->Show("OpenTafl Game File:\r\n" + name + "\r\nstops at a move JarlsVakt refuses: " + game.Reason,
                     "vbcritical+vbok");
    return true;
}

void ShowLayoutName(Game& g) {
    const std::size_t folderEnd = g.LayoutFile.find_last_of("\\/");
    const std::string caption =
        folderEnd == std::string::npos ? g.LayoutFile : g.LayoutFile.substr(folderEnd + 1);
    g.View->ShowLayoutName(caption, g.LayoutFile);
}

void LoadCommand(Game& g) {
    if (g.EditorOn) return;
    const std::string name = ChooseGameFile(g, FileMode::Open, "Select an input file to load", LoadFilePatterns,
                                            LoadFileDescriptions);
    if (name.empty()) return;
    if (IsOtnGameFileName(name)) {
        LoadOtnGame(g, name);
        return;
    }
    if (IsOtnFileName(name)) {
        if (LoadOtnFile(g, name)) g.View->Show("Layout loaded from file:\r\n" + name, "vbinformation+vbok");
        return;
    }
    LoadLayout(g, name);
    // Shown after a failed load too: the failure has been reported and the
    // previous layout is back.
    g.View->Show("Layout loaded from file:\r\n" + name, "vbinformation+vbok");
}

void SaveCommand(Game& g) {
    if (g.EditorOn) return;
    std::string name = ChooseGameFile(g, FileMode::Save, "Select an output file to save", PositionFilePatterns,
                                      PositionFileDescriptions);
    if (name.empty()) return;
    name = WithExtension(name, "txt");
    const std::string path = InProgramFolder(g, name);
    if (FileHasLength(path) && g.View->Show(name + "\r\nOverWrite file?", "vbYesNo+vbquestion") != ButtonYes) return;
    // The old file is replaced only once the new one is whole on disk, so a
    // failed write leaves it as it was.
    const WriteResult written = IsOtnFileName(name) ? WriteOtnFile(g, path) : WriteLayoutFile(g, path);
    if (!written.Ok()) {
        g.View->Show("Layout File:\r\n" + name + "\r\n" + written.Problem("could not be written") + ", game not saved",
                     "vbcritical+vbok");
        return;
    }
    g.View->Show("Game saved to file:\r\n" + name, "vbinformation+vbok");
}

void ResetCommand(Game& g) {
    if (g.EditorOn) return;
    if (g.View->Show("Reset layout?", "vbquestion+vbyesno") == ButtonYes) LoadLayout(g, g.LayoutFile);
}

}  // namespace jv
