#pragma once
#include <string>

#include "core/Game.h"
#include "session/EngineLink.h"
#include "session/ThinkingTime.h"

namespace jv {

// An outside engine of the OpenTafl Engine Protocol as the player of a side:
// it is told the rules and the opening, each move of its opponent, and asked
// for its own moves on its clock. Every move it sends is checked by the rule
// board before anyone makes it; an engine that sends an illegal move, ends,
// stays silent past its clock or writes what is not the protocol has lost,
// and the reason says what it did.

class EngineHost {
public:
    explicit EngineHost(EngineLink& link) : link_(link) {}

    // Waits up to startMillis for the engine's hello, then tells it the
    // rules, the position its game starts from with toMove to move, and the
    // side it plays. False with the reason.
    bool Start(const Position& g, int side, int toMove, int startMillis, std::string& failure);
    // The engine's move for its side in the position, within millis of
    // thinking (and a margin); false with what the engine did wrong.
    bool AskMove(const Position& g, int side, int millis, Move& move, std::string& failure);
    // The same on a game clock (indexed by side code): the engine is told
    // both sides' time left and may take its own side's (and a margin).
    bool AskMove(const Position& g, int side, const SideClock (&clocks)[2], Move& move, std::string& failure);
    // Tells the engine the opponent's move and the position it leaves.
    void TellMove(const Move& m, const Position& after);
    // Tells the engine the game's end (2 the attackers won, 3 the defenders,
    // 1 a draw), says goodbye and ends it.
    void Finish(int result);

private:
    bool ReadLine(std::string& line, int millis, std::string& failure);
    bool Ask(const Position& g, int side, const std::string& clockLine, int waitMillis, Move& move,
             std::string& failure);

    EngineLink& link_;
    bool ended_ = false;
};

// A move in the protocol's simple notation ("a4-a1").
std::string SimpleMoveText(const Position& g, const Move& m);

// The move the side made between the two positions: the square its piece
// left and the square it came to.
Move MoveMade(const Position& before, const Position& after, int side);

}  // namespace jv
