#include "cli/MatchGame.h"

#include <chrono>
#include <iostream>
#include <memory>

#include "ai/Search.h"
#include "core/Board.h"
#include "session/ComputerMoves.h"
#include "session/EngineHost.h"
#include "session/EngineProcess.h"
#include "session/PlayerMoves.h"
#include "session/SelfPlay.h"

namespace jv::cli {

namespace {

// A game of more moves than this (the opening's random moves aside) is a draw.
constexpr int MaxGameMoves = 300;

// How long an outside engine may take to greet its host.
constexpr int EngineStartMillis = 10000;

// The outside engines of a game, one per side that has one, each in its own process.
struct GameEngines {
    std::unique_ptr<EngineProcess> Process[2];
    std::unique_ptr<EngineHost> Host[2];
};

const char* SidesWord(int side) { return side == AttackerCode ? "attackers'" : "defenders'"; }

Outcome LossOf(int side) { return side == AttackerCode ? Outcome::DefendersWin : Outcome::AttackersWin; }

bool Clocked(const GameSettings& settings) { return settings.Clock.Seconds >= 0; }

void MakeSideMove(Game& g, int side, const Move& m) {
    if (side == DefenderCode) MakeDefenderMove(g, m);
    else MakeAttackerMove(g, m);
}

// The classic player's move; false when it made none.
bool PlayClassicMove(Game& g, int side) {
    const std::size_t records = g.Undo.size();
    if (side == DefenderCode) MakeGreenAutoMove(g);
    else MakeRedAutoMove(g);
    if (g.Undo.size() > records || KingAtHome(g)) return true;
    // A classic attacker without a ranked move: the random mover stands in, as in the soak.
    RandomMover(g, side);
    return g.Undo.size() > records;
}

// One move of the side's player; false when it made none. The strong player
// is told the positions played so far; an engine that does something wrong
// has lost, and the reason is printed.
bool PlayMove(Game& g, int side, const MatchPlayer& p, const GameSettings& settings, const SideClock (&clocks)[2],
              const std::vector<std::uint64_t>& played, GameEngines& engines) {
    if (engines.Host[side]) {
        Move m;
        std::string failure;
        const bool asked = Clocked(settings) ? engines.Host[side]->AskMove(g, side, clocks, m, failure)
                                             : engines.Host[side]->AskMove(g, side, p.Millis, m, failure);
        if (!asked) {
            std::cout << "the " << SidesWord(side) << " engine lost: " << failure << '\n';
            return false;
        }
        MakeSideMove(g, side, m);
        return true;
    }
    if (!p.Strong) return PlayClassicMove(g, side);
    SearchLimits limits;
    limits.Millis = Clocked(settings) ? ThinkingMillis(clocks[side]) : p.Millis;
    limits.Threads = p.Threads;
    limits.StopWhenClear = settings.EarlyStop;
    limits.Played = played;
    const SearchResult r = SearchBestMove(g, side, limits);
    if (r.HasMove) MakeSideMove(g, side, r.Best);
    return r.HasMove;
}

// The side to move has lost when the King is taken or home, it cannot move or
// its clock has run out.
Outcome PlayMoves(Game& g, const MatchPlayer* const (&players)[2], const GameSettings& settings, int side,
                  GameSummary& summary, GameEngines& engines) {
    std::vector<std::uint64_t> played;
    SideClock clocks[2] = {settings.Clock, settings.Clock};
    for (int moves = 0; moves < MaxGameMoves; ++moves) {
        if (KingAtHome(g) || (side == DefenderCode && KingHasFreeRun(g))) return Outcome::DefendersWin;
        if (g.GameOver) return Outcome::AttackersWin;
        const auto started = std::chrono::steady_clock::now();
        played.push_back(PositionKey(g, side));
        const Position before = g;
        const bool moved = PlayMove(g, side, *players[side], settings, clocks, played, engines);
        const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
        summary.Seconds[side] += seconds;
        if (!moved) return LossOf(side);
        if (Clocked(settings)) {
            clocks[side].Seconds -= seconds;
            if (clocks[side].Seconds < 0) {
                std::cout << "the " << SidesWord(side) << " time ran out\n";
                return LossOf(side);
            }
            clocks[side].Seconds += clocks[side].IncrementSeconds;
        }
        if (engines.Host[side ^ 1]) engines.Host[side ^ 1]->TellMove(MoveMade(before, g, side), g);
        ++summary.Moves[side];
        side ^= 1;
    }
    return Outcome::Draw;
}

}  // namespace

int PlayOpening(Game& g, long long moves, std::string& played) {
    int side = g.GameRules.AttackersFirst ? AttackerCode : DefenderCode;
    for (long long i = 0; i < moves && !g.GameOver; ++i, side ^= 1) {
        const Position before = g;
        const std::size_t records = g.Undo.size();
        RandomMover(g, side);
        if (g.Undo.size() > records) played += (played.empty() ? "" : " ") + SimpleMoveText(g, MoveMade(before, g, side));
    }
    return side;
}

GameSummary PlayMatchGame(Game& g, const MatchPlayer* const (&players)[2], const GameSettings& settings, int side) {
    GameSummary summary;
    GameEngines engines;
    for (int s : {AttackerCode, DefenderCode}) {
        if (players[s]->Engine.empty()) continue;
        engines.Process[s] = std::make_unique<EngineProcess>(players[s]->Engine);
        engines.Host[s] = std::make_unique<EngineHost>(*engines.Process[s]);
        std::string failure;
        if (!engines.Process[s]->Started() || !engines.Host[s]->Start(g, s, side, EngineStartMillis, failure)) {
            std::cout << "the " << SidesWord(s) << " engine lost: "
                      << (failure.empty() ? "it could not be started" : failure) << '\n';
            summary.End = LossOf(s);
            return summary;
        }
    }
    summary.End = PlayMoves(g, players, settings, side, summary, engines);
    const int result = summary.End == Outcome::AttackersWin ? 2 : summary.End == Outcome::DefendersWin ? 3 : 1;
    for (auto& host : engines.Host)
        if (host) host->Finish(result);
    return summary;
}

}  // namespace jv::cli
