#include "core/EventLog.h"

#include "core/GameView.h"

namespace jv {

void PrintLog(Game& g, const std::string& text, int colour, int background) {
    g.EventLog.push_back(text);
    g.View->PrintLine(text, colour, background);
}

void ClearEventLog(Game& g) {
    g.EventLog.clear();
    g.View->ClearLog();
}

}  // namespace jv
