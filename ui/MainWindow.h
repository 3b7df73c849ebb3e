#pragma once
#include <QMainWindow>

#include "core/Game.h"
#include "core/GameView.h"

namespace jv::ui {

class BoardPicture;

// The main window: owns the game and shows it.
class MainWindow : public QMainWindow, public GameView {
    Q_OBJECT
public:
    MainWindow();

    Game& game() { return game_; }

    void DrawBoard() override;
    void DrawSquare(int, int, std::int32_t) override { DrawBoard(); }
    void DrawPiece(int, int, int) override { DrawBoard(); }
    void DrawMoveMark(int, int, int, int) override {}
    void MarkVictim(int, int) override {}
    void ShowDragLine(int, int, int, int) override {}
    void HideDragLine() override {}
    void PrintLine(const std::string&, int, int) override {}
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
    std::string ChooseFile(FileMode, const std::string&, const std::string&, const std::string&) override {
        return "";
    }
    void EndProgram() override;

private:
    Game game_;
    BoardPicture* picture_;
};

}  // namespace jv::ui
