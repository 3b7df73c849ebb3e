#include "session/GameRecordExport.h"

#include <filesystem>
#include <system_error>

#include "core/GameView.h"
#include "core/VbText.h"
#include "records/GameRecord.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/FileChoice.h"
#include "session/MoveList.h"

namespace jv {

namespace {

// Where a refused history went wrong, as the Undo list names its entries.
std::string BadMove(const GameRecordResult& record) {
    if (record.BadLine <= 1) return "the first position: " + record.Reason;
    return "move " + std::to_string(record.BadLine - 1) + ": " + record.Reason;
}

bool FileThere(const std::string& path) {
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

}  // namespace

std::vector<std::string> HistoryLines(const Game& g) {
    const std::string size = Format(g.BoardWidth, "00") + Format(g.BoardHeight, "00");
    std::vector<std::string> lines;
    for (auto entry = g.Undo.rbegin(); entry != g.Undo.rend(); ++entry) lines.push_back(size + *entry);
    lines.push_back(LayoutLine(g));
    return lines;
}

std::string ExportGameRecordCommand(Game& g) {
    if (g.EditorOn) return "";
    if (g.Undo.empty()) {
        g.View->Show("No move has been made in this game yet", "vbinformation+vbok");
        return "";
    }
    const GameRecordResult record = MakeGameRecord(GameLines(g), g.GameRules);
    if (!record.Ok) {
        g.View->Show("The moves cannot be written as a game record:\r\n" + BadMove(record), "vbcritical+vbok");
        return "";
    }
    std::string name = ChooseGameFile(g, FileMode::Save, "Select an output file for the game record", "*.otg",
                                      "OpenTafl games");
    if (name.empty()) return "";
    name = WithExtension(name, "otg");
    const std::string path = InProgramFolder(g, name);
    if (FileThere(path) && g.View->Show(name + "\r\nOverWrite file?", "vbYesNo+vbquestion") != ButtonYes) return "";
    const WriteResult written = WriteFileAtomically(path, JoinLines(record.Lines));
    if (!written.Ok()) {
        g.View->Show("Game Record File:\r\n" + name + "\r\n" + written.Problem("could not be written"), "vbcritical+vbok");
        return "";
    }
    g.View->Show("Game record saved to file:\r\n" + name, "vbinformation+vbok");
    return name;
}

}  // namespace jv
