// The real window with an impatient user: clicks that arrive while a move waits in one of its pauses,
// delivered inside the pause's own event loop as the user's clicks would be, and clicks queued while the
// computer thinks.
#include "WindowFixture.h"
#include "records/Configuration.h"
#include "records/PositionRecord.h"
#include "support/Soundness.h"

using namespace jv;
using namespace jv::uitest;

namespace {

// 11 by 11 (Col down, Row across), the King on F6. The user's defender from D9 to D5 takes the attacker
// on C5 against the defender on B5; the defender on H3 can go to H1 without taking anything.
const std::string Captures = LayoutText({"H.........H", "....d......", "....a......", "........d..", "...........",
                                         ".....K.....", "..a........", "..d........", ".....a.....", "...........",
                                         "H.........H"});
// The King on F6 with attackers on E6, G6 and F5; the attacker on F9 closes the ring on F7.
const std::string Ring = LayoutText({"H.........H", "...........", "...........", "...........", ".....a.....",
                                     "....aK..a..", ".....a.....", "...........", "...........", "...........",
                                     "H.........H"});
const Square Capture[] = {{4, 9}, {4, 5}}, Quiet[] = {{8, 3}, {8, 1}};

// A window whose n-th pause (counted from 1, nested ones included) starts a zero-time timer: what it runs
// happens inside that pause's event loop.
class ImpatientWindow : public ui::MainWindow {
public:
    using MainWindow::MainWindow;
    std::map<int, std::function<void()>> At;
    int Pauses = 0;
    void Pause(int ms) override {
        if (const auto found = At.find(++Pauses); found != At.end()) QTimer::singleShot(0, this, found->second);
        MainWindow::Pause(ms);
    }
};

struct Impatient : Started<ImpatientWindow> {
    Impatient() : Started(30) {   // pauses long enough for the clicks to come first
        questions.AnswerTo = {{"Reset layout?", 6}, {"Exit?", 6}};
        window.findChild<QAction*>("mnudebug")->trigger();   // the debug buttons are clicked too
        g().Random.Timer = [] { return 7.0; };
    }
    std::string LoadCaptures() {
        Load("captures.txt", Captures);
        window.Pauses = 0;
        return EncodePosition(g());
    }
    // What the user does, by name: a button, a load, a save, a replay, a click on the undo list, a drag.
    void Act(const std::string& what) {
        if (what == "load 7x7") NextFile = "pattern1.txt", Press("cmdload");
        else if (what == "load 13x13") NextFile = "pattern4.txt", Press("cmdload");
        else if (what == "save") NextFile = "saved.txt", Press("cmdsave");
        else if (what == "replay") NextFile = g().MovesLogFile, Press("cmdloadlog");
        else if (what == "drag quiet") Drag(Quiet[0], Quiet[1]);
        else if (what == "drag capture") Drag(Capture[0], Capture[1]);
        else if (auto* undo = Find<QListWidget>("Undo"); what == "undo list" && undo->count() > 0)
            QTest::mouseClick(undo->viewport(), Qt::LeftButton, {}, undo->visualItemRect(undo->item(0)).center());
        else if (what != "undo list") Press(what.c_str());
    }
    int Shown(const char* list) { return Find<QListWidget>(list)->count(); }
    // What the window shows that does not agree with the game, or is unsound in the game itself. Empty
    // when nothing.
    QString Disagreements() {
        std::string out = test::Unsound(g()) + test::StaleAnalysis(g());
        if (Shown("Undo") != static_cast<int>(g().Undo.size())) out += "Undo list; ";
        if (Shown("EventLog") != static_cast<int>(g().EventLog.size())) out += "event log; ";
        if (Find<QLabel>("ptot0")->text() != QString::number(g().DefenderCount)) out += "defenders' counter; ";
        if (Find<QLabel>("ptot1")->text() != QString::number(g().AttackerCount)) out += "attackers' counter; ";
        if (!g().EditorOn && Board()->isEnabled() != g().BoardEnabled) out += "Picture1 enabled; ";
        if (QApplication::overrideCursor() != nullptr) out += "busy pointer left on; ";
        return QString::fromStdString(out);
    }
    std::size_t LogLines() {
        std::size_t lines = 0;
        const std::string bad = test::BadLayoutLines(folder.File(g().MovesLogFile), lines);
        return bad.empty() ? lines : 0;
    }
};

}  // namespace

class TestImpatient : public QObject {
    Q_OBJECT
private slots:
    void init() {
        // A test that ends the program tells every event loop to quit, and until the application's own
        // loop has run again no pause would wait: run it for a moment before each test.
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        QCoreApplication::exec();
    }

    void ClickInAPauseLeavesTheWindowTrue_data() {
        QTest::addColumn<QString>("click");
        QTest::addColumn<int>("pause");
        QTest::addColumn<bool>("quiet");   // the user's move takes nothing, else it captures
        QTest::addColumn<int>("undo");     // entries expected after, -1 for any
        QTest::addColumn<bool>("loaded");  // the layout as loaded expected after
        QTest::newRow("reset during the answer") << "cmdreset" << 1 << true << 0 << true;
        QTest::newRow("drop refused during the answer") << "drag capture" << 1 << true << 2 << false;
        QTest::newRow("second drop during the capture") << "drag quiet" << 1 << false << 4 << false;
        QTest::newRow("smaller board during the capture") << "load 7x7" << 1 << false << 0 << false;
        for (const char* click :
             {"cmdreset", "cmdundo", "cmdedit", "load 7x7", "load 13x13", "save", "replay", "Check2", "undo list",
              "cmdGetAttackerRank", "cmdMakeRedAutoMove", "Command4", "cmdGetDefenderRank", "cmdRedGreenRandom",
              "cmdPathAroundKing", "cmdCheckKingCapture"})
            for (int pause = 1; pause <= 3; ++pause)
                QTest::addRow("%s at pause %d", click, pause) << click << pause << false << -1 << false;
    }
    void ClickInAPauseLeavesTheWindowTrue() {
        // Any click in any pause of a move leaves the window showing a sound game and whole files.
        QFETCH(QString, click);
        QFETCH(int, pause);
        QFETCH(bool, quiet);
        QFETCH(int, undo);
        QFETCH(bool, loaded);
        Impatient s;
        const std::string layout = s.LoadCaptures();
        s.Press("Check2");
        s.window.At[pause] = [&s, click] { s.Act(click.toStdString()); };
        const Square* move = quiet ? Quiet : Capture;
        s.Drag(move[0], move[1]);
        QVERIFY(!s.window.Ended());
        QCOMPARE(s.Disagreements(), QString());
        QVERIFY(s.LogLines() >= 1);
        std::size_t lines = 1;   // a saved layout is one whole line
        if (s.folder.Exists("saved.txt"))
            QCOMPARE(test::BadLayoutLines(s.folder.File("saved.txt"), lines), std::string());
        QCOMPARE(lines, std::size_t(1));
        if (undo >= 0) QCOMPARE(s.Shown("Undo"), undo);
        const QImage shown = s.Picture();
        s.window.DrawBoard();
        if (undo == 0) QVERIFY2(s.Picture() == shown, "a new board not drawn whole");
        if (loaded) QCOMPARE(EncodePosition(s.g()), layout);
    }

    void ClickQueuedWhileTheComputerThinksComesInItsAnimation() {
        // A reset queued while the computer thinks comes in its animation and leaves the layout as loaded.
        Impatient s;
        const std::string loaded = s.LoadCaptures();
        QMetaObject::invokeMethod(&s.window, [&s] { s.Press("cmdreset"); }, Qt::QueuedConnection);
        s.Drag(Quiet[0], Quiet[1]);
        QCOMPARE(EncodePosition(s.g()), loaded);
        QCOMPARE(s.Shown("Undo"), 0);
        QCOMPARE(QString::fromStdString(s.g().EventLog.front()), QString("Loaded Layout: captures.txt"));
        QCOMPARE(s.Disagreements(), QString());
    }

    void NewGameBegunAfterTheKingsCaptureStaysOpen() {
        // A reset clicked right after "King Captured !" begins a game whose board takes the pointer.
        Impatient s;
        const std::string loaded = (s.Load("ring.txt", Ring), EncodePosition(s.g()));
        s.window.Answerer = [&s](const std::string& text, const std::string&) {
            s.questions.Asked.emplace_back(text, "");
            if (text.starts_with("King Captured !")) QTimer::singleShot(0, &s.window, [&s] { s.Press("cmdreset"); });
            return text == "Reset layout?" ? 6 : 1;
        };
        s.Press("cmdMakeRedAutoMove");
        QVERIFY(s.questions.WasAsked("King Captured !\r\nClick Reset to start a new game"));
        QVERIFY(s.questions.WasAsked("Reset layout?"));
        QCOMPARE(EncodePosition(s.g()), loaded);
        QVERIFY(!s.g().GameOver && s.Board()->isEnabled());
        QCOMPARE(s.Disagreements(), QString());
    }

    void EditorSwitchedOnDuringTheComputersMove() {
        // The editor switched on during the computer's answer edits that moment's position and plays it after.
        Impatient s;
        s.LoadCaptures();
        std::string edited;
        s.window.At[1] = [&s, &edited] { edited = EncodePosition(s.g()), s.Press("cmdedit"); };
        s.Drag(Quiet[0], Quiet[1]);
        QVERIFY(s.Find<QWidget>("Picture2")->isVisible());
        QCOMPARE(s.Shown("Undo"), 2);
        s.Press("cmdedit");
        QCOMPARE(EncodePosition(s.g()), edited);
        QCOMPARE(s.Find<QLabel>("LayoutName")->text(), QString("temporarylayout.txt"));
        QCOMPARE(s.Disagreements(), QString());
    }

    void EndingInAPauseWritesWholeFilesOrNothing_data() {
        QTest::addColumn<bool>("byFrame");
        QTest::addColumn<bool>("quiet");
        QTest::addColumn<std::size_t>("logLines");
        QTest::newRow("exit during the capture") << false << false << std::size_t(1);
        QTest::newRow("frame during the answer") << true << true << std::size_t(2);
    }
    void EndingInAPauseWritesWholeFilesOrNothing() {
        // Exit in a pause writes the configuration whole, the frame leaves it; the moves log holds whole lines.
        QFETCH(bool, byFrame);
        QFETCH(bool, quiet);
        QFETCH(std::size_t, logLines);
        Impatient s;
        s.LoadCaptures();
        s.Press("Check2");
        const std::string configuration = s.folder.Read("jarlsvakt.cfg");
        s.g().BoardStyle = 2;
        s.window.At[1] = [&s, byFrame] { byFrame ? (void)s.window.close() : s.Press("cmdexit"); };
        const Square* move = quiet ? Quiet : Capture;
        s.Drag(move[0], move[1]);
        QVERIFY(s.window.Ended());
        QCOMPARE(s.LogLines(), logLines);
        Game next;
        test::RecordingView view;
        next.View = &view;
        next.ProgramFolder = s.folder.Path();
        ReadConfiguration(next, "jarlsvakt.cfg");
        QCOMPARE(next.BoardStyle, byFrame ? 0 : 2);
        if (byFrame) QCOMPARE(s.folder.Read("jarlsvakt.cfg"), configuration);
    }

    void AutoGameTakesEveryClickUntilTheExit() {
        // The automatic game takes every click while it plays, on whatever board there is, until the exit.
        Impatient s;
        s.Press("Check2");
        const char* const schedule[] = {"cmdreset", "cmdundo", "load 7x7", "cmdedit", "cmdRedGreenRandom", "cmdedit",
                                        "load 13x13", "cmdMakeRedAutoMove", "Command4", "cmdexit"};
        for (int k = 0; k < 10; ++k) s.window.At[4 * k + 2] = [&s, click = schedule[k]] { s.Act(click); };
        s.Press("Command12");
        QVERIFY(s.window.Ended());
        QVERIFY(s.window.Pauses >= 38);
        QCOMPARE(test::Unsound(s.g()), std::string());
        QVERIFY(s.LogLines() > 5);
    }
};

WINDOW_TEST_MAIN(TestImpatient)
#include "test_impatient.moc"
