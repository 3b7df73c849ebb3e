#pragma once
#include <cstdint>
#include <string>

#include "core/GameView.h"

namespace jv {

// A view that shows nothing: every call does nothing, the message box
// answers 0 (no button) and the file dialog chooses nothing. A view that
// needs one or two calls derives from it and overrides only those.
class SilentView : public GameView {
public:
    void DrawBoard() override {}
    void DrawSquare(int, int, std::int32_t) override {}
    void DrawPiece(int, int, int) override {}
    void DrawMoveMark(const Move&) override {}
    void MarkVictim(int, int) override {}
    void ShowDragLine(const Move&) override {}
    void HideDragLine() override {}
    void PrintLine(const std::string&, int, int) override {}
    void ClearLog() override {}
    void Pause(int) override {}
    void DoEvents() override {}
    int Show(const std::string&, const std::string&) override { return 0; }
    void EnableBoard(bool) override {}
    void SetBusy(bool) override {}
    void UpdateCounters(int, int) override {}
    void ShowLayoutName(const std::string&, const std::string&) override {}
    void RefreshList(ListId) override {}
    void ShowEditor(bool) override {}
    std::string ChooseFile(FileMode, const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    void EndProgram() override {}
};

}  // namespace jv
