#include "support/RecordingView.h"

namespace jv::test {

namespace {
std::string Join(std::initializer_list<int> numbers) {
    std::string out;
    for (int n : numbers) out += " " + std::to_string(n);
    return out;
}
const char* const ListNames[] = {"List1A", "List2A", "List3", "List1", "List1D", "List2D", "AttackerMovesRank",
                                 "DefenderMovesRank", "Undo", "SearchLines"};
}  // namespace

std::vector<std::string> RecordingView::Messages() const {
    std::vector<std::string> out;
    for (const std::string& c : Calls)
        if (c.rfind("Show ", 0) == 0) out.push_back(c.substr(5));
    return out;
}

void RecordingView::DrawBoard() { Calls.push_back("DrawBoard"); }
void RecordingView::DrawSquare(int col, int row, std::int32_t colour) { Calls.push_back("DrawSquare" + Join({col, row, colour})); }
void RecordingView::DrawPiece(int col, int row, int drawCode) { Calls.push_back("DrawPiece" + Join({col, row, drawCode})); }
void RecordingView::DrawMoveMark(const Move& m) {
    Calls.push_back("DrawMoveMark" + Join({m.From.Col, m.From.Row, m.To.Col, m.To.Row}));
}
void RecordingView::MarkVictim(int col, int row) { Calls.push_back("MarkVictim" + Join({col, row})); }
void RecordingView::ShowDragLine(const Move& m) {
    Calls.push_back("ShowDragLine" + Join({m.From.Col, m.From.Row, m.To.Col, m.To.Row}));
}
void RecordingView::HideDragLine() { Calls.push_back("HideDragLine"); }
void RecordingView::PrintLine(const std::string& text, int colour, int background) {
    Calls.push_back("PrintLine |" + text + "|" + Join({colour, background}));
}
void RecordingView::ClearLog() { Calls.push_back("ClearLog"); }
void RecordingView::Pause(int ms) {
    Calls.push_back("Pause" + Join({ms}));
    if (OnEvents) OnEvents();
}
void RecordingView::DoEvents() {
    Calls.push_back("DoEvents");
    if (OnEvents) OnEvents();
}
int RecordingView::Show(const std::string& text, const std::string& style) {
    Calls.push_back("Show " + text + " [" + style + "]");
    if (Answers.empty()) return DefaultAnswer;
    const int answer = Answers.front();
    Answers.pop_front();
    return answer;
}
void RecordingView::EnableBoard(bool enabled) { Calls.push_back("EnableBoard" + Join({BoardEnabled = enabled})); }
void RecordingView::SetBusy(bool busy) { Calls.push_back("SetBusy" + Join({Busy = busy})); }
void RecordingView::UpdateCounters(int defenders, int attackers) { Defenders = defenders; Attackers = attackers; }
void RecordingView::ShowLayoutName(const std::string& caption, const std::string& toolTip) {
    LayoutCaption = caption;
    LayoutToolTip = toolTip;
    Calls.push_back("ShowLayoutName " + caption + " | " + toolTip);
}
void RecordingView::RefreshList(ListId list) { Calls.push_back(std::string("RefreshList ") + ListNames[static_cast<int>(list)]); }
void RecordingView::ShowEditor(bool visible) { Calls.push_back("ShowEditor" + Join({EditorVisible = visible})); }
std::string RecordingView::ChooseFile(FileMode mode, const std::string& title, const std::string& pattern,
                                      const std::string& description) {
    Calls.push_back(std::string("ChooseFile ") + (mode == FileMode::Open ? "OPEN" : "SAVE") + " " + title + " [" +
                    pattern + "] " + description);
    std::string name = FileChoices.empty() ? "" : FileChoices.front();
    if (!FileChoices.empty()) FileChoices.pop_front();
    return name;
}
void RecordingView::EndProgram() { Ended = true; Calls.push_back("EndProgram"); }

}  // namespace jv::test
