#include "records/OtnFile.h"

#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/VbText.h"
#include "records/Layouts.h"
#include "records/Otn.h"
#include "records/TextFile.h"

namespace jv {

const char* const PositionFilePatterns = "*.txt;;*.otn";
const char* const PositionFileDescriptions = "Game Files;;OpenTafl positions";

bool IsOtnFileName(const std::string& name) {
    return name.size() >= 4 && Lower(name.substr(name.size() - 4)) == ".otn";
}

bool LoadOtnFile(Game& g, const std::string& name) {
    std::string otn, layout, reason;
    if (!ReadFirstLine(InProgramFolder(g, name), otn)) {
        g.View->Show("OpenTafl Position File:\r\n" + name + "\r\ncould not be read", "vbcritical+vbok");
        return false;
    }
    if (!OtnToLayoutLine(otn, layout, reason)) {
        g.View->Show("OpenTafl Position File:\r\n" + name + "\r\nholds no position JarlsVakt can play: " + reason,
                     "vbcritical+vbok");
        return false;
    }
    const std::string path = g.ProgramFolder + "otnlayout.txt";
    if (!WriteFileAtomically(path, layout + "\r\n")) {
        g.View->Show("Layout File:\r\n" + path + "\r\ncould not be written, the position is not loaded",
                     "vbcritical+vbok");
        return false;
    }
    LoadLayout(g, path);
    if (g.LayoutFile != path) return false;   // reported by LoadLayout
    PrintLog(g, "OpenTafl position: " + name, 0, 0);
    return true;
}

bool WriteOtnFile(const Game& g, const std::string& path) {
    return WriteFileAtomically(path, OtnPosition(g) + "\r\n");
}

}  // namespace jv
