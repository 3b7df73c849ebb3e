// The OpenTafl Engine Protocol: the strong player as an engine, and an outside engine as a player, each
// driven by a scripted other side.
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "core/Board.h"
#include "core/RuleBoard.h"
#include "records/LayoutFile.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/RulesRecord.h"
#include "session/EngineHost.h"
#include "session/EngineProcess.h"
#include "session/EngineProtocol.h"
#include "session/EngineTurn.h"
#include "session/PlayerMoves.h"
#include "session/ComputerMoves.h"
#include "support/Fixtures.h"
#include "support/RunCli.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

// A game of the rule set from its opening.
void StartGame(TestGame& t, const char* ruleSet) {
    const Rules& rules = *FindRules(ruleSet);
    ASSERT_TRUE(ReadLayoutFile(t.g, jv::test::DataPath(std::string(rules.Layout))).Ok());
    t.g.GameRules = rules;
}

// The host's rules line of the game's rule set and opening.
std::string RulesLine(const Game& g) {
    return "rules dim:" + std::to_string(g.BoardWidth) + " " + RulesRecordKeys(g.GameRules, g.GameRules.AttackersFirst) +
           " start:" + OtnPosition(g);
}

// A position as a game the notation helpers read.
Game AsGame(const Position& p) {
    Game g;
    static_cast<Position&>(g) = p;
    BuildColumnLetters(g);
    return g;
}

// The engine's answers to the host's lines, in order.
Lines EngineAnswers(const Lines& host, bool* stillUp = nullptr) {
    Lines out;
    EngineProtocol engine([&out](const std::string& line) { out.push_back(line); });
    bool up = true;
    for (const std::string& line : host) up = up && engine.Handle(line);
    if (stillUp) *stillUp = up;
    return out;
}

// The one line that starts with the word, or "" when there is none or more than one.
std::string OnlyLine(const Lines& lines, const std::string& word) {
    std::string found;
    int count = 0;
    for (const std::string& line : lines)
        if (line.rfind(word + " ", 0) == 0) found = line, ++count;
    return count == 1 ? found : "";
}

// True when the simple move text is a legal move of the side in the game's position.
bool Legal(const Game& g, int side, const std::string& text) {
    WrittenMove w;
    return ReadStandardMove(g, text, w) && RuleBoard(g, side).Allows(w.Squares);
}

// An engine's side of the link, scripted: its answers in order, then silence.
class ScriptedEngine : public EngineLink {
public:
    std::deque<std::string> Answers;   // "<closed>" ends the engine, "<silent>" times out
    Lines Sent;
    bool Send(const std::string& line) override {
        Sent.push_back(line);
        return true;
    }
    Read Receive(std::string& line, int) override {
        if (Answers.empty() || Answers.front() == "<silent>") return Read::TimedOut;
        line = Answers.front();
        Answers.pop_front();
        return line == "<closed>" ? Read::Closed : Read::Line;
    }
    void Stop() override {}
    void Interrupt() override {}
};

// The program's own engine at the far end of the link, in the same process.
class OwnEngine : public EngineLink {
public:
    OwnEngine() : engine_([this](const std::string& line) { answers_.push_back(line); }) { answers_.push_back("hello"); }
    bool Send(const std::string& line) override { return engine_.Handle(line); }
    Read Receive(std::string& line, int) override {
        if (answers_.empty()) return Read::TimedOut;
        line = answers_.front();
        answers_.pop_front();
        return Read::Line;
    }
    void Stop() override {}
    void Interrupt() override {}

private:
    std::deque<std::string> answers_;
    EngineProtocol engine_;
};

}  // namespace

TEST(EngineProtocol, TheEngineKeepsTheGameAndAnswersTheHost) {
    // The engine plays a legal move of the side it is asked for on the position the host's rules, position and
    // moves made, thinks aloud in status lines, analyses, refuses what it cannot play, and ignores garbage.
    TestGame t;
    StartGame(t, "Brandubh");
    const std::string rules = RulesLine(t.g);
    const std::string opening = "d2-c2";   // an attacker's first move in the opening
    ASSERT_TRUE(Legal(t.g, AttackerCode, opening));
    WrittenMove w;
    ASSERT_TRUE(ReadStandardMove(t.g, opening, w));
    Game after = t.g;
    static_cast<Position&>(after) = PositionAfter(t.g, AttackerCode, w.Squares);

    const Lines first = EngineAnswers({rules, "side attackers", "play attackers", "clock 2 2 0 0 0"});
    EXPECT_TRUE(Legal(t.g, AttackerCode, OnlyLine(first, "move").substr(5))) << OnlyLine(first, "move");
    EXPECT_FALSE(first.empty() || first.front().rfind("status depth ", 0) != 0) << "no status line before the move";

    const Lines reply = EngineAnswers({rules, "opponent-move " + opening + " " + OtnPosition(after), "play defenders", "clock 2 2 0 0 0"});
    EXPECT_TRUE(Legal(after, DefenderCode, OnlyLine(reply, "move").substr(5))) << OnlyLine(reply, "move");

    const Lines analysis = EngineAnswers({rules, "analyze 3 1"});
    const std::string lines = OnlyLine(analysis, "analysis");
    EXPECT_EQ(lines.rfind("analysis 3 ", 0), 0u) << lines;

    bool up = false;
    const Lines refused = EngineAnswers({"rules dim:7 esc:q start:/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/", "play attackers",
                                         "opponent-move a1-a2", "zzz 12 ]]", "", rules, "opponent-move d2-d1", "goodbye",
                                         "play attackers"},
                                        &up);
    EXPECT_EQ(refused.size(), 2u) << "a refusal of the rules and of the illegal move, nothing for the rest";
    EXPECT_EQ(refused.front().rfind("error 0 ", 0), 0u) << refused.front();
    EXPECT_NE(std::find(refused.begin(), refused.end(), "error 3"), refused.end());
    EXPECT_FALSE(up) << "goodbye ends the engine";
}

TEST(EngineProtocol, AnOutsideEngineLosesForWhatItDoesWrong) {
    // Each move an outside engine sends is checked before it is made; an illegal move, an engine that ends,
    // silence past its clock and garbage each lose with a reason that names them.
    TestGame t;
    StartGame(t, "Copenhagen");
    const struct { const char* what; std::deque<std::string> answers; const char* failure; } rows[] = {
        {"a legal move after its thinking", {"hello", "status depth 1", "move k4-i4"}, ""},
        {"an illegal move", {"hello", "move k4-k1"}, "the engine sent the illegal move \"k4-k1\""},
        {"an engine that ends", {"hello", "<closed>"}, "the engine ended"},
        {"silence", {"hello", "<silent>"}, "the engine did not answer within 1.0 s"},
        {"garbage", {"hello", "I resign"}, "the engine wrote what is not the protocol: \"I resign\""},
    };
    for (const auto& r : rows) {
        ScriptedEngine link;
        link.Answers = r.answers;
        EngineHost host(link);
        std::string failure;
        ASSERT_TRUE(host.Start(t.g, AttackerCode, AttackerCode, 1000, failure)) << r.what;
        EXPECT_EQ(link.Sent.front().rfind("rules dim:11 ", 0), 0u) << r.what;
        Move move;
        EXPECT_EQ(host.AskMove(t.g, AttackerCode, 1, move, failure), *r.failure == '\0') << r.what;
        EXPECT_EQ(failure, r.failure) << r.what;
    }
}

TEST(EngineProtocol, TheProgramsOwnEngineIsAPlayerOfEveryRuleSet) {
    // Hosted through the protocol, the program's own engine plays a legal move for either side of every rule set.
    for (const Rules& rules : RuleSets()) {
        TestGame t;
        StartGame(t, std::string(rules.Name).c_str());
        for (int side : {AttackerCode, DefenderCode}) {
            OwnEngine link;
            EngineHost host(link);
            std::string failure;
            ASSERT_TRUE(host.Start(t.g, side, t.g.GameRules.AttackersFirst ? AttackerCode : DefenderCode, 1000, failure)) << rules.Name << ": " << failure;
            Move move;
            ASSERT_TRUE(host.AskMove(t.g, side, 100, move, failure)) << rules.Name << ": " << failure;
            EXPECT_TRUE(RuleBoard(t.g, side).Allows(move)) << rules.Name;
        }
    }
}

TEST(EngineProtocol, TheToolsEngineSpeaksOnlyTheProtocolAndRunsInAProcessOfItsOwn) {
    // jarlsvakt-cli engine greets, answers a move on its clock and writes nothing but protocol lines; run as an
    // outside engine's process, it is hosted as any other engine, and stopping it ends it.
    TestGame t;
    StartGame(t, "Tablut");
    const auto result = jv::test::RunCli("engine", t.Path(""), RulesLine(t.g) + "\nplay attackers\nclock 1 1 0 0 0\n"
                                                                              "garbage\ngoodbye\n");
    ASSERT_EQ(result.exitCode, 0) << result.err;
    ASSERT_FALSE(result.out.empty());
    EXPECT_EQ(result.out.front(), "hello");
    for (const std::string& line : result.out)
        EXPECT_TRUE(line == "hello" || line.rfind("status ", 0) == 0 || line.rfind("move ", 0) == 0) << line;
    EXPECT_TRUE(Legal(t.g, AttackerCode, OnlyLine(result.out, "move").substr(5))) << OnlyLine(result.out, "move");

    EngineProcess process("JARLSVAKT_HOME='" + t.Path("") + "' '" JARLSVAKT_BIN_DIR "/jarlsvakt-cli' engine");
    ASSERT_TRUE(process.Started());
    EngineHost host(process);
    std::string failure;
    ASSERT_TRUE(host.Start(t.g, DefenderCode, AttackerCode, 5000, failure)) << failure;
    Move move;
    ASSERT_TRUE(host.AskMove(t.g, DefenderCode, 200, move, failure)) << failure;
    EXPECT_TRUE(RuleBoard(t.g, DefenderCode).Allows(move));
    process.Stop();
    std::string line;
    EXPECT_EQ(process.Receive(line, 100), EngineLink::Read::Closed);
}

TEST(EnginePlayer, PlaysItsSideInTheGameOrLosesSayingWhatItDid) {
    // The Engine player's move is made once the rule board allows it, and the engine is told the game and each of
    // its opponent's moves; an illegal move, an end, silence or garbage loses the game with a message naming it.
    const struct { std::deque<std::string> answers; const char* lost; } rows[] = {
        {{"hello", "move d2-c2", "move c2-c3"}, ""},
        {{"hello", "move d2-d1"}, "the engine sent the illegal move \"d2-d1\""},
        {{"hello", "<closed>"}, "the engine ended"},
        {{"hello", "<silent>"}, "the engine did not answer within 1.2 s"},
        {{"I resign"}, "the engine did not answer within 10.0 s"},
        {{"hello", "I resign"}, "the engine wrote what is not the protocol: \"I resign\""},
    };
    for (const auto& r : rows) {
        TestGame t;
        StartGame(t, "Brandubh");
        t.g.Players = {PlayerKind::Engine, PlayerKind::Classic, 200, DefenderCode, "my-engine"};
        ScriptedEngine* link = nullptr;
        int started = 0;
        SetEngineStarter(t.g, [&](const std::string& command) {
            EXPECT_EQ(command, "my-engine");
            ++started;
            auto made = std::make_unique<ScriptedEngine>();
            made->Answers = r.answers;
            link = made.get();
            return made;
        });
        const Position before = t.g;
        MakeRedAutoMove(t.g);
        const std::string lost = *r.lost ? "The attackers' engine has lost: " + std::string(r.lost) : "";
        EXPECT_EQ(t.g.GameOver, !lost.empty()) << r.lost;
        if (!lost.empty()) {
            ASSERT_FALSE(t.view.Messages().empty()) << r.lost;
            EXPECT_EQ(t.view.Messages().back().rfind(lost, 0), 0u) << t.view.Messages().back();
            EXPECT_NE(t.g.EventLog.back().find(lost), std::string::npos) << t.g.EventLog.back();
            continue;
        }
        EXPECT_EQ(SimpleMoveText(t.g, MoveMade(before, t.g, AttackerCode)), "d2-c2");
        ASSERT_EQ(link->Sent.front(), RulesLine(t.g).substr(0, RulesLine(t.g).find(" start:")) + " start:" +
                                          OtnPosition(AsGame(before)));
        // The defenders answer; the engine is told their move, not started again, and plays on from there.
        t.g.Check1 = false;
        WrittenMove reply;
        ASSERT_TRUE(ReadStandardMove(t.g, "d3-e3", reply));
        MakeDefenderMove(t.g, reply.Squares);
        const Position told = t.g;
        MakeRedAutoMove(t.g);
        EXPECT_EQ(started, 1);
        EXPECT_EQ(SimpleMoveText(t.g, MoveMade(told, t.g, AttackerCode)), "c2-c3");
        EXPECT_NE(std::find(link->Sent.begin(), link->Sent.end(), "opponent-move d3-e3 " + OtnPosition(AsGame(told))),
                  link->Sent.end());
    }
}

TEST(ThinkingTime, AMoveTakesAShareOfTheClockAndMostOfWhatEachMoveGivesBack) {
    // A move takes 1/30 of the main time and 0.8 of an increment or overtime period, never over half of what is
    // left nor under 50 ms; 2 s without a clock.
    const struct { SideClock clock; int millis; } rows[] = {
        {{-1, 0, 0, 0}, 2000}, {{60, 0, 0, 0}, 2000}, {{60, 1, 0, 0}, 2800},
        {{1, 1, 0, 0}, 500},   {{0, 0, 10, 1}, 5000}, {{0.01, 0, 0, 0}, 50},
    };
    for (const auto& r : rows) EXPECT_EQ(ThinkingMillis(r.clock), r.millis) << r.clock.Seconds << "+" << r.clock.IncrementSeconds;
}
