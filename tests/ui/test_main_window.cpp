// The main window: start-up, the players chosen, and the program's end by the exit command or the frame,
// also from inside the automatic game.
#include "WindowFixture.h"
#include "records/ColourScheme.h"
#include "records/PositionRecord.h"
#include "session/ComputerMoves.h"
#include "session/Session.h"
#include "ui/BoardPainter.h"
#include "ui/MsgForm.h"
#include "ui/WindowColours.h"
#include "ui/widgets/LineList.h"

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
        const auto log = s.Log();
        QCOMPARE(log.front() + "|" + log.back(), std::string("Loaded Layout: patf.txt|  Player1 to move ..."));
        QVERIFY(s.questions.Asked.empty());
        QCOMPARE(s.window.palette().color(QPalette::Window), QColor(236, 233, 216));   // xp's window background
        QVERIFY(s.At(6, 6) != s.At(3, 3));   // the King drawn
    }

    void WithoutAllColTheProgramEndsWithAReadableMessage() {
        // Without "all.col" the program says so, readably although no scheme has coloured the box, and ends
        // before the window is usable; nothing is written.
        ProgramFolder folder(false);
        ui::MainWindow window(folder.Path());
        QString text;
        WhileOpen<ui::MsgForm>([&] { QVERIFY(!window.Start() && window.Ended()); }, [&](ui::MsgForm* f) {
            const QPalette shown = f->findChild<QLabel*>("Label1")->palette();
            const bool readable = ui::Contrast(shown.color(QPalette::WindowText), shown.color(QPalette::Window)) >= 4.5;
            text = f->Text() + QString(" %1 ").arg(f->PictureShown()) + f->Buttons().front()->text() +
                   (readable ? " readable" : " unreadable");
            f->reject();
        });
        QVERIFY(!folder.Exists("jarlsvakt.cfg"));
        QCOMPARE(text, QString("File: all.col is missing\nProgram cannot run without this file 5 Ok readable"));
    }

    void EveryShippedSchemeDrawsReadableText() {
        // Every text a shipped scheme draws reaches 4.5:1 on its background: the window, its buttons and
        // lists, the event log's three voices, the grid letters and the message box.
        StartedWindow s;
        const auto* log = s.Find<ui::LineList>("EventLog");
        const auto on = [](const QWidget* w, QPalette::ColorRole ink, QPalette::ColorRole back) {
            return std::pair(w->palette().color(ink), w->palette().color(back));
        };
        for (const std::string& scheme : FillSchemeList(s.g())) {
            QVERIFY(LoadColourScheme(s.g(), scheme + ".col"));
            s.window.DrawBoard();
            ui::MsgForm box;
            ui::ColourMessageBox(box, s.g().ColourTable);
            box.Prepare("Stop ?", "vbyesno");
            const QColor base = s.window.palette().color(QPalette::Base);
            const std::vector<std::pair<const char*, std::pair<QColor, QColor>>> texts{
                {"window", on(&s.window, QPalette::WindowText, QPalette::Window)},
                {"lists", on(&s.window, QPalette::Text, QPalette::Base)},
                {"buttons", on(s.Find("cmdload"), QPalette::ButtonText, QPalette::Button)},
                {"log 0", {log->LineColour(0), base}}, {"log 1", {log->LineColour(1), base}},
                {"log 2", {log->LineColour(2), base}},
                {"grid letters", {ui::LabelColour(s.g()), ui::BoardBackColour(s.g())}},
                {"message", on(box.findChild<QLabel*>("Label1"), QPalette::WindowText, QPalette::Window)},
                {"message buttons", on(box.Buttons().front(), QPalette::ButtonText, QPalette::Button)}};
            for (const auto& [what, colours] : texts)
                QVERIFY2(ui::Contrast(colours.first, colours.second) >= 4.5, (scheme + " " + what).c_str());
        }
    }

    void ThePlayersChosenAreKeptAndTheStrongPlayerShowsItsThinking() {
        // The players chosen in the window go to players.cfg and come back at the next start; the strong
        // attackers then make their move and the Strong pane shows what they found.
        StartedWindow s;
        QTest::keyClick(s.Find<QComboBox>("AttackerPlayer"), Qt::Key_Down);
        QTest::keyClick(s.Find<QComboBox>("ThinkingTime"), Qt::Key_Up);
        s.Find<QCheckBox>("StopWhenClear")->click();
        QCOMPARE(s.folder.Read("players.cfg"), std::string("attackers strong\r\ndefenders classic\r\nthink 200\r\n"
                                                          "early yes\r\nuser defenders\r\n"));
        ui::MainWindow again(s.folder.Path());
        QVERIFY(again.Start());
        QCOMPARE(again.findChild<QComboBox*>("AttackerPlayer")->currentText(), QString("Strong"));
        QCOMPARE(again.findChild<QComboBox*>("ThinkingTime")->currentText(), QString("0.2 s"));
        QVERIFY(again.findChild<QCheckBox*>("StopWhenClear")->isChecked());
        const std::size_t moves = s.g().Undo.size();
        MakeRedAutoMove(s.g());
        QCOMPARE(s.g().Undo.size(), moves + 1);
        QVERIFY(s.Find<QListWidget>("SearchLines")->count() > 0);
    }

    void EachRandomButtonMovesItsSide_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("moves");
        QTest::addColumn<int>("first");   // the side of the first move and of the last
        QTest::addColumn<int>("last");
        QTest::newRow("GreenRandom") << "cmdGreenRandom" << 1 << int(AttackerCode) << int(AttackerCode);
        QTest::newRow("RedRandom") << "cmdRedRandom" << 1 << int(DefenderCode) << int(DefenderCode);
        QTest::newRow("Red/GreenRandom") << "cmdRedGreenRandom" << 20 << int(AttackerCode) << int(DefenderCode);
    }
    void EachRandomButtonMovesItsSide() {
        // "GreenRandom" moves an attacker, "RedRandom" a defender, "Red/GreenRandom" ten of each, attackers first.
        QFETCH(QString, button);
        QFETCH(int, moves);
        QFETCH(int, first);
        QFETCH(int, last);
        StartedWindow s;
        s.Press(qPrintable(button));
        const std::vector<std::string>& undo = s.g().Undo;   // newest first
        QCOMPARE(int(undo.size()), moves);
        const auto mover = [](const std::string& before, const std::string& after) {   // the side of the piece that left
            for (std::size_t i = 4; i < before.size() && i < after.size(); ++i)
                if (before[i] != 'E' && after[i] == 'E')
                    return before[i] == '1' ? int(AttackerCode) : int(DefenderCode);
            return -1;
        };
        QCOMPARE(mover(undo.back(), moves > 1 ? undo[undo.size() - 2] : EncodePosition(s.g())), first);
        QCOMPARE(mover(undo.front(), EncodePosition(s.g())), last);
    }

    void NewGameClearsTheReasoningPanes() {
        // The panes show nothing of the game before once a new one starts: reset, load, Play Layout.
        for (const QStringList& presses : {QStringList{"cmdreset"}, {"cmdload"}, {"cmdedit", "cmdedit"}}) {
            StartedWindow s;
            // The King two squares from a corner along a free edge: both sides' rankings have lines to show.
            s.Load("small.txt",
                   LayoutText({"H...K.H", "..d....", ".......", ".......", "..a....", "..d.a..", "H.....H"}));
            for (const char* name : {"cmdGetDefenderRank", "cmdGetAttackerRank", "cmdRedRandom"}) s.Find(name)->click();
            const auto filled = [&] {   // the reasoning panes that show lines
                const auto lists = s.window.findChildren<QListWidget*>(QRegularExpression("^(List|.*MovesRank)"));
                return std::count_if(lists.begin(), lists.end(), [](const QListWidget* l) { return l->count() > 0; });
            };
            QCOMPARE(filled(), 7);   // all but the tied best, which only a computer move fills
            s.NextFile = "small.txt", s.questions.AnswerTo["Reset layout?"] = 6;
            for (const QString& name : presses) s.Press(qPrintable(name));
            QVERIFY2(filled() == 0, qPrintable(presses.front()));
        }
    }

    void KeysInTheMenusActButLeaveTextFieldsTheirTyping() {
        // Ctrl+N, Ctrl+Z, H, and Space or Escape for the stop of AutoGame are shown in their menu items and act;
        // in a text field they are typing.
        StartedWindow s;
        s.g().Players.ThinkMillis = 200;
        s.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&s.window));
        QStringList keys;
        for (const char* name : {"mnunewgame", "mnuundo", "mnuhint", "mnustopautogame"})
            keys << QKeySequence::listToString(s.Find<QAction>(name)->shortcuts());
        QCOMPARE(keys, (QStringList{"Ctrl+N", "Ctrl+Z", "H", "Space; Esc"}));
        auto* engine = s.Find<QLineEdit>("EngineCommand");
        engine->setFocus();
        QTest::keyClicks(engine, "h ");
        QVERIFY(engine->text() == "h " && s.Logged("Hint:") == 0);
        s.Board()->setFocus();
        QTest::keyClick(&s.window, Qt::Key_H);
        QCOMPARE(s.Logged("Hint:"), 1);
        MakeRedAutoMove(s.g());
        QTest::keyClick(&s.window, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(s.g().Undo.empty());
        bool stuck = false;
        for (Qt::Key key : {Qt::Key_Space, Qt::Key_Escape}) {
            QTimer::singleShot(300, &s.window, [&, key] { QTest::keyClick(&s.window, key); });
            QTimer::singleShot(5000, &s.window, [&] {
                if (s.g().AutoGameRunning) stuck = true, AutoGame(s.g());   // the button's stop
            });
            s.Press("Command12");
            QVERIFY2(!stuck, "AutoGame not stopped by its key");
        }
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
        if (autoGame) {   // ended from inside the automatic game
            s.window.PauseLimit = 1;
            QTimer::singleShot(300, &s.window, end);
            s.Press("Command12");
            QVERIFY(!s.g().Undo.empty());   // it did play
        }
        if (!autoGame) end();
        QCOMPARE(s.window.Ended(), byFrame || answer == 6);
        QCOMPARE(s.questions.WasAsked("Exit?"), !byFrame);
        const std::string after = s.folder.Read("jarlsvakt.cfg");
        QCOMPARE(after.find("\r\n2 1 ") != std::string::npos, !byFrame && answer == 6);   // the board style kept
        QCOMPARE(after != before, !byFrame && answer == 6);
    }
};

WINDOW_TEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
