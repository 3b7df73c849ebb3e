// The main window: start-up, and the program's end by the exit command or the frame, also from inside the
// automatic game.
#include "WindowFixture.h"

using namespace jv;
using namespace jv::uitest;

class TestMainWindow : public QObject {
    Q_OBJECT
private slots:
    void StartsOnTheDefaultLayout() {
        // A first run writes the configuration and shows "patf.txt" drawn, counted and in the scheme's colours.
        StartedWindow s;
        QVERIFY(!s.window.Ended() && s.folder.Exists("jarlsvakt.cfg") && s.Find("Check1")->isChecked());
        QStringList labels;
        for (const char* name : {"LayoutName", "ptot0", "ptot1"}) labels << s.Find<QLabel>(name)->text();
        QCOMPARE(labels, (QStringList{"patf.txt", "12", "24"}));
        const auto log = Lines(s.Find<QListWidget>("EventLog"));
        QCOMPARE(log.front() + "|" + log.back(), std::string("Loaded Layout: patf.txt|  Player1 to move ..."));
        QVERIFY(s.questions.Asked.empty());
        QCOMPARE(s.window.palette().color(QPalette::Window), QColor(236, 233, 216));   // xp's window background
        QVERIFY(s.At(6, 6) != s.At(3, 3));   // the King drawn
    }

    void WithoutAllColTheProgramEnds() {
        // Without "all.col" the program says so and ends before the window is usable; nothing is written.
        ProgramFolder folder(false);
        ui::MainWindow window(folder.Path());
        Questions questions;
        questions.AnswerFor(window);
        QVERIFY(!window.Start() && window.Ended());
        QCOMPARE(questions.Asked.size(), std::size_t(1));
        QCOMPARE(questions.Asked[0].first,
                 std::string("File: all.col is missing\r\nProgram cannot run without this file"));
        QCOMPARE(questions.Asked[0].second, std::string("vbok+vbcritical"));
        QVERIFY(!folder.Exists("jarlsvakt.cfg"));
    }

    void OnlyExitAnsweredYesWritesTheConfiguration_data() {
        QTest::addColumn<bool>("byFrame");
        QTest::addColumn<int>("answer");   // to "Exit?"
        QTest::addColumn<bool>("autoGame");
        QTest::newRow("exit answered No") << false << 7 << false;
        QTest::newRow("exit answered Yes") << false << 6 << false;
        QTest::newRow("closed by the frame") << true << 0 << false;
        QTest::newRow("exit Yes in the automatic game") << false << 6 << true;
        QTest::newRow("frame in the automatic game") << true << 0 << true;
    }
    void OnlyExitAnsweredYesWritesTheConfiguration() {
        // Only "Exit?" answered Yes writes the configuration, also from inside the automatic game.
        QFETCH(bool, byFrame);
        QFETCH(int, answer);
        QFETCH(bool, autoGame);
        StartedWindow s;
        const std::string before = s.folder.Read("jarlsvakt.cfg");
        s.g().BoardStyle = 2;
        s.questions.AnswerTo["Exit?"] = answer;
        const auto end = [&] { byFrame ? (void)s.window.close() : s.Press("cmdexit"); };
        if (autoGame) {
            s.window.PauseLimit = 1;
            QTimer::singleShot(300, &s.window, end);
            s.Press("Command12");
            QVERIFY(!s.g().Undo.empty());   // it did play
        } else {
            end();
        }
        QCOMPARE(s.window.Ended(), byFrame || answer == 6);
        QCOMPARE(s.questions.WasAsked("Exit?"), !byFrame);
        const std::string after = s.folder.Read("jarlsvakt.cfg");
        QCOMPARE(after.find("\r\n2 1 ") != std::string::npos, !byFrame && answer == 6);   // the board style kept
        QCOMPARE(after != before, !byFrame && answer == 6);
    }
};

WINDOW_TEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
