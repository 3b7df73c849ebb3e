#pragma once
#include <cstdint>
#include <string>

#include "core/Square.h"

namespace jv {

// The lists of the main window that the engine fills and asks to be shown.
enum class ListId {
    List1A, List2A, List3, List1, List1D, List2D,
    AttackerMovesRank, DefenderMovesRank, Undo, SearchLines
};

// The buttons of the message box, numbered as Show returns them.
enum MessageButton : int {
    ButtonOk = 1,
    ButtonCancel = 2,
    ButtonAbort = 3,
    ButtonRetry = 4,
    ButtonIgnore = 5,
    ButtonYes = 6,
    ButtonNo = 7,
};

// How a file is chosen.
enum class FileMode { Open, Save };

// Everything the engine asks of the screen. The Qt main window, the command-
// line tool and the tests' recording view implement it; the engine never
// reaches the screen in any other way.
class GameView {
public:
    virtual ~GameView() = default;

    // Board drawing.
    virtual void DrawBoard() = 0;
    virtual void DrawSquare(int col, int row, std::int32_t colour) = 0;
    virtual void DrawPiece(int col, int row, int drawCode) = 0;
    virtual void DrawMoveMark(const Move& m) = 0;
    virtual void MarkVictim(int col, int row) = 0;

    // The drag line from the centre of one square to another, and the marker
    // at its start.
    virtual void ShowDragLine(const Move& m) = 0;
    virtual void HideDragLine() = 0;

    // The event log: one line with its two colour arguments, or cleared.
    virtual void PrintLine(const std::string& text, int colour, int background) = 0;
    virtual void ClearLog() = 0;

    // Time and events: Pause lets pending events run for ms milliseconds,
    // DoEvents lets them run once.
    virtual void Pause(int ms) = 0;
    virtual void DoEvents() = 0;

    // The message box: text with CR LF line breaks, a "+"-joined style such as
    // "vbquestion+vbyesno"; returns the number of the button pressed.
    virtual int Show(const std::string& text, const std::string& style) = 0;

    // Window state.
    virtual void EnableBoard(bool enabled) = 0;
    virtual void SetBusy(bool busy) = 0;
    virtual void UpdateCounters(int defenders, int attackers) = 0;
    virtual void ShowLayoutName(const std::string& caption, const std::string& toolTip) = 0;
    virtual void RefreshList(ListId list) = 0;
    virtual void ShowEditor(bool visible) = 0;

    // A file chosen by the user; empty when none was chosen.
    virtual std::string ChooseFile(FileMode mode, const std::string& title,
                                   const std::string& pattern,
                                   const std::string& description) = 0;

    // The program ends (after a fatal start-up message or the exit command).
    virtual void EndProgram() = 0;
};

}  // namespace jv
