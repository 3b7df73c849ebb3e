// The move list and the review: the game's moves read off its positions, and the strong player's verdict on each.
#include <gtest/gtest.h>

#include "records/PositionRecord.h"
#include "session/LayoutCommands.h"
#include "session/MoveList.h"
#include "session/PlayerMoves.h"
#include "session/Review.h"
#include "session/Undo.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

// A 7x7 position: a defender on B1 that can take the attacker on C4 against the King on D4, an attacker on F7.
const std::string Start = "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEEEEEEEEEEE1HEEEEEH";

Lines Texts(const Game& g) {
    Lines texts;
    for (const PlayedMove& m : ListMoves(g).Moves) texts.push_back(ListedMoveText(g, m.Written));
    return texts;
}

}  // namespace

TEST(MoveList, FollowsTheMovesAndTheUndoAndKeepsALoadedRecordsLaterMovesWhileSteppingBack) {
    // The list holds every move with its captures, loses the move taken back, and keeps a record's later moves.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("start.txt", Start + "\r\n");
    LoadLayout(g, "start.txt");
    MakeDefenderMove(g, {{2, 1}, {2, 4}});
    MakeAttackerMove(g, {{6, 7}, {6, 4}});
    EXPECT_EQ(Texts(g), (Lines{"B1-B4xC4", "F7-F4"}));
    UndoCommand(g);
    EXPECT_EQ(Texts(g), (Lines{"B1-B4xC4"}));

    t.WriteFile("game.otg", "[rules:dim:7 atkf:n start:/7/6t/7/3K3/3t3/T6/7/]\n\n1. a6-d6xd5 g2-d2\n");
    t.view.FileChoices = {"game.otg"};
    LoadCommand(g);
    g.TaflCoordinates = true;
    EXPECT_EQ(Texts(g), (Lines{"a6-d6xd5", "g2-d2"}));
    ShowListedMove(g, ListMoves(g), -1);
    EXPECT_EQ(LayoutLine(g), Start);
    EXPECT_EQ(ListMoves(g).Shown, -1);
    EXPECT_EQ(Texts(g), (Lines{"a6-d6xd5", "g2-d2"}));
}

TEST(Review, AMoveThatThrowsAWinAwayIsABlunderWithTheBetterMoveAndCountsForItsSide) {
    // The attackers could take the King at once; letting him home loses the most a move can and is marked "??".
    const Lines game = {"05050301HEEEH1EEEE0EEEE1EEEEH1EEH", "05050301HEEEH1EEEE0EEEEEE1EEH1EEH",
                        "05050501HEEEH1EEEEEEEEEEE1EE01EEH"};
    const GameMovesResult moves = ReadGameMoves(game, Rules::Classic());
    ASSERT_TRUE(moves.Ok) << moves.Reason;
    SearchLimits limits;
    limits.MaxDepth = 2;
    const GameReview review = ReviewGame(game.front(), moves.Moves, Rules::Classic(), limits);
    ASSERT_TRUE(review.Complete);
    ASSERT_EQ(review.Moves.size(), 2u);
    EXPECT_EQ(review.Moves[0].Mark, "??");
    EXPECT_EQ(review.Moves[0].Loss, 2 * ScoreCap);
    EXPECT_EQ(review.Moves[0].BestLine.front(), (Move{{5, 2}, {3, 2}}));
    EXPECT_EQ(review.Moves[1].Mark, "");
    const auto sides = Summarise(review, moves.Moves);
    EXPECT_EQ(sides[AttackerCode].Blunders, 1);
    EXPECT_EQ(sides[DefenderCode].Blunders + sides[DefenderCode].Mistakes, 0);
}
