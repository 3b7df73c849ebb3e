// The Engine player in the window: chosen in the player boxes with its command line kept in players.cfg, it
// plays its side, and an engine that fails or goes silent never holds the window.
#include <condition_variable>
#include <deque>
#include <mutex>

#include "WindowFixture.h"
#include "session/EngineProtocol.h"
#include "session/EngineTurn.h"

using namespace jv;
using namespace jv::uitest;

namespace {

// The engine's end of the link: the program's own engine in-process ("own"), or scripted answers; past its
// answers it stays silent for the time it is given, unless it is interrupted.
class TestEngine : public EngineLink {
public:
    explicit TestEngine(std::deque<std::string> answers) : answers_(std::move(answers)) {}
    bool Send(const std::string& line) override { return !own_ || own_->Handle(line); }
    Read Receive(std::string& line, int millis) override {
        std::unique_lock<std::mutex> hold(lock_);
        if (!answers_.empty()) {
            line = answers_.front();
            answers_.pop_front();
            if (line != "own") return Read::Line;
            own_ = std::make_unique<EngineProtocol>([this](const std::string& l) { answers_.push_back(l); });
            line = "hello";
            return Read::Line;
        }
        return woken_.wait_for(hold, std::chrono::milliseconds(millis), [this] { return interrupted_; })
                   ? Read::Closed
                   : Read::TimedOut;
    }
    void Stop() override {}
    void Interrupt() override {
        const std::lock_guard<std::mutex> hold(lock_);
        interrupted_ = true;
        woken_.notify_all();
    }

private:
    std::deque<std::string> answers_;
    std::unique_ptr<EngineProtocol> own_;
    std::mutex lock_;
    std::condition_variable woken_;
    bool interrupted_ = false;
};

}  // namespace

class TestEnginePlayer : public QObject {
    Q_OBJECT
private slots:
    void TheEnginePlaysOrLosesWithWhatItDid_data() {
        QTest::addColumn<QString>("answers");   // the engine's lines, separated by "|"
        QTest::addColumn<QString>("lost");      // the start of the message, "" when it plays
        QTest::newRow("the program's engine") << "own" << "";
        QTest::newRow("an illegal move") << "hello|move a1-a2" << "The attackers' engine has lost: the engine sent the illegal move \"a1-a2\"";
    }
    void TheEnginePlaysOrLosesWithWhatItDid() {
        // The Engine chosen for the attackers with its command line makes their move: a legal answer is
        // made and the game goes on; an illegal move loses the game with its message in the message box and
        // the event log.
        QFETCH(QString, answers);
        QFETCH(QString, lost);
        StartedWindow s;
        std::string started;
        SetEngineStarter(s.g(), [&](const std::string& command) {
            started = command;
            std::deque<std::string> lines;
            for (const QString& l : answers.split('|')) lines.push_back(l.toStdString());
            return std::make_unique<TestEngine>(lines);
        });
        auto* box = s.Find<QComboBox>("AttackerPlayer");
        box->setCurrentIndex(2);
        emit box->activated(2);
        auto* command = s.Find<QLineEdit>("EngineCommand");
        command->setText("my-engine --fast");
        emit command->editingFinished();
        s.Find<QComboBox>("ThinkingTime")->setCurrentIndex(0);
        emit s.Find<QComboBox>("ThinkingTime")->activated(0);
        QVERIFY(s.folder.Read("players.cfg").find("attackers engine\r\n") != std::string::npos);
        QVERIFY(s.folder.Read("players.cfg").ends_with("engine my-engine --fast\r\n"));

        const std::size_t undo = s.g().Undo.size();
        s.Find<QPushButton>("cmdMakeRedAutoMove")->click();   // the attackers' computer move
        QCOMPARE(started, std::string("my-engine --fast"));
        QCOMPARE(s.g().GameOver, !lost.isEmpty());
        const bool told = s.questions.Asked.size() > 0 && QString::fromStdString(s.questions.Asked.back().first).startsWith(lost);
        QVERIFY2(lost.isEmpty() ? s.questions.Asked.empty() : told, "the message names what the engine did");
        if (!lost.isEmpty()) QVERIFY(QString::fromStdString(s.g().EventLog.back()).contains(lost));
        else QCOMPARE(s.g().Undo.size(), undo + 1);   // the engine's move
    }

    void ExitEndsASilentEngineAtOnce() {
        // While an engine thinks without end the window's events run, and Exit answered Yes ends it at once.
        StartedWindow s;
        SetEngineStarter(s.g(), [](const std::string&) { return std::make_unique<TestEngine>(std::deque<std::string>{"hello"}); });
        s.g().Players.Attackers = PlayerKind::Engine;
        s.g().Players.ThinkMillis = 10000;
        s.questions.AnswerTo["Exit?"] = ButtonYes;
        bool live = false;
        QTimer::singleShot(300, [&] {
            live = true;
            s.Press("cmdexit");
        });
        QElapsedTimer clock;
        clock.start();
        s.Find<QPushButton>("cmdMakeRedAutoMove")->click();
        QVERIFY2(live, "the window's events ran while the engine thought");
        QVERIFY2(clock.elapsed() < 5000, "Exit ended the engine's turn at once");
        QVERIFY(s.g().Ending);
        QVERIFY(s.questions.Asked.size() == 1);   // only "Exit?": no loss is announced for an ended game
    }
};

WINDOW_TEST_MAIN(TestEnginePlayer)
#include "test_engine_player.moc"
