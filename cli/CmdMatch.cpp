#include <chrono>
#include <iomanip>
#include <iostream>

#include "session/ComputerMoves.h"
#include "ai/Search.h"
#include "session/SelfPlay.h"
#include "cli/CliView.h"
#include "cli/Commands.h"
#include "cli/SearchText.h"
#include "core/Board.h"
#include "core/Move.h"
#include "session/PlayerMoves.h"

namespace jv::cli {

namespace {

const char* const MatchUsage =
    "usage: jarlsvakt-cli match --attackers classic|strong[:MS] --defenders classic|strong[:MS] --games N "
    "[--openings K] [--seed S] [--rules NAME] LAYOUT...\n";

// A game of more moves than this (the opening's random moves aside) is a draw.
constexpr int MaxGameMoves = 300;

// A side's player: the classic ranking, or the strong player thinking Millis a move.
struct Player {
    bool Strong = false;
    int Millis = 200;
};

struct MatchOptions {
    Player Players[2];   // indexed by side code
    long long Games = 0, Openings = 0, Seed = 1;
    Rules GameRules = Rules::Classic();
    std::vector<std::string> Layouts;
};

bool ReadPlayer(const std::string& text, Player& p) {
    if (text == "classic") return true;
    if (text.rfind("strong", 0) != 0) return false;
    p.Strong = true;
    if (text == "strong") return true;
    long long ms = 0;
    if (text[6] != ':' || !ReadCount(text.substr(7), ms) || ms == 0) return false;
    p.Millis = static_cast<int>(ms);
    return true;
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

std::string PlayerName(const Player& p) { return p.Strong ? "strong:" + std::to_string(p.Millis) : "classic"; }

enum class Outcome { AttackersWin, DefendersWin, Draw };

struct LayoutTally {
    long long Wins[2] = {0, 0}, Draws = 0, Moves = 0;
    double Seconds[2] = {0, 0};
    long long SideMoves[2] = {0, 0};
};

// One move of the side's player; false when it made none. The strong player
// is told the positions played so far.
bool PlayMove(Game& g, int side, const Player& p, const std::vector<std::uint64_t>& played) {
    const std::size_t records = g.Undo.size();
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
Outcome PlayGame(Game& g, const MatchOptions& o, int side, LayoutTally& tally) {
    std::vector<std::uint64_t> played;
    for (int moves = 0; moves < MaxGameMoves; ++moves) {
        if (KingAtHome(g) || (side == DefenderCode && KingHasFreeRun(g))) return Outcome::DefendersWin;
        if (g.GameOver) return Outcome::AttackersWin;
        const auto started = std::chrono::steady_clock::now();
        played.push_back(PositionKey(g, side));
        const bool moved = PlayMove(g, side, o.Players[side], played);
        tally.Seconds[side] += std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
        if (!moved) return side == DefenderCode ? Outcome::AttackersWin : Outcome::DefendersWin;
        ++tally.SideMoves[side];
        ++tally.Moves;
        side ^= 1;
    }
    return Outcome::Draw;
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
