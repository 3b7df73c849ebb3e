// Play with the mouse on the real window: a drag through the pointer rules,
// the computer's answer, captures, undo, and the end of a game.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QtTest>
#include <algorithm>

#include "WindowFixture.h"
#include "ui/ColourValue.h"
#include "ui/Surface.h"

using namespace jv;
using namespace jv::uitest;
using jv::ui::MainWindow;

namespace {

// A 7 by 7 board (Col down, Row across). A defender on B3 can go down to D3
// and sandwich the attacker on E3 against the defender on F3; the King on
// A5 is two squares from the corner A7 along a free edge.
const std::string CaptureLayout = LayoutText({
    "H...K.H",
    "..d....",
    ".......",
    ".......",
    "..a....",
    "..d.a..",
    "H.....H",
});

struct Playing : StartedWindow {
    Game& g() { return window.game(); }
    ui::BoardPicture* board() { return window.Board(); }
    QListWidget* List(const char* name) { return Find<QListWidget>(name); }
    QPushButton* Button(const char* name) { return Find<QPushButton>(name); }
    int LogLinesContaining(const std::string& part) {
        const auto lines = Lines(List("EventLog"));
        return static_cast<int>(std::count_if(lines.begin(), lines.end(), [&](const std::string& l) {
            return l.find(part) != std::string::npos;
        }));
    }
    // Loads a layout through the load command and its file dialog.
    void Load(const std::string& name, const std::string& content) {
        folder.Write(name, content);
        window.FileChooser = [this, name](FileMode, const std::string&) { return folder.File(name); };
        QTest::mouseClick(Button("cmdload"), Qt::LeftButton);
    }
    Square AnyDefenderThatCanMove() {
        for (int c = 1; c <= g().BoardWidth; ++c)
            for (int r = 1; r <= g().BoardHeight; ++r)
                if (g().Board(c, r) == DefenderCode && !g().MoveTargets(c, r).empty()) return {c, r};
        return {};
    }
    QImage Picture() { return board()->Pixmap().toImage(); }
    QColor At(int col, int row) { return Picture().pixelColor(board()->SquareCentre(col, row)); }
    std::string Position() {
        std::string squares;
        for (int c = 1; c <= g().BoardWidth; ++c)
            for (int r = 1; r <= g().BoardHeight; ++r) squares += std::to_string(g().Board(c, r)) + ",";
        return squares;
    }
};

}  // namespace

class TestPointerPlay : public QObject {
    Q_OBJECT
private slots:
    void AcceptedDropIsAnsweredByOneComputerMove();
    void RefusedDropGetsNoAnswer();
    void PressShowsTheReachAndTheHint();
    void CaptureIsDrawnAndLogged();
    void UndoRestoresTheDrawnBoard();
    void KingDraggedHomeEndsTheGame();
    void CandidateLinePreviewsItsMove();
};

void TestPointerPlay::AcceptedDropIsAnsweredByOneComputerMove() {
    // With Check1 ticked every accepted user move is answered by exactly one
    // computer attacker move; the board is disabled and the pointer busy
    // while the computer plays, and open again afterwards.
    Playing p;
    p.window.PauseLimit = 30;
    bool enabledDuringMove = true;
    Qt::CursorShape cursor = Qt::ArrowCursor;
    QTimer::singleShot(5, &p.window, [&] {
        enabledDuringMove = p.board()->isEnabled();
        if (QApplication::overrideCursor() != nullptr) cursor = QApplication::overrideCursor()->shape();
    });
    Drag(p.board(), {4, 6}, {4, 8});   // D6 across to D8
    QCOMPARE(p.g().Board(4, 8), DefenderCode);
    QCOMPARE(p.g().Board(4, 6) == DefenderCode, false);
    QCOMPARE(p.LogLinesContaining("  Player1 Move D6 > D8"), 1);
    QCOMPARE(p.LogLinesContaining("  Player2 Move "), 1);
    QCOMPARE(p.g().Undo.size(), std::size_t(2));
    QCOMPARE(p.List("Undo")->count(), 2);
    QVERIFY(p.List("List1A")->count() > 0);   // the computer's reasoning stays to be read
    QVERIFY(!enabledDuringMove);
    QCOMPARE(cursor, Qt::BusyCursor);
    QVERIFY(p.board()->isEnabled());
    QCOMPARE(QApplication::overrideCursor(), nullptr);

    // Check1 cleared: the user's move stands alone.
    p.window.findChild<QCheckBox*>("Check1")->click();
    QVERIFY(!p.g().Check1);
    const Square from = p.AnyDefenderThatCanMove();
    const std::string targets = p.g().MoveTargets(from.Col, from.Row);
    const Square to{std::stoi(targets.substr(0, 2)), std::stoi(targets.substr(2, 2))};
    Drag(p.board(), from, to);
    QCOMPARE(p.g().Board(to.Col, to.Row), DefenderCode);
    QCOMPARE(p.LogLinesContaining("  Player2 Move "), 1);
    QCOMPARE(p.g().Undo.size(), std::size_t(3));
}

void TestPointerPlay::RefusedDropGetsNoAnswer() {
    // A drop the rules refuse changes nothing and gets no answer: off the
    // piece's lines, onto an attacker, off the board; an attacker cannot be
    // picked up at all.
    Playing p;
    const std::string before = p.Position();
    Drag(p.board(), {4, 6}, {5, 5});   // diagonal
    Drag(p.board(), {4, 6}, {2, 6});   // onto an attacker
    Drag(p.board(), {1, 4}, {3, 4});   // an attacker
    ui::BoardPicture* b = p.board();
    SendMouse(b, QEvent::MouseButtonPress, b->SquareCentre(4, 6), Qt::LeftButton);
    SendMouse(b, QEvent::MouseButtonRelease, QPoint(2, 2), Qt::NoButton);   // outside the squares
    QCOMPARE(p.Position(), before);
    QVERIFY(p.g().Undo.empty());
    QCOMPARE(p.LogLinesContaining("Move"), 0);
    QVERIFY(!b->DragLineShown());
    QCOMPARE(p.g().DragSource.Col, -1);
}

void TestPointerPlay::PressShowsTheReachAndTheHint() {
    // Pressing on a defender paints the squares it can reach in the reach
    // colour; the marker follows the pointer; letting go off its lines takes
    // the highlight away. Moving the pointer shows the square's hint.
    Playing p;
    const QColor reach = ui::ToQColor(p.g().ColourTable[11]);
    const QColor empty = p.At(3, 6);
    ui::BoardPicture* b = p.board();
    SendMouse(b, QEvent::MouseButtonPress, b->SquareCentre(4, 6), Qt::LeftButton);
    QCOMPARE(p.At(3, 6), reach);   // C6, up
    QCOMPARE(p.At(4, 9), reach);   // D9, right
    QVERIFY(p.At(5, 5) != reach);
    QVERIFY(b->DragLineShown());
    SendMouse(b, QEvent::MouseMove, b->SquareCentre(3, 6), Qt::LeftButton);
    QCOMPARE(p.window.statusBar()->currentMessage(), QString("C6: empty"));
    QCOMPARE(b->toolTip(), QString("C6: empty"));
    SendMouse(b, QEvent::MouseButtonRelease, b->SquareCentre(5, 5), Qt::NoButton);
    QCOMPARE(p.At(3, 6), empty);
    QVERIFY(!b->DragLineShown());
    SendMouse(b, QEvent::MouseMove, b->SquareCentre(6, 6), Qt::NoButton);
    QCOMPARE(p.window.statusBar()->currentMessage(), QString("F6: King"));
}

void TestPointerPlay::CaptureIsDrawnAndLogged() {
    // The defender moving B3 to D3 takes the attacker on E3: it is marked,
    // removed from the picture after the pause and logged.
    Playing p;
    p.Load("capture.txt", CaptureLayout);
    QVERIFY(p.questions.WasAsked("Layout loaded from file:\r\n" + p.folder.File("capture.txt")));
    p.window.findChild<QCheckBox*>("Check1")->setChecked(false);
    const QColor background = ui::ToQColor(p.g().ColourTable[2]);
    QVERIFY(p.At(5, 3) != background);   // the attacker's picture
    // During the capture's pause the victim carries the small mark, a
    // twelfth of a square inside its top-left corner.
    QColor markedVictim;
    p.window.PauseLimit = 20;
    QTimer::singleShot(5, &p.window, [&] {
        const ui::BoardGeometry& geo = p.board()->Geometry();
        const int inside = ui::ToPixels(geo.SquareSize / 12) + 2;
        markedVictim = p.Picture().pixelColor(ui::ToPixels(geo.Left(5, 3)) + inside, ui::ToPixels(geo.Top(5, 3)) + inside);
    });
    Drag(p.board(), {2, 3}, {4, 3});
    QCOMPARE(p.g().Board(5, 3), EmptyCode);
    QCOMPARE(p.g().Board(4, 3), DefenderCode);
    QCOMPARE(p.LogLinesContaining("  Player 1 captures E3"), 1);
    QCOMPARE(markedVictim, ui::ToQColor(p.g().ColourTable[9]));
    QCOMPARE(p.At(5, 3), background);
    QVERIFY(p.At(4, 3) != background);
    QCOMPARE(p.window.findChild<QLabel*>("ptot1")->text(), QString("1"));
}

void TestPointerPlay::UndoRestoresTheDrawnBoard() {
    // Undo puts back the position before the move and draws it as it was
    // drawn; a click on an older Undo entry shows that position and keeps
    // the list.
    Playing p;
    p.Load("capture.txt", CaptureLayout);
    p.window.findChild<QCheckBox*>("Check1")->setChecked(false);
    const std::string start = p.Position();
    const QImage drawnAtStart = p.Picture();
    Drag(p.board(), {2, 3}, {4, 3});                 // takes E3
    Drag(p.board(), {6, 3}, {6, 1});                 // F3 to F1
    QCOMPARE(p.List("Undo")->count(), 2);
    QCOMPARE(p.List("Undo")->item(0)->text(), QString("Before move 2: King A5, 2 v 1"));
    QCOMPARE(p.List("Undo")->item(1)->text(), QString("Before move 1: King A5, 2 v 2"));

    // The oldest entry, clicked, shows the start; the list stays.
    QListWidget* undo = p.List("Undo");
    QTest::mouseClick(undo->viewport(), Qt::LeftButton, {}, undo->visualItemRect(undo->item(1)).center());
    QCOMPARE(p.Position(), start);
    QCOMPARE(undo->count(), 2);
    QCOMPARE(p.Picture(), drawnAtStart);

    // Undo twice from the latest position (entry 0 first).
    QTest::mouseClick(p.Button("cmdundo"), Qt::LeftButton);
    QCOMPARE(p.g().Board(4, 3), DefenderCode);
    QCOMPARE(p.g().Board(6, 3), DefenderCode);
    QTest::mouseClick(p.Button("cmdundo"), Qt::LeftButton);
    QCOMPARE(p.Position(), start);
    QCOMPARE(p.Picture(), drawnAtStart);
    QCOMPARE(undo->count(), 0);
}

void TestPointerPlay::KingDraggedHomeEndsTheGame() {
    // The King dragged onto a Home corner wins: the message, no undo record,
    // and the board takes no more pointer input until the layout is reset.
    Playing p;
    p.Load("capture.txt", CaptureLayout);
    const std::string kingSquare = p.At(1, 5).name().toStdString();
    Drag(p.board(), {1, 5}, {1, 7});
    QCOMPARE(p.questions.Asked.back().first, std::string("King at Home !\r\nClick Reset to start a new game"));
    QCOMPARE(p.questions.Asked.back().second, std::string("vbhappy+vbok"));
    QCOMPARE(p.g().KingCol, 1);
    QCOMPARE(p.g().KingRow, 7);
    QVERIFY(!p.board()->isEnabled());
    QVERIFY(p.g().Undo.empty());
    QCOMPARE(p.At(1, 7).name().toStdString(), kingSquare);   // the King's picture on the corner
    QCOMPARE(p.LogLinesContaining("Player2 Move"), 0);       // no computer reply

    // The finished board ignores the mouse; Reset opens play again.
    const std::string finished = p.Position();
    Drag(p.board(), {2, 3}, {4, 3});
    QCOMPARE(p.Position(), finished);
    p.questions.AnswerTo["Reset layout?"] = 6;
    QTest::mouseClick(p.Button("cmdreset"), Qt::LeftButton);
    QVERIFY(p.board()->isEnabled());
    QCOMPARE(p.g().KingRow, 5);
}

void TestPointerPlay::CandidateLinePreviewsItsMove() {
    // Pressing on a line of the attackers' ranked moves shows that move on
    // the board; letting go hides it.
    Playing p;
    QTest::mouseClick(p.Button("cmdGetAttackerRank"), Qt::LeftButton);
    QListWidget* list = p.List("List1A");
    QVERIFY(list->count() > 0);
    const QPoint line = list->visualItemRect(list->item(0)).center();
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, line);
    QVERIFY(p.board()->DragLineShown());
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, line);
    QVERIFY(!p.board()->DragLineShown());
}

QTEST_MAIN(TestPointerPlay)
#include "test_pointer_play.moc"
