// The window and the tafl world's notation: the load and save dialogs offer OpenTafl positions after the
// game files, and the Game menu exports the game record.
#include <QAction>
#include <QCheckBox>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "WindowFixture.h"
#include "ui/widgets/FileNameDialog.h"

using namespace jv;
using namespace jv::uitest;

namespace {

const char* const OpeningOtn = "/3ttttt3/5t5/11/t4T4t/t3TTT3t/tt1TTKTT1tt/t3TTT3t/t4T4t/11/5t5/3ttttt3/";

// Runs open, which shows the file dialog, and hands the dialog to handle once it is up. False when no
// dialog came.
bool WithFileDialog(const std::function<void()>& open, const std::function<void(QFileDialog*)>& handle) {
    bool handled = false;
    QTimer poll;
    poll.setInterval(10);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || handled) return;
        handled = true;
        handle(dialog);
    });
    poll.start();
    open();
    poll.stop();
    return handled;
}

// The filters a command's file dialog offers; the dialog is cancelled.
QStringList FiltersOf(StartedWindow& s, const char* command) {
    QStringList filters;
    const bool shown = WithFileDialog([&] { s.Find<QPushButton>(command)->click(); },
                                      [&](QFileDialog* dialog) {
                                          filters = dialog->nameFilters();
                                          filters.prepend(dialog->selectedNameFilter());
                                          dialog->reject();
                                      });
    return shown ? filters : QStringList{"no dialog"};
}

}  // namespace

class TestNotationWindow : public QObject {
    Q_OBJECT
private slots:
    void TheFiltersPairPatternsWithDescriptions();
    void TheLoadAndSaveDialogsOfferOpenTaflPositions();
    void SavingUnderTheOpenTaflFilterAddsItsEnding();
    void TheGameMenuExportsTheGameRecord();
};

void TestNotationWindow::TheFiltersPairPatternsWithDescriptions() {
    // Patterns and descriptions joined by ";;" pair up in order as the dialog's filters.
    QCOMPARE(ui::FileFilters("*.txt", "Game Files"), QString("Game Files (*.txt)"));
    QCOMPARE(ui::FileFilters("*.txt;;*.otn", "Game Files;;OpenTafl positions"),
             QString("Game Files (*.txt);;OpenTafl positions (*.otn)"));
}

void TestNotationWindow::TheLoadAndSaveDialogsOfferOpenTaflPositions() {
    // Loading and saving offer "Game Files (*.txt)" first and chosen, then "OpenTafl positions (*.otn)";
    // the replay of a moves log offers the game files alone.
    StartedWindow s;
    const QStringList both{"Game Files (*.txt)", "Game Files (*.txt)", "OpenTafl positions (*.otn)"};
    QCOMPARE(FiltersOf(s, "cmdload"), both);
    QCOMPARE(FiltersOf(s, "cmdsave"), both);
    QCOMPARE(FiltersOf(s, "cmdloadlog"), (QStringList{"Game Files (*.txt)", "Game Files (*.txt)"}));
    QVERIFY(s.questions.Asked.empty());   // each dialog cancelled: nothing loaded, saved or replayed
}

void TestNotationWindow::SavingUnderTheOpenTaflFilterAddsItsEnding() {
    // A name typed without a point under "OpenTafl positions" is saved with ".otn", as one OTN line.
    StartedWindow s;
    const bool shown = WithFileDialog([&] { s.Find<QPushButton>("cmdsave")->click(); },
                                      [&](QFileDialog* dialog) {
                                          dialog->selectNameFilter("OpenTafl positions (*.otn)");
                                          dialog->selectFile("opening");
                                          static_cast<QDialog*>(dialog)->accept();   // as the Save button does
                                      });
    QVERIFY(shown);
    QCOMPARE(s.folder.Read("opening.otn"), std::string(OpeningOtn) + "\r\n");
    QVERIFY(s.questions.WasAsked("Game saved to file:\r\n" + s.folder.File("opening.otn")));
}

void TestNotationWindow::TheGameMenuExportsTheGameRecord() {
    // Game > "Export game record..." writes the moves of the undo history in standard notation.
    StartedWindow s;
    auto* exportRecord = s.Find<QAction>("mnuexportrecord");
    QVERIFY(exportRecord != nullptr);
    QCOMPARE(exportRecord->text(), QString("&Export game record..."));
    QMenu* game = s.window.menuBar()->actions().front()->menu();
    QVERIFY(game->actions().contains(exportRecord));

    s.Find<QCheckBox>("Check1")->setChecked(false);   // no reply: one move to write
    Drag(s.window.Board(), Square{4, 6}, Square{4, 3});   // D6 > D3, f8-c8
    QCOMPARE(s.window.game().Undo.size(), std::size_t(1));
    s.window.FileChooser = [&](FileMode mode, const std::string& title) {
        return mode == FileMode::Save && title == "Select an output file for the game record"
                   ? s.folder.File("record.txt")
                   : std::string();
    };
    exportRecord->trigger();
    const std::string patf = s.folder.Read("patf.txt");
    QCOMPARE(s.folder.Read("record.txt"),
             "[layout \"" + patf.substr(0, patf.size() - 2) + "\"]\r\n[size \"11x11\"]\r\n\r\n1. f8-c8\r\n");
    QVERIFY(s.questions.WasAsked("Game record saved to file:\r\n" + s.folder.File("record.txt")));
}

QTEST_MAIN(TestNotationWindow)
#include "test_notation_window.moc"
