// Play with the mouse on the real window: a drag through the pointer rules, the computer's answer,
// captures, undo, and the end of a game.
#include "WindowFixture.h"
#include "records/PositionRecord.h"
#include "ui/ColourValue.h"
#include "ui/Surface.h"

Q_DECLARE_METATYPE(jv::Square)

using namespace jv;
using namespace jv::uitest;

namespace {

// A 7 by 7 board (Col down, Row across). A defender on B3 can go down to D3 and sandwich the attacker on
// E3 against the defender on F3; the King on A5 is two squares from the corner A7 along a free edge.
const std::string CaptureLayout =
    LayoutText({"H...K.H", "..d....", ".......", ".......", "..a....", "..d.a..", "H.....H"});

}  // namespace

class TestPointerPlay : public QObject {
    Q_OBJECT
private slots:
    void AcceptedDropIsAnsweredByOneComputerMove() {
        // An accepted drop is answered by one computer move while the board is closed and the pointer busy; the
        // turn line names the side that moved last.
        StartedWindow p(30);
        bool enabledDuringMove = true;
        Qt::CursorShape cursor = Qt::ArrowCursor;
        QTimer::singleShot(5, &p.window, [&] {
            enabledDuringMove = p.Board()->isEnabled();
            if (QApplication::overrideCursor() != nullptr) cursor = QApplication::overrideCursor()->shape();
        });
        p.Drag({4, 6}, {4, 8});   // D6 across to D8
        QCOMPARE(p.g().Board(4, 8), DefenderCode);
        QCOMPARE(p.Logged("  Player1 Move D6 > D8") + p.Logged("  Player2 Move "), 2);
        QCOMPARE(p.Find<QListWidget>("Undo")->count(), 2);
        QVERIFY(p.Find<QListWidget>("List1A")->count() > 0);   // the computer's reasoning stays to be read
        QVERIFY(p.window.statusBar()->currentMessage().endsWith(": defender"));   // the dropped piece named
        QVERIFY(!enabledDuringMove && cursor == Qt::BusyCursor);
        QVERIFY(p.Board()->isEnabled() && QApplication::overrideCursor() == nullptr);
        QVERIFY(p.Find<QLabel>("TurnLine")->text().startsWith("Last move: Attackers, "));
    }

    void PressShowsTheReachAndTheHint() {
        // Pressing on a defender paints its reach until let go; moving the pointer shows the square's hint.
        StartedWindow p;
        const QColor reach = ui::ToQColor(p.g().ColourTable[11]), empty = p.At(3, 6);
        p.Send(QEvent::MouseButtonPress, 4, 6, Qt::LeftButton);
        QVERIFY(p.At(3, 6) == reach && p.At(4, 9) == reach && p.At(5, 5) != reach);   // C6 up, D9 right, not E5
        p.Send(QEvent::MouseMove, 3, 6, Qt::LeftButton);
        QCOMPARE(p.Board()->toolTip(), QString("C6: empty"));
        p.Send(QEvent::MouseButtonRelease, 5, 5, Qt::NoButton);
        QCOMPARE(p.At(3, 6), empty);
        p.Send(QEvent::MouseMove, 6, 6, Qt::NoButton);
        QCOMPARE(p.window.statusBar()->currentMessage(), QString("F6: King"));
    }

    void ThePointersSquareRunsToItsLastPixel_data() {
        QTest::addColumn<Square>("square");
        QTest::addColumn<int>("across");   // the pixel: -1 the one before the square, 0 its first, 1 its last,
        QTest::addColumn<int>("down");     // 2 the first past it
        QTest::addColumn<Square>("found");
        QTest::newRow("first pixel") << Square{4, 6} << 0 << 0 << Square{4, 6};
        QTest::newRow("last pixel") << Square{4, 6} << 1 << 1 << Square{4, 6};
        QTest::newRow("past it across") << Square{4, 6} << 2 << 1 << Square{4, 7};
        QTest::newRow("past it down") << Square{4, 6} << 1 << 2 << Square{5, 6};
        QTest::newRow("before it") << Square{4, 6} << -1 << -1 << Square{3, 5};
        QTest::newRow("last pixel of the board") << Square{11, 11} << 1 << 1 << Square{11, 11};
        QTest::newRow("past the board") << Square{11, 11} << 2 << 1 << Square{};
    }
    void ThePointersSquareRunsToItsLastPixel() {
        // The pointer is over a square from its first pixel to its last, the next one's starting one pixel on.
        QFETCH(Square, square);
        QFETCH(int, across);
        QFETCH(int, down);
        QFETCH(Square, found);
        StartedWindow p;
        const ui::BoardGeometry& geo = p.Board()->Geometry();
        const int side = ui::ToPixels(geo.SquareSize);
        const auto pixel = [&](int start, int k) { return start + (k == -1 ? -1 : k == 0 ? 0 : k == 1 ? side - 1 : side); };
        const QPoint at(pixel(ui::ToPixels(geo.Left(square.Col, square.Row)), across),
                        pixel(ui::ToPixels(geo.Top(square.Col, square.Row)), down));
        SendMouse(p.Board(), QEvent::MouseMove, at, Qt::NoButton);
        QCOMPARE(std::pair(p.g().PointerSquare.Col, p.g().PointerSquare.Row), std::pair(found.Col, found.Row));
    }

    void CaptureIsMarkedRemovedAndLoggedAndUndoRestoresTheDrawnBoard() {
        // A captured attacker carries the small mark during the capture's pause, then is removed and logged;
        // undo and a click on an older Undo entry show the earlier position as it was drawn.
        StartedWindow p(20);
        p.Load("capture.txt", CaptureLayout);
        QVERIFY(p.questions.WasAsked("Layout loaded from file:\r\ncapture.txt"));
        p.Find("Check1")->setChecked(false);
        const std::string start = EncodePosition(p.g());
        const QImage drawnAtStart = p.Picture();
        const QColor background = ui::ToQColor(p.g().ColourTable[2]);
        QColor markedVictim;
        QTimer::singleShot(5, &p.window, [&] {
            const ui::BoardGeometry& geo = p.Board()->Geometry();
            const int inside = ui::ToPixels(geo.SquareSize / 12) + 2;
            markedVictim = p.Picture().pixelColor(ui::ToPixels(geo.Left(5, 3)) + inside,
                                                  ui::ToPixels(geo.Top(5, 3)) + inside);
        });
        p.Drag({2, 3}, {4, 3});   // takes E3
        QVERIFY(p.g().Board(5, 3) == EmptyCode && p.Logged("  Player 1 captures E3") == 1);
        QCOMPARE(markedVictim, ui::ToQColor(p.g().ColourTable[9]));
        QVERIFY(p.At(5, 3) == background && p.At(4, 3) != background);
        QCOMPARE(p.Find<QLabel>("ptot1")->text(), QString("1"));
        p.Drag({6, 3}, {6, 1});
        auto* undo = p.Find<QListWidget>("Undo");
        QCOMPARE(Lines(undo).front() + "|" + Lines(undo).back(),
                 std::string("Before move 2: King A5, 2 v 1|Before move 1: King A5, 2 v 2"));
        QTest::mouseClick(undo->viewport(), Qt::LeftButton, {}, undo->visualItemRect(undo->item(1)).center());
        QVERIFY(EncodePosition(p.g()) == start && undo->count() == 2 && p.Picture() == drawnAtStart);
        p.Press("cmdundo");
        QVERIFY(p.g().Board(4, 3) == DefenderCode && p.g().Board(6, 3) == DefenderCode);
        p.Press("cmdundo");
        QVERIFY(EncodePosition(p.g()) == start && undo->count() == 0 && p.Picture() == drawnAtStart);
    }

    void KingDraggedHomeEndsTheGame() {
        // The King dragged onto a corner wins, with no undo record or reply; the board waits for a reset and the
        // turn line says how the game ended until then.
        StartedWindow p;
        p.Load("capture.txt", CaptureLayout);
        const QColor king = p.At(1, 5);
        p.Drag({1, 5}, {1, 7});
        QCOMPARE(p.questions.Asked.back().first + "|" + p.questions.Asked.back().second,
                 std::string("King at Home !\r\nClick Reset to start a new game|vbhappy+vbok"));
        QVERIFY(p.g().Undo.empty() && p.At(1, 7) == king && p.Logged("Player2 Move") == 0);
        const std::string finished = EncodePosition(p.g());
        p.Drag({2, 3}, {4, 3});
        QCOMPARE(EncodePosition(p.g()), finished);
        const auto turn = [&] { return p.Find<QLabel>("TurnLine")->text(); };
        QCOMPARE(turn(), "Game over: The King has reached a corner: the defenders win");
        p.questions.AnswerTo["Reset layout?"] = 6;
        p.Press("cmdreset");
        QVERIFY(p.Board()->isEnabled() && p.g().KingRow == 5 && turn() == "Last move: none yet");
    }

    void CandidateLinePreviewsItsMove() {
        // Pressing on a line of the attackers' ranked moves shows that move on the board until let go.
        StartedWindow p;
        p.Press("cmdGetAttackerRank");
        QListWidget* list = p.Find<QListWidget>("List1A");
        const QPoint line = list->visualItemRect(list->item(0)).center();
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, line);
        QVERIFY(p.Board()->DragLineShown());
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, line);
        QVERIFY(!p.Board()->DragLineShown());
    }
};

WINDOW_TEST_MAIN(TestPointerPlay)
#include "test_pointer_play.moc"
