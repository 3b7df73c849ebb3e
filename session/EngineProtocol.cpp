#include "session/EngineProtocol.h"

#include <algorithm>
#include <sstream>

#include "ai/Search.h"
#include "core/Board.h"
#include "core/RuleBoard.h"
#include "records/LayoutFile.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/RulesRecord.h"
#include "session/ThinkingTime.h"

namespace jv {

namespace {

// The least time an analysis takes.
constexpr int LeastMillis = 50;

std::vector<std::string> Words(const std::string& line) {
    std::istringstream in(line);
    std::vector<std::string> words;
    for (std::string word; in >> word;) words.push_back(word);
    return words;
}

int SideOf(const std::string& word) { return word == "attackers" ? AttackerCode : DefenderCode; }

double NumberOr(const std::vector<std::string>& words, std::size_t at, double otherwise) {
    if (at >= words.size()) return otherwise;
    try {
        return std::stod(words[at]);
    } catch (...) {
        return otherwise;
    }
}

}  // namespace

EngineProtocol::EngineProtocol(Send send) : send_(std::move(send)) {
    game_.View = &view_;
    BuildColumnLetters(game_);
}

bool EngineProtocol::Handle(const std::string& line) {
    const std::vector<std::string> words = Words(line);
    if (words.empty()) return true;
    const std::string& command = words.front();
    if (command == "goodbye") return false;
    const bool clock = command == "clock";
    if (WaitingToPlay() && !clock) PlayNow();
    if (command == "rules") ReadRules(line.substr(line.find("rules") + 5));
    else if (command == "clock") {
        attackerSeconds_ = NumberOr(words, 1, -1);
        defenderSeconds_ = NumberOr(words, 2, -1);
        overtimeSeconds_ = NumberOr(words, 3, 0);
        attackerOvertimes_ = static_cast<int>(NumberOr(words, 4, 0));
        defenderOvertimes_ = static_cast<int>(NumberOr(words, 5, 0));
    } else if (command == "position" && words.size() > 1 && ready_) {
        std::string reason;
        if (!SetPosition(words[1], reason)) send_("error 0 " + reason);
    } else if (command == "opponent-move" && ready_) {
        OpponentMove(words);
    } else if (command == "play" && words.size() > 1 && ready_) {
        waitingSide_ = SideOf(words[1]);
        return true;
    }
    if (clock && WaitingToPlay()) PlayNow(); else if (command == "analyze" && ready_) {
        Analyze(std::max(1, static_cast<int>(NumberOr(words, 1, 1))), NumberOr(words, 2, 1));
    }
    // Anything else (hello, start, side, finish, simple-moves, an unknown
    // line) asks nothing of the engine: the side comes again with play.
    return true;
}

void EngineProtocol::ReadRules(const std::string& record) {
    Rules rules;
    bool attackersFirst = true;
    std::string reason, otn;
    bool inverted = false;
    for (const std::string& word : Words(record)) {
        if (word.rfind("start:", 0) == 0) otn = word.substr(6);
        if (word.rfind("starti:", 0) == 0) {
            otn = word.substr(7);
            inverted = true;
        }
    }
    std::string line;
    const bool rulesRead = ReadRulesRecord(record, rules, attackersFirst, reason);
    if (rulesRead && otn.empty()) reason = "no start position";
    if (!rulesRead || otn.empty() || !OtnToLayoutLine(otn, line, reason, inverted) ||
        !ApplyLayoutLine(game_, line).Ok()) {
        send_("error 0 " + (reason.empty() ? std::string("the start position cannot be played") : reason));
        return;
    }
    game_.GameRules = rules;
    sideToMove_ = attackersFirst ? AttackerCode : DefenderCode;
    played_ = {PositionKey(game_, sideToMove_)};
    ready_ = true;
}

bool EngineProtocol::SetPosition(const std::string& otn, std::string& reason) {
    std::string line;
    const Rules rules = game_.GameRules;
    if (!OtnToLayoutLine(otn, line, reason) || !ApplyLayoutLine(game_, line).Ok()) return false;
    game_.GameRules = rules;
    return true;
}

void EngineProtocol::OpponentMove(const std::vector<std::string>& words) {
    WrittenMove w;
    if (words.size() < 2) return;
    // The side of the piece that moved, whoever the engine thought was to move.
    const bool read = ReadStandardMove(game_, words[1], w);
    const int mover = read && game_.Board(w.Squares.From.Col, w.Squares.From.Row) == AttackerCode ? AttackerCode : DefenderCode;
    if (!read || !MakeMove(words[1], mover)) {
        send_("error 3");
        return;
    }
    std::string reason;
    if (words.size() > 2 && !SetPosition(words[2], reason)) send_("error 0 " + reason);
}

// Makes a move of the side on the engine's own board; false when the rule
// board refuses it.
bool EngineProtocol::MakeMove(const std::string& text, int side) {
    WrittenMove w;
    if (!ReadStandardMove(game_, text, w)) return false;
    RuleBoard board(game_, side);
    if (!board.Allows(w.Squares)) return false;
    MoveUndo undo;
    board.Make(RuleBoard::ToBoardMove(w.Squares), undo);
    board.WriteTo(game_);
    sideToMove_ = side == AttackerCode ? DefenderCode : AttackerCode;
    played_.push_back(PositionKey(game_, sideToMove_));
    return true;
}

int EngineProtocol::MoveMillis(int side) const {
    SideClock clock;
    clock.Seconds = side == AttackerCode ? attackerSeconds_ : defenderSeconds_;
    clock.OvertimeSeconds = overtimeSeconds_;
    clock.Overtimes = side == AttackerCode ? attackerOvertimes_ : defenderOvertimes_;
    return ThinkingMillis(clock);
}

void EngineProtocol::PlayNow() {
    const int side = waitingSide_;
    waitingSide_ = -1;
    if (side >= 0) Play(side);
}

void EngineProtocol::Play(int side) {
    sideToMove_ = side;
    SearchLimits limits;
    limits.Millis = MoveMillis(side);
    limits.Threads = MachineThreads();
    limits.Played = played_;
    const SearchResult r = SearchBestMove(game_, side, limits, [&](const SearchProgress& p) {
        send_("status depth " + std::to_string(p.Depth) + " score " + std::to_string(p.Score) + " nodes " +
              std::to_string(p.Nodes) + " pv " + LineText(p.Pv));
    });
    if (!r.HasMove) return;
    const std::string text = MoveText(r.Best);
    MakeMove(text, side);
    send_("move " + text);
}

void EngineProtocol::Analyze(int lines, double seconds) {
    SearchLimits limits;
    limits.Millis = std::max(LeastMillis, static_cast<int>(seconds * 1000 * 0.6));
    limits.Played = played_;
    const SearchResult best = SearchBestMove(game_, sideToMove_, limits);
    if (!best.HasMove) return;
    struct Line {
        std::vector<Move> Moves;
        int Score;
    };
    std::vector<Line> found{{best.Pv.empty() ? std::vector<Move>{best.Best} : best.Pv, best.Score}};
    // The other moves, each searched a little less deep from the position after it.
    RuleBoard board(game_, sideToMove_);
    BoardMove moves[MaxMoves];
    const int n = board.Generate(moves);
    const int other = sideToMove_ == AttackerCode ? DefenderCode : AttackerCode;
    for (int i = 0; i < n && lines > 1; ++i) {
        const Move m = RuleBoard::ToMove(moves[i]);
        if (m == best.Best) continue;
        Position after = game_;
        RuleBoard next = board;
        MoveUndo undo;
        next.Make(moves[i], undo);
        next.WriteTo(after);
        SearchLimits reply;
        reply.MaxDepth = std::max(1, best.Depth - 2);
        reply.Millis = std::max(1, static_cast<int>(seconds * 1000 * 0.4 / n));
        reply.TableMegabytes = 1;
        const SearchResult r = next.State() == GameState::GoesOn ? SearchBestMove(after, other, reply) : SearchResult{};
        std::vector<Move> line{m};
        line.insert(line.end(), r.Pv.begin(), r.Pv.end());
        found.push_back({line, r.HasMove ? -r.Score : (next.State() == GameState::GoesOn ? 0 : SearchWin - 1)});
    }
    std::stable_sort(found.begin() + 1, found.end(), [](const Line& a, const Line& b) { return a.Score > b.Score; });
    found.resize(std::min<std::size_t>(found.size(), static_cast<std::size_t>(lines)));
    std::string text = "analysis " + std::to_string(found.size());
    for (const Line& line : found) text += " " + LineText(line.Moves) + " " + std::to_string(line.Score);
    send_(text);
}

std::string EngineProtocol::MoveText(const Move& m) const {
    return StandardSquare(game_, m.From.Col, m.From.Row) + "-" + StandardSquare(game_, m.To.Col, m.To.Row);
}

// The moves of a line in simple notation, joined by '|': each square named on
// the board as it stands after the moves before it (the squares do not
// change with the position).
std::string EngineProtocol::LineText(const std::vector<Move>& line) const {
    std::string text;
    for (const Move& m : line) text += (text.empty() ? "" : "|") + MoveText(m);
    return text;
}

}  // namespace jv
