#include "session/EngineHost.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sstream>

#include "core/Board.h"
#include "core/RuleBoard.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/RulesRecord.h"

namespace jv {

namespace {

// The margin past its clock that an engine's answer may take: the pipe, the
// process's start and the host's own work.
constexpr int AnswerMarginMillis = 1000;

// The lines an engine may write that ask nothing of the host here.
bool IsQuietProtocolLine(const std::string& command) {
    return command == "hello" || command == "status" || command == "analysis" || command == "simple-moves" ||
           command == "rules" || command == "position" || command == "side" || command == "clock" || command == "error";
}

std::string FirstWord(const std::string& line) {
    std::istringstream in(line);
    std::string word;
    in >> word;
    return word;
}

const char* SideWord(int side) { return side == AttackerCode ? "attackers" : "defenders"; }

// The position of the game as a scratch game that the notation helpers read.
Game AsGame(const Position& g) {
    Game game;
    static_cast<Position&>(game) = g;
    BuildColumnLetters(game);
    return game;
}

// The protocol's clock line: each side's whole seconds left (-1 without a
// clock), no overtime.
std::string ClockLine(int attackerSeconds, int defenderSeconds) {
    return "clock " + std::to_string(attackerSeconds) + " " + std::to_string(defenderSeconds) + " 0 0 0";
}

}  // namespace

std::string SimpleMoveText(const Position& g, const Move& m) {
    return StandardSquareName(g.BoardWidth, m.From.Col, m.From.Row) + "-" +
           StandardSquareName(g.BoardWidth, m.To.Col, m.To.Row);
}

Move MoveMade(const Position& before, const Position& after, int side) {
    Move m;
    for (int col = 1; col <= before.BoardWidth; ++col)
        for (int row = 1; row <= before.BoardHeight; ++row) {
            const bool was = before.Board(col, row) == side, is = after.Board(col, row) == side;
            if (was && !is) m.From = Square{col, row};
            if (!was && is) m.To = Square{col, row};
        }
    return m;
}

bool EngineHost::ReadLine(std::string& line, int millis, std::string& failure) {
    switch (link_.Receive(line, millis)) {
        case EngineLink::Read::Line: return true;
        case EngineLink::Read::Closed: failure = "the engine ended"; break;
        case EngineLink::Read::TimedOut: {
            char seconds[32];
            std::snprintf(seconds, sizeof seconds, "%.1f", millis / 1000.0);
            failure = "the engine did not answer within " + std::string(seconds) + " s";
            break;
        }
    }
    link_.Stop();
    ended_ = true;
    return false;
}

bool EngineHost::Start(const Position& g, int side, int toMove, int startMillis, std::string& failure) {
    // What the engine writes before its hello counts against the same time.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(startMillis);
    std::string line;
    do {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (!ReadLine(line, std::max<int>(0, static_cast<int>(left.count())), failure)) return false;
    } while (FirstWord(line) != "hello");
    const Game game = AsGame(g);
    const bool attackersFirst = toMove == AttackerCode;
    link_.Send("rules dim:" + std::to_string(g.BoardWidth) + " " + RulesRecordKeys(g.GameRules, attackersFirst) +
               " start:" + OtnPosition(game));
    link_.Send(std::string("side ") + SideWord(side));
    link_.Send("start");
    return true;
}

bool EngineHost::AskMove(const Position& g, int side, int millis, Move& move, std::string& failure) {
    const int seconds = (millis + 999) / 1000;
    return Ask(g, side, ClockLine(side == AttackerCode ? seconds : -1, side == DefenderCode ? seconds : -1),
               millis + AnswerMarginMillis, move, failure);
}

bool EngineHost::AskMove(const Position& g, int side, const SideClock (&clocks)[2], Move& move, std::string& failure) {
    // The protocol's clock counts whole seconds: the engine is never told of time it has not.
    const auto whole = [](const SideClock& c) { return c.Seconds < 0 ? -1 : static_cast<int>(c.Seconds); };
    const int waitMillis = static_cast<int>(std::max(0.0, clocks[side].Seconds) * 1000) + AnswerMarginMillis;
    return Ask(g, side, ClockLine(whole(clocks[AttackerCode]), whole(clocks[DefenderCode])), waitMillis, move, failure);
}

bool EngineHost::Ask(const Position& g, int side, const std::string& clockLine, int waitMillis, Move& move,
                     std::string& failure) {
    if (ended_) {
        failure = "the engine has ended";
        return false;
    }
    link_.Send(std::string("play ") + SideWord(side));
    link_.Send(clockLine);
    std::string line;
    for (;;) {
        if (!ReadLine(line, waitMillis, failure)) return false;
        const std::string command = FirstWord(line);
        if (command == "move") break;
        if (IsQuietProtocolLine(command)) continue;
        failure = "the engine wrote what is not the protocol: \"" + line.substr(0, 80) + "\"";
        link_.Stop();
        ended_ = true;
        return false;
    }
    const std::string text = line.substr(line.find("move") + 4);
    const Game game = AsGame(g);
    WrittenMove w;
    std::istringstream words(text);
    std::string word;
    words >> word;
    if (!ReadStandardMove(game, word, w) || !RuleBoard(g, side).Allows(w.Squares)) {
        failure = "the engine sent the illegal move \"" + word + "\"";
        link_.Send("error 3");
        return false;
    }
    move = w.Squares;
    return true;
}

void EngineHost::TellMove(const Move& m, const Position& after) {
    if (ended_) return;
    link_.Send("opponent-move " + SimpleMoveText(after, m) + " " + OtnPosition(AsGame(after)));
}

void EngineHost::Finish(int result) {
    if (ended_) return;
    link_.Send("finish " + std::to_string(result));
    link_.Send("goodbye");
    link_.Stop();
    ended_ = true;
}

}  // namespace jv
