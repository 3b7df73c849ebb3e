#include <cmath>
#include <iomanip>
#include <iostream>

#include "ai/Evaluation.h"
#include "cli/Commands.h"
#include "core/RuleBoard.h"
#include "records/ArchiveGames.h"
#include "records/LayoutFile.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/TextFile.h"

namespace jv::cli {

// Fits the strong player's weights to recorded games: every quiet position of
// the games (past their first plies) is judged, and the weights are moved one at
// a time while the judgement, read as the attackers' chance of winning,
// comes closer to how the games ended.

namespace {

const char* const TuneUsage = "usage: jarlsvakt-cli tune GAMES.tsv [--rules NAME] [--from PLY]\n";

const char* const TermNames[TermCount] = {
    "attacker",        "defender",       "free line home",   "escape in two",  "King's square",
    "beside the King", "diagonal",       "step to escape",   "attacker's step", "seal square",
    "sealed corner",   "region square",  "ring closed",
};

struct Sample {
    EvaluationTerms Terms;
    double Result;   // 1 the attackers won, 0 the defenders, 0.5 a draw
};

struct TuneOptions {
    std::string File;
    Rules GameRules = *FindRules("Copenhagen");
    long long FromPly = 8;
};

bool ParseOptions(const Args& args, TuneOptions& o) {
    const auto file = [&](const std::string& a) { return o.File.empty() && !(o.File = a).empty(); };
    const auto option = [&](const std::string& a, const std::string& value) {
        if (a == "--from") return ReadCount(value, o.FromPly);
        return a == "--rules" && ReadRulesOption(value, o.GameRules);
    };
    return ReadArguments(args, file, option) && !o.File.empty();
}

// The positions of one game, replayed on the rule board up to its end or its
// first move the rules refuse.
void AddSamples(const Game& opening, const ArchiveGame& game, long long fromPly, std::vector<Sample>& samples) {
    const double result = game.Winner == "attackers" ? 1 : game.Winner == "defenders" ? 0 : 0.5;
    RuleBoard board(opening, opening.GameRules.AttackersFirst ? AttackerCode : DefenderCode);
    for (std::size_t ply = 0; ply < game.Moves.size() && board.State() == GameState::GoesOn; ++ply) {
        // A King with a free line home is a threat the search plays out, not a judgement.
        if (static_cast<long long>(ply) >= fromPly && board.KingRoutes() == 0) samples.push_back({TermsOf(board), result});
        WrittenMove w;
        if (!ReadStandardMove(opening, WrittenArchiveMove(game.Moves[ply]), w) || !board.Allows(w.Squares)) return;
        MoveUndo undo;
        board.Make(RuleBoard::ToBoardMove(w.Squares), undo);
    }
}

// The mean squared distance between the results and the chances the weights
// give, a judgement of j hundredths being a chance of 1 / (1 + e^(-j / scale)).
double Loss(const std::vector<Sample>& samples, const EvaluationWeights& w, double scale) {
    double sum = 0;
    for (const Sample& s : samples) {
        double judged = 0;
        for (int t = 0; t < TermCount; ++t) judged += w[t] * s.Terms[t];
        const double chance = 1 / (1 + std::exp(-judged / scale));
        sum += (s.Result - chance) * (s.Result - chance);
    }
    return sum / static_cast<double>(samples.size());
}

// The scale that fits the weights best, the interval round it narrowed by thirds.
double FitScale(const std::vector<Sample>& samples, const EvaluationWeights& w) {
    double low = 10, high = 5000;
    for (int i = 0; i < 40; ++i) {
        const double a = low + (high - low) / 3, b = high - (high - low) / 3;
        if (Loss(samples, w, a) < Loss(samples, w, b)) high = b;
        else low = a;
    }
    return (low + high) / 2;
}

// Each weight but the defender's (the unit) moved up or down by its step
// while that helps; a step that helps no more is halved, down to 1.
EvaluationWeights FitWeights(const std::vector<Sample>& samples, EvaluationWeights w, double scale) {
    EvaluationWeights step;
    for (int t = 0; t < TermCount; ++t) step[t] = std::max(1, std::abs(w[t]) / 4);
    double best = Loss(samples, w, scale);
    for (bool moving = true; moving;) {
        moving = false;
        for (int t = 0; t < TermCount; ++t) {
            if (t == TermDefenders) continue;
            bool improved = false;
            for (int sign : {1, -1}) {
                EvaluationWeights tried = w;
                tried[t] += sign * step[t];
                const double loss = Loss(samples, tried, scale);
                if (loss < best) {
                    best = loss, w = tried, improved = true;
                    break;
                }
            }
            if (!improved && step[t] > 1) step[t] /= 2;
            moving = moving || improved || step[t] > 1;
        }
    }
    return w;
}

}  // namespace

int RunTune(const Args& args) {
    TuneOptions o;
    if (!ParseOptions(args, o)) {
        std::cerr << TuneUsage;
        return 1;
    }
    CommandGame game(true);
    std::string text, opening, reason;
    if (!ReadWholeFile(InProgramFolder(game.g, o.File), text)) {
        std::cerr << o.File << ": cannot be read\n";
        return 2;
    }
    const GameArchive archive = ReadGameArchive(text);
    if (archive.Opening.empty()) {
        std::cerr << o.File << ": no archive of recorded games: its first line names no opening\n";
        return 2;
    }
    if (!OtnToLayoutLine(archive.Opening, opening, reason) || !ApplyLayoutLine(game.g, opening).Ok()) {
        std::cerr << o.File << ": the opening cannot be played: " << reason << '\n';
        return 2;
    }
    game.g.GameRules = o.GameRules;
    std::vector<Sample> samples;
    for (const ArchiveGame& g : archive.Games) AddSamples(game.g, g, o.FromPly, samples);
    if (samples.empty()) {
        std::cerr << o.File << ": no position to fit\n";
        return 2;
    }
    const EvaluationWeights& before = WeightsFor(o.GameRules);
    const double scale = FitScale(samples, before);
    const EvaluationWeights after = FitWeights(samples, before, scale);
    std::cout << archive.Games.size() << " games, " << samples.size() << " positions, scale " << std::fixed
              << std::setprecision(0) << scale << std::setprecision(5) << "\nloss before " << Loss(samples, before, scale)
              << ", after " << Loss(samples, after, scale) << '\n';
    for (int t = 0; t < TermCount; ++t)
        std::cout << std::left << std::setw(16) << TermNames[t] << std::right << std::setw(6) << before[t] << " -> "
                  << std::setw(6) << after[t] << '\n';
    return 0;
}

}  // namespace jv::cli
