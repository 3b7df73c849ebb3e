#include "records/GameRecord.h"

#include <algorithm>
#include <sstream>
#include <string_view>

#include "core/Board.h"
#include "core/RuleBoard.h"
#include "core/SilentView.h"
#include "core/VbText.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/PositionRecord.h"
#include "records/RulesRecord.h"

namespace jv {

namespace {

bool AllDigits(std::string_view text) {
    for (char c : text)
        if (c < '0' || c > '9') return false;
    return !text.empty();
}

// One position of the game, as its layout line gives it.
struct LoggedPosition {
    std::string Line;
    int Height = 0, KingCol = 0, KingRow = 0;

    char Letter(int col, int row) const { return Line[static_cast<std::size_t>(7 + (col - 1) * Height + row)]; }
    // 'a' an attacker, 'd' a defender, 'K' the King, '.' no piece.
    char Kind(int col, int row) const {
        const char letter = Letter(col, row);
        if (letter == '1') return 'a';
        if (letter != '0') return '.';
        return col == KingCol && row == KingRow ? 'K' : 'd';
    }
};

bool IsDefender(char kind) { return kind == 'd' || kind == 'K'; }

// A layout line of the game's board; false with the reason when it is not
// one the game can have written.
bool ReadPosition(const Game& g, const std::string& line, LoggedPosition& p, std::string& reason) {
    const int width = g.BoardWidth, height = g.BoardHeight;
    const std::string size = Format(width, "00") + Format(height, "00");
    if (line.size() != static_cast<std::size_t>(8 + width * height) || line.compare(0, 4, size) != 0 ||
        !AllDigits(std::string_view(line).substr(4, 4))) {
        reason = "not a layout line of the " + std::to_string(width) + "x" + std::to_string(height) + " board";
        return false;
    }
    p.Line = line;
    p.Height = height;
    p.KingCol = ValInt(std::string_view(line).substr(4, 2));
    p.KingRow = ValInt(std::string_view(line).substr(6, 2));
    if (p.KingCol > MaxBoardSide || p.KingRow > MaxBoardSide) {
        reason = "the King's square " + line.substr(4, 4) + " lies outside every board";
        return false;
    }
    for (int col = 1; col <= width; ++col)
        for (int row = 1; row <= height; ++row) {
            const char letter = p.Letter(col, row);
            if (letter != 'H' && letter != 'E' && letter != '0' && letter != '1') {
                reason = "the square " + StandardSquare(g, col, row) + " holds no piece letter";
                return false;
            }
            if (letter == 'H' && !IsCorner(g, col, row)) {
                reason = "a Home square off the corners, on " + StandardSquare(g, col, row);
                return false;
            }
        }
    return true;
}

// The board's size from the first line: two digits each, 1 to 14.
bool ReadSize(const std::string& line, int& width, int& height) {
    if (line.size() < 8 || !AllDigits(std::string_view(line).substr(0, 4))) return false;
    width = ValInt(std::string_view(line).substr(0, 2));
    height = ValInt(std::string_view(line).substr(2, 2));
    return width >= 1 && height >= 1 && width <= MaxBoardSide && height <= MaxBoardSide;
}

std::string Names(const Game& g, const std::vector<Square>& squares, const char* none) {
    if (squares.empty()) return none;
    std::string names;
    for (const Square& s : squares) names += (names.empty() ? "" : "/") + StandardSquare(g, s.Col, s.Row);
    return names;
}

// "Kd4-d3" or "e3-e4": a move as the record writes it, before its captures.
std::string WrittenText(const Position& g, const Move& m, bool king) {
    return (king ? "K" : "") + StandardSquareName(g.BoardWidth, m.From.Col, m.From.Row) + "-" +
           StandardSquareName(g.BoardWidth, m.To.Col, m.To.Row);
}

bool SameSquares(std::vector<Square> a, std::vector<Square> b) {
    const auto before = [](const Square& x, const Square& y) { return x.Col != y.Col ? x.Col < y.Col : x.Row < y.Row; };
    std::sort(a.begin(), a.end(), before);
    std::sort(b.begin(), b.end(), before);
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Square& x, const Square& y) { return x.Col == y.Col && x.Row == y.Row; });
}

// A move read off two positions, before its captures are checked.
struct FoundMove {
    Square From, To;
    char Kind = '.';
    std::vector<Square> Gone;   // the enemy pieces no longer there
};

// The squares whose piece came and went between the two positions.
bool CompareSquares(const Game& g, const LoggedPosition& before, const LoggedPosition& after, std::vector<Square>& arrived,
                    std::vector<Square>& left, std::string& reason) {
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            const char was = before.Kind(col, row), is = after.Kind(col, row);
            if (was == is) continue;
            if (was == '.') {
                arrived.push_back(Square{col, row});
            } else if (is == '.') {
                left.push_back(Square{col, row});
            } else {
                reason = was == 'K' || is == 'K' ? "the King's square does not follow a move"
                                                 : "the piece on " + StandardSquare(g, col, row) + " changed sides";
                return false;
            }
        }
    if (arrived.size() == 1) return true;
    reason = arrived.empty() ? "no piece moved" : "pieces arrived on " + Names(g, arrived, "") + ": more than one move";
    return false;
}

// The piece that moved and the enemy pieces gone; false with the reason
// when the changes are not those of one piece's move.
bool FindMove(const Game& g, const LoggedPosition& before, const LoggedPosition& after, FoundMove& m, std::string& reason) {
    std::vector<Square> arrived, left;
    if (!CompareSquares(g, before, after, arrived, left, reason)) return false;
    m.To = arrived.front();
    m.Kind = after.Kind(m.To.Col, m.To.Row);
    const std::string to = StandardSquare(g, m.To.Col, m.To.Row);
    int sources = 0;
    for (const Square& s : left) {
        const char kind = before.Kind(s.Col, s.Row);
        if (kind == m.Kind) {
            m.From = s;
            ++sources;
        } else if (kind == 'K') {
            reason = "the King is gone from " + StandardSquare(g, s.Col, s.Row) + ": he is never taken off the board";
            return false;
        } else if (IsDefender(kind) == IsDefender(m.Kind)) {
            reason = "a piece of the side that moved is gone from " + StandardSquare(g, s.Col, s.Row);
            return false;
        } else {
            m.Gone.push_back(s);
        }
    }
    if (sources != 1) {
        reason = sources == 0 ? "no piece left a square for " + to : "more than one piece left a square for " + to;
        return false;
    }
    return true;
}

// Why the rules refuse the move written as text, in the record's words.
std::string RefusalText(const Position& g, const MoveCheck& check, const std::string& text) {
    const std::string at = StandardSquareName(g.BoardWidth, check.At.Col, check.At.Row);
    switch (check.Why) {
        case Refusal::None: return "";
        case Refusal::OffTheBoard: return text + " leaves the board";
        case Refusal::GameOver: return "the game is over, the board takes no move";
        case Refusal::NotYourPiece: return text + ": " + at + " holds no piece of the side to move";
        case Refusal::NotStraight: return text + " runs along neither a rank nor a file";
        case Refusal::PassesOver: return text + " passes over " + at;
        case Refusal::TargetTaken: return text + " ends on " + at + ", which is not empty";
        case Refusal::CornerForKing: return text + ": only the King may enter a corner";
        case Refusal::CentreForKing: return text + ": only the King may stop on the centre";
    }
    return text + " is not a move";
}

// The side whose piece a kind names.
int SideOf(char kind) { return IsDefender(kind) ? DefenderCode : AttackerCode; }

void SetBoard(Game& g, const LoggedPosition& p) {
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            const char letter = p.Letter(col, row);
            g.Board(col, row) = letter == '1' ? AttackerCode : letter == '0' ? DefenderCode
                                : letter == 'H' ? HomeCode : EmptyCode;
        }
    g.KingCol = p.KingCol;
    g.KingRow = p.KingRow;
}

// The rule board's position written back as a layout line has it: an empty
// corner is a Home square, though under the edge escape the rule board holds
// it as a square like any other.
void WriteBack(const RuleBoard& board, Position& g) {
    board.WriteTo(g);
    for (int col : {1, g.BoardWidth})
        for (int row : {1, g.BoardHeight})
            if (g.Board(col, row) == EmptyCode) g.Board(col, row) = HomeCode;
}

// The threat the side that just moved on the board makes, as OpenTafl marks
// it: "+" when the attackers, were it their turn again, could take the King;
// "-" when the King, were it his side's turn again, could escape at once;
// "" when the move threatens neither. The board is left as it was.
std::string ThreatMark(RuleBoard& board, int mover) {
    board.MakeNull();   // the mover's next move, as if the other side passed
    std::string mark;
    if (mover == DefenderCode) {
        if (board.KingRoutes() > 0) mark = "-";
    } else {
        BoardMove moves[MaxMoves];
        const int n = board.Generate(moves);
        for (int i = 0; i < n && mark.empty(); ++i) {
            MoveUndo undo;
            board.Make(moves[i], undo);
            if (board.State() == GameState::KingTaken) mark = "+";
            board.Unmake(moves[i], undo);
        }
    }
    board.UnmakeNull();
    return mark;
}

// A move made on the rule board: the squares it took, in the order it took
// them, and the mark written after it ("++" the King taken, "--" the King
// home, else the threat it makes, "+" or "-").
struct MadeMove {
    std::vector<Square> Taken;
    std::string Mark;
};

// Makes a move the rule board allows on the scratch game's position.
MadeMove MakeOnBoard(Position& g, const Move& m, int side) {
    RuleBoard board(g, side);
    MoveUndo undo;
    board.Make(RuleBoard::ToBoardMove(m), undo);
    WriteBack(board, g);
    MadeMove made;
    for (int i = 0; i < undo.Count; ++i) made.Taken.push_back(Square{ColOf(undo.Taken[i]), RowOf(undo.Taken[i])});
    made.Mark = board.State() == GameState::KingTaken ? "++"
                : board.State() == GameState::KingHome  ? "--"
                : board.State() == GameState::GoesOn    ? ThreatMark(board, side)
                                                        : "";
    return made;
}

// The standard text of the move from before to after; false with the reason
// when after is not what one move makes of before.
bool ReadMove(Game& g, const LoggedPosition& before, const LoggedPosition& after, PlayedMove& played,
              std::string& reason) {
    FoundMove m;
    if (!FindMove(g, before, after, m, reason)) return false;
    const std::string move = WrittenText(g, Move{m.From, m.To}, m.Kind == 'K');
    SetBoard(g, before);
    reason = RefusalText(g, RuleBoard(g, SideOf(m.Kind)).Check(Move{m.From, m.To}), move);
    if (!reason.empty()) return false;
    const MadeMove made = MakeOnBoard(g, Move{m.From, m.To}, SideOf(m.Kind));
    if (EncodePosition(g) != after.Line.substr(4)) {
        if (SameSquares(made.Taken, m.Gone)) {
            reason = "the position after " + move + " is not the one it makes";
        } else {
            reason = move + " takes " + Names(g, made.Taken, "nothing") + ", but " + Names(g, m.Gone, "nothing") +
                     (m.Gone.size() > 1 ? " are" : " is") + " gone";
        }
        return false;
    }
    played.Written.Squares = Move{m.From, m.To};
    played.Written.King = m.Kind == 'K';
    played.Written.Captures = made.Taken;
    played.Written.CapturesWritten = !made.Taken.empty();
    played.Written.Mark = made.Mark;
    played.Defenders = IsDefender(m.Kind);
    played.After = after.Line;
    return true;
}

// Every move of either side from before that leaves the game going on and
// does not end on a corner, with the position it leaves behind.
template <typename Visit>
void ForEachMove(Game& g, const LoggedPosition& before, Visit visit) {
    for (int side : {DefenderCode, AttackerCode}) {
        SetBoard(g, before);
        RuleBoard board(g, side);
        BoardMove moves[MaxMoves];
        const int n = board.Generate(moves);
        for (int i = 0; i < n; ++i) {
            if (board.At(moves[i].To) == CellCorner) continue;
            MoveUndo undo;
            board.Make(moves[i], undo);
            if (board.State() == GameState::GoesOn) {
                WriteBack(board, g);
                LoggedPosition middle = before;
                middle.Line.replace(4, std::string::npos, EncodePosition(g));
                middle.KingCol = g.KingCol;
                middle.KingRow = g.KingRow;
                visit(middle);
            }
            board.Unmake(moves[i], undo);
        }
    }
}

// The King's winning move onto a corner is not logged, so a log (or the
// undo history) may hold the position one move before it and then the King
// at Home: two moves apart, the second the King's escape. Both are read
// when exactly one move fits before the escape; false otherwise.
bool ReadMoveAndEscape(Game& g, const LoggedPosition& before, const LoggedPosition& after,
                       std::vector<PlayedMove>& moves, std::string& reason) {
    const int kc = after.KingCol, kr = after.KingRow;
    const bool kingHome = kc >= 1 && kc <= g.BoardWidth && kr >= 1 && kr <= g.BoardHeight && IsCorner(g, kc, kr) &&
                          after.Kind(kc, kr) == 'K';
    if (!kingHome) return false;
    std::vector<std::vector<PlayedMove>> found;
    ForEachMove(g, before, [&](const LoggedPosition& middle) {
        std::string ignored;
        std::vector<PlayedMove> pair(2);
        if (!ReadMove(g, before, middle, pair[0], ignored) || !ReadMove(g, middle, after, pair[1], ignored))
            return;
        if (pair[1].Written.Mark == "--")
            found.push_back(pair);
    });
    if (found.empty()) return false;
    if (found.size() > 1) {
        reason = "the King reached " + StandardSquare(g, kc, kr) +
                 " two moves after the line before, and more than one pair of moves leads there";
        return false;
    }
    moves = found.front();
    return true;
}

// Numbers the moves as the sides take turns, two to a number; the side of
// the first move is the side that starts.
class MoveNumbers {
public:
    // False, with the reason, when the side moved last time too.
    bool Add(const std::string& move, bool defenders, std::string& reason) {
        if (count_ > 0 && defenders == lastDefenders_) {
            reason = std::string(defenders ? "the defenders" : "the attackers") + " move twice in a row, " +
                     "where a record has the sides take turns";
            return false;
        }
        if (count_ == 0) defendersFirst_ = defenders;
        if (count_ % 2 == 0) lines_.push_back(std::to_string(count_ / 2 + 1) + ".");
        lines_.back() += " " + move;
        lastDefenders_ = defenders;
        ++count_;
        return true;
    }
    const std::vector<std::string>& Lines() const { return lines_; }
    // Without a move, the side the rules say.
    bool AttackersFirst(const Rules& rules) const { return count_ == 0 ? rules.AttackersFirst : !defendersFirst_; }

private:
    std::vector<std::string> lines_;
    int count_ = 0;
    bool defendersFirst_ = true, lastDefenders_ = true;
};

// An empty board of the record's size under its rules, its positions read
// onto it.
struct RecordBoard {
    RecordBoard(const Rules& rules, int width, int height) {
        g.View = &view;
        g.GameRules = rules;
        BuildColumnLetters(g);
        NewBoard(g, width, height);
    }
    SilentView view;
    Game g;
};

GameRecordResult Refuse(int line, const std::string& reason) {
    GameRecordResult result;
    result.BadLine = line;
    result.Reason = reason;
    return result;
}

// 'K', 'd', 'a' or '.' for the piece on a square.
char KindOn(const Position& g, const Square& s) {
    const int code = g.Board(s.Col, s.Row);
    if (code == AttackerCode) return 'a';
    if (code != DefenderCode) return '.';
    return IsKingOn(g, s.Col, s.Row) ? 'K' : 'd';
}

// The layout line of the scratch game's position.
std::string LineOf(const Game& g) { return Format(g.BoardWidth, "00") + Format(g.BoardHeight, "00") + EncodePosition(g); }

// The parts of an OpenTafl game record: the rules record (from its tag or
// from a line of its own), a position tag, and the moves in their order.
struct RecordParts {
    std::string Rules, Position;
    std::vector<std::string> Moves;
};

bool IsTurnNumber(const std::string& word) {
    return word.size() > 1 && word.back() == '.' && AllDigits(std::string_view(word).substr(0, word.size() - 1));
}

// Reads a part of a turn's address at `at`: digits, a lower-case letter when
// `lettered` (the first or second move of the turn), and a dot.
bool ReadAddressPart(std::string_view word, std::size_t& at, bool lettered) {
    const std::size_t digits = at;
    while (at < word.size() && word[at] >= '0' && word[at] <= '9') ++at;
    if (at == digits) return false;
    if (lettered && (at == word.size() || word[at] < 'a' || word[at] > 'z')) return false;
    at += lettered;
    return at < word.size() && word[at++] == '.';
}

// The address of a turn of a variation, as OpenTafl writes it: the move it
// branches from, then for each level the variation's number and the turn and
// move within it ("7a.1.1a.", "3a.2.1a.1.2a.").
bool IsVariationTurn(std::string_view word) {
    std::size_t at = 0;
    if (!ReadAddressPart(word, at, true)) return false;
    int levels = 0;
    for (; at < word.size(); ++levels)
        if (!ReadAddressPart(word, at, false) || !ReadAddressPart(word, at, true)) return false;
    return levels > 0;
}

// The line of the text on which the character at `at` stands, from 1.
int LineAt(const std::string& text, std::size_t at) {
    return 1 + static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

// Tags and comments are held in brackets; the moves stand between them. The
// moves of a variation are skipped up to the next turn of the main line:
// the main line is the game, as OpenTafl reads it. False, with the reason,
// when a bracket is never closed (it would hide the rest of the record).
bool SplitRecord(const std::string& text, RecordParts& parts, std::string& reason) {
    std::string outside;
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] != '[') {
            outside += text[i++];
            continue;
        }
        const std::size_t close = text.find(']', i);
        if (close == std::string::npos) {
            reason = "the bracket opened on line " + std::to_string(LineAt(text, i)) + " is never closed";
            return false;
        }
        const std::string tag = text.substr(i + 1, close - i - 1);
        if (tag.rfind("rules:", 0) == 0) parts.Rules = tag.substr(6);
        if (tag.rfind("position:", 0) == 0) parts.Position = tag.substr(9);
        outside += ' ';
        i = close + 1;
    }
    std::istringstream words(outside);
    bool inVariation = false;
    for (std::string word; words >> word;) {
        if (IsVariationTurn(word)) inVariation = true;
        else if (IsTurnNumber(word)) inVariation = false;
        else if (inVariation) continue;
        else if (word == "---") break;   // a side resigns
        else if (word.find(':') != std::string::npos) parts.Rules += " " + word;
        else parts.Moves.push_back(word);
    }
    return true;
}

// The start position, the side that starts and the rules, from the rules
// record and the position tag; false with the reason.
bool ReadRules(const RecordParts& parts, std::string& start, bool& attackersFirst, Rules& rules, std::string& reason) {
    if (!ReadRulesRecord(parts.Rules, rules, attackersFirst, reason)) return false;
    std::istringstream fields(parts.Rules);
    std::string dim, otn;
    bool inverted = false;
    for (std::string field; fields >> field;) {
        if (field.rfind("dim:", 0) == 0) dim = field.substr(4);
        if (field.rfind("start:", 0) == 0) otn = field.substr(6);
        if (field.rfind("starti:", 0) == 0) {
            otn = field.substr(7);
            inverted = true;
        }
    }
    if (!parts.Position.empty()) {
        otn = parts.Position;
        inverted = false;
    }
    if (otn.empty()) {
        reason = "no rules record with a start position";
        return false;
    }
    if (!OtnToLayoutLine(otn, start, reason, inverted)) {
        reason = "the start position: " + reason;
        return false;
    }
    const std::string ranks = std::to_string(ValInt(std::string_view(start).substr(0, 2)));
    if (!dim.empty() && dim != ranks) {
        reason = "the rules record gives dim:" + dim + " for a board of " + ranks + " ranks";
        return false;
    }
    return true;
}

}  // namespace

std::string RefuseWrittenMove(const Game& g, const WrittenMove& w, char side) {
    const Move& m = w.Squares;
    const char kind = KindOn(g, m.From);
    const std::string text = WrittenText(g, m, w.King);
    if (kind == '.' || (kind == 'a') != (side == 'a'))
        return StandardSquare(g, m.From.Col, m.From.Row) + " holds no piece of the " +
               (side == 'a' ? "attackers" : "defenders");
    if (w.King && kind != 'K') return "the King does not stand on " + StandardSquare(g, m.From.Col, m.From.Row);
    const std::string reason = RefusalText(g, RuleBoard(g, SideOf(kind)).Check(m), text);
    if (!reason.empty()) return reason;
    Position scratch = g;
    const MadeMove made = MakeOnBoard(scratch, m, SideOf(kind));
    if (w.CapturesWritten && !SameSquares(made.Taken, w.Captures))
        return text + " takes " + Names(g, made.Taken, "nothing") + ", not " + Names(g, w.Captures, "");
    if ((w.Mark == "++" || w.Mark == "--") && w.Mark != made.Mark)
        return text + (w.Mark == "++" ? " does not take the King" : " does not bring the King home");
    return "";
}

GameMovesResult ReadGameMoves(const std::vector<std::string>& layoutLines, const Rules& rules) {
    GameMovesResult result;
    const auto refuse = [&](int line, const std::string& reason) {
        result.BadLine = line;
        result.Reason = reason;
        return result;
    };
    int width = 0, height = 0;
    if (layoutLines.empty()) return refuse(1, "no positions");
    if (!ReadSize(layoutLines.front(), width, height)) return refuse(1, "not a layout line");
    RecordBoard board(rules, width, height);
    Game& g = board.g;

    std::string reason;
    LoggedPosition before, after;
    if (!ReadPosition(g, layoutLines.front(), before, reason)) return refuse(1, reason);
    for (std::size_t i = 1; i < layoutLines.size(); ++i) {
        const int lineNumber = static_cast<int>(i) + 1;
        if (!ReadPosition(g, layoutLines[i], after, reason)) return refuse(lineNumber, reason);
        if (after.Line == before.Line) continue;
        std::vector<PlayedMove> moves(1);
        if (!ReadMove(g, before, after, moves.front(), reason) && !ReadMoveAndEscape(g, before, after, moves, reason))
            return refuse(lineNumber, reason);
        for (PlayedMove& move : moves) {
            move.Line = lineNumber;
            result.Moves.push_back(move);
        }
        before = after;
    }
    result.Ok = true;
    return result;
}

std::string WrittenMoveText(int boardWidth, const WrittenMove& move) {
    std::string text = (move.King ? "K" : "") + StandardSquareName(boardWidth, move.Squares.From.Col, move.Squares.From.Row) +
                       "-" + StandardSquareName(boardWidth, move.Squares.To.Col, move.Squares.To.Row);
    for (std::size_t i = 0; i < move.Captures.size(); ++i)
        text += (i == 0 ? "x" : "/") + StandardSquareName(boardWidth, move.Captures[i].Col, move.Captures[i].Row);
    return text + move.Mark;
}

GameRecordResult MakeGameRecord(const std::vector<std::string>& layoutLines, const Rules& rules) {
    int width = 0, height = 0;
    if (layoutLines.empty()) return Refuse(1, "no positions");
    if (!ReadSize(layoutLines.front(), width, height)) return Refuse(1, "not a layout line");
    if (width != height)
        return Refuse(1, "the board is " + std::to_string(width) + "x" + std::to_string(height) +
                             ", where a record holds a square board");
    RecordBoard board(rules, width, height);
    Game& g = board.g;

    std::string reason;
    LoggedPosition first;
    if (!ReadPosition(g, layoutLines.front(), first, reason)) return Refuse(1, reason);
    SetBoard(g, first);
    // The start is written as OTN, which the readers must take back.
    if (const std::string refusal = OtnRefusal(g); !refusal.empty()) return Refuse(1, refusal);
    // The sides' turns are checked move by move before the position no move
    // leads to, as the record is read.
    const GameMovesResult moves = ReadGameMoves(layoutLines, rules);
    MoveNumbers numbers;
    for (const PlayedMove& move : moves.Moves)
        if (!numbers.Add(WrittenMoveText(width, move.Written), move.Defenders, reason)) return Refuse(move.Line, reason);
    if (!moves.Ok) return Refuse(moves.BadLine, moves.Reason);

    GameRecordResult result;
    result.Ok = true;
    result.Lines = {"[rules:dim:" + std::to_string(width) + " " + RulesRecordKeys(rules, numbers.AttackersFirst(rules)) +
                    " start:" + OtnPosition(g) + "]"};
    if (!numbers.Lines().empty()) result.Lines.push_back("");
    result.Lines.insert(result.Lines.end(), numbers.Lines().begin(), numbers.Lines().end());
    return result;
}

OtnGameResult ReadOtnGame(const std::string& text) {
    OtnGameResult result;
    RecordParts parts;
    if (!SplitRecord(text, parts, result.Reason)) return result;
    std::string start;
    bool attackersFirst = true;
    if (!ReadRules(parts, start, attackersFirst, result.GameRules, result.Reason)) return result;
    SilentView view;
    Game g;
    g.View = &view;
    g.GameRules = result.GameRules;
    BuildColumnLetters(g);
    NewBoard(g, ValInt(std::string_view(start).substr(0, 2)), ValInt(std::string_view(start).substr(2, 2)));
    LoggedPosition position;
    ReadPosition(g, start, position, result.Reason);   // a line OtnToLayoutLine made
    SetBoard(g, position);
    result.Positions.push_back(start);
    std::string end;
    for (std::size_t i = 0; i < parts.Moves.size(); ++i) {
        const std::string where = "move " + std::to_string(i + 1) + " (" + parts.Moves[i] + "): ";
        WrittenMove w;
        if (!end.empty()) {
            result.Reason = where + "the game ended with move " + std::to_string(i);
            return result;
        }
        if (!ReadStandardMove(g, parts.Moves[i], w)) {
            result.Reason = where + "not a move on this board";
            return result;
        }
        const char side = (i % 2 == 0) == attackersFirst ? 'a' : 'd';
        const std::string refusal = RefuseWrittenMove(g, w, side);
        if (!refusal.empty()) {
            result.Reason = where + refusal;
            return result;
        }
        const std::string mark = MakeOnBoard(g, w.Squares, side == 'a' ? AttackerCode : DefenderCode).Mark;
        if (mark == "++" || mark == "--") end = mark;   // a threat ("+", "-") ends nothing
        result.Positions.push_back(LineOf(g));
    }
    result.Ok = true;
    return result;
}

}  // namespace jv
