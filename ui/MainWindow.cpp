#include "ui/MainWindow.h"

#include <QApplication>
#include <QMessageBox>

#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/ProgramFolder.h"
#include "records/TextFile.h"
#include "ui/BoardPicture.h"

namespace jv::ui {

MainWindow::MainWindow() {
    setWindowTitle("JarlsVakt");
    game_.View = this;
    game_.ProgramFolder = FindProgramFolder();
    BuildColumnLetters(game_);
    picture_ = new BoardPicture(game_, this);
    setCentralWidget(picture_);
    if (ReadLayoutFile(game_, InProgramFolder(game_, game_.LayoutFile)))
        Show("Error reading Layout File:\r\n" + game_.LayoutFile, "vbcritical+vbok");
}

void MainWindow::DrawBoard() { picture_->update(); }

int MainWindow::Show(const std::string& text, const std::string&) {
    QMessageBox::information(this, "Message", QString::fromStdString(text));
    return 1;
}

void MainWindow::EndProgram() { QApplication::quit(); }

}  // namespace jv::ui
