#include <chrono>
#include <iomanip>
#include <iostream>
#include <memory>

#include "session/ComputerMoves.h"
#include "ai/Search.h"
#include "session/SelfPlay.h"
#include "cli/CliView.h"
#include "cli/Commands.h"
#include "cli/SearchText.h"
#include "core/Board.h"
#include "core/Move.h"
#include "session/EngineHost.h"
#include "session/EngineProcess.h"
#include "session/PlayerMoves.h"

namespace jv::cli {

namespace {

const char* const MatchUsage =
    "usage: jarlsvakt-cli match --attackers PLAYER --defenders PLAYER --games N [--openings K] [--seed S] "
    "[--rules NAME] LAYOUT...\n"
    "  PLAYER: classic | strong[:MS] | engine[:MS]:COMMAND (an OpenTafl engine started by the shell)\n";

// A game of more moves than this (the opening's random moves aside) is a draw.
constexpr int MaxGameMoves = 300;

// How long an outside engine may take to greet its host.
constexpr int EngineStartMillis = 10000;

// A side's player: the classic ranking, the strong player thinking Millis a
// move, or an outside engine started from its command line, given Millis a move.
struct Player {
    bool Strong = false;
    int Millis = 200;
    std::string Engine;   // the engine's command line; empty for the program's own players
};

struct MatchOptions {
    Player Players[2];   // indexed by side code
    long long Games = 0, Openings = 0, Seed = 1;
    Rules GameRules = Rules::Classic();
    std::vector<std::string> Layouts;
};

// The "MS" of "strong:MS" or "engine:MS:COMMAND", when the text holds one at `at`.
bool ReadMillis(const std::string& text, std::size_t at, Player& p) {
    long long ms = 0;
    if (!ReadCount(text.substr(at), ms) || ms == 0) return false;
    p.Millis = static_cast<int>(ms);
    return true;
}

bool ReadPlayer(const std::string& text, Player& p) {
    if (text == "classic") return true;
    if (text.rfind("engine:", 0) == 0) {
        p.Strong = true;   // the engine plays any rule set, as the strong player does
        p.Millis = 1000;
        std::string rest = text.substr(7);
        const std::size_t colon = rest.find(':');
        if (colon != std::string::npos && ReadMillis(rest.substr(0, colon), 0, p)) rest = rest.substr(colon + 1);
        p.Engine = rest;
        return !p.Engine.empty();
    }
    if (text.rfind("strong", 0) != 0) return false;
    p.Strong = true;
    if (text == "strong") return true;
    return text[6] == ':' && ReadMillis(text, 7, p);
}

bool ParseOptions(const Args& args, MatchOptions& o) {
    bool attackers = false, defenders = false;
    const auto layout = [&](const std::string& a) {
        o.Layouts.push_back(a);
        return true;
    };
    const auto option = [&](const std::string& a, const std::string& value) {
        if (a == "--attackers") return attackers = ReadPlayer(value, o.Players[AttackerCode]);
        if (a == "--defenders") return defenders = ReadPlayer(value, o.Players[DefenderCode]);
        if (a == "--games") return ReadCount(value, o.Games);
        if (a == "--openings") return ReadCount(value, o.Openings);
        if (a == "--rules") return ReadRulesOption(value, o.GameRules);
        return a == "--seed" && ReadCount(value, o.Seed);
    };
    return ReadArguments(args, layout, option) && attackers && defenders && o.Games > 0 && !o.Layouts.empty();
}

std::string PlayerName(const Player& p) {
    if (!p.Engine.empty()) return "engine:" + std::to_string(p.Millis) + ":" + p.Engine;
    return p.Strong ? "strong:" + std::to_string(p.Millis) : "classic";
}

// The outside engines of a game, one per side that has one, each in its own process.
struct GameEngines {
    std::unique_ptr<EngineProcess> Process[2];
    std::unique_ptr<EngineHost> Host[2];
};

enum class Outcome { AttackersWin, DefendersWin, Draw };

struct LayoutTally {
    long long Wins[2] = {0, 0}, Draws = 0, Moves = 0;
    double Seconds[2] = {0, 0};
    long long SideMoves[2] = {0, 0};
};

// One move of the side's player; false when it made none. The strong player
// is told the positions played so far; an engine that does something wrong
// has lost, and the reason is printed.
bool PlayMove(Game& g, int side, const Player& p, const std::vector<std::uint64_t>& played, GameEngines& engines) {
    const std::size_t records = g.Undo.size();
    if (engines.Host[side]) {
        Move m;
        std::string failure;
        if (!engines.Host[side]->AskMove(g, side, p.Millis, m, failure)) {
            std::cout << "the " << (side == AttackerCode ? "attackers'" : "defenders'") << " engine lost: " << failure
                      << '\n';
            return false;
        }
        if (side == DefenderCode) MakeDefenderMove(g, m);
        else MakeAttackerMove(g, m);
        return true;
    }
    if (!p.Strong) {
        if (side == DefenderCode) MakeGreenAutoMove(g);
        else MakeRedAutoMove(g);
        if (g.Undo.size() > records || KingAtHome(g)) return true;
        // A classic attacker without a ranked move: the random mover stands in, as in the soak.
        RandomMover(g, side);
        return g.Undo.size() > records;
    }
    SearchLimits limits;
    limits.Millis = p.Millis;
    limits.Played = played;
    const SearchResult r = SearchBestMove(g, side, limits);
    if (!r.HasMove) return false;
    const Move& m = r.Best;
    if (side == DefenderCode) MakeDefenderMove(g, m);
    else MakeAttackerMove(g, m);
    return true;
}

// The side to move has lost when the King is taken or home, or it cannot move.
Outcome PlayMoves(Game& g, const MatchOptions& o, int side, LayoutTally& tally, GameEngines& engines) {
    std::vector<std::uint64_t> played;
    for (int moves = 0; moves < MaxGameMoves; ++moves) {
        if (KingAtHome(g) || (side == DefenderCode && KingHasFreeRun(g))) return Outcome::DefendersWin;
        if (g.GameOver) return Outcome::AttackersWin;
        const auto started = std::chrono::steady_clock::now();
        played.push_back(PositionKey(g, side));
        const Position before = g;
        const bool moved = PlayMove(g, side, o.Players[side], played, engines);
        tally.Seconds[side] += std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
        if (!moved) return side == DefenderCode ? Outcome::AttackersWin : Outcome::DefendersWin;
        if (engines.Host[side ^ 1]) engines.Host[side ^ 1]->TellMove(MoveMade(before, g, side), g);
        ++tally.SideMoves[side];
        ++tally.Moves;
        side ^= 1;
    }
    return Outcome::Draw;
}

// A game from the position after its opening: the engines are started and
// told the position, the moves are played, and the engines told the result.
Outcome PlayGame(Game& g, const MatchOptions& o, int side, LayoutTally& tally) {
    GameEngines engines;
    for (int s : {AttackerCode, DefenderCode}) {
        if (o.Players[s].Engine.empty()) continue;
        engines.Process[s] = std::make_unique<EngineProcess>(o.Players[s].Engine);
        engines.Host[s] = std::make_unique<EngineHost>(*engines.Process[s]);
        std::string failure;
        if (!engines.Process[s]->Started() || !engines.Host[s]->Start(g, s, side, EngineStartMillis, failure)) {
            std::cout << "the " << (s == AttackerCode ? "attackers'" : "defenders'")
                      << " engine lost: " << (failure.empty() ? "it could not be started" : failure) << '\n';
            return s == AttackerCode ? Outcome::DefendersWin : Outcome::AttackersWin;
        }
    }
    const Outcome outcome = PlayMoves(g, o, side, tally, engines);
    const int result = outcome == Outcome::AttackersWin ? 2 : outcome == Outcome::DefendersWin ? 3 : 1;
    for (auto& host : engines.Host)
        if (host) host->Finish(result);
    return outcome;
}

// The game's position after the opening's seeded random moves, the rules'
// first side first; the side to move then.
int PlayOpening(Game& g, long long moves) {
    int side = g.GameRules.AttackersFirst ? AttackerCode : DefenderCode;
    for (long long i = 0; i < moves && !g.GameOver; ++i, side ^= 1) RandomMover(g, side);
    return side;
}

}  // namespace

int RunMatch(const Args& args) {
    MatchOptions o;
    if (!ParseOptions(args, o)) {
        std::cerr << MatchUsage;
        return 1;
    }
    const char* classic = !o.Players[AttackerCode].Strong   ? "match --attackers classic"
                          : !o.Players[DefenderCode].Strong ? "match --defenders classic"
                                                            : nullptr;
    if (classic && !ClassicPlayersMayPlay(o.GameRules, classic)) return 1;
    std::cout << "attackers " << PlayerName(o.Players[AttackerCode]) << ", defenders "
              << PlayerName(o.Players[DefenderCode]) << ", " << o.Games << " games a layout"
              << (o.GameRules == Rules::Classic() ? "" : " under " + std::string(o.GameRules.Name)) << '\n';
    for (const std::string& layout : o.Layouts) {
        LayoutTally tally;
        for (long long game = 0; game < o.Games; ++game) {
            CliView view;
            view.Quiet = true;
            Game g;
            PrepareGame(g, view);
            g.GameRules = o.GameRules;
            if (!LoadLayoutArgument(g, layout)) return 2;
            g.Check1 = false;
            g.Random.Timer = TickingClock(static_cast<double>(o.Seed) + 1000.0 * static_cast<double>(game));
            const int side = PlayOpening(g, o.Openings);
            switch (PlayGame(g, o, side, tally)) {
                case Outcome::AttackersWin: ++tally.Wins[AttackerCode]; break;
                case Outcome::DefendersWin: ++tally.Wins[DefenderCode]; break;
                case Outcome::Draw: ++tally.Draws; break;
            }
        }
        auto perMove = [&tally](int side) {
            return tally.SideMoves[side] ? 1000 * tally.Seconds[side] / tally.SideMoves[side] : 0.0;
        };
        std::cout << std::fixed << std::setprecision(1) << layout << ": attackers win " << tally.Wins[AttackerCode]
                  << ", defenders win " << tally.Wins[DefenderCode] << ", draws " << tally.Draws << "; "
                  << static_cast<double>(tally.Moves) / o.Games << " moves a game; " << perMove(AttackerCode)
                  << " ms a move for the attackers, " << perMove(DefenderCode) << " ms for the defenders\n";
    }
    return 0;
}

}  // namespace jv::cli
