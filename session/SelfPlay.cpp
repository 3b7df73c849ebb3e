#include "session/SelfPlay.h"

#include "core/Board.h"
#include "core/Move.h"
#include "core/RuleBoard.h"
#include "session/ComputerMoves.h"
#include "session/GameEnding.h"

namespace jv {

namespace {

GameEnd EndOf(GameEnding ending) {
    switch (ending) {
        case GameEnding::KingHome: return GameEnd::KingAtHome;
        case GameEnding::KingTaken: return GameEnd::KingCaptured;
        case GameEnding::KingInFort: return GameEnd::KingInFort;
        case GameEnding::DefendersEncircled: return GameEnd::DefendersEncircled;
        case GameEnding::AttackersWithoutMove: return GameEnd::AttackersWithoutMove;
        case GameEnding::DefendersWithoutMove: return GameEnd::DefendersWithoutMove;
        case GameEnding::Repetition: return GameEnd::Repetition;
        case GameEnding::None: break;
    }
    return GameEnd::MoveLimit;
}

// The sides in turn from the side to move, until the game ends, a side makes
// no move or the limit is reached.
AutoGameResult AutoGameUnderRuleSet(Game& g, int maxMoves) {
    AutoGameResult result;
    for (int side = SideToMove(g); !g.GameOver; side = OtherSide(side)) {
        if (result.Moves >= maxMoves) return result;
        const std::size_t records = g.Undo.size();
        MakeAutoMove(g, side);
        if (g.Undo.size() == records) {
            result.End = side == AttackerCode ? GameEnd::AttackersWithoutMove : GameEnd::DefendersWithoutMove;
            return result;
        }
        ++result.Moves;
    }
    result.End = EndOf(g.Result);
    return result;
}

}  // namespace

bool KingHasFreeRun(const Game& g) { return RuleBoard(g, DefenderCode).KingRoutes() > 0; }

AutoGameResult PlayAutoGame(Game& g, int maxMoves) {
    if (!PlaysClassicRules(g)) return AutoGameUnderRuleSet(g, maxMoves);
    AutoGameResult result;
    auto ended = [&](GameEnd end) {
        result.End = end;
        return result;
    };
    for (;;) {
        if (KingAtHome(g)) return ended(GameEnd::KingAtHome);
        if (KingHasFreeRun(g)) return ended(GameEnd::KingFreeRun);
        if (result.Moves >= maxMoves) return ended(GameEnd::MoveLimit);
        // A move is recorded for undo, but for the King's winning move home.
        const std::size_t records = g.Undo.size();
        MakeGreenAutoMove(g);
        if (g.Undo.size() == records && !KingAtHome(g)) return ended(GameEnd::DefendersWithoutMove);
        ++result.Moves;

        if (result.Moves >= maxMoves) return ended(GameEnd::MoveLimit);
        MakeRedAutoMove(g);
        if (g.List1A.empty()) return ended(GameEnd::AttackersWithoutMove);
        ++result.Moves;
        if (CheckKingCapture(g)) return ended(GameEnd::KingCaptured);
    }
}

const char* GameEndText(GameEnd end) {
    switch (end) {
        case GameEnd::KingCaptured: return "King captured";
        case GameEnd::KingAtHome: return "King at Home";
        case GameEnd::KingFreeRun: return "King with a free run home";
        case GameEnd::DefendersWithoutMove: return "no move for the defenders";
        case GameEnd::AttackersWithoutMove: return "no move for the attackers";
        case GameEnd::MoveLimit: return "move limit";
        case GameEnd::KingInFort: return "King in an exit fort";
        case GameEnd::DefendersEncircled: return "defenders encircled";
        case GameEnd::Repetition: return "position repeated a third time";
    }
    return "";
}

}  // namespace jv
