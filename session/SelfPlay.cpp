#include "session/SelfPlay.h"

#include "core/Board.h"
#include "core/Move.h"
#include "core/RuleBoard.h"
#include "session/ComputerMoves.h"

namespace jv {

bool KingHasFreeRun(const Game& g) { return RuleBoard(g, DefenderCode).KingRoutes() > 0; }

AutoGameResult PlayAutoGame(Game& g, int maxMoves) {
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
    }
    return "";
}

}  // namespace jv
