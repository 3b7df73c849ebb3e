#pragma once
#include <deque>
#include <string>

#include "core/GameView.h"

namespace jv::cli {

// The command-line tool's view: event-log lines and messages go to standard
// output as they happen, questions are answered from the options, pauses
// take no time and nothing is drawn.
class CliView : public GameView {
public:
    int Answer = 6;                   // the button every question gets (Yes)
    std::deque<std::string> Files;   // names given to the file dialog, in order
    bool Quiet = false;              // print nothing

    void DrawBoard() override {}
    void DrawSquare(int, int, std::int32_t) override {}
    void DrawPiece(int, int, int) override {}
    void DrawMoveMark(int, int, int, int) override {}
    void MarkVictim(int, int) override {}
    void ShowDragLine(int, int, int, int) override {}
    void HideDragLine() override {}
    void PrintLine(const std::string& text, int colour, int background) override;
    void ClearLog() override {}
    void Pause(int) override {}
    void DoEvents() override {}
    int Show(const std::string& text, const std::string& style) override;
    void EnableBoard(bool) override {}
    void SetBusy(bool) override {}
    void UpdateCounters(int, int) override {}
    void ShowLayoutName(const std::string&, const std::string&) override {}
    void RefreshList(ListId) override {}
    void ShowEditor(bool) override {}
    std::string ChooseFile(FileMode mode, const std::string& title, const std::string& pattern,
                           const std::string& description) override;
    void EndProgram() override {}
};

}  // namespace jv::cli
