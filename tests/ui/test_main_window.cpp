// The main window: start-up, the controls under their names, the exit
// command and closing by the frame, and AutoGame ended from inside its loop.
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

#include "WindowFixture.h"
#include "ui/widgets/HelpViewer.h"
#include "ui/widgets/LineList.h"

using namespace jv;
using namespace jv::uitest;
using jv::ui::MainWindow;

namespace {

const char* const Missing = "File: all.col is missing\r\nProgram cannot run without this file";

struct Started : StartedWindow {
    std::string Label(const char* name) { return Find<QLabel>(name)->text().toStdString(); }
};

}  // namespace

class TestMainWindow : public QObject {
    Q_OBJECT
private slots:
    void StartsOnTheDefaultLayout();
    void WithoutAllColTheProgramEnds();
    void EveryNamedControlIsThere();
    void ExitAnsweredNoGoesOnYesWritesTheConfiguration();
    void ClosingByTheFrameWritesNothing();
    void AutoGameEndsWhenTheProgramEnds();
    void EventLogColoursAndNewestLine();
    void HelpAndAbout();
    void DebugButtonsAct();
};

void TestMainWindow::StartsOnTheDefaultLayout() {
    // A first run writes the default configuration, loads "patf.txt", shows
    // its name and the counts of both sides, ticks Check1 and says who moves.
    Started s;
    QVERIFY(!s.window.Ended());
    QVERIFY(s.folder.Exists("jarlsvakt.cfg"));
    QCOMPARE(s.Label("LayoutName"), std::string("patf.txt"));
    QCOMPARE(s.Label("ptot0"), std::string("12"));   // defenders without the King
    QCOMPARE(s.Label("ptot1"), std::string("24"));
    QCOMPARE(s.Find<QLabel>("ptot0")->toolTip(), QString("Player 1 remaining pieces"));
    QCOMPARE(s.Find<QLabel>("ptot1")->toolTip(), QString("Player 2 remaining pieces"));
    QVERIFY(s.Find<QCheckBox>("Check1")->isChecked());
    QVERIFY(!s.Find<QCheckBox>("Check2")->isChecked());
    const auto log = Lines(s.Find<QListWidget>("EventLog"));
    QCOMPARE(log.front(), std::string("Loaded Layout: patf.txt"));
    QCOMPARE(log.back(), std::string("  Player1 to move ..."));
    QVERIFY(s.questions.Asked.empty());
    QVERIFY(s.window.Board()->isEnabled());
    // The window's colours come from the scheme: xp's window background.
    QCOMPARE(s.window.palette().color(QPalette::Window), QColor(236, 233, 216));
    // The board is drawn: the King's square is not the plain background.
    const QImage picture = s.window.Board()->Pixmap().toImage();
    const QPoint king = s.window.Board()->SquareCentre(6, 6);
    QVERIFY(picture.pixelColor(king) != picture.pixelColor(s.window.Board()->SquareCentre(3, 3)));
}

void TestMainWindow::WithoutAllColTheProgramEnds() {
    // Without "all.col" the program says so and ends before the window is
    // usable; nothing is written.
    ProgramFolder folder(false);
    MainWindow window(folder.Path());
    Questions questions;
    questions.AnswerFor(window);
    QVERIFY(!window.Start());
    QVERIFY(window.Ended());
    QCOMPARE(questions.Asked.size(), std::size_t(1));
    QCOMPARE(questions.Asked[0].first, std::string(Missing));
    QCOMPARE(questions.Asked[0].second, std::string("vbok+vbcritical"));
    QVERIFY(!window.isVisible());
    QVERIFY(!folder.Exists("jarlsvakt.cfg"));
}

void TestMainWindow::EveryNamedControlIsThere() {
    // Every control the program names is found by that name.
    Started s;
    for (const char* name : {"cmdload", "cmdsave", "cmdreset", "cmdundo", "cmdedit", "cmdloadlog", "cmdexit",
                             "Command4", "Command12", "cmdGetAttackerRank", "cmdMakeRedAutoMove",
                             "cmdGreenRandom", "cmdRedRandom", "cmdRedGreenRandom", "cmdPathAroundKing",
                             "cmdCheckKingCapture", "cmdRouteFromKing", "cmdGetDefenderRank"})
        QVERIFY2(s.Find<QPushButton>(name) != nullptr, name);
    for (const char* name : {"List1A", "List2A", "List3", "List1", "AttackerMovesRank", "List1D", "List2D",
                             "DefenderMovesRank", "Undo", "EventLog"})
        QVERIFY2(s.Find<QListWidget>(name) != nullptr, name);
    for (const char* name : {"mnuloadgame", "mnusavegame", "mnuresetgame", "mnuoptions", "mnuabout", "mnuhelp"})
        QVERIFY2(s.Find<QAction>(name) != nullptr, name);
    QVERIFY(s.Find<QWidget>("Picture1") == s.window.Board());
    QVERIFY(s.Find<QWidget>("Picture2") != nullptr && s.Find<QWidget>("Picture2")->isHidden());
    QVERIFY(s.Find<QTimer>("Timer1") != nullptr);
    QCOMPARE(s.Find<QCheckBox>("Check1")->text(), QString("Computer Moves Auto after User Move"));
    QCOMPARE(s.Find<QAction>("mnuabout")->text(), QString("About JarlsVakt"));
    QCOMPARE(s.Find<QPushButton>("cmdRedGreenRandom")->text(), QString("Red/GreenRandom"));
    // The debug buttons sit in a panel the View menu shows and hides.
    QWidget* panel = s.Find<QWidget>("DebugPanel");
    QVERIFY(panel->isHidden());
    s.Find<QAction>("mnudebug")->trigger();
    QVERIFY(panel->isVisible());
    s.Find<QAction>("mnudebug")->trigger();
    QVERIFY(panel->isHidden());
}

void TestMainWindow::ExitAnsweredNoGoesOnYesWritesTheConfiguration() {
    // "Exit?" answered No leaves the game as it is; Yes writes the
    // configuration and ends the program.
    Started s;
    const std::string before = s.folder.Read("jarlsvakt.cfg");
    s.window.game().BoardStyle = 2;
    s.questions.Answers = {7};
    QTest::mouseClick(s.Find<QPushButton>("cmdexit"), Qt::LeftButton);
    QCOMPARE(s.questions.Asked.back().first, std::string("Exit?"));
    QCOMPARE(s.questions.Asked.back().second, std::string("vbQuestion + vbYesNo"));
    QVERIFY(!s.window.Ended());
    QVERIFY(s.window.isVisible());
    QCOMPARE(s.folder.Read("jarlsvakt.cfg"), before);

    s.questions.Answers = {6};
    QTest::mouseClick(s.Find<QPushButton>("cmdexit"), Qt::LeftButton);
    QVERIFY(s.window.Ended());
    QVERIFY(!s.window.isVisible());
    const std::string after = s.folder.Read("jarlsvakt.cfg");
    QVERIFY(after != before);
    QVERIFY2(after.find("\r\n2 1 ") != std::string::npos, after.c_str());
}

void TestMainWindow::ClosingByTheFrameWritesNothing() {
    // Closing the window by its frame ends the program at once: no
    // question, and the configuration file is left as it was.
    Started s;
    const std::string before = s.folder.Read("jarlsvakt.cfg");
    s.window.game().BoardStyle = 2;
    s.window.game().LayoutFile = "pattern2.txt";
    s.questions.Asked.clear();
    QVERIFY(s.window.close());
    QVERIFY(s.window.Ended());
    QVERIFY(s.window.game().Ending);
    QVERIFY(s.questions.Asked.empty());
    QCOMPARE(s.folder.Read("jarlsvakt.cfg"), before);
}

void TestMainWindow::AutoGameEndsWhenTheProgramEnds() {
    // AutoGame has no end of its own: closing the window, or the exit
    // button answered Yes, ends it from inside its loop.
    {
        Started s;
        s.window.PauseLimit = 1;
        QTimer::singleShot(300, &s.window, [&s] { s.window.close(); });
        QTest::mouseClick(s.Find<QPushButton>("Command12"), Qt::LeftButton);
        QVERIFY(s.window.Ended());
        QVERIFY(s.window.game().Undo.size() >= 1);   // it did play
    }
    {
        Started s;
        s.window.PauseLimit = 1;
        const std::string before = s.folder.Read("jarlsvakt.cfg");
        s.window.game().BoardStyle = 1;
        s.questions.AnswerTo["Exit?"] = 6;
        QTimer::singleShot(300, &s.window, [&s] { QTest::mouseClick(s.Find<QPushButton>("cmdexit"), Qt::LeftButton); });
        QTest::mouseClick(s.Find<QPushButton>("Command12"), Qt::LeftButton);
        QVERIFY(s.window.Ended());
        QVERIFY(s.questions.WasAsked("Exit?"));
        QVERIFY(s.folder.Read("jarlsvakt.cfg") != before);
    }
}

void TestMainWindow::EventLogColoursAndNewestLine() {
    // The log prints defenders' lines green, attackers' red, the King's and
    // the program's own dark, and always shows its newest line.
    Started s;
    auto* log = s.Find<ui::LineList>("EventLog");
    for (int i = 0; i < 200; ++i) s.window.PrintLine("  line " + std::to_string(i), i % 3, 0);
    QCOMPARE(log->count(), 202);
    QListWidgetItem* last = log->item(log->count() - 1);
    QCOMPARE(last->text(), QString("  line 199"));
    QCOMPARE(last->foreground().color(), log->LineColour(1));
    QCOMPARE(log->item(log->count() - 2)->foreground().color(), log->LineColour(0));
    QCOMPARE(log->item(log->count() - 3)->foreground().color(), log->LineColour(2));
    QVERIFY(log->LineColour(1).green() > log->LineColour(1).red());
    QVERIFY(log->LineColour(2).red() > log->LineColour(2).green());
    QVERIFY(log->verticalScrollBar()->value() == log->verticalScrollBar()->maximum());
    QVERIFY(log->verticalScrollBar()->maximum() > 0);
    s.window.ClearLog();
    QCOMPARE(log->count(), 0);
}

void TestMainWindow::HelpAndAbout() {
    // The Help menu opens the help page in its own viewer; About names the
    // program; a missing page is reported with its name.
    Started s;
    s.Find<QAction>("mnuhelp")->trigger();
    auto* viewer = s.window.findChild<ui::HelpViewer*>();
    QVERIFY(viewer != nullptr && viewer->isVisible());
    QVERIFY(viewer->Browser()->toPlainText().contains("JarlsVakt"));
    s.Find<QAction>("mnuabout")->trigger();
    QVERIFY(s.questions.Asked.back().first.rfind("JarlsVakt", 0) == 0);
    QFile::remove(QString::fromStdString(s.folder.File("jarlsvakt.htm")));
    s.Find<QAction>("mnuhelp")->trigger();
    QCOMPARE(s.questions.Asked.back().first, "Help file not found:\r\n" + s.folder.File("jarlsvakt.htm"));
}

void TestMainWindow::DebugButtonsAct() {
    // The debug buttons each do one thing: rank the attackers' moves into
    // their lists, move one random attacker ("GreenRandom"), or show the
    // King's capture diagnostic without changing the board.
    Started s;
    QTest::mouseClick(s.Find<QPushButton>("cmdGetAttackerRank"), Qt::LeftButton);
    QVERIFY(s.Find<QListWidget>("List1A")->count() > 0);
    QCOMPARE(s.Find<QListWidget>("List1A")->count(), static_cast<int>(s.window.game().List1A.size()));
    QVERIFY(s.Find<QListWidget>("AttackerMovesRank")->count() > 0);

    // The King on F6 stands among his four men.
    QTest::mouseClick(s.Find<QPushButton>("cmdCheckKingCapture"), Qt::LeftButton);
    QCOMPARE(s.questions.Asked.back().first, std::string("Compx= 0\r\nUserX= 0\r\n 0 4 0"));

    const int attackersBefore = s.window.game().AttackerCount;
    QTest::mouseClick(s.Find<QPushButton>("cmdGreenRandom"), Qt::LeftButton);
    QCOMPARE(s.Find<QListWidget>("List1")->count(), static_cast<int>(s.window.game().List1.size()));
    QVERIFY(s.Find<QListWidget>("List1")->count() > 0);
    QCOMPARE(s.window.game().AttackerCount, attackersBefore);
    QCOMPARE(s.Find<QListWidget>("Undo")->count(), 1);
}

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
