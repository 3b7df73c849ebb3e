// `match`: games between two players, alone or in pairs of swapped sides, and what they say of their
// strength: the score with its interval, the Elo, and the sequential test that stops once it decides.
#include <cmath>
#include <cstdio>
#include <iomanip>
#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "cli/MatchGame.h"
#include "cli/MatchPlayer.h"
#include "core/Chance.h"
#include "session/MatchScore.h"

namespace jv::cli {

namespace {

const char* const MatchUsage =
    "usage: jarlsvakt-cli match --attackers PLAYER --defenders PLAYER --games N [--openings K] [--seed S] "
    "[--rules NAME] [--paired] [--sprt ELO0,ELO1 [--alpha A] [--beta B]] [--threads T] [--clock MAIN+INC] "
    "[--early] LAYOUT...\n"
    "  PLAYER: classic | strong[:MS][:tN] | engine[:MS]:COMMAND (an OpenTafl engine started by the shell)\n"
    "  --paired: each opening twice, the players swapping sides (N even); --sprt: pairs until the test decides,\n"
    "  N games at the most; --clock: seconds of each side's game clock; --early: the strong players stop once\n"
    "  their move is clear\n";

// The two players: A, named by --attackers, and B, by --defenders; in paired
// games they take both sides.
constexpr int PlayerA = 0, PlayerB = 1;

struct SprtTest {
    bool On = false;
    double Elo0 = 0, Elo1 = 0, Alpha = 0.05, Beta = 0.05;
};

struct MatchOptions {
    MatchPlayer Players[2];   // A and B
    long long Games = 0, Openings = 0, Seed = 1, Threads = 1;
    bool Paired = false;
    SprtTest Sprt;
    GameSettings Settings;
    std::string ClockText;
    Rules GameRules = Rules::Classic();
    std::vector<std::string> Layouts;
};

// A number on the command line, the whole of the text.
bool ReadNumber(const std::string& text, double& value) {
    try {
        std::size_t used = 0;
        value = std::stod(text, &used);
        return used == text.size() && std::isfinite(value);
    } catch (...) {
        return false;
    }
}

// "FIRST<separator>SECOND" as two numbers; where the second may be left out,
// a text without the separator is the first alone.
bool ReadNumbers(const std::string& text, char separator, bool secondOptional, double& first, double& second) {
    const std::size_t at = text.find(separator);
    if (at == std::string::npos) return secondOptional && ReadNumber(text, first);
    return ReadNumber(text.substr(0, at), first) && ReadNumber(text.substr(at + 1), second);
}

bool ReadRate(const std::string& text, double& rate) { return ReadNumber(text, rate) && rate > 0 && rate < 1; }

bool ReadSprt(const std::string& text, SprtTest& sprt) {
    sprt.On = true;
    return ReadNumbers(text, ',', false, sprt.Elo0, sprt.Elo1) && sprt.Elo0 != sprt.Elo1;
}

bool ReadOption(MatchOptions& o, const std::string& a, const std::string& value, bool& attackers, bool& defenders) {
    if (a == "--attackers") return attackers = ReadMatchPlayer(value, o.Players[PlayerA]);
    if (a == "--defenders") return defenders = ReadMatchPlayer(value, o.Players[PlayerB]);
    if (a == "--games") return ReadCount(value, o.Games);
    if (a == "--openings") return ReadCount(value, o.Openings);
    if (a == "--seed") return ReadCount(value, o.Seed);
    if (a == "--threads") return ReadCount(value, o.Threads) && o.Threads > 0;
    if (a == "--rules") return ReadRulesOption(value, o.GameRules);
    if (a == "--alpha") return ReadRate(value, o.Sprt.Alpha);
    if (a == "--beta") return ReadRate(value, o.Sprt.Beta);
    if (a == "--sprt") return ReadSprt(value, o.Sprt);
    if (a != "--clock") return false;
    SideClock& clock = o.Settings.Clock;
    o.ClockText = value;
    return ReadNumbers(value, '+', true, clock.Seconds, clock.IncrementSeconds) &&
           clock.Seconds > 0 && clock.IncrementSeconds >= 0;
}

bool ParseOptions(const Args& args, MatchOptions& o) {
    bool attackers = false, defenders = false;
    Args valued;   // the options that take a value, and the layouts
    for (const std::string& a : args) {
        if (a == "--paired") o.Paired = true;
        else if (a == "--early") o.Settings.EarlyStop = true;
        else valued.push_back(a);
    }
    const auto layout = [&](const std::string& a) {
        o.Layouts.push_back(a);
        return true;
    };
    const auto option = [&](const std::string& a, const std::string& value) {
        return ReadOption(o, a, value, attackers, defenders);
    };
    if (!ReadArguments(valued, layout, option) || !attackers || !defenders || o.Games == 0 || o.Layouts.empty())
        return false;
    o.Paired = o.Paired || o.Sprt.On;
    for (MatchPlayer& p : o.Players)
        if (p.Threads == 0) p.Threads = static_cast<int>(o.Threads);
    return !o.Paired || o.Games % 2 == 0;
}

// A layout's games, or under the test the whole match's, counted for the report.
struct Tally {
    long long SideWins[2] = {0, 0}, Draws = 0, Games = 0, Moves = 0;
    GameResults A;                                // player A's
    long long PlayerMoves[2] = {0, 0};            // A's and B's
    double PlayerSeconds[2] = {0, 0};
};

void Count(Tally& t, const GameSummary& game, int sideOfA) {
    ++t.Games;
    if (game.End == Outcome::Draw) {
        ++t.Draws;
        ++t.A.Draws;
    } else {
        const int winner = game.End == Outcome::AttackersWin ? AttackerCode : DefenderCode;
        ++t.SideWins[winner];
        ++(winner == sideOfA ? t.A.Wins : t.A.Losses);
    }
    for (int side : {AttackerCode, DefenderCode}) {
        const int player = side == sideOfA ? PlayerA : PlayerB;
        t.PlayerMoves[player] += game.Moves[side];
        t.PlayerSeconds[player] += game.Seconds[side];
        t.Moves += game.Moves[side];
    }
}

const char* OutcomeText(Outcome end) {
    return end == Outcome::AttackersWin ? "attackers win" : end == Outcome::DefendersWin ? "defenders win" : "draw";
}

// One game on the layout, from the opening of the seed, player A on sideOfA.
// False when the layout cannot be read.
bool PlayOne(const MatchOptions& o, const std::string& layout, long long opening, int sideOfA, Tally& t) {
    CliView view;
    view.Quiet = true;
    Game g;
    PrepareGame(g, view);
    g.GameRules = o.GameRules;
    if (!LoadLayoutArgument(g, layout)) return false;
    g.Check1 = false;
    g.Random.Timer = TickingClock(static_cast<double>(o.Seed) + 1000.0 * static_cast<double>(opening));
    std::string openingMoves;
    const int side = PlayOpening(g, o.Openings, openingMoves);
    const MatchPlayer* bySide[2];
    bySide[sideOfA] = &o.Players[PlayerA];
    bySide[sideOfA ^ 1] = &o.Players[PlayerB];
    const GameSummary game = PlayMatchGame(g, bySide, o.Settings, side);
    Count(t, game, sideOfA);
    if (o.Paired)
        std::cout << "game " << t.Games << ", opening " << opening + 1 << " [" << openingMoves << "]: "
                  << (sideOfA == AttackerCode ? "A" : "B") << " attacks, " << OutcomeText(game.End) << " after "
                  << game.Moves[0] + game.Moves[1] << " moves\n";
    return true;
}

// The games of an opening: once with A attacking, and in pairs once more with the sides swapped.
bool PlayOpeningGames(const MatchOptions& o, const std::string& layout, long long opening, Tally& t) {
    if (!PlayOne(o, layout, opening, AttackerCode, t)) return false;
    return !o.Paired || PlayOne(o, layout, opening, DefenderCode, t);
}

// Up to four numbers in printf's format.
std::string Formatted(const char* format, double a, double b = 0, double c = 0, double d = 0) {
    char text[160];
    std::snprintf(text, sizeof text, format, a, b, c, d);
    return text;
}

// "score of A (strong:5): 6.5 of 10, 65.0% (95%: 35.2% to 94.8%), Elo +107.5 ± 230.0"
void PrintScore(const std::string& label, const MatchOptions& o, const Tally& t) {
    const ScoreInterval s = ScoreOf(t.A);
    const EloEstimate elo = EloOf(s);
    std::cout << label << ": score of " << (o.Paired ? "A" : "the attackers") << " ("
              << MatchPlayerName(o.Players[PlayerA]) << "): " << Formatted("%.1f", t.A.Points()) << " of " << t.Games
              << Formatted(", %.1f%% (95%%: %.1f%% to %.1f%%), Elo %+.1f", 100 * s.Score, 100 * s.Low, 100 * s.High,
                           elo.Elo)
              << Formatted(" ± %.1f", elo.Error) << '\n';
}

void PrintTally(const std::string& label, const MatchOptions& o, const Tally& t) {
    const auto perMove = [&t](int player) {
        return t.PlayerMoves[player] ? 1000 * t.PlayerSeconds[player] / t.PlayerMoves[player] : 0.0;
    };
    std::cout << label << ": ";
    if (o.Paired)
        std::cout << "A wins " << t.A.Wins << ", B wins " << t.A.Losses << ", draws " << t.Draws << "; ";
    std::cout << "attackers win " << t.SideWins[AttackerCode] << ", defenders win " << t.SideWins[DefenderCode];
    if (!o.Paired) std::cout << ", draws " << t.Draws;
    std::cout << "; " << static_cast<double>(t.Moves) / t.Games << " moves a game; " << perMove(PlayerA)
              << (o.Paired ? " ms a move for A, " : " ms a move for the attackers, ") << perMove(PlayerB)
              << (o.Paired ? " ms for B\n" : " ms for the defenders\n");
    PrintScore(label, o, t);
}

// Pairs over the layouts in turn until the ratio leaves its bounds or the games run out.
int RunSprt(const MatchOptions& o) {
    const SprtBounds bounds = SprtBoundsOf(o.Sprt.Alpha, o.Sprt.Beta);
    Tally t;
    double ratio = 0;
    for (long long pair = 0; t.Games < o.Games && ratio > bounds.Lower && ratio < bounds.Upper; ++pair) {
        const std::string& layout = o.Layouts[static_cast<std::size_t>(pair) % o.Layouts.size()];
        if (!PlayOpeningGames(o, layout, pair, t)) return 2;
        ratio = SprtLogLikelihoodRatio(t.A, o.Sprt.Elo0, o.Sprt.Elo1);
        std::cout << "after " << t.Games << " games: A " << t.A.Points() << " of " << t.Games
                  << Formatted(", LLR %.2f (%.2f, %.2f)\n", ratio, bounds.Lower, bounds.Upper);
    }
    PrintTally("all layouts", o, t);
    if (ratio > bounds.Lower && ratio < bounds.Upper) {
        std::cout << "no decision after " << t.Games << " games" << Formatted(" (LLR %.2f)\n", ratio);
        return 0;
    }
    const bool h1 = ratio >= bounds.Upper;
    std::cout << (h1 ? "H1" : "H0") << " accepted: A is "
              << Formatted("%g Elo stronger rather than %g (LLR %.2f", h1 ? o.Sprt.Elo1 : o.Sprt.Elo0,
                           h1 ? o.Sprt.Elo0 : o.Sprt.Elo1, ratio)
              << " after " << t.Games << " games)\n";
    return 0;
}

void PrintHeader(const MatchOptions& o) {
    const std::string a = MatchPlayerName(o.Players[PlayerA]), b = MatchPlayerName(o.Players[PlayerB]);
    if (o.Paired)
        std::cout << "player A " << a << ", player B " << b << ", each opening played twice with the sides swapped, "
                  << o.Games << (o.Sprt.On ? " games at the most" : " games a layout");
    else
        std::cout << "attackers " << a << ", defenders " << b << ", " << o.Games << " games a layout";
    if (!(o.GameRules == Rules::Classic())) std::cout << " under " << o.GameRules.Name;
    if (o.Settings.Clock.Seconds >= 0) std::cout << ", clock " << o.ClockText;
    if (o.Settings.EarlyStop) std::cout << ", early stop";
    if (o.Sprt.On)
        std::cout << Formatted(", SPRT of %g against %g Elo (alpha %g, beta %g)", o.Sprt.Elo1, o.Sprt.Elo0,
                               o.Sprt.Alpha, o.Sprt.Beta);
    std::cout << '\n';
}

}  // namespace

int RunMatch(const Args& args) {
    MatchOptions o;
    if (!ParseOptions(args, o)) {
        std::cerr << MatchUsage;
        return 1;
    }
    const char* classic = !o.Players[PlayerA].Strong   ? "match --attackers classic"
                          : !o.Players[PlayerB].Strong ? "match --defenders classic"
                                                       : nullptr;
    if (classic && !ClassicPlayersMayPlay(o.GameRules, classic)) return 1;
    std::cout << std::fixed << std::setprecision(1);
    PrintHeader(o);
    if (o.Sprt.On) return RunSprt(o);
    for (const std::string& layout : o.Layouts) {
        Tally t;
        for (long long opening = 0; t.Games < o.Games; ++opening)
            if (!PlayOpeningGames(o, layout, opening, t)) return 2;
        PrintTally(layout, o, t);
    }
    return 0;
}

}  // namespace jv::cli
