#include "session/ComputerMoves.h"

#include <cmath>

#include "ai/AttackerRank.h"
#include "ai/DefenderRank.h"
#include "ai/Search.h"
#include "core/RuleBoard.h"
#include "core/Analysis.h"
#include "core/Board.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/Move.h"
#include "core/SortedList.h"
#include "core/VbText.h"
#include "session/EngineTurn.h"
#include "session/PlayerMoves.h"
#include "session/SquareNames.h"
#include "session/StrongTurn.h"
#include "session/Undo.h"

namespace jv {

namespace {

// The board is given back after the computer has thought, unless its move
// has ended the game: a finished game keeps the board closed until the next
// layout is loaded.
void SetBoardEnabled(Game& g, bool enabled) {
    enabled = enabled && !g.GameOver;
    g.BoardEnabled = enabled;
    g.View->EnableBoard(enabled);
}

// The number at 1-based character position at, two characters long.
int TwoDigits(const std::string& line, std::size_t at) {
    return ValInt(std::string_view(line).substr(at - 1, 2));
}

// Int(Rnd * n + 1) after reseeding from the timer: 1..n, each equally likely.
int DrawOneOf(Game& g, int n) {
    g.Random.Randomize(g.Random.Timer());
    return static_cast<int>(std::floor(g.Random.Rnd() * n + 1));
}

// List3: the lines of List1A that share the first line's score, as
// destination, source and score ("0305 0301 99949").
void ListTiedBest(Game& g) {
    g.List3.clear();
    const std::string best = g.List1A[0].substr(0, 5);
    for (const std::string& line : g.List1A) {
        if (line.compare(0, 5, best) != 0) break;
        g.List3.push_back(line.substr(17, 4) + " " + line.substr(12, 4) + " " + line.substr(0, 5));
    }
    g.View->RefreshList(ListId::List3);
}

bool SideCanMove(const Game& g, int side) {
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r)
            if (g.Board(c, r) == side && !g.MoveTargets(c, r).empty()) return true;
    return false;
}

// List1: every move of the side behind a random number, the generator
// reseeded from the timer before every draw, so draws within one tick repeat
// and the order falls back to source and destination.
void ListRandomMoves(Game& g, int side) {
    g.List1.clear();
    for (int c = 1; c <= g.BoardWidth; ++c)
        for (int r = 1; r <= g.BoardHeight; ++r) {
            if (g.Board(c, r) != side) continue;
            const std::string& targets = g.MoveTargets(c, r);
            std::size_t start = 0;
            for (std::size_t comma; (comma = targets.find(',', start)) != std::string::npos; start = comma + 1) {
                g.Random.Randomize(g.Random.Timer());
                const int n = static_cast<int>(std::floor(g.Random.Rnd() * 9998));
                InsertSorted(g.List1, Format(n, "0000") + " " + SquareText(c, r) + ">" +
                                          targets.substr(start, comma - start));
            }
        }
    g.View->RefreshList(ListId::List1);
}

bool OnBoard(const Game& g, int col, int row) {
    return col >= 1 && col <= g.BoardWidth && row >= 1 && row <= g.BoardHeight;
}

// The strong player's search depth when the ranking names no move: fixed, so
// that the same position always gets the same move.
constexpr int FallbackDepth = 4;

// The message of a side that truly cannot move. Unless the classic pair
// plays, the automatic game stops there, and the log says why.
void ShowNoMove(Game& g, int side) {
    const std::string text = side == AttackerCode ? "No move for the Attacker" : "No move for the Defender";
    if (!ClassicPairPlays(g)) {
        g.AutoGameRunning = false;
        PrintLog(g, text, side + 1, 0);
    }
    g.View->Show(text + "\r\nClick Reset to start another Game", "Vbcritical+vbok");
}

std::string MoveName(const Game& g, const Move& m) {
    return ShownSquare(g, m.From.Col, m.From.Row) + " > " + ShownSquare(g, m.To.Col, m.To.Row);
}

// The first line of a candidate list whose move the position as it stands allows.
bool FirstLegal(const Game& g, int side, const std::vector<std::string>& list, Move& move) {
    for (const std::string& line : list)
        if (ReadListMove(line, move) && IsLegalMove(g, side, move)) return true;
    return false;
}

// A ranked move the position does not allow is not made: the next legal
// candidate of the list stands in for it, and the event log says so. False
// when no candidate is legal.
bool LegalCandidate(Game& g, int side, const std::vector<std::string>& list, Move& move) {
    if (IsLegalMove(g, side, move)) return true;
    const Move ranked = move;
    if (!FirstLegal(g, side, list, move)) return false;
    PrintLog(g, "Ranked move " + MoveName(g, ranked) + " is not legal: taking " + MoveName(g, move), side + 1, 0);
    return true;
}

// The strong player's move to a fixed depth; false when the side cannot move.
bool SearchedMove(const Game& g, int side, Move& move) {
    SearchLimits limits;
    limits.MaxDepth = FallbackDepth;
    limits.TableMegabytes = 1;
    const SearchResult r = SearchBestMove(g, side, limits);
    if (!r.HasMove) return false;
    move = r.Best;
    return true;
}

// A defender move made as the user's drop is made, so that a King reaching a
// corner wins as the user's King does. The computer does not answer it here:
// the caller's turn order decides who moves next.
void DropDefenderMove(Game& g, const Move& m) {
    const int gameNumber = g.GameNumber;
    AnimateMove(g, m);
    // The pause lets the user's clicks in; they may have changed the game.
    if (g.GameNumber != gameNumber || g.Ending || !IsLegalMove(g, DefenderCode, m)) return;
    g.DragSource = Square{m.From.Col, m.From.Row};
    ShowDragLine(g, m);
    const bool reply = g.Check1;
    g.Check1 = false;
    DropPiece(g, m.To.Col, m.To.Row);
    g.Check1 = reply;
    g.DragSource = Square{};
}

// The turn of the strong player or an outside engine: its move, thought
// over while the window stays live, reaches the board as the classic
// player's would; a search stopped by the user or by a change of the game
// makes no move.
void PlayThoughtMove(Game& g, int side) {
    g.View->SetBusy(true);
    SetBoardEnabled(g, false);
    bool stopped = false;
    const std::optional<Move> move =
        PlayerOf(g, side) == PlayerKind::Engine ? ThinkEngine(g, side, &stopped) : ThinkStrong(g, side, &stopped);
    if (move && side == AttackerCode) MakeAttackerMove(g, *move);
    if (move && side == DefenderCode) DropDefenderMove(g, *move);
    if (!move && !stopped) ShowNoMove(g, side);
    SetBoardEnabled(g, true);
    g.View->SetBusy(false);
}

}  // namespace

PlayerKind PlayerOf(const Game& g, int side) {
    const PlayerKind chosen = side == AttackerCode ? g.Players.Attackers : g.Players.Defenders;
    return chosen == PlayerKind::Classic && !PlaysClassicRules(g) ? PlayerKind::Strong : chosen;
}

bool ClassicPairPlays(const Game& g) {
    return PlayerOf(g, AttackerCode) == PlayerKind::Classic && PlayerOf(g, DefenderCode) == PlayerKind::Classic;
}

void MakeAutoMove(Game& g, int side) {
    if (side == AttackerCode) MakeRedAutoMove(g);
    else MakeGreenAutoMove(g);
}

void MakeRedAutoMove(Game& g) {
    if (PlayerOf(g, AttackerCode) != PlayerKind::Classic) {
        PlayThoughtMove(g, AttackerCode);
        return;
    }
    g.View->SetBusy(true);
    SetBoardEnabled(g, false);
    GetAttackerRank(g);
    if (g.List1A.empty()) {
        g.View->SetBusy(false);
        SetBoardEnabled(g, true);
        ShowNoMove(g, AttackerCode);
        g.View->DoEvents();
        return;
    }
    ListTiedBest(g);
    const int n = static_cast<int>(g.List3.size());
    const std::string& taken = g.List3[n == 1 ? 0 : DrawOneOf(g, n) - 1];
    Move move{{TwoDigits(taken, 6), TwoDigits(taken, 8)}, {TwoDigits(taken, 1), TwoDigits(taken, 3)}};
    if (LegalCandidate(g, AttackerCode, g.List1A, move)) {
        MakeAttackerMove(g, move);
    } else if (SearchedMove(g, AttackerCode, move)) {
        PrintLog(g, "No legal ranked move: searched " + MoveName(g, move), AttackerCode + 1, 0);
        MakeAttackerMove(g, move);
    } else {
        ShowNoMove(g, AttackerCode);
    }
    SetBoardEnabled(g, true);
    g.View->SetBusy(false);
}

void MakeGreenAutoMove(Game& g) {
    if (PlayerOf(g, DefenderCode) != PlayerKind::Classic) {
        PlayThoughtMove(g, DefenderCode);
        return;
    }
    g.View->SetBusy(true);
    SetBoardEnabled(g, false);
    GetDefenderRank(g, 1);
    Move move;
    const bool ranked = !g.List1D.empty() && ReadListMove(g.List1D[0], move);
    if (ranked && LegalCandidate(g, DefenderCode, g.List1D, move)) {
        MakeDefenderMove(g, move);
    } else if (SearchedMove(g, DefenderCode, move)) {
        PrintLog(g, std::string(ranked ? "No legal ranked move" : "No ranked move") + ": searched " + MoveName(g, move),
                 DefenderCode + 1, 0);
        DropDefenderMove(g, move);
    } else {
        ShowNoMove(g, DefenderCode);
    }
    SetBoardEnabled(g, true);
    g.View->SetBusy(false);
}

void RandomMover(Game& g, int side) {
    // The destination lists are read from the position as it stands: after a
    // ranking they may still be those of the ranking's last trial move, and a
    // move taken from them could land on a piece and erase it.
    AnalysePosition(g);
    // A side without a move moves nothing and records nothing.
    if (!SideCanMove(g, side)) {
        g.List1.clear();
        g.View->RefreshList(ListId::List1);
        return;
    }
    RecordMove(g);
    ListRandomMoves(g, side);
    const std::string& line = g.List1[0];
    const int fromCol = TwoDigits(line, 6), fromRow = TwoDigits(line, 8);
    const int toCol = TwoDigits(line, 11), toRow = TwoDigits(line, 13);
    g.Board(toCol, toRow) = g.Board(fromCol, fromRow);
    g.Board(fromCol, fromRow) = EmptyCode;
    if (g.KingCol == fromCol && g.KingRow == fromRow) {
        g.KingCol = toCol;
        g.KingRow = toRow;
    }
    AnalysePosition(g);
    g.View->DrawBoard();
}

void RedGreenRandom(Game& g) {
    for (int round = 0; round < 10; ++round) {
        RandomMover(g, AttackerCode);
        RandomMover(g, DefenderCode);
    }
}

bool ReadListMove(const std::string& line, Move& move) {
    if (line.size() < 21) return false;
    move = {TwoDigits(line, 13), TwoDigits(line, 15), TwoDigits(line, 18), TwoDigits(line, 20)};
    return true;
}

void PreviewListMove(Game& g, const std::vector<std::string>& list, int index) {
    if (index < 0 || index >= static_cast<int>(list.size())) return;
    Move move;
    if (!ReadListMove(list[index], move)) return;
    if (!OnBoard(g, move.From.Col, move.From.Row) || !OnBoard(g, move.To.Col, move.To.Row)) return;
    ShowDragLine(g, move);
}

void EndListMovePreview(Game& g) { HideDragLine(g); }

}  // namespace jv
