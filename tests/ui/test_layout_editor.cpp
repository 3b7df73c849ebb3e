// The layout editor on the real window: the palette beside the board, clicks
// placing the chosen kind, the commands that wait while it is on, and the
// King's column when the editor is switched off.
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "WindowFixture.h"
#include "session/LayoutEditor.h"
#include "records/PositionRecord.h"
#include "ui/EditorPalette.h"
#include "ui/widgets/PictureButton.h"

using namespace jv;
using namespace jv::uitest;

namespace {

struct Editing : StartedWindow {
    Game& g() { return window.game(); }
    ui::BoardPicture* board() { return window.Board(); }
    QWidget* palette() { return Find<QWidget>("Picture2"); }
    void Press(const char* name) { QTest::mouseClick(Find<QPushButton>(name), Qt::LeftButton); }
    void Click(int col, int row) {
        const QPoint at = board()->SquareCentre(col, row);
        SendMouse(board(), QEvent::MouseButtonPress, at, Qt::LeftButton);
        SendMouse(board(), QEvent::MouseButtonRelease, at, Qt::NoButton);
    }
    QColor At(int col, int row) { return board()->Pixmap().toImage().pixelColor(board()->SquareCentre(col, row)); }
    std::string Label(const char* name) { return Find<QLabel>(name)->text().toStdString(); }
};

}  // namespace

class TestLayoutEditor : public QObject {
    Q_OBJECT
private slots:
    void OnAndOffWithoutAChangeKeepsThePositionAndTheKing();
    void CommandsDoNothingWhileTheEditorIsOn();
    void ClicksPlaceTheChosenKindAndAKingMovedToAnotherRowLosesHisColumn();
};

void TestLayoutEditor::OnAndOffWithoutAChangeKeepsThePositionAndTheKing() {
    // The editor button shows the palette beside the board at its height; pressed again it plays the
    // same position from "temporarylayout.txt", the King where he was.
    Editing s;
    const std::string before = EncodePosition(s.g());
    QVERIFY(s.palette()->isHidden());

    s.Press("cmdedit");
    QVERIFY(s.g().EditorOn);
    QVERIFY(s.palette()->isVisible());
    QCOMPARE(s.palette()->height(), s.board()->height());
    QVERIFY(s.palette()->geometry().left() >= s.board()->geometry().right());
    QCOMPARE(s.Find<QPushButton>("cmdedit")->text(), QString("Play Layout"));
    QVERIFY(s.palette()->findChild<ui::PictureButton*>("KindAttacker")->isChecked());

    s.Press("cmdedit");
    QVERIFY(!s.g().EditorOn);
    QVERIFY(s.palette()->isHidden());
    QCOMPARE(s.Find<QPushButton>("cmdedit")->text(), QString("Edit Layout"));
    QCOMPARE(EncodePosition(s.g()), before);
    QCOMPARE(s.g().KingCol, 6);
    QCOMPARE(s.g().KingRow, 6);
    QCOMPARE(s.Label("LayoutName"), std::string("temporarylayout.txt"));
    QCOMPARE(s.folder.Read("temporarylayout.txt"), "1111" + before + "\r\n");
    QVERIFY(s.questions.Asked.empty());
}

void TestLayoutEditor::CommandsDoNothingWhileTheEditorIsOn() {
    // While the editor is on, load, save, reset, undo and recording do nothing: no question, no file
    // dialog, the undo history and the position as they were.
    Editing s;
    Drag(s.board(), {5, 5}, {3, 5});   // a user move and the computer's answer
    const std::size_t undoEntries = s.g().Undo.size();
    QVERIFY(undoEntries >= 1);
    const std::string position = EncodePosition(s.g());
    s.Press("cmdedit");
    s.questions.Asked.clear();
    int filesChosen = 0;
    s.window.FileChooser = [&](FileMode, const std::string&) {
        ++filesChosen;
        return s.folder.File("pattern1.txt");
    };
    for (const char* name : {"cmdload", "cmdsave", "cmdreset", "cmdundo"}) s.Press(name);
    for (const char* name : {"mnuloadgame", "mnusavegame", "mnuresetgame"}) s.Find<QAction>(name)->trigger();
    QTest::mouseClick(s.Find<QCheckBox>("Check2"), Qt::LeftButton);
    QVERIFY(s.questions.Asked.empty());
    QCOMPARE(filesChosen, 0);
    QCOMPARE(s.g().Undo.size(), undoEntries);
    QCOMPARE(s.Find<QListWidget>("Undo")->count(), static_cast<int>(undoEntries));
    QCOMPARE(EncodePosition(s.g()), position);
    QVERIFY(s.g().MovesLogFile.empty());
    QVERIFY(!s.folder.Exists("pattern1.txt.tmp"));
    QVERIFY(s.g().EditorOn);
    QVERIFY(s.palette()->isVisible());
}

void TestLayoutEditor::ClicksPlaceTheChosenKindAndAKingMovedToAnotherRowLosesHisColumn() {
    // A click places the palette's kind in the editor, shown on the board at once while the board
    // itself waits; a sweep places it on every square passed; the corners stay Home. The King moved
    // to another row is left with column 0 and his old row, his square a plain defender.
    Editing s;
    s.Press("cmdedit");
    // The palette takes room from the board: its squares are measured as they are shown now.
    QColor attacker = s.At(1, 6), defender = s.At(5, 6);
    const QColor empty = s.At(3, 3);
    QVERIFY(attacker != empty && defender != empty && attacker != defender);

    s.Click(3, 3);
    QCOMPARE(s.g().EditorGrid(3, 3), AttackerCode);
    QCOMPARE(s.g().Board(3, 3), EmptyCode);
    QCOMPARE(s.At(3, 3), attacker);
    s.Click(1, 1);
    QCOMPARE(s.g().EditorGrid(1, 1), HomeCode);

    QTest::mouseClick(s.palette()->findChild<ui::PictureButton*>("KindDefender"), Qt::LeftButton);
    QCOMPARE(static_cast<ui::EditorPalette*>(s.palette())->Kind(), DefenderCode);
    SendMouse(s.board(), QEvent::MouseButtonPress, s.board()->SquareCentre(9, 2), Qt::LeftButton);
    for (int row = 3; row <= 4; ++row)
        SendMouse(s.board(), QEvent::MouseMove, s.board()->SquareCentre(9, row), Qt::LeftButton);
    SendMouse(s.board(), QEvent::MouseButtonRelease, s.board()->SquareCentre(9, 4), Qt::NoButton);
    SendMouse(s.board(), QEvent::MouseMove, s.board()->SquareCentre(9, 5), Qt::NoButton);
    for (int row = 2; row <= 4; ++row) QCOMPARE(s.g().EditorGrid(9, row), DefenderCode);
    QCOMPARE(s.g().EditorGrid(9, 5), EmptyCode);
    QCOMPARE(s.At(9, 3), defender);

    QTest::mouseClick(s.palette()->findChild<ui::PictureButton*>("KindKing"), Qt::LeftButton);
    s.Click(6, 9);
    QCOMPARE(s.g().EditorGrid(6, 9), EditorKingCode);
    QCOMPARE(s.g().EditorGrid(6, 6), EmptyCode);
    QCOMPARE(s.g().KingCol, 6);   // the board still has him on F6

    s.Press("cmdedit");
    QVERIFY(!s.g().EditorOn);
    QCOMPARE(s.g().KingCol, 0);
    QCOMPARE(s.g().KingRow, 6);
    QCOMPARE(s.g().Board(6, 9), DefenderCode);
    QCOMPARE(s.g().Board(6, 6), EmptyCode);
    QCOMPARE(s.g().Board(3, 3), AttackerCode);
    attacker = s.At(1, 6);
    defender = s.At(5, 6);
    QCOMPARE(s.At(6, 9), defender);
    QCOMPARE(s.At(3, 3), attacker);
    QCOMPARE(s.folder.Read("temporarylayout.txt").substr(0, 8), std::string("11110006"));
}

QTEST_MAIN(TestLayoutEditor)
#include "test_layout_editor.moc"
