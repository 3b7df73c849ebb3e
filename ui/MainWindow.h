#pragma once
#include <QMainWindow>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "core/Game.h"
#include "core/GameView.h"
#include "records/ProgramFolder.h"

class QAction;
class QCheckBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSplitter;
class QTimer;

namespace jv::ui {

class BoardPicture;
class EditorPalette;
class LineList;
class MoveListPanel;

// The text of the "CheckKingCapture" debug button's message: the capture
// rule's answer and the King's neighbours, for looking at, changing nothing.
std::string KingCaptureDiagnostic(Game& g);

// The main window: owns the game, shows it, and is the game's only way to
// the screen. Every control carries the program's name for it as its
// objectName (Picture1, cmdundo, Check1, List1A, EventLog, Timer1, ...).
class MainWindow : public QMainWindow, public GameView {
    Q_OBJECT
public:
    explicit MainWindow(const std::string& programFolder = FindProgramFolder(), QWidget* parent = nullptr);
    ~MainWindow() override;

    // Brings the game up. False when the program cannot run ("all.col" is
    // missing): the message has been shown and the program has ended.
    bool Start();

    Game& game() { return game_; }
    BoardPicture* Board() const { return picture_; }

    // When set, answers the message box in place of the modal MsgForm.
    std::function<int(const std::string& text, const std::string& style)> Answerer;
    // When set, chooses a file in place of the file dialog.
    std::function<std::string(FileMode mode, const std::string& title)> FileChooser;
    // When 0 or more, no pause lasts longer than this many milliseconds.
    int PauseLimit = -1;

    // True once the program has ended (the exit command, a fatal start-up
    // message or the window closed by its frame).
    bool Ended() const { return ended_; }

    // The game's view.
    void DrawBoard() override;
    void DrawSquare(int col, int row, std::int32_t colour) override;
    void DrawPiece(int col, int row, int drawCode) override;
    void DrawMoveMark(const Move& m) override;
    void MarkVictim(int col, int row) override;
    void ShowDragLine(const Move& m) override;
    void HideDragLine() override;
    void PrintLine(const std::string& text, int colour, int background) override;
    // Clears the event log and, as a game starts, the reasoning panes.
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

signals:
    // The program is ending: running pauses stop at once.
    void Ending();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The window's parts (MainWindowLayout.cpp).
    void BuildWindow();
    QWidget* BuildCommandColumn();
    QWidget* BuildBoardArea();
    QWidget* BuildListsColumn();
    QWidget* BuildDebugPanel();
    void BuildMenus();
    QListWidget* AddList(ListId id, const char* name);
    // The computer player of each side, the strong player's thinking time and
    // the hint.
    QWidget* BuildPlayerChoice();
    // The players, the rules in the status line, and the classic players'
    // controls, offered under the classic rules only.
    void ShowPlayers();
    // Game > New Game: the dialog, then the new game it chooses.
    void ChooseNewGame();
    // Shares the width beside the commands: the board first, the lists the rest.
    void GiveBoardTheRoom();
    QPushButton* AddButton(const char* name, const QString& caption, const QString& toolTip);

    // The commands (MainWindowCommands.cpp).
    void ConnectCommands();
    void ConnectDebugButtons();
    // AutoGame's button: starts the automatic game, its caption saying how to
    // stop it while it plays; pressed again, it stops it.
    void ToggleAutoGame();
    void ShowHelp();
    // View > Tafl coordinates: the board's edges and the panes named anew,
    // and the choice kept in the view's settings file.
    void ChooseCoordinates(bool tafl);
    // Game > Export game record..., then, after a review of the game, its
    // graph as a picture beside the record when the user wants it.
    void ExportGameRecord();
    void ShowAbout();
    // The options dialog (Form2), and what its Apply changes in the window:
    // the scheme loaded again, the colours and pictures applied, the board
    // redrawn, all at once.
    void ShowOptions();
    void ApplyOptions();
    // Places the palette's chosen kind on a square of the layout editor.
    void PlaceInEditor(int col, int row);
    void PreviewListMove(ListId list);

    // The turn line: the last move, or once the game has ended, how it ended.
    void ShowTurn(const QString& lastMove);

    void ApplyWindowColours();
    void SyncChecks();
    void EndNow();
    void EndBusy();

    Game game_;
    BoardPicture* picture_ = nullptr;
    EditorPalette* picture2_ = nullptr;
    MoveListPanel* moves_ = nullptr;
    LineList* eventLog_ = nullptr;
    std::map<ListId, QListWidget*> lists_;
    QLabel* layoutName_ = nullptr;
    QLabel* rulesName_ = nullptr;
    QLabel* turnLine_ = nullptr;
    QString lastMove_;
    std::array<QLabel*, 2> ptot_{};
    QCheckBox* check1_ = nullptr;
    QCheckBox* check2_ = nullptr;
    QTimer* timer1_ = nullptr;
    QGroupBox* debugPanel_ = nullptr;
    QSplitter* split_ = nullptr;
    QAction* debugToggle_ = nullptr;
    bool ended_ = false;
    int busy_ = 0;   // open busy sections
    bool previewing_ = false;
    std::array<std::int32_t, 14> appliedColours_{};
    bool coloursApplied_ = false;
};

}  // namespace jv::ui
