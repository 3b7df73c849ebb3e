#include "records/GameRecord.h"

#include <algorithm>
#include <string_view>

#include "core/Board.h"
#include "core/Move.h"
#include "core/SilentView.h"
#include "core/VbText.h"
#include "records/Notation.h"
#include "records/PositionRecord.h"

namespace jv {

namespace {

// The view of the game on which each move is made again: it shows nothing
// and keeps the squares CaptureAround takes, in the order it takes them.
class TakingsView : public SilentView {
public:
    std::vector<Square> Taken;
    void MarkVictim(int col, int row) override { Taken.push_back(Square{col, row}); }
};

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

// The move runs along a row or a column over empty squares onto an empty
// square, or the King's onto a Home corner.
bool CheckPath(const Game& g, const LoggedPosition& before, const FoundMove& m, const std::string& text,
               std::string& reason) {
    if (m.From.Col != m.To.Col && m.From.Row != m.To.Row) {
        reason = text + " runs along neither a rank nor a file";
        return false;
    }
    const int dc = m.To.Col > m.From.Col ? 1 : m.To.Col < m.From.Col ? -1 : 0;
    const int dr = m.To.Row > m.From.Row ? 1 : m.To.Row < m.From.Row ? -1 : 0;
    for (int c = m.From.Col + dc, r = m.From.Row + dr; c != m.To.Col || r != m.To.Row; c += dc, r += dr)
        if (before.Letter(c, r) != 'E') {
            reason = text + " passes over " + StandardSquare(g, c, r);
            return false;
        }
    if (before.Letter(m.To.Col, m.To.Row) == 'H' && m.Kind != 'K') {
        reason = text + ": only the King may enter a corner";
        return false;
    }
    return true;
}

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

// Makes the move on the scratch game as the game makes it: the King taken
// by an attacker's move, or at Home, ends it; otherwise it captures. Gives
// the mark written after the move ("#" the King taken, "--" the King home).
std::string MakeMoveAgain(Game& g, TakingsView& view, const FoundMove& m) {
    view.Taken.clear();
    g.Board(m.To.Col, m.To.Row) = g.Board(m.From.Col, m.From.Row);
    g.Board(m.From.Col, m.From.Row) = EmptyCode;
    if (m.Kind == 'K') {
        g.KingCol = m.To.Col;
        g.KingRow = m.To.Row;
    }
    if (m.Kind == 'a' && CheckKingCapture(g)) return "#";
    if (m.Kind == 'K' && IsCorner(g, m.To.Col, m.To.Row)) return "--";
    CaptureAround(g, m.To.Col, m.To.Row);
    g.EventLog.clear();
    return "";
}

// A move as the record writes it, and the side that made it.
struct MoveText {
    std::string Text;
    bool Defenders = false;
};

// The standard text of the move from before to after; false with the reason
// when after is not what one move makes of before.
bool ReadMove(Game& g, TakingsView& view, const LoggedPosition& before, const LoggedPosition& after, MoveText& text,
              std::string& reason) {
    FoundMove m;
    if (!FindMove(g, before, after, m, reason)) return false;
    const std::string move = StandardSquare(g, m.From.Col, m.From.Row) + "-" + StandardSquare(g, m.To.Col, m.To.Row);
    if (!CheckPath(g, before, m, move, reason)) return false;
    SetBoard(g, before);
    const std::string mark = MakeMoveAgain(g, view, m);
    if (EncodePosition(g) != after.Line.substr(4)) {
        if (SameSquares(view.Taken, m.Gone)) {
            reason = "the position after " + move + " is not the one it makes";
        } else {
            reason = move + " takes " + Names(g, view.Taken, "nothing") + ", but " + Names(g, m.Gone, "nothing") +
                     (m.Gone.size() > 1 ? " are" : " is") + " gone";
        }
        return false;
    }
    text.Text = move + (view.Taken.empty() ? "" : "x" + Names(g, view.Taken, "")) + mark;
    text.Defenders = IsDefender(m.Kind);
    return true;
}

// Every move of every piece of before along a free line onto an empty
// square, with the position each leaves behind; a move that ends the game
// (the King taken) leaves none.
template <typename Visit>
void ForEachMove(Game& g, TakingsView& view, const LoggedPosition& before, Visit visit) {
    static constexpr int Steps[4][2] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            const char kind = before.Kind(col, row);
            if (kind == '.') continue;
            for (const auto& step : Steps)
                for (int c = col + step[0], r = row + step[1];
                     c >= 1 && c <= g.BoardWidth && r >= 1 && r <= g.BoardHeight && before.Letter(c, r) == 'E';
                     c += step[0], r += step[1]) {
                    FoundMove m;
                    m.From = Square{col, row};
                    m.To = Square{c, r};
                    m.Kind = kind;
                    SetBoard(g, before);
                    if (!MakeMoveAgain(g, view, m).empty()) continue;
                    LoggedPosition middle = before;
                    middle.Line.replace(4, std::string::npos, EncodePosition(g));
                    middle.KingCol = g.KingCol;
                    middle.KingRow = g.KingRow;
                    visit(middle);
                }
        }
}

// The King's winning move onto a corner is not logged, so a log (or the
// undo history) may hold the position one move before it and then the King
// at Home: two moves apart, the second the King's escape. Both are read
// when exactly one move fits before the escape; false otherwise.
bool ReadMoveAndEscape(Game& g, TakingsView& view, const LoggedPosition& before, const LoggedPosition& after,
                       std::vector<MoveText>& moves, std::string& reason) {
    const int kc = after.KingCol, kr = after.KingRow;
    const bool kingHome = kc >= 1 && kc <= g.BoardWidth && kr >= 1 && kr <= g.BoardHeight && IsCorner(g, kc, kr) &&
                          after.Kind(kc, kr) == 'K';
    if (!kingHome) return false;
    std::vector<std::vector<MoveText>> found;
    ForEachMove(g, view, before, [&](const LoggedPosition& middle) {
        std::string ignored;
        std::vector<MoveText> pair(2);
        if (!ReadMove(g, view, before, middle, pair[0], ignored) || !ReadMove(g, view, middle, after, pair[1], ignored))
            return;
        if (pair[1].Text.size() > 2 && pair[1].Text.compare(pair[1].Text.size() - 2, 2, "--") == 0)
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

// Numbers the moves: each number holds a defenders' move and the attackers'
// move after it; a move that cannot join the number before starts the next.
class MoveNumbers {
public:
    void Add(const std::string& move, bool defenders) {
        if (!defenders && open_) {
            line_ += " " + move;
            open_ = false;
            return;
        }
        Close();
        ++number_;
        line_ = std::to_string(number_) + ". " + (defenders ? "" : "... ") + move;
        open_ = defenders;
    }
    void Close() {
        if (!line_.empty()) lines_.push_back(line_);
        line_.clear();
        open_ = false;
    }
    const std::vector<std::string>& Lines() const { return lines_; }

private:
    std::vector<std::string> lines_;
    std::string line_;
    int number_ = 0;
    bool open_ = false;   // the line holds a defenders' move and waits for the attackers'
};

GameRecordResult Refuse(int line, const std::string& reason) {
    GameRecordResult result;
    result.BadLine = line;
    result.Reason = reason;
    return result;
}

}  // namespace

GameRecordResult MakeGameRecord(const std::vector<std::string>& layoutLines) {
    int width = 0, height = 0;
    if (layoutLines.empty()) return Refuse(1, "no positions");
    if (!ReadSize(layoutLines.front(), width, height)) return Refuse(1, "not a layout line");
    TakingsView view;
    Game g;
    g.View = &view;
    BuildColumnLetters(g);
    NewBoard(g, width, height);

    std::string reason;
    LoggedPosition before, after;
    if (!ReadPosition(g, layoutLines.front(), before, reason)) return Refuse(1, reason);
    MoveNumbers numbers;
    for (std::size_t i = 1; i < layoutLines.size(); ++i) {
        const int lineNumber = static_cast<int>(i) + 1;
        if (!ReadPosition(g, layoutLines[i], after, reason)) return Refuse(lineNumber, reason);
        if (after.Line == before.Line) continue;
        std::vector<MoveText> moves(1);
        if (!ReadMove(g, view, before, after, moves.front(), reason) &&
            !ReadMoveAndEscape(g, view, before, after, moves, reason))
            return Refuse(lineNumber, reason);
        for (const MoveText& move : moves) numbers.Add(move.Text, move.Defenders);
        before = after;
    }
    numbers.Close();

    GameRecordResult result;
    result.Ok = true;
    result.Lines = {"[layout \"" + layoutLines.front() + "\"]",
                    "[size \"" + std::to_string(width) + "x" + std::to_string(height) + "\"]"};
    if (!numbers.Lines().empty()) result.Lines.push_back("");
    result.Lines.insert(result.Lines.end(), numbers.Lines().begin(), numbers.Lines().end());
    return result;
}

}  // namespace jv
