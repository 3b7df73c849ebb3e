#include <iostream>
#include <optional>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "core/Move.h"
#include "core/VbText.h"
#include "records/Configuration.h"
#include "records/GameRecord.h"
#include "records/Notation.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/ComputerMoves.h"
#include "session/LayoutCommands.h"
#include "session/PlayerMoves.h"
#include "session/Pointer.h"
#include "session/Undo.h"

namespace jv::cli {

namespace {

const char* const PlayUsage =
    "usage: jarlsvakt-cli play FILE [--auto-reply] [--seed N] [--rules NAME] MOVE...\n"
    "  MOVE: user:CCRR>CCRR  attacker:CCRR>CCRR  defender:CCRR>CCRR  red  green  undo\n"
    "        (a move may also be written in standard notation, with the King's letter and the marks\n"
    "        of a game record: user:d1-d4, user:Kf6-f5, attacker:d5-b5xb4++)\n";

struct Step {
    std::string Text;   // as given, for the REFUSED line
    std::string Kind;   // "user", "attacker", "defender", "red", "green", "undo"
    Move Squares;
    std::string Standard;   // the move in standard notation ("Kd1-d4x..."), read once the board is known
};

bool AllDigits(const std::string& text) {
    if (text.empty()) return false;
    for (char c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

// "CCRR>CCRR": two squares, each as its column and row in two digits.
std::optional<Move> ParseSquares(const std::string& text) {
    if (text.size() != 9 || text[4] != '>' || !AllDigits(text.substr(0, 4)) || !AllDigits(text.substr(5)))
        return std::nullopt;
    auto two = [&text](std::size_t at) { return (text[at] - '0') * 10 + (text[at + 1] - '0'); };
    return Move{two(0), two(2), two(5), two(7)};
}

std::optional<Step> ParseStep(const std::string& text) {
    if (text == "red" || text == "green" || text == "undo") return Step{text, text, {}, {}};
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) return std::nullopt;
    const std::string kind = text.substr(0, colon);
    if (kind != "user" && kind != "attacker" && kind != "defender") return std::nullopt;
    const std::string move = text.substr(colon + 1);
    if (IsStandardMoveText(move)) return Step{text, kind, {}, move};
    const auto squares = ParseSquares(move);
    if (!squares) return std::nullopt;
    return Step{text, kind, *squares, {}};
}

bool InPlay(const Game& g, int col, int row) {
    return col >= 1 && col <= g.BoardWidth && row >= 1 && row <= g.BoardHeight;
}

// The user's drag and drop; "" when the board took it, else why not.
std::string UserMove(Game& g, const Move& s) {
    if (!g.BoardEnabled) return "the game is over, the board takes no move";
    const std::string before = EncodePosition(g);
    if (BeginDrag(g, s.From.Col, s.From.Row)) EndDrag(g, s.To.Col, s.To.Row);
    if (EncodePosition(g) != before) return "";
    return StandardSquare(g, s.To.Col, s.To.Row) + " is not a square the piece on " +
           StandardSquare(g, s.From.Col, s.From.Row) + " may reach";
}

// A square of a "CCRR>CCRR" step that is not on the board, as written; "" when both are.
std::string SquareOffBoard(const Game& g, const Move& s) {
    for (const Square& square : {s.From, s.To})
        if (!InPlay(g, square.Col, square.Row)) return Format(square.Col, "00") + Format(square.Row, "00");
    return "";
}

// The move a step names, checked against the rules before anything is made:
// "" when they allow it, else why not.
std::string RefuseStepMove(const Game& g, const Step& step, Move& s) {
    const std::string board = "the " + std::to_string(g.BoardWidth) + "x" + std::to_string(g.BoardHeight) + " board";
    WrittenMove w;
    w.Squares = step.Squares;
    if (!step.Standard.empty() && !ReadStandardMove(g, step.Standard, w))
        return step.Standard + " names a square off " + board;
    if (const std::string off = SquareOffBoard(g, w.Squares); !off.empty()) return "the square " + off + " is off " + board;
    s = w.Squares;
    const bool attackers = step.Kind == "attacker" || (step.Kind == "user" && g.Players.UserSide == AttackerCode);
    return RefuseWrittenMove(g, w, attackers ? 'a' : 'd');
}

// Applies one step; "" when it was made, else why it was refused.
std::string Apply(Game& g, const Step& step) {
    Move s;
    if (step.Kind == "red") MakeRedAutoMove(g);
    else if (step.Kind == "green") MakeGreenAutoMove(g);
    else if (step.Kind == "undo") UndoCommand(g);
    else if (const std::string refusal = RefuseStepMove(g, step, s); !refusal.empty()) return refusal;
    else if (step.Kind == "user") return UserMove(g, s);
    else if (step.Kind == "attacker") MakeAttackerMove(g, s);
    else MakeDefenderMove(g, s);
    return "";
}

// What of the run the classic computer players make: the answers of
// --auto-reply and the red and green steps ("" when nothing).
std::string ClassicStepsOf(bool autoReply, const std::vector<Step>& steps) {
    std::string made = autoReply ? "--auto-reply" : "";
    for (const Step& step : steps)
        if (step.Kind == "red" || step.Kind == "green") made += (made.empty() ? "" : ", ") + step.Text;
    return made;
}

}  // namespace

int RunPlay(const Args& args) {
    std::string file;
    bool autoReply = false;
    std::optional<double> seed;
    Rules rules = Rules::Classic();
    std::vector<Step> steps;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--auto-reply") {
            autoReply = true;
        } else if (a == "--seed" && i + 1 < args.size() && AllDigits(args[i + 1]) && args[i + 1].size() <= 9) {
            seed = std::stod(args[++i]);
        } else if (a == "--rules") {
            if (i + 1 == args.size() || !ReadRulesOption(args[++i], rules)) {
                std::cerr << PlayUsage;
                return 1;
            }
        } else if (file.empty()) {
            file = a;
        } else if (const auto step = ParseStep(a)) {
            steps.push_back(*step);
        } else {
            std::cerr << "jarlsvakt-cli play: not a move: " << a << '\n' << PlayUsage;
            return 1;
        }
    }
    if (file.empty()) {
        std::cerr << PlayUsage;
        return 1;
    }
    if (const std::string classic = ClassicStepsOf(autoReply, steps);
        !classic.empty() && !ClassicPlayersMayPlay(rules, "play " + classic))
        return 1;

    CommandGame game;
    Game& g = game.g;
    g.GameRules = rules;
    g.Check1 = autoReply;
    if (seed) {
        // The computer players reseed from the timer before they draw: a
        // timer that stands still makes every draw repeatable.
        g.Random.Randomize(*seed);
        g.Random.Timer = [value = *seed] { return value; };
    }

    // A layout of the program's folder keeps the name given, which the log
    // shows; one found only from the current folder is loaded by its path.
    std::string name = file;
    if (!FileExists(InProgramFolder(g, file)) && FileExists(file)) name = ResolveArgument(g, file);
    LoadLayout(g, name);
    if (g.LayoutFile != name) return 2;   // reported by LoadLayout
    // A refused step is reported and the next ones are still played, so that
    // one run shows every refusal; the exit code then says there was one.
    bool refused = false;
    for (const Step& step : steps) {
        const std::string refusal = Apply(g, step);
        if (refusal.empty()) continue;
        std::cout << "REFUSED " << step.Text << ": " << refusal << '\n';
        refused = true;
    }
    std::cout << "LAYOUT " << LayoutLine(g) << '\n';
    return refused ? 2 : 0;
}

}  // namespace jv::cli
