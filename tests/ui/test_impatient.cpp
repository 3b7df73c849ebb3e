// The real window with an impatient user: clicks that arrive while a move waits in one of its pauses,
// delivered inside the pause's own event loop as the user's clicks would be. What each command does to
// the game when it comes in a pause is checked without the window (tests/engine/test_impatient.cpp).
#include "WindowFixture.h"
#include "support/Soundness.h"

using namespace jv;
using namespace jv::uitest;

namespace {

// 11 by 11 (Col down, Row across), the King on F6. The user's defender from D9 to D5 takes the attacker
// on C5 against the defender on B5; the defender on H3 can go to H1 without taking anything.
const std::string Captures = LayoutText({"H.........H", "....d......", "....a......", "........d..", "...........",
                                         ".....K.....", "..a........", "..d........", ".....a.....", "...........",
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
    void LoadCaptures() {
        Load("captures.txt", Captures);
        window.Pauses = 0;
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
        for (const char* click :
             {"cmdreset", "cmdundo", "cmdedit", "load 7x7", "load 13x13", "save", "replay", "Check2", "undo list",
              "cmdGetAttackerRank", "cmdMakeRedAutoMove", "Command4", "cmdGetDefenderRank", "cmdRedGreenRandom",
              "cmdPathAroundKing", "cmdCheckKingCapture", "drag quiet"})
            for (int pause = 1; pause <= 3; ++pause) QTest::addRow("%s at pause %d", click, pause) << click << pause;
    }
    void ClickInAPauseLeavesTheWindowTrue() {
        // Any click in any pause of a move leaves the window showing a sound game, drawn as the position
        // stands, and whole files.
        QFETCH(QString, click);
        QFETCH(int, pause);
        Impatient s;
        s.LoadCaptures();
        s.Press("Check2");
        s.window.At[pause] = [&s, click] { s.Act(click.toStdString()); };
        s.Drag(Capture[0], Capture[1]);
        QVERIFY(!s.window.Ended());
        QCOMPARE(s.Disagreements(), QString());
        QVERIFY(s.LogLines() >= 1);
        std::size_t lines = 1;   // a saved layout is one whole line
        if (s.folder.Exists("saved.txt"))
            QCOMPARE(test::BadLayoutLines(s.folder.File("saved.txt"), lines), std::string());
        QCOMPARE(lines, std::size_t(1));
        const QImage shown = s.Picture();
        s.window.DrawBoard();
        if (s.g().Undo.empty()) QVERIFY2(s.Picture() == shown, "a new board not drawn whole");
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
