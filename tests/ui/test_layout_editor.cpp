// The layout editor on the real window: the palette beside the board, clicks placing the chosen kind, the
// commands that wait while it is on, and the King's column when the editor is switched off.
#include "WindowFixture.h"
#include "session/LayoutEditor.h"
#include "records/PositionRecord.h"

using namespace jv;
using namespace jv::uitest;

namespace {

struct Editing : StartedWindow {
    QWidget* palette() { return Find<QWidget>("Picture2"); }
};

}  // namespace

class TestLayoutEditor : public QObject {
    Q_OBJECT
private slots:
    void OnAndOffWithoutAChangeKeepsThePositionAndTheKing() {
        // The editor shows its palette beside the board; switched off unchanged it plays the same position.
        Editing s;
        const std::string before = EncodePosition(s.g());
        s.Press("cmdedit");
        QVERIFY(s.palette()->isVisible() && s.palette()->geometry().left() >= s.Board()->geometry().right());
        QCOMPARE(s.palette()->height(), s.Board()->height());
        QCOMPARE(s.Find<QPushButton>("cmdedit")->text(), QString("Play Layout"));
        s.Press("cmdedit");
        QVERIFY(s.palette()->isHidden() && s.questions.Asked.empty());
        QCOMPARE(EncodePosition(s.g()), before);
        QCOMPARE(s.Find<QLabel>("LayoutName")->text(), QString("temporarylayout.txt"));
        QCOMPARE(s.folder.Read("temporarylayout.txt"), "1111" + before + "\r\n");
    }

    void CommandsDoNothingWhileTheEditorIsOn() {
        // Load, save, reset, undo and recording do nothing while the editor is on.
        Editing s;
        s.Drag({5, 5}, {3, 5});   // a user move and the computer's answer
        const std::size_t undoEntries = s.g().Undo.size();
        const std::string position = EncodePosition(s.g());
        s.Press("cmdedit");
        s.questions.Asked.clear();
        int filesChosen = 0;
        s.window.FileChooser = [&](FileMode, const std::string&) { return ++filesChosen, std::string("pattern1.txt"); };
        for (const char* name : {"cmdload", "cmdsave", "cmdreset", "cmdundo", "Check2"}) s.Press(name);
        for (const char* name : {"mnuloadgame", "mnusavegame", "mnuresetgame"}) s.Find<QAction>(name)->trigger();
        QVERIFY(s.questions.Asked.empty() && filesChosen == 0 && s.g().MovesLogFile.empty());
        QVERIFY(!s.Find("Check2")->isChecked());   // no tick promising a log nobody writes
        QVERIFY(s.palette()->isVisible());
        QCOMPARE(s.Find<QListWidget>("Undo")->count(), static_cast<int>(undoEntries));
        QCOMPARE(EncodePosition(s.g()), position);
    }

    void ClicksPlaceTheChosenKindAndAKingMovedToAnotherRowLosesHisColumn() {
        // Clicks and sweeps place the palette's kind; a King moved to another row is left with column 0.
        Editing s;
        s.Press("cmdedit");
        const QColor attacker = s.At(1, 6), defender = s.At(5, 6);   // as the narrower board shows them
        s.Click(3, 3);
        QVERIFY(s.g().EditorGrid(3, 3) == AttackerCode && s.g().Board(3, 3) == EmptyCode && s.At(3, 3) == attacker);
        QVERIFY(s.window.statusBar()->currentMessage().endsWith(": attacker"));   // the line under the board too
        s.Click(1, 1);
        QCOMPARE(s.g().EditorGrid(1, 1), HomeCode);

        s.Press("KindDefender");
        s.Send(QEvent::MouseButtonPress, 9, 2, Qt::LeftButton);
        for (int row = 3; row <= 4; ++row) s.Send(QEvent::MouseMove, 9, row, Qt::LeftButton);
        s.Send(QEvent::MouseButtonRelease, 9, 4, Qt::NoButton);
        s.Send(QEvent::MouseMove, 9, 5, Qt::NoButton);
        for (int row = 2; row <= 4; ++row) QCOMPARE(s.g().EditorGrid(9, row), DefenderCode);
        QCOMPARE(s.g().EditorGrid(9, 5), EmptyCode);
        QCOMPARE(s.At(9, 3), defender);

        s.Press("KindKing");
        s.Click(6, 9);
        QVERIFY(s.g().EditorGrid(6, 9) == EditorKingCode && s.g().EditorGrid(6, 6) == EmptyCode);
        s.Press("cmdedit");
        QCOMPARE(std::pair(s.g().KingCol, s.g().KingRow), std::pair(0, 6));
        QVERIFY(s.g().Board(6, 9) == DefenderCode && s.g().Board(6, 6) == EmptyCode);
        QCOMPARE(s.At(6, 9), s.At(5, 6));   // drawn as the defender beside the old square
        QCOMPARE(s.folder.Read("temporarylayout.txt").substr(0, 8), std::string("11110006"));
    }
};

WINDOW_TEST_MAIN(TestLayoutEditor)
#include "test_layout_editor.moc"
