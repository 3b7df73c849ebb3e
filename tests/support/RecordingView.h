#pragma once
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "core/GameView.h"

namespace jv::test {

// A view that keeps every call the engine makes, in order, as one line of
// text each ("PrintLine |  Player 2 captures E2| 2 0", "Pause 1000",
// "Show King Captured !\r\nClick Reset to start a new game [vbcritical+vbok]"),
// and answers the message box and the file dialog from scripts.
class RecordingView : public GameView {
public:
    std::vector<std::string> Calls;

    // Answers for Show, in order; when they run out, DefaultAnswer is given.
    std::deque<int> Answers;
    int DefaultAnswer = 1;
    // Names for ChooseFile, in order; when they run out, "" (cancelled).
    std::deque<std::string> FileChoices;

    // A hook run on every Pause and DoEvents, to deliver "events" in the
    // middle of a move.
    std::function<void()> OnEvents;

    int Defenders = -2, Attackers = -2;
    bool BoardEnabled = true;
    bool Busy = false;
    bool EditorVisible = false;
    bool Ended = false;
    std::string LayoutCaption, LayoutToolTip;

    // The messages shown, in order, each as "text [style]".
    std::vector<std::string> Messages() const;
    void Clear() { Calls.clear(); }

    void DrawBoard() override;
    void DrawSquare(int col, int row, std::int32_t colour) override;
    void DrawPiece(int col, int row, int drawCode) override;
    void DrawMoveMark(const Move& m) override;
    void MarkVictim(int col, int row) override;
    void ShowDragLine(const Move& m) override;
    void HideDragLine() override;
    void PrintLine(const std::string& text, int colour, int background) override;
    void ClearLog() override;
    void Pause(int ms) override;
    void DoEvents() override;
    int Show(const std::string& text, const std::string& style) override;
    void EnableBoard(bool enabled) override;
    void SetBusy(bool busy) override;
    void UpdateCounters(int defenders, int attackers) override;
    void ShowLayoutName(const std::string& caption, const std::string& toolTip) override;
    void RefreshList(ListId list) override;
    void ShowEditor(bool visible) override;
    std::string ChooseFile(FileMode mode, const std::string& title, const std::string& pattern,
                           const std::string& description) override;
    void EndProgram() override;
};

}  // namespace jv::test
