#include "ui/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QSignalBlocker>
#include <QCloseEvent>
#include <QTimer>

#include "session/NewGame.h"
#include "session/Session.h"
#include "ui/BoardPicture.h"
#include "ui/ColourValue.h"
#include "ui/MoveListPanel.h"
#include "ui/WindowColours.h"
#include "ui/WindowPlacement.h"
#include "ui/widgets/LineList.h"

namespace jv::ui {

namespace {
const char* const ProgramName = "JarlsVakt";
}

MainWindow::MainWindow(const std::string& programFolder, QWidget* parent) : QMainWindow(parent) {
    game_.View = this;
    game_.ProgramFolder = programFolder;
    if (!game_.ProgramFolder.empty() && game_.ProgramFolder.back() != '/' && game_.ProgramFolder.back() != '\\')
        game_.ProgramFolder += '/';
    BuildWindow();
    PlaceWindow(*this, game_.ProgramFolder);
    if (auto* about = findChild<QAction*>("mnuabout")) about->setText(QString("About ") + ProgramName);
    ConnectCommands();
}

MainWindow::~MainWindow() {
    EndBusy();
    // Nothing may reach the window while it is taken down.
    game_.Ending = true;
}

bool MainWindow::Start() {
    const bool ok = StartUp(game_, [this] { ApplyWindowColours(); });
    if (!ok) return false;
    SyncChecks();
    DrawBoard();
    // Once the window is up, the computer makes the first move when it is its own.
    QTimer::singleShot(0, this, [this] { ComputerOpens(game_); });
    return true;
}

void MainWindow::SyncChecks() {
    check1_->setChecked(game_.Check1);
    check2_->setChecked(game_.Check2);
    QAction* coordinates = findChild<QAction*>("mnutaflcoords");
    const QSignalBlocker quiet(coordinates);
    coordinates->setChecked(game_.TaflCoordinates);
}

void MainWindow::ApplyWindowColours() {
    if (coloursApplied_ && appliedColours_ == game_.ColourTable) return;
    coloursApplied_ = true;
    appliedColours_ = game_.ColourTable;
    ApplyColourTable(*this, game_.ColourTable);
    // The event log tells the sides apart: the King's and the program's own
    // lines, the defenders' lines, the attackers' lines.
    constexpr int Entry[3] = {8, 6, 7};
    const QColor back = ToQColor(game_.ColourTable[12]);
    for (int n = 0; n <= 2; ++n) eventLog_->SetLineColour(n, ReadableOn(ToQColor(game_.ColourTable[Entry[n]]), back));
}

void MainWindow::EndNow() {
    if (ended_) return;
    ended_ = true;
    // However the program ends, a window that was up keeps its place.
    if (isVisible()) KeepWindowPlace(*this, game_.ProgramFolder);
    game_.Ending = true;
    timer1_->stop();
    moves_->StopReview();
    EndBusy();
    emit Ending();
    close();
    // Leaves every running event loop, the main one included.
    QCoreApplication::exit(0);
}

void MainWindow::EndProgram() { EndNow(); }

void MainWindow::EndBusy() {
    if (busy_ > 0) QApplication::restoreOverrideCursor();
    busy_ = 0;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // Closed by the window frame: the program ends at once, without the
    // question and without writing the configuration.
    event->accept();
    EndNow();
}

}  // namespace jv::ui
