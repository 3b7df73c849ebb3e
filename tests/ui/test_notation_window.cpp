// The window and the tafl world's notation: the load and save dialogs offer OpenTafl positions after the
// game files (the load dialog OpenTafl games too), a name saved under a filter gets its ending, and the Game
// menu exports the game record.

#include "WindowFixture.h"

using namespace jv;
using namespace jv::uitest;

namespace {

const char* const OpeningOtn = "/3ttttt3/5t5/11/t4T4t/t3TTT3t/tt1TTKTT1tt/t3TTT3t/t4T4t/11/5t5/3ttttt3/\r\n";

// Chooses a filter in the dialog's type box with the arrow keys, types a name in its name field and
// presses Enter there, as a user saves.
void SaveAsAUserDoes(QFileDialog* dialog, const QString& filter, const QString& name) {
    auto* types = dialog->findChild<QComboBox*>("fileTypeCombo");
    auto* field = dialog->findChild<QLineEdit*>("fileNameEdit");
    for (int i = 0; i < types->count() && types->currentText() != filter; ++i) QTest::keyClick(types, Qt::Key_Down);
    field->clear();
    QTest::keyClicks(field, name);
    QTest::keyClick(field, Qt::Key_Return);
}

}  // namespace

class TestNotationWindow : public QObject {
    Q_OBJECT
private slots:
    void TheDialogsOfferTheirFilters_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QStringList>("filters");   // the one chosen first, then all
        const QString games = "Game Files (*.txt)", positions = "OpenTafl positions (*.otn)";
        QTest::newRow("load") << "cmdload" << QStringList{games, games, positions, "OpenTafl games (*.otg)"};
        QTest::newRow("save") << "cmdsave" << QStringList{games, games, positions};
        QTest::newRow("replay a moves log") << "cmdloadlog" << QStringList{games, games};
    }
    void TheDialogsOfferTheirFilters() {
        // Load and save offer game files first and chosen, then OpenTafl positions (and games, to load); the
        // replay game files alone.
        QFETCH(QString, command);
        QFETCH(QStringList, filters);
        StartedWindow s;
        s.window.FileChooser = nullptr;   // the program's own dialog
        QStringList offered;
        WhileOpen<QFileDialog>([&] { s.Press(qPrintable(command)); }, [&](QFileDialog* dialog) {
            offered = QStringList{dialog->selectedNameFilter()} + dialog->nameFilters();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QCOMPARE(offered, filters);
        QVERIFY(s.questions.Asked.empty());
    }
    void SavingUnderAFilterGivesItsEnding_data() {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("saved");
        QTest::newRow("OpenTafl ending added") << "OpenTafl positions (*.otn)" << "opening" << "opening.otn";
        QTest::newRow("a name with a point kept") << "OpenTafl positions (*.otn)" << "opening.txt" << "opening.txt";
        QTest::newRow("game file ending added") << "Game Files (*.txt)" << "opening" << "opening.txt";
    }
    void SavingUnderAFilterGivesItsEnding() {
        // A name typed without a point in the save dialog gets the chosen filter's ending and its format.
        QFETCH(QString, filter);
        QFETCH(QString, typed);
        QFETCH(QString, saved);
        StartedWindow s;
        s.window.FileChooser = nullptr;   // the program's own dialog
        WhileOpen<QFileDialog>([&] { s.Press("cmdsave"); },
                               [&](QFileDialog* dialog) { SaveAsAUserDoes(dialog, filter, typed); });
        const std::string name = saved.toStdString();
        QCOMPARE(s.folder.Read(name), name.ends_with(".otn") ? std::string(OpeningOtn) : s.folder.Read("patf.txt"));
        QVERIFY(s.questions.WasAsked("Game saved to file:\r\n" + s.folder.File(name)));
    }

    void TheGameMenuExportsTheGameRecord() {
        // Game > "Export game record..." writes the moves of the undo history as an OpenTafl game record.
        StartedWindow s;
        auto* exportRecord = s.Find<QAction>("mnuexportrecord");
        QCOMPARE(exportRecord->text(), QString("&Export game record..."));
        s.Find<QCheckBox>("Check1")->setChecked(false);   // no reply: one move to write
        s.Drag({4, 6}, {4, 3});   // D6 > D3, f8-c8
        s.window.FileChooser = [&](FileMode mode, const std::string& title) {
            const bool asked = mode == FileMode::Save && title == "Select an output file for the game record";
            return asked ? s.folder.File("record.otg") : "";
        };
        exportRecord->trigger();
        const std::string opening = OpeningOtn;
        QCOMPARE(s.folder.Read("record.otg"), "[rules:dim:11 esc:c surf:n atkf:n tfr:i ka:y ks:y cenh: cenhe: start:" +
                                                  opening.substr(0, opening.size() - 2) + "]\r\n\r\n1. f8-c8\r\n");
        QVERIFY(s.questions.WasAsked("Game record saved to file:\r\n" + s.folder.File("record.otg")));
    }
};

WINDOW_TEST_MAIN(TestNotationWindow)
#include "test_notation_window.moc"
