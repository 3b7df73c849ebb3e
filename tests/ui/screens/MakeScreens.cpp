// Draws the pictures of the README: the window in play after a few moves with a capture in the log, the
// message box, the layout editor, the options dialog, the board in every shipped colour scheme, games under
// the Copenhagen and the Tablut rules, the opening of each rule set, and the move list with a review, in the
// board's names and in tafl coordinates. Usage:
//   ui_screens <output folder>
// Runs on any Qt platform (offscreen or under xvfb-run).
#include <iostream>

#include "../WindowFixture.h"
#include "records/ColourScheme.h"
#include "session/NewGame.h"
#include "ui/MoveListPanel.h"
#include "ui/Form2.h"
#include "ui/MsgForm.h"
#include "ui/Surface.h"

using namespace jv;
using namespace jv::uitest;

namespace {

// Saves a part of a widget, all of it by default, with the strongest compression, which keeps the pictures
// small, once the lists have laid out their lines.
bool Save(QWidget& widget, const QString& path, QRect area = QRect(QPoint(0, 0), QSize(-1, -1))) {
    QTest::qWait(200);
    const bool ok = widget.grab(area).toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
    std::cout << (ok ? "wrote " : "could not write ") << path.toStdString() << "\n";
    return ok;
}

// A window of its own at a size, started on the default layout.
struct Screen : StartedWindow {
    Screen(int width, int height) {
        window.resize(width, height);
        QApplication::processEvents();
    }
    // The squares with their labels and a small margin, in the window's pixels.
    QRect BoardArea() {
        const int half = ui::ToPixels(Board()->Geometry().SquareSize) / 2;
        const QPoint labels(ui::LabelMarginLeft, ui::LabelMarginTop);
        const QPoint first = Board()->SquareCentre(1, 1) - QPoint(half, half) - labels;
        const QPoint last = Board()->SquareCentre(g().BoardWidth, g().BoardHeight) + QPoint(half + 8, half + 8);
        return {Board()->mapTo(&window, first), Board()->mapTo(&window, last)};
    }
    // Opens the options dialog from the menu and runs steps while it is open.
    void WithOptions(const std::function<void(ui::Form2*)>& steps) {
        WhileOpen<ui::Form2>([this] { window.findChild<QAction*>("mnuoptions")->trigger(); },
                             [&](ui::Form2* form) { steps(form), form->reject(); });
    }
};

// The user's defenders against the computer, D6 up to C6 walking into a capture, then two more moves, the
// pointer's hint shown; then the debug panel with the attackers' reasoning, and the message box.
bool SaveWindow(const QString& out) {
    Screen s(1200, 760);
    for (auto [from, to] : {std::pair{Square{4, 6}, Square{3, 6}}, {{6, 8}, {3, 8}}, {{8, 6}, {8, 9}}})
        s.Drag(from, to);
    SendMouse(s.Board(), QEvent::MouseMove, s.Board()->SquareCentre(6, 6), Qt::NoButton);
    bool ok = Save(s.window, out + "/window-in-play.png");
    s.window.findChild<QAction*>("mnudebug")->trigger();
    s.Press("cmdGetAttackerRank");
    ok = Save(s.window, out + "/window-debug.png") && ok;
    ui::MsgForm form(&s.window);
    form.Prepare("King Captured !\r\nClick Reset to start a new game", "vbcritical+vbok");
    form.show();
    ok = Save(form, out + "/message-box.png") && ok;
    form.Prepare("Step 3 of 12\r\nStop ?", "vbquestion+vbYesNoCancel");
    form.adjustSize();
    return Save(form, out + "/message-question.png") && ok;
}

// The editor at work on the default layout: four attackers more, the King moved along his row, and
// defenders chosen to place next.
bool SaveEditor(const QString& out) {
    Screen s(1500, 800);
    s.Press("cmdedit");
    for (const auto& [col, row] : {std::pair{3, 3}, {3, 9}, {9, 3}, {9, 9}}) s.Click(col, row);
    s.Press("KindKing");
    s.Click(6, 3);
    s.Press("KindDefender");
    s.Click(6, 6);
    SendMouse(s.Board(), QEvent::MouseMove, s.Board()->SquareCentre(6, 3), Qt::NoButton);
    QWidget* palette = s.Find<QWidget>("Picture2");
    const int right = palette->mapTo(&s.window, QPoint(palette->width(), 0)).x() + 2;
    return Save(s.window, out + "/editor.png", QRect(0, 0, right, s.window.height()));
}

// The options dialog with the Computer frame chosen, and the board in each scheme of "all.col", chosen and
// applied in the dialog: the squares with their labels and a small margin.
bool SaveOptions(const QString& out) {
    Screen s(1400, 860);
    bool ok = false;
    s.WithOptions([&](ui::Form2* form) {
        QTest::mouseClick(form->findChild<QWidget*>("Image1"), Qt::LeftButton);
        form->adjustSize();
        ok = Save(*form, out + "/options.png");
    });
    for (const std::string& name : FillSchemeList(s.g())) {
        s.WithOptions([&](ui::Form2* form) {
            form->findChild<QComboBox*>("Combo1")->setCurrentText(QString::fromStdString(name));
            QTest::mouseClick(form->findChild<QWidget*>("Command1"), Qt::LeftButton);
        });
        ok = Save(s.window, out + "/scheme-" + QString::fromStdString(name) + ".png", s.BoardArea()) && ok;
    }
    return ok;
}

// A new game under a rule set and the computer's opening move where it has one; then the user's moves, each
// answered by the computer, or without answers, to show the King off his throne.
bool SaveRuleSet(const QString& path, const GameChoice& choice, bool answered,
                 std::initializer_list<std::pair<Square, Square>> moves) {
    Screen s(1200, 760);
    s.g().Players.ThinkMillis = 200;
    NewGameCommand(s.g(), choice);
    s.Find("Check1")->setChecked(answered);
    for (auto [from, to] : moves) s.Drag(from, to);
    SendMouse(s.Board(), QEvent::MouseMove, s.Board()->SquareCentre(s.g().CentreCol, s.g().CentreRow), Qt::NoButton);
    return Save(s.window, path);
}

// The opening of each rule set on its board (Fetlar's is Copenhagen's), for the README.
bool SaveOpenings(const QString& out) {
    bool ok = true;
    for (const char* name : {"Copenhagen", "Brandubh", "Tablut", "Tawlbwrdd"}) {
        Screen s(900, 520);
        s.Find("Check1")->setChecked(false);
        NewGameCommand(s.g(), {name, std::string(FindRules(name)->Layout), DefenderCode});
        ok = Save(s.window, out + "/opening-" + QString(name).toLower() + ".png", s.BoardArea()) && ok;
    }
    return ok;
}

bool SaveRuleSets(const QString& out) {
    const bool copenhagen = SaveRuleSet(out + "/rules-copenhagen.png", {"Copenhagen", "copenhagen.txt", DefenderCode},
                                        true, {{{4, 6}, {4, 3}}, {{6, 4}, {3, 4}}});
    const bool tablut = SaveRuleSet(out + "/rules-tablut.png", {"Tablut", "tablut.txt", DefenderCode}, false,
                                    {{{5, 4}, {2, 4}}, {{5, 5}, {5, 4}}});
    return copenhagen && tablut && SaveOpenings(out);
}

// A few moves against the classic attackers, reviewed to a fixed depth, a marked move shown; then the same
// in tafl coordinates.
bool SaveReview(const QString& out) {
    Screen s(1400, 800);
    for (auto [from, to] : {std::pair{Square{4, 6}, Square{3, 6}}, {{6, 8}, {3, 8}}, {{8, 6}, {8, 9}}, {{6, 4}, {9, 4}}})
        s.Drag(from, to);
    auto* panel = s.Find<ui::MoveListPanel>("MoveListPanel");
    panel->ReviewLimits.MaxDepth = 3;
    panel->ReviewLimits.Millis = 0;
    s.window.findChild<QAction*>("mnureviewgame")->trigger();
    QTest::qWaitFor([&] { return !panel->Reviewing(); }, 60000);
    QTest::mouseClick(s.Find<QTableWidget>("MoveList")->viewport(), Qt::LeftButton, {},
                      s.Find<QTableWidget>("MoveList")->visualItemRect(s.Find<QTableWidget>("MoveList")->item(1, 1)).center());
    bool ok = Save(s.window, out + "/move-list-review.png");
    s.window.findChild<QAction*>("mnutaflcoords")->trigger();
    return Save(s.window, out + "/move-list-tafl.png") && ok;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const QString out = argc > 1 ? argv[1] : "docs/screens";
    QDir().mkpath(out);
    const bool window = SaveWindow(out), editor = SaveEditor(out), options = SaveOptions(out);
    const bool review = SaveReview(out);
    return window && editor && options && review && SaveRuleSets(out) ? 0 : 1;
}
