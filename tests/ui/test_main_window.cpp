// The main window: start-up, the program's end by the exit command or the frame (also from inside the
// automatic game), the event log, help and the debug buttons.

#include "WindowFixture.h"
#include "ui/widgets/HelpViewer.h"
#include "ui/widgets/LineList.h"

using namespace jv;
using namespace jv::uitest;

class TestMainWindow : public QObject {
    Q_OBJECT
private slots:
    void StartsOnTheDefaultLayout() {
        // A first run writes the default configuration, loads and draws "patf.txt", shows its name and the
        // counts of both sides, ticks Check1, says who moves and takes its colours from the scheme.
        StartedWindow s;
        QVERIFY(!s.window.Ended());
        QVERIFY(s.folder.Exists("jarlsvakt.cfg"));
        QCOMPARE(s.Find<QLabel>("LayoutName")->text(), QString("patf.txt"));
        QCOMPARE(s.Find<QLabel>("ptot0")->text(), QString("12"));   // defenders without the King
        QCOMPARE(s.Find<QLabel>("ptot1")->text(), QString("24"));
        QVERIFY(s.Find<QCheckBox>("Check1")->isChecked());
        const auto log = Lines(s.Find<QListWidget>("EventLog"));
        QCOMPARE(log.front(), std::string("Loaded Layout: patf.txt"));
        QCOMPARE(log.back(), std::string("  Player1 to move ..."));
        QVERIFY(s.questions.Asked.empty());
        QCOMPARE(s.window.palette().color(QPalette::Window), QColor(236, 233, 216));   // xp's window background
        const QImage picture = s.window.Board()->Pixmap().toImage();
        QVERIFY(picture.pixelColor(s.window.Board()->SquareCentre(6, 6)) !=
                picture.pixelColor(s.window.Board()->SquareCentre(3, 3)));   // the King drawn
    }

    void WithoutAllColTheProgramEnds() {
        // Without "all.col" the program says so and ends before the window is usable; nothing is written.
        ProgramFolder folder(false);
        ui::MainWindow window(folder.Path());
        Questions questions;
        questions.AnswerFor(window);
        QVERIFY(!window.Start());
        QVERIFY(window.Ended());
        QCOMPARE(questions.Asked.size(), std::size_t(1));
        QCOMPARE(questions.Asked[0].first, std::string("File: all.col is missing\r\nProgram cannot run without this file"));
        QCOMPARE(questions.Asked[0].second, std::string("vbok+vbcritical"));
        QVERIFY(!folder.Exists("jarlsvakt.cfg"));
    }

    void OnlyExitAnsweredYesWritesTheConfiguration_data() {
        QTest::addColumn<QString>("how");   // "exit" or "frame"
        QTest::addColumn<int>("answer");    // to "Exit?"
        QTest::addColumn<bool>("autoGame");
        QTest::addColumn<bool>("written");
        QTest::newRow("exit answered No") << "exit" << 7 << false << false;
        QTest::newRow("exit answered Yes") << "exit" << 6 << false << true;
        QTest::newRow("closed by the frame") << "frame" << 0 << false << false;
        QTest::newRow("exit Yes in the automatic game") << "exit" << 6 << true << true;
        QTest::newRow("frame in the automatic game") << "frame" << 0 << true << false;
    }

    void OnlyExitAnsweredYesWritesTheConfiguration() {
        // "Exit?" answered Yes writes the configuration and ends the program, No goes on; closing by the frame
        // ends it at once without a question or a write. The automatic game, which has no end of its own, is
        // ended from inside its loop the same ways.
        QFETCH(QString, how);
        QFETCH(int, answer);
        QFETCH(bool, autoGame);
        QFETCH(bool, written);
        StartedWindow s;
        const std::string before = s.folder.Read("jarlsvakt.cfg");
        s.window.game().BoardStyle = 2;
        s.questions.AnswerTo["Exit?"] = answer;
        const auto end = [&] { how == "frame" ? (void)s.window.close() : s.Find<QPushButton>("cmdexit")->click(); };
        if (autoGame) {
            s.window.PauseLimit = 1;
            QTimer::singleShot(300, &s.window, end);
            s.Find<QPushButton>("Command12")->click();
            QVERIFY(!s.window.game().Undo.empty());   // it did play
        } else {
            end();
        }
        QCOMPARE(s.window.Ended(), how == "frame" || answer == 6);
        QCOMPARE(s.questions.WasAsked("Exit?"), how == "exit");
        const std::string after = s.folder.Read("jarlsvakt.cfg");
        QCOMPARE(after != before, written);
        if (written) QVERIFY2(after.find("\r\n2 1 ") != std::string::npos, after.c_str());
    }

    void EventLogColoursAndNewestLine() {
        // The log prints defenders' lines green, attackers' red, the program's own dark, and always shows its
        // newest line.
        StartedWindow s;
        auto* log = s.Find<ui::LineList>("EventLog");
        for (int i = 0; i < 200; ++i) s.window.PrintLine("  line " + std::to_string(i), i % 3, 0);
        QCOMPARE(log->item(log->count() - 1)->text(), QString("  line 199"));
        QCOMPARE(log->item(log->count() - 1)->foreground().color(), log->LineColour(1));
        QCOMPARE(log->item(log->count() - 2)->foreground().color(), log->LineColour(0));
        QCOMPARE(log->item(log->count() - 3)->foreground().color(), log->LineColour(2));
        QVERIFY(log->LineColour(1).green() > log->LineColour(1).red());
        QVERIFY(log->LineColour(2).red() > log->LineColour(2).green());
        QVERIFY(log->verticalScrollBar()->maximum() > 0);
        QCOMPARE(log->verticalScrollBar()->value(), log->verticalScrollBar()->maximum());
    }

    void HelpAndAbout() {
        // The Help menu opens the help page in its own viewer; About names the program; a missing page is
        // reported with its name.
        StartedWindow s;
        s.Find<QAction>("mnuhelp")->trigger();
        auto* viewer = s.window.findChild<ui::HelpViewer*>();
        QVERIFY(viewer != nullptr && viewer->isVisible());
        QVERIFY(viewer->Browser()->toPlainText().contains("JarlsVakt"));
        s.Find<QAction>("mnuabout")->trigger();
        QVERIFY(s.questions.Asked.back().first.starts_with("JarlsVakt"));
        QFile::remove(QString::fromStdString(s.folder.File("jarlsvakt.htm")));
        s.Find<QAction>("mnuhelp")->trigger();
        QCOMPARE(s.questions.Asked.back().first, "Help file not found:\r\n" + s.folder.File("jarlsvakt.htm"));
    }

    void DebugButtonsAct() {
        // The debug buttons each do one thing: rank the attackers' moves into their lists, show the King's
        // capture diagnostic, or move one random attacker ("GreenRandom") without taking anything.
        StartedWindow s;
        s.Find<QPushButton>("cmdGetAttackerRank")->click();
        QVERIFY(s.Find<QListWidget>("List1A")->count() > 0);
        QCOMPARE(s.Find<QListWidget>("List1A")->count(), static_cast<int>(s.window.game().List1A.size()));
        s.Find<QPushButton>("cmdCheckKingCapture")->click();   // the King on F6 among his four men
        QCOMPARE(s.questions.Asked.back().first, std::string("Compx= 0\r\nUserX= 0\r\n 0 4 0"));
        const int attackers = s.window.game().AttackerCount;
        s.Find<QPushButton>("cmdGreenRandom")->click();
        QVERIFY(s.Find<QListWidget>("List1")->count() > 0);
        QCOMPARE(s.window.game().AttackerCount, attackers);
        QCOMPARE(s.Find<QListWidget>("Undo")->count(), 1);
    }
};

WINDOW_TEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
