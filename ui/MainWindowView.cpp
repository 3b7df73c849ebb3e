// The game's view on the real window: every call the game makes to reach
// the screen lands here.
#include <QApplication>
#include <QCheckBox>
#include <QEventLoop>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>

#include "core/Board.h"
#include "session/GameEnding.h"
#include "ui/BoardPicture.h"
#include "ui/ColourValue.h"
#include "ui/EditorPalette.h"
#include "ui/MainWindow.h"
#include "ui/MoveListPanel.h"
#include "ui/MsgForm.h"
#include "ui/UndoLine.h"
#include "ui/WindowColours.h"
#include "ui/widgets/FileNameDialog.h"
#include "ui/widgets/LineList.h"
#include "ui/widgets/RedrawGuard.h"

namespace jv::ui {

void MainWindow::DrawBoard() {
    moves_->Refresh();
    ApplyWindowColours();
    picture_->HideMoveMark();
    picture_->DrawBoard();
    ShowTurn({});
}

void MainWindow::ShowTurn(const QString& lastMove) {
    lastMove_ = lastMove;
    if (!game_.GameOver) {
        turnLine_->setText("Last move: " + (lastMove.isEmpty() ? QString("none yet") : lastMove));
        return;
    }
    const std::string how = EndingText(game_, game_.Result);
    turnLine_->setText("Game over: " + (how.empty() ? QString("the game has ended") : QString::fromStdString(how)));
}

// While the layout editor is on the picture shows the editor's position:
// the single squares, marks and lines of the board underneath stay unseen.
void MainWindow::DrawSquare(int col, int row, std::int32_t colour) {
    moves_->Refresh();
    if (!game_.EditorOn) picture_->DrawSquare(col, row, ToQColor(colour));
}

void MainWindow::DrawPiece(int col, int row, int drawCode) {
    if (!game_.EditorOn) picture_->DrawPiece(col, row, drawCode);
}

void MainWindow::DrawMoveMark(const Move& m) {
    if (game_.EditorOn) return;
    picture_->DrawMoveMark(m.From.Col, m.From.Row, m.To.Col, m.To.Row);
    // The mark follows the move: its piece stands on the target.
    const char* side = game_.Board(m.To.Col, m.To.Row) == AttackerCode ? "Attackers" : "Defenders";
    ShowTurn(QString("%1, %2 > %3").arg(side, QString::fromStdString(SquareName(game_, m.From.Col, m.From.Row)),
                                        QString::fromStdString(SquareName(game_, m.To.Col, m.To.Row))));
}

void MainWindow::MarkVictim(int col, int row) {
    if (!game_.EditorOn) picture_->MarkVictim(col, row);
}

void MainWindow::ShowDragLine(const Move& m) {
    if (!game_.EditorOn) picture_->ShowDragLine(m.From.Col, m.From.Row, m.To.Col, m.To.Row);
}

void MainWindow::HideDragLine() { picture_->HideDragLine(); }

void MainWindow::PrintLine(const std::string& text, int colour, int background) {
    eventLog_->PrintLine(QString::fromStdString(text), colour, background);
}

void MainWindow::ClearLog() {
    eventLog_->clear();
    // The log is cleared as a game starts: the reasoning shown for the game
    // before (another board, perhaps) goes with it, while the lists the
    // computer players read stay theirs.
    for (auto& [id, list] : lists_)
        if (id != ListId::Undo) list->clear();
}

void MainWindow::Pause(int ms) {
    if (game_.Ending) return;
    // Timer1 runs once; every pause waiting meanwhile ends at its tick, so a
    // pause begun inside another ends both, as one timer serves them all.
    timer1_->setInterval(PauseLimit >= 0 ? std::min(ms, PauseLimit) : std::max(ms, 0));
    timer1_->start();
    QEventLoop loop;
    connect(timer1_, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(this, &MainWindow::Ending, &loop, &QEventLoop::quit);
    loop.exec();
}

void MainWindow::DoEvents() { QCoreApplication::processEvents(); }

int MainWindow::Show(const std::string& text, const std::string& style) {
    // Once the program is ending no new question is put.
    if (ended_) return MsgForm::ClosedAnswer;
    if (Answerer) return Answerer(text, style);
    MsgForm form(this);
    // Before a scheme is loaded (the message that "all.col" is missing) the
    // box keeps the desktop's own readable colours.
    if (coloursApplied_) ColourMessageBox(form, appliedColours_);
    // A question waits for the user: the ordinary pointer, even mid-move.
    const bool busy = busy_ > 0;
    if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = form.Show(text, style);
    if (busy) QApplication::restoreOverrideCursor();
    return answer;
}

void MainWindow::EnableBoard(bool enabled) {
    picture_->setEnabled(enabled);
    moves_->Refresh();   // the game's end closes the board
    if (game_.GameOver) ShowTurn(lastMove_);
}

void MainWindow::SetBusy(bool busy) {
    // Busy sections nest (the attackers' ranking inside the computer's
    // move): the pointer is busy until the outermost one ends.
    const bool before = busy_ > 0;
    busy_ = busy ? busy_ + 1 : std::max(busy_ - 1, 0);
    if (!before && busy_ > 0) QApplication::setOverrideCursor(Qt::BusyCursor);
    if (before && busy_ == 0) QApplication::restoreOverrideCursor();
}

void MainWindow::UpdateCounters(int defenders, int attackers) {
    moves_->Refresh();
    ptot_[0]->setText(QString::number(defenders));
    ptot_[1]->setText(QString::number(attackers));
}

void MainWindow::ShowLayoutName(const std::string& caption, const std::string& toolTip) {
    layoutName_->setText(QString::fromStdString(caption));
    layoutName_->setToolTip(QString::fromStdString(toolTip));
    ShowTurn({});
    // Every game begins here, under the rule set it is played by.
    ShowPlayers();
}

void MainWindow::RefreshList(ListId id) {
    QListWidget* list = lists_.at(id);
    const std::vector<std::string>* lines = nullptr;
    switch (id) {
        case ListId::List1A: lines = &game_.List1A; break;
        case ListId::List2A: lines = &game_.List2A; break;
        case ListId::List3: lines = &game_.List3; break;
        case ListId::List1: lines = &game_.List1; break;
        case ListId::List1D: lines = &game_.List1D; break;
        case ListId::List2D: lines = &game_.List2D; break;
        case ListId::AttackerMovesRank: lines = &game_.AttackerMovesRank; break;
        case ListId::DefenderMovesRank: lines = &game_.DefenderMovesRank; break;
        case ListId::Undo: lines = &game_.Undo; break;
        case ListId::SearchLines: lines = &game_.SearchLines; break;
    }
    if (id == ListId::Undo) moves_->Refresh();
    QStringList shown;
    shown.reserve(static_cast<qsizetype>(lines->size()));
    for (std::size_t i = 0; i < lines->size(); ++i)
        shown << QString::fromStdString(id == ListId::Undo ? UndoLine(game_, *lines, i) : (*lines)[i]);
    RedrawGuard hold(list);
    list->clear();
    list->addItems(shown);
}

void MainWindow::ShowEditor(bool visible) {
    // The load that ends the editor draws the board before it switches the
    // editor off; the board is drawn again once the editor's view is gone.
    const bool closing = !visible && !picture2_->isHidden();
    if (visible) picture2_->Paint();
    picture2_->setVisible(visible);
    GiveBoardTheRoom();
    if (closing) picture_->DrawBoard();
    findChild<QPushButton*>("cmdedit")->setText(visible ? "Play Layout" : "Edit Layout");
    if (visible) statusBar()->showMessage("Layout editor: choose a kind beside the board, then click squares");
    else statusBar()->clearMessage();
}

std::string MainWindow::ChooseFile(FileMode mode, const std::string& title, const std::string& pattern,
                                   const std::string& description) {
    if (FileChooser) return FileChooser(mode, title);
    return ChooseFileName(this, mode == FileMode::Save, QString::fromStdString(title),
                          QString::fromStdString(game_.ProgramFolder),
                          FileFilters(QString::fromStdString(pattern), QString::fromStdString(description)))
        .toStdString();
}

}  // namespace jv::ui
