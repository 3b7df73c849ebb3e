#include "session/Recording.h"

#include <ctime>
#include <vector>

#include "core/GameView.h"
#include "core/VbText.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/FileChoice.h"
#include "session/LayoutCommands.h"
#include "session/Undo.h"

namespace jv {

namespace {


ClockReading SystemClock() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return ClockReading{local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min};
}

}  // namespace

bool StepThroughLog(Game& g, const std::vector<std::string>& lines) {
    const long long n = static_cast<long long>(lines.size());
    for (long long k = 1; k <= n; ++k) {
        const std::string& line = lines[static_cast<std::size_t>(k - 1)];
        ApplyPositionRecord(g, line.size() > 4 ? line.substr(4) : std::string());
        const int answer = g.View->Show("Step" + Str(k) + " of" + Str(n) + "\r\nStop ?", "vbquestion+vbYesNoCancel");
        if (answer == ButtonYes) return true;
        if (answer == ButtonCancel) break;
    }
    return false;
}

std::string MovesLogFileName(const ClockReading& now) {
    return "moveslogfile" + Format(now.Month, "00") + Format(now.Day, "00") + Format(now.Hour, "00") +
           Format(now.Minute, "00") + ".txt";
}

void RecordingSwitch(Game& g, bool ticked) {
    // While the layout editor is on the switch does nothing, so the box
    // keeps its state: a tick there would promise a log nobody writes.
    if (g.EditorOn) return;
    g.Check2 = ticked;
    if (ticked) {
        if (!g.Clock) g.Clock = SystemClock;
        g.MovesLogFile = MovesLogFileName(g.Clock());
        // Nothing is written yet: the first recorded move creates the file.
        g.View->Show("Start recording moves to file:\r\n" + g.MovesLogFile, "vbinformation+vbok");
        return;
    }
    // The position at this moment closes the log. The name is kept, so later
    // moves are still appended to the same file until recording is switched
    // on again under a new name.
    RecordMove(g);
    g.View->Show("Recoding of moves stopped, log is in file:\r\n" + g.MovesLogFile, "vbinformation+vbok");
}

void ReplayCommand(Game& g) {
    const std::string file = ChooseGameFile(g, FileMode::Open, "Select a MovesLog file to load");
    if (file.empty()) return;

    // The game as it stands comes back after the replay.
    const std::string saved = g.ProgramFolder + "templayout.txt";
    const WriteResult written = WriteLayoutFile(g, saved);
    if (!written.Ok()) {
        g.View->Show("Layout File:\r\n" + saved + "\r\n" + written.Problem("could not be written") +
                         ", replay not started",
                     "vbcritical+vbok");
        return;
    }

    std::vector<std::string> lines;
    if (!ReadLines(InProgramFolder(g, file), lines)) {
        g.View->Show("Moves Log File:\r\n" + file + "\r\ncould not be read", "vbcritical+vbok");
        return;
    }
    if (lines.empty()) {
        // The style words are part of the text here, after the file name.
        g.View->Show("No layouts in the Moves Log File:\r\n" + file + "vbcritical+vbok", "vbok");
        return;
    }

    // A log whose layout line is refused is not stepped through: its
    // positions would land on the board of another game.
    const bool stoppedOnPosition = LoadLayout(g, file) && StepThroughLog(g, lines);
    if (!stoppedOnPosition) LoadLayout(g, saved);
}

}  // namespace jv
