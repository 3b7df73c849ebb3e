#include "session/GameEnding.h"

#include <algorithm>

#include "core/Board.h"
#include "core/EventLog.h"
#include "core/GameView.h"
#include "core/RuleBoard.h"
#include "records/PositionRecord.h"

namespace jv {

namespace {

GameEnding EndingOf(GameState state) {
    switch (state) {
        case GameState::KingHome: return GameEnding::KingHome;
        case GameState::KingTaken: return GameEnding::KingTaken;
        case GameState::KingInFort: return GameEnding::KingInFort;
        case GameState::DefendersEncircled: return GameEnding::DefendersEncircled;
        case GameState::GoesOn: break;
    }
    return GameEnding::None;
}

int Winner(GameEnding ending) {
    const bool defenders = ending == GameEnding::KingHome || ending == GameEnding::KingInFort ||
                           ending == GameEnding::AttackersWithoutMove;
    return defenders ? DefenderCode : AttackerCode;
}

}  // namespace

int FirstSide(const Position& g) { return g.GameRules.AttackersFirst ? AttackerCode : DefenderCode; }

int SideToMove(const Game& g) { return g.Undo.size() % 2 == 0 ? FirstSide(g) : OtherSide(FirstSide(g)); }

MoveEnd ForeseeMove(const Game& g, int side, const Move& m) {
    const RuleBoard board = BoardAfter(g, side, m);
    Position after = g;
    board.WriteTo(after);
    MoveEnd end{EndingOf(board.State()), EncodePosition(after)};
    if (end.Ending != GameEnding::None) return end;
    if (g.GameRules.NoMoveLoses && !board.HasMove())
        end.Ending = side == AttackerCode ? GameEnding::DefendersWithoutMove : GameEnding::AttackersWithoutMove;
    else if (g.GameRules.RepetitionLosesForDefenders && std::count(g.Undo.begin(), g.Undo.end(), end.After) >= 2)
        end.Ending = GameEnding::Repetition;
    return end;
}

std::string EndingText(const Position& g, GameEnding ending) {
    switch (ending) {
        case GameEnding::KingHome:
            return HasHomeCorners(g) ? "The King has reached a corner: the defenders win"
                                     : "The King has reached the edge: the defenders win";
        case GameEnding::KingTaken: return "The King is captured: the attackers win";
        case GameEnding::KingInFort: return "The King is safe in a fort on the edge: the defenders win";
        case GameEnding::DefendersEncircled: return "The attackers have closed in every defender: the attackers win";
        case GameEnding::AttackersWithoutMove: return "The attackers cannot move: the defenders win";
        case GameEnding::DefendersWithoutMove: return "The defenders cannot move: the attackers win";
        case GameEnding::Repetition: return "The same position has come round a third time: the attackers win";
        case GameEnding::None: break;
    }
    return "";
}

void EndGame(Game& g, GameEnding ending, const std::string& headline, const char* style) {
    const int gameNumber = g.GameNumber;
    g.View->Show(headline + "\r\nClick Reset to start a new game", style);
    g.View->DoEvents();
    // A reset clicked meanwhile has begun the next game: its board stays open.
    if (g.GameNumber != gameNumber) return;
    g.GameOver = true;
    g.Result = ending;
    g.BoardEnabled = false;
    g.View->EnableBoard(false);
}

void LogEnding(Game& g, GameEnding ending) { PrintLog(g, EndingText(g, ending), Winner(ending) + 1, 0); }

void AnnounceEnding(Game& g, GameEnding ending) {
    LogEnding(g, ending);
    EndGame(g, ending, EndingText(g, ending), Winner(ending) == g.Players.UserSide ? "vbhappy+vbok" : "vbcritical+vbok");
}

}  // namespace jv
