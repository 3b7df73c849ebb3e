#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ai/DefenderRank.h"
#include "core/Board.h"
#include "session/LayoutCommands.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

TEST(AddDefenderRank, EachItemGetsTheBonusAndTheRank) {
    // Every square of the list gets DefenderBonus plus the rank; the empty tail after the last comma adds
    // nothing; the line is the rank with four digits, a blank and the text.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 7, 7);
    g.DefenderBonus(1, 3) = 3;
    AddDefenderRank(g, "0103,0102,", 9999, "0103,0102, will goto home");
    AddDefenderRank(g, "0103,", 2000, "King can move to border");
    EXPECT_EQ(g.DefenderScore(1, 3), 9999 + 3 + 2000 + 3);
    EXPECT_EQ(g.DefenderScore(1, 2), 9999);
    EXPECT_EQ(g.DefenderScore(0, 0), 0);
    EXPECT_EQ(g.DefenderMovesRank, (Lines{"9999 0103,0102, will goto home", "2000 King can move to border"}));
}

TEST(GetDefenderRank, KingOnTheEdgeWithAFreeRun) {
    // A King with a free run: the run (9999), the two-move slides (9999), his border squares (2000) and the
    // run with his men off the board (1000) add up; the best candidates come first in List1D.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {"...K..."});
    GetDefenderRank(g, 0);
    EXPECT_EQ(g.DefenderMovesRank, (Lines{
        "9999 0103,0102,0105,0106, will goto home", "9999 King to Home in 2 moves",
        "2000 King can move to border", "1000 King can go home indirect"}));
    EXPECT_EQ(g.DefenderScore(1, 3), 9999 + 9999 + 2000 + 1000);
    EXPECT_EQ(g.List2D, (Lines{"22998 0102 <0104", "22998 0103 <0104", "22998 0105 <0104", "22998 0106 <0104",
                               "02000 0704 <0104"}));
    EXPECT_EQ(g.List1D, (Lines{"77001 22998 0104>0102", "77001 22998 0104>0103", "77001 22998 0104>0105",
                               "77001 22998 0104>0106", "97999 02000 0104>0704"}));
    EXPECT_TRUE(t.view.Messages().empty());

    // For a real move the message comes first.
    TestGame u;
    PlacePieces(u.g, 7, 7, {"...K..."});
    GetDefenderRank(u.g, 1);
    EXPECT_EQ(u.view.Messages(), Lines{"King at Home !\r\nClick Reset to start a new game [vbhappy+vbok]"});
    EXPECT_EQ(u.g.DefenderMovesRank, g.DefenderMovesRank);
}

TEST(GetDefenderRank, OwnMenOnTheKingsRunAreMovedAway) {
    // A defender standing on the run the King would have without his men names every square it can move to.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".d.Ka.."});
    GetDefenderRank(g, 0);
    EXPECT_EQ(g.DefenderMovesRank, (Lines{
        "6000 0202,0302,0402,0502,0602,0702,0103, Remove green from King path", "2000 King can move to border",
        "1000 King can go home indirect"}));
    EXPECT_EQ(g.List2D, (Lines{"09000 0103 <0102", "09000 0103 <0104", "06000 0202 <0102", "06000 0302 <0102",
                               "06000 0402 <0102", "06000 0502 <0102", "06000 0602 <0102", "06000 0702 <0102",
                               "02000 0704 <0104"}));
    EXPECT_EQ(g.List1D.front(), "90999 09000 0102>0103");
    EXPECT_EQ(g.List1D.back(), "97999 02000 0104>0704");
    EXPECT_EQ(g.List1D.size(), 9u);
    EXPECT_EQ(g.DefenderScore(1, 2), 1000);   // on the run, but no piece can move there
}

TEST(GetDefenderRank, NearlySurroundedKingAndAttackersToCapture) {
    // Three attackers round the King: his last empty neighbour is named as an item. An attacker that a
    // defender can sandwich next move names the square to go to.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".......", ".......", "...a...", "..aKa..", "......."});
    GetDefenderRank(g, 0);
    ASSERT_FALSE(g.DefenderMovesRank.empty());
    EXPECT_EQ(g.DefenderMovesRank.front(), "9999 0504, Avoid capture");
    EXPECT_EQ(g.List1D.front(), "90000 09999 0404>0504");

    TestGame u;
    PlacePieces(u.g, 7, 7, {".......", ".......", ".da....", ".......", ".......", "...d.K."});
    GetDefenderRank(u.g, 0);
    ASSERT_FALSE(u.g.DefenderMovesRank.empty());
    EXPECT_EQ(u.g.DefenderMovesRank.front(), "5000 0304, Capture Red");
    const Lines& listed = u.g.List1D;
    EXPECT_NE(std::find(listed.begin(), listed.end(), "94999 05000 0604>0304"), listed.end());
}

TEST(GetDefenderRank, ForARealMoveTheAttackersFavouriteSquareIsTakenFirst) {
    // In mode 1 the destination of the attacker's best move is named; on the opening no defender can get
    // there, so no candidate is listed.
    TestGame t;
    t.CopyData();
    Game& g = t.g;
    LoadLayout(g, "patf.txt");
    GetDefenderRank(g, 0);
    EXPECT_TRUE(g.DefenderMovesRank.empty());
    EXPECT_TRUE(g.List1A.empty());
    GetDefenderRank(g, 1);
    EXPECT_EQ(g.DefenderMovesRank, Lines{"9999 0202, Attacker prefered move"});
    EXPECT_EQ(g.DefenderScore(2, 2), 9999);
    EXPECT_TRUE(g.List1D.empty());
    EXPECT_TRUE(g.List2D.empty());
}
