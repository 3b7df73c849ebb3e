// Draws the pictures of the README: the window in play after a few moves
// with a capture in the log, the message box, the layout editor, the options
// dialog and the board in every shipped colour scheme. Usage:
//   ui_screens <output folder>
// Runs on any Qt platform (offscreen or under xvfb-run).
#include <QApplication>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QtTest>
#include <QDir>
#include <QListWidget>
#include <QStyleFactory>
#include <QTimer>
#include <functional>
#include <iostream>

#include "../WindowFixture.h"
#include "records/ColourScheme.h"
#include "ui/EditorPalette.h"
#include "ui/Form2.h"
#include "ui/MsgForm.h"
#include "ui/Surface.h"
#include "ui/widgets/PictureButton.h"

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

// Saves one part of a window.
bool SaveArea(QWidget& window, const QRect& area, const QString& path) {
    QTest::qWait(200);
    const QImage image = window.grab(area).toImage().convertToFormat(QImage::Format_RGB888);
    const bool ok = image.save(path, "PNG", 0);
    std::cout << (ok ? "wrote " : "could not write ") << path.toStdString() << "\n";
    return ok;
}

// A window of its own, started on the default layout.
struct Screen {
    ProgramFolder folder;
    ui::MainWindow window{folder.Path()};
    Questions questions;
    Screen(int width, int height) {
        questions.AnswerFor(window);
        window.PauseLimit = 0;
        window.Start();
        window.resize(width, height);
        window.show();
        QApplication::processEvents();
    }
    QPushButton* Button(const char* name) { return window.findChild<QPushButton*>(name); }
    void Click(int col, int row) {
        const QPoint at = window.Board()->SquareCentre(col, row);
        SendMouse(window.Board(), QEvent::MouseButtonPress, at, Qt::LeftButton);
        SendMouse(window.Board(), QEvent::MouseButtonRelease, at, Qt::NoButton);
    }
    void Choose(const char* kind) {
        QTest::mouseClick(window.findChild<ui::PictureButton*>(kind), Qt::LeftButton);
    }
    // Opens the options dialog from the menu and runs steps while it is open.
    void WithOptions(const std::function<void(ui::Form2&)>& steps) {
        QTimer::singleShot(0, &window, [this, steps] {
            auto* form = window.findChild<ui::Form2*>("Form2");
            steps(*form);
            form->reject();
        });
        window.findChild<QAction*>("mnuoptions")->trigger();
    }
};

// The editor at work on the default layout: four attackers more, the King
// moved along his row, and defenders chosen to place next.
bool SaveEditor(const QString& out) {
    Screen s(1500, 800);
    QTest::mouseClick(s.Button("cmdedit"), Qt::LeftButton);
    QApplication::processEvents();
    for (const auto& [col, row] : {std::pair{3, 3}, {3, 9}, {9, 3}, {9, 9}}) s.Click(col, row);
    s.Choose("KindKing");
    s.Click(6, 3);
    s.Choose("KindDefender");
    s.Click(6, 6);
    SendMouse(s.window.Board(), QEvent::MouseMove, s.window.Board()->SquareCentre(6, 3), Qt::NoButton);
    QWidget* palette = s.window.findChild<QWidget*>("Picture2");
    const QRect area(0, 0, palette->mapTo(&s.window, QPoint(palette->width(), 0)).x() + 2, s.window.height());
    return SaveArea(s.window, area, out + "/editor.png");
}

// The options dialog with the Computer frame chosen.
bool SaveOptions(const QString& out) {
    Screen s(1200, 760);
    bool ok = false;
    s.WithOptions([&](ui::Form2& form) {
        QTest::mouseClick(form.findChild<ui::PictureButton*>("Image1"), Qt::LeftButton);
        form.adjustSize();
        ok = Save(form, out + "/options.png");
    });
    return ok;
}

// The board in each scheme of "all.col", chosen and applied in the dialog:
// the squares with their labels and a small margin.
bool SaveSchemes(const QString& out) {
    Screen s(1400, 860);
    bool ok = true;
    for (const std::string& name : FillSchemeList(s.window.game())) {
        s.WithOptions([&](ui::Form2& form) {
            auto* box = form.findChild<QComboBox*>("Combo1");
            box->setCurrentIndex(box->findText(QString::fromStdString(name)));
            QTest::mouseClick(form.findChild<QPushButton*>("Command1"), Qt::LeftButton);
        });
        QApplication::processEvents();
        ui::BoardPicture* board = s.window.Board();
        const Game& g = s.window.game();
        const int half = ui::ToPixels(board->Geometry().SquareSize) / 2;
        const QPoint first = board->SquareCentre(1, 1) - QPoint(half + ui::LabelMarginLeft, half + ui::LabelMarginTop);
        const QPoint last = board->SquareCentre(g.BoardWidth, g.BoardHeight) + QPoint(half + 8, half + 8);
        const QRect area(board->mapTo(&s.window, first), board->mapTo(&s.window, last));
        ok = SaveArea(s.window, area, out + "/scheme-" + QString::fromStdString(name) + ".png") && ok;
    }
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
    form.hide();

    ok = SaveEditor(out) && ok;
    ok = SaveOptions(out) && ok;
    ok = SaveSchemes(out) && ok;
    return ok ? 0 : 1;
}
