// The real window with an impatient user: clicks that arrive while a move
// waits in one of its pauses, delivered inside the pause's own event loop as
// the user's clicks would be, and clicks queued while the computer thinks.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <deque>
#include <functional>
#include <map>

#include "WindowFixture.h"
#include "records/Configuration.h"
#include "records/PositionRecord.h"
#include "support/Soundness.h"

using namespace jv;
using namespace jv::uitest;

namespace {

// 11 by 11 (Col down, Row across), the King on F6. The user's defender from
// D9 to D5 takes the attacker on C5 against the defender on B5; the
// defender on H3 can go to H1 without taking anything.
const std::string Captures = LayoutText({
    "H.........H",
    "....d......",
    "....a......",
    "........d..",
    "...........",
    ".....K.....",
    "..a........",
    "..d........",
    ".....a.....",
    "...........",
    "H.........H",
});

// The King on F6 with attackers on E6, G6 and F5; the attacker on F9 closes
// the ring on F7, the computer's best move.
const std::string Ring = LayoutText({
    "H.........H",
    "...........",
    "...........",
    "...........",
    ".....a.....",
    "....aK..a..",
    ".....a.....",
    "...........",
    "...........",
    "...........",
    "H.........H",
});

// A window whose n-th pause (counted from 1, nested ones included) starts a
// zero-time timer: what it runs happens inside that pause's event loop.
class ImpatientWindow : public ui::MainWindow {
public:
    using MainWindow::MainWindow;
    std::map<int, std::function<void()>> At;
    int Pauses = 0;
    void Pause(int ms) override {
        const auto found = At.find(++Pauses);
        if (found != At.end()) QTimer::singleShot(0, this, found->second);
        MainWindow::Pause(ms);
    }
};

struct Impatient {
    ProgramFolder folder;
    ImpatientWindow window{folder.Path()};
    Questions questions;
    std::deque<std::string> Files;   // the file dialog's answers, in order

    Impatient() {
        questions.AnswerFor(window);
        questions.AnswerTo["Reset layout?"] = 6;
        questions.AnswerTo["Exit?"] = 6;
        window.FileChooser = [this](FileMode, const std::string&) {
            if (Files.empty()) return std::string();
            const std::string name = Files.front();
            Files.pop_front();
            return name;
        };
        window.PauseLimit = 30;   // long enough for the clicks to come first
        window.Start();
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
        window.findChild<QAction*>("mnudebug")->trigger();   // the debug buttons are clicked too
        g().Random.Timer = [] { return 7.0; };
    }
    Game& g() { return window.game(); }
    // Loads a layout of the program's folder through the load command.
    std::string Load(const std::string& name, const std::string& content) {
        folder.Write(name, content);
        Files = {name};
        Click("cmdload");
        window.Pauses = 0;
        return EncodePosition(g());
    }
    template <typename T = QPushButton>
    T* Find(const char* name) {
        return window.findChild<T*>(name);
    }
    void Click(const char* name) {
        if (auto* box = Find<QCheckBox>(name)) return box->click();
        QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton);
    }
    void Drag(Square from, Square to) { uitest::Drag(window.Board(), from, to); }
    int Shown(const char* list) { return Find<QListWidget>(list)->count(); }
    QImage Picture() { return window.Board()->Pixmap().toImage(); }
    // The picture as a full repaint of the position draws it.
    QImage Repainted() {
        window.DrawBoard();
        return Picture();
    }

    // What the window shows that does not agree with the game, or is unsound
    // in the game itself. Empty when nothing.
    std::string Disagreements() {
        std::string out = test::Unsound(g());
        if (Shown("Undo") != static_cast<int>(g().Undo.size())) out += "Undo list; ";
        if (Shown("EventLog") != static_cast<int>(g().EventLog.size())) out += "event log; ";
        if (Find<QLabel>("ptot0")->text() != QString::number(g().DefenderCount)) out += "defenders' counter; ";
        if (Find<QLabel>("ptot1")->text() != QString::number(g().AttackerCount)) out += "attackers' counter; ";
        if (!g().EditorOn && window.Board()->isEnabled() != g().BoardEnabled) out += "Picture1 enabled; ";
        if (QApplication::overrideCursor() != nullptr) out += "busy pointer left on; ";
        return out;
    }
    std::string BadLogLines(std::size_t& count) { return test::BadLayoutLines(folder.File(g().MovesLogFile), count); }
};

}  // namespace

class TestImpatient : public QObject {
    Q_OBJECT
private slots:
    void init();
    void ResetWhileTheComputerMovesShowsTheNewGameAsLoaded();
    void ClickQueuedWhileTheComputerThinksComesInItsAnimation();
    void SmallerBoardLoadedDuringTheUsersCapture();
    void NewGameBegunAfterTheKingsCaptureStaysOpen();
    void SecondDropDuringTheUsersCaptureIsAMoveOfItsOwn();
    void BoardRefusesADragWhileTheComputerMoves();
    void EditorSwitchedOnDuringTheComputersMove();
    void ExitDuringACaptureWritesWholeFiles();
    void ClosedByTheFrameDuringAMoveWritesNothingMore();
    void EveryButtonAtEveryPauseLeavesTheWindowSound();
    void AutoGameTakesEveryClickUntilTheExit();
};

void TestImpatient::init() {
    // A test that ends the program tells every event loop to quit, and until
    // the application's own loop has run again no pause would wait: run it
    // for a moment before each test.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
}

void TestImpatient::ResetWhileTheComputerMovesShowsTheNewGameAsLoaded() {
    // A reset while the computer's answer is shown starts the new game as its layout is: the board drawn
    // from it, no move made on it, the board open to the pointer and the busy pointer gone.
    Impatient s;
    const std::string loaded = s.Load("captures.txt", Captures);
    s.window.At[1] = [&s] { s.Click("cmdreset"); };
    s.Drag({8, 3}, {8, 1});
    QCOMPARE(EncodePosition(s.g()), loaded);
    QCOMPARE(s.Shown("Undo"), 0);
    QVERIFY(s.window.Board()->isEnabled());
    QCOMPARE(s.Disagreements(), std::string());
    const QImage shown = s.Picture();
    QVERIFY(shown == s.Repainted());
}

void TestImpatient::ClickQueuedWhileTheComputerThinksComesInItsAnimation() {
    // The window takes no events while the computer ranks its moves; a click queued then comes at the
    // first pause, the animation of the computer's move, and a reset there leaves the layout untouched.
    Impatient s;
    const std::string loaded = s.Load("captures.txt", Captures);
    QPushButton* reset = s.Find("cmdreset");
    QMetaObject::invokeMethod(reset, [reset] { reset->click(); }, Qt::QueuedConnection);
    s.Drag({8, 3}, {8, 1});
    QCOMPARE(EncodePosition(s.g()), loaded);
    QCOMPARE(s.Shown("Undo"), 0);
    QVERIFY(!s.g().EventLog.empty());
    QCOMPARE(s.g().EventLog.front(), std::string("Loaded Layout: captures.txt"));
    QCOMPARE(s.Disagreements(), std::string());
}

void TestImpatient::SmallerBoardLoadedDuringTheUsersCapture() {
    // A 7 by 7 layout loaded while the user's capture waits: the new board is drawn whole, its frame is
    // intact and the computer does not answer the interrupted move on it.
    Impatient s;
    s.Load("captures.txt", Captures);
    s.window.At[1] = [&s] {
        s.Files = {"pattern1.txt"};
        s.Click("cmdload");
    };
    s.Drag({4, 9}, {4, 5});
    QCOMPARE(s.g().BoardWidth, 7);
    QCOMPARE(s.Shown("Undo"), 0);
    QCOMPARE(s.Disagreements(), std::string());
    QCOMPARE(test::StaleAnalysis(s.g()), std::string());
    const QImage shown = s.Picture();
    QVERIFY(shown == s.Repainted());
}

void TestImpatient::NewGameBegunAfterTheKingsCaptureStaysOpen() {
    // "King Captured !" closes the board; a reset clicked right after the message, while its events run,
    // begins a game whose board takes the pointer.
    Impatient s;
    const std::string loaded = s.Load("ring.txt", Ring);
    s.questions.AnswerTo.erase("Reset layout?");
    s.window.Answerer = [&s](const std::string& text, const std::string& style) {
        s.questions.Asked.emplace_back(text, style);
        if (text.rfind("King Captured !", 0) == 0) QTimer::singleShot(0, &s.window, [&s] { s.Click("cmdreset"); });
        return text == "Reset layout?" ? 6 : 1;
    };
    s.Click("cmdMakeRedAutoMove");
    QVERIFY(s.questions.WasAsked("King Captured !\r\nClick Reset to start a new game"));
    QVERIFY(s.questions.WasAsked("Reset layout?"));
    QCOMPARE(EncodePosition(s.g()), loaded);
    QVERIFY(!s.g().GameOver);
    QVERIFY(s.window.Board()->isEnabled());
    QCOMPARE(s.Disagreements(), std::string());
}

void TestImpatient::SecondDropDuringTheUsersCaptureIsAMoveOfItsOwn() {
    // The board takes the pointer while the user's capture waits: a second drag and drop then is a move of
    // its own, answered by the computer like the first.
    Impatient s;
    s.Load("captures.txt", Captures);
    s.window.At[1] = [&s] { s.Drag({8, 3}, {8, 1}); };
    s.Drag({4, 9}, {4, 5});
    QCOMPARE(s.Shown("Undo"), 4);   // two user moves, two answers
    QCOMPARE(s.Disagreements(), std::string());
    QCOMPARE(test::StaleAnalysis(s.g()), std::string());
}

void TestImpatient::BoardRefusesADragWhileTheComputerMoves() {
    // While the computer's answer is shown the board takes no drag: the move tried then is not made.
    Impatient s;
    s.Load("captures.txt", Captures);
    bool enabled = true;
    s.window.At[1] = [&s, &enabled] {
        enabled = s.window.Board()->isEnabled();
        s.Drag({4, 9}, {4, 5});
    };
    s.Drag({8, 3}, {8, 1});
    QVERIFY(!enabled);
    QCOMPARE(s.Shown("Undo"), 2);
    QCOMPARE(s.g().Board(4, 9), DefenderCode);
    QCOMPARE(s.Disagreements(), std::string());
}

void TestImpatient::EditorSwitchedOnDuringTheComputersMove() {
    // The editor switched on while the computer's answer is shown edits the position of that moment; the
    // answer is made underneath, and switching the editor off puts the edited position back as a layout.
    Impatient s;
    s.Load("captures.txt", Captures);
    std::string edited;
    s.window.At[1] = [&s, &edited] {
        edited = EncodePosition(s.g());
        s.Click("cmdedit");
    };
    s.Drag({8, 3}, {8, 1});
    QVERIFY(s.Find<QWidget>("Picture2")->isVisible());
    QCOMPARE(s.Shown("Undo"), 2);
    s.Click("cmdedit");
    QVERIFY(s.Find<QWidget>("Picture2")->isHidden());
    QCOMPARE(EncodePosition(s.g()), edited);
    QCOMPARE(s.Find<QLabel>("LayoutName")->text(), QString("temporarylayout.txt"));
    QCOMPARE(s.Disagreements(), std::string());
}

void TestImpatient::ExitDuringACaptureWritesWholeFiles() {
    // "Exit?" answered Yes while the user's capture waits ends the program there: the configuration is
    // written whole, and the moves log holds only the user's move.
    Impatient s;
    s.Load("captures.txt", Captures);
    s.Click("Check2");
    s.g().BoardStyle = 2;
    s.window.At[1] = [&s] { s.Click("cmdexit"); };
    s.Drag({4, 9}, {4, 5});
    QVERIFY(s.window.Ended());
    std::size_t lines = 0;
    QCOMPARE(s.BadLogLines(lines), std::string());
    QCOMPARE(lines, std::size_t(1));
    const std::string written = s.folder.Read("jarlsvakt.cfg");
    test::RecordingView view;
    Game next;
    next.View = &view;
    next.ProgramFolder = s.folder.Path();
    ReadConfiguration(next, "jarlsvakt.cfg");
    QCOMPARE(next.BoardStyle, 2);
    QCOMPARE(s.folder.Read("jarlsvakt.cfg"), written);   // read whole, not rewritten with the defaults
}

void TestImpatient::ClosedByTheFrameDuringAMoveWritesNothingMore() {
    // Closing the window by its frame while the computer's answer is shown ends the program at once: the
    // configuration stays as it was and the moves log gets nothing after the answer's own record.
    Impatient s;
    s.Load("captures.txt", Captures);
    s.Click("Check2");
    const std::string configuration = s.folder.Read("jarlsvakt.cfg");
    s.g().BoardStyle = 2;
    s.window.At[1] = [&s] { s.window.close(); };
    s.Drag({8, 3}, {8, 1});
    QVERIFY(s.window.Ended());
    QCOMPARE(s.folder.Read("jarlsvakt.cfg"), configuration);
    std::size_t lines = 0;
    QCOMPARE(s.BadLogLines(lines), std::string());
    QCOMPARE(lines, std::size_t(2));   // the user's move and the answer begun before the close
}

void TestImpatient::EveryButtonAtEveryPauseLeavesTheWindowSound() {
    // Whatever is clicked during the user's capture, the computer's answer or its capture, the window keeps
    // showing the game as it is, the game stays sound, and the moves log and a saved layout hold only whole
    // layout lines.
    const std::vector<std::pair<const char*, std::function<void(Impatient&)>>> clicks = {
        {"cmdreset", [](Impatient& s) { s.Click("cmdreset"); }},
        {"cmdundo", [](Impatient& s) { s.Click("cmdundo"); }},
        {"cmdedit", [](Impatient& s) { s.Click("cmdedit"); }},
        {"cmdload", [](Impatient& s) { s.Files = {"pattern1.txt"}; s.Click("cmdload"); }},
        {"cmdload 13x13", [](Impatient& s) { s.Files = {"pattern4.txt"}; s.Click("cmdload"); }},
        {"cmdsave", [](Impatient& s) { s.Files = {"saved.txt"}; s.Click("cmdsave"); }},
        {"cmdloadlog", [](Impatient& s) { s.Files = {s.g().MovesLogFile}; s.Click("cmdloadlog"); }},
        {"Check2", [](Impatient& s) { s.Click("Check2"); }},
        {"Undo list", [](Impatient& s) {
             auto* list = s.Find<QListWidget>("Undo");
             if (list->count() > 0) QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                                                      list->visualItemRect(list->item(0)).center());
         }},
        {"cmdGetAttackerRank", [](Impatient& s) { s.Click("cmdGetAttackerRank"); }},
        {"cmdMakeRedAutoMove", [](Impatient& s) { s.Click("cmdMakeRedAutoMove"); }},
        {"Command4", [](Impatient& s) { s.Click("Command4"); }},
        {"cmdGetDefenderRank", [](Impatient& s) { s.Click("cmdGetDefenderRank"); }},
        {"cmdRedGreenRandom", [](Impatient& s) { s.Click("cmdRedGreenRandom"); }},
        {"cmdPathAroundKing", [](Impatient& s) { s.Click("cmdPathAroundKing"); }},
        {"cmdCheckKingCapture", [](Impatient& s) { s.Click("cmdCheckKingCapture"); }},
    };
    for (const auto& [name, click] : clicks)
        for (int at = 1; at <= 3; ++at) {
            Impatient s;
            s.Load("captures.txt", Captures);
            s.Click("Check2");
            s.window.At[at] = [&s, click = click] { click(s); };
            s.Drag({4, 9}, {4, 5});
            const QByteArray where = QByteArray(name) + " at pause " + QByteArray::number(at);
            QVERIFY2(!s.window.Ended(), where);
            QVERIFY2(s.Disagreements().empty(), where + ": " + QByteArray::fromStdString(s.Disagreements()));
            std::size_t lines = 0;
            QVERIFY2(s.BadLogLines(lines).empty() && lines >= 1, where);
            if (s.folder.Exists("saved.txt"))
                QVERIFY2(test::BadLayoutLines(s.folder.File("saved.txt"), lines).empty() && lines == 1, where);
        }
}

void TestImpatient::AutoGameTakesEveryClickUntilTheExit() {
    // The automatic game lets every click in while it plays: resets, loads of other boards, the undo, the
    // editor, the random movers, the debug moves; it plays on on whatever board there is until the exit.
    Impatient s;
    s.Click("Check2");
    const std::vector<std::function<void()>> schedule = {
        [&s] { s.Click("cmdreset"); },
        [&s] { s.Click("cmdundo"); },
        [&s] { s.Files = {"pattern1.txt"}; s.Click("cmdload"); },
        [&s] { s.Click("cmdedit"); },
        [&s] { s.Click("cmdRedGreenRandom"); },
        [&s] { s.Click("cmdedit"); },
        [&s] { s.Files = {"pattern4.txt"}; s.Click("cmdload"); },
        [&s] { s.Click("cmdMakeRedAutoMove"); },
        [&s] { s.Click("Command4"); },
        [&s] { s.Click("cmdexit"); },
    };
    for (std::size_t k = 0; k < schedule.size(); ++k) s.window.At[static_cast<int>(4 * k + 2)] = schedule[k];
    s.Click("Command12");
    QVERIFY(s.window.Ended());
    QVERIFY(s.window.Pauses >= static_cast<int>(4 * schedule.size() - 2));
    QCOMPARE(test::Unsound(s.g()), std::string());
    std::size_t lines = 0;
    QCOMPARE(s.BadLogLines(lines), std::string());
    QVERIFY(lines > 5);
}

QTEST_MAIN(TestImpatient)
#include "test_impatient.moc"
