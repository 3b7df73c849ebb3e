// Draws the pictures of the README: the window in play after a few moves
// with a capture in the log, and the message box. Usage:
//   ui_screens <output folder>
// Runs on any Qt platform (offscreen or under xvfb-run).
#include <QApplication>
#include <QAction>
#include <QCheckBox>
#include <QPushButton>
#include <QtTest>
#include <QDir>
#include <QListWidget>
#include <QStyleFactory>
#include <QTimer>
#include <iostream>

#include "../WindowFixture.h"
#include "ui/MsgForm.h"

using namespace jv;
using namespace jv::uitest;

namespace {

// Saved with the strongest compression, which keeps the pictures small.
bool Save(QWidget& widget, const QString& path) {
    QTest::qWait(200);   // the lists lay out their lines a moment later
    const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB888);
    const bool ok = image.save(path, "PNG", 0);
    std::cout << (ok ? "wrote " : "could not write ") << path.toStdString() << "\n";
    return ok;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const QString out = argc > 1 ? argv[1] : "docs/screens";
    QDir().mkpath(out);

    ProgramFolder folder;
    ui::MainWindow window(folder.Path());
    Questions questions;
    questions.AnswerFor(window);
    window.PauseLimit = 0;
    window.Start();
    window.resize(1200, 760);
    window.show();
    QApplication::processEvents();

    // The user's defenders against the computer: D6 up to C6 walks into a
    // capture, then two more moves.
    Drag(window.Board(), {4, 6}, {3, 6});
    Drag(window.Board(), {6, 8}, {3, 8});
    Drag(window.Board(), {8, 6}, {8, 9});
    QApplication::processEvents();
    // Show the pointer's hint as a player would see it.
    SendMouse(window.Board(), QEvent::MouseMove, window.Board()->SquareCentre(6, 6), Qt::NoButton);
    QApplication::processEvents();
    bool ok = Save(window, out + "/window-in-play.png");

    // The debug panel, and the attackers' reasoning about the position.
    window.findChild<QAction*>("mnudebug")->trigger();
    QTest::mouseClick(window.findChild<QPushButton*>("cmdGetAttackerRank"), Qt::LeftButton);
    QApplication::processEvents();
    ok = Save(window, out + "/window-debug.png") && ok;

    ui::MsgForm form(&window);
    form.Prepare("King Captured !\r\nClick Reset to start a new game", "vbcritical+vbok");
    form.show();
    QApplication::processEvents();
    ok = Save(form, out + "/message-box.png") && ok;
    form.Prepare("Step 3 of 12\r\nStop ?", "vbquestion+vbYesNoCancel");
    QApplication::processEvents();
    form.adjustSize();
    ok = Save(form, out + "/message-question.png") && ok;
    return ok ? 0 : 1;
}
