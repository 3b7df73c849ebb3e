// The computer players' rules one by one: each names the squares it wants with its weight and its words.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "ai/AttackerPlan.h"
#include "ai/AttackerRank.h"
#include "ai/AttackerTactics.h"
#include "ai/DefenderRank.h"
#include "ai/KingRoutes.h"
#include "records/LayoutFile.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::LayoutText;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

TEST(AttackerTactics, EachRuleNamesItsSquaresInItsOrder) {
    // Each attackers' rule adds its lines, value first, in the order it examines the board.
    struct Row { const char* rule; void (*tactic)(Game&); const char* layout; Lines lines; };
    const Row rows[] = {
        {"direct run", BlockKingHome, "07070104HEE0EEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH",
         {"99999 King can go Home direct, block=0103,0102,0105,0106,"}},
        {"home in two", BlockKingHome, "07070204HEEEEEHEEE0EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH",
         {"9000 King can go Home in 2 moves, route=0203,0202,0201,0205,0206,0207,"}},
        {"indirect and border", BlockKingHome, "07070304HEEEEEHEEEEEEEEEE0EEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH",
         {"0600 King can go Home indirect, its route= 0104,0103,0102,0105,0106,", "0400 King can go to border at: 0104",
          "0400 King can go to border at: 0704", "0400 King can go to border at: 0301", "0400 King can go to border at: 0307"}},
        {"corner diagonals", BlockCornerDiagonals, "07070205HEEEEEHEEEE0EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH",
         {"9000 King goes to diag neibor of H (L)", "9000 King goes to diag neibor of H (R)"}},
        {"next to Home", PlaceNextToHome, "07070000H1EEEEHEEEEEEEEEEEEEEEE0EEEEEEEEEEEEEEEEEEHEEEEEH",
         {"0100 0106 : place next to H 2", "0100 0702 : place next to H 7", "0100 0202 : place next to H 9",
          "0100 0602 : place next to H 11"}},
        {"capture near Home", AvoidCaptureNearHome, "07070000H1EEEEHEEEEEEEEEEEEEEEE0EEEEEEEEEEEEEEEEEEHEEEEEH",
         {"5000 0103, Avoid capture near home"}},
        {"last empty neighbour", plan::CheckKingCapture, "07070404HEEEEEHEEEEEEEEEE1EEEEE101EEEEEEEEEEEEEEEEHEEEEEH",
         {"9999 0504 *** capture with one empty around King ****"}},
        {"last empty neighbour, a defender by", plan::CheckKingCapture,
         "07070404HEEEEEHEEEEEEEEEE1EEEEE100EEEEEEEEEEEEEEEEHEEEEEH", {"5000 0504 *** one empty around King ****"}},
        {"several empty neighbours", plan::CheckKingCapture, "07070404HEEEEEHEEEEEEEEEE0EEEEE10EEEEEEEEEEEEEEEEEHEEEEEH",
         Lines(2, "0100 0000 move to any empty location around King")},
        {"no empty neighbour", plan::CheckKingCapture, "07070404HEEEEEHEEEEEEEEEE0EEEEE101EEEEE0EEEEEEEEEEHEEEEEH", {}},
        {"among his own men", plan::CheckKingCapture, "07070404HEEEEEHEEEEEEEEEE0EEEEE000EEEEE0EEEEEEEEEEHEEEEEH",
         Lines(4, "0200 0303 all U around King, take x-empty spaces")},
        {"against a corner", PlanCaptures, "07070000H0EEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH",
         {"7000 0103 : move to capture piece"}},
        {"capture and protect", PlanCaptures, "07070000HEEEEEHEEEEEEEE01EEEEEEEEEEEEEEEEEEEEE0EEEHEEEEEH",
         {"7000 0301 : move to capture piece", "1000 0304 : fill to avoid capture"}},
        {"set up both axes", PlanCaptures, "07070000HEEEEEHEEE1EEEEEEEEEEE1E0E1EEEEEEEEEEE1EEEHEEEEEH",
         {"0100 0403 : place left try to capture", "0100 0405 : place right try to capture",
          "0100 0304 : place above try to capture", "0100 0504 : place down try to capture"}},
        {"no set-up where the defender reaches", PlanCaptures, "07070000HEEEEEHEEEEEEEEEEEEEE1EE0EE1EEEEEEEEEEEEEEHEEEEEH", {}},
        {"around the King", PlaceAroundKing, "07070404HEEEEEHEEEEEEE1EEEEEE1EE0EE11EEEEEEEEEEEEEHEEEEEH",
         {"9000 0403 : place L to king", "9000 0405 : place R to king", "9000 0304 : place U king",
          "9000 0504 : place D king", "5000 0303 : place UL to king", "5000 0305 : place UR to king",
          "5000 0505 : place BR king", "5000 0503 : place BL king"}},
        {"border", PlanBorder, "05050000HEEEHEEEE1EE1EEEEEEEHEEEH",
         {"0300 0202 : move to HD", "0300 0204 : move to HD", "0050 0103 : move to boundary",
          "0050 0503 : move to boundary", "0050 0201 : move to boundary", "0050 0301 : move to boundary",
          "0050 0305 : move to boundary", "0050 0405 : move to boundary"}},
        {"opportunities, diagonal \\", PlanOpportunities, "07070000HEEEEEH1E0EEE1EEE0EEEEEEEEEEEEEEEEEEEEEEEEHEE1EEH",
         {"0100 0202, .G. H opportunity", "0100 0204, .G. H opportunity", "0100 0204, : .G. V opportunity",
          "0100 0404, : .G. V opportunity", "0200 0204, : G\\ 1 opportunity"}},
        {"opportunities, diagonal /", PlanOpportunities, "07070000HEEEEEH1E0EEE1E0EEEEEEEEEEEEEEEEEEEEEEEEEEH1EEEEH",
         {"0100 0202, .G. H opportunity", "0100 0204, .G. H opportunity", "0100 0202, : .G. V opportunity",
          "0100 0402, : .G. V opportunity", "0200 0202, : G/ 1opportunity"}},
    };
    for (const Row& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok()) << r.rule;
        r.tactic(t.g);
        EXPECT_EQ(t.g.AttackerMovesRank, r.lines) << r.rule;
    }
}

TEST(DefenderRank, TheRulesComeFirstAndTheBestCandidateHeadsTheList) {
    // The defenders' rules add their lines in order and List1D starts with the best-scored move.
    // Their score adds 9999 for a free run, 1000 for home in two, 100 per edge square the King reaches,
    // 1000 and 8000 for an attacker they can take beside a corner and 50 per line they hold round one.
    struct Row { const char* rule; const char* layout; Lines lines; const char* best; int score; };
    const Row rows[] = {
        {"a free run", "07070104HEE0EEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH",
         {"9999 0103,0102,0105,0106, will goto home", "9999 King to Home in 2 moves", "2000 King can move to border",
          "1000 King can go home indirect"},
         "77001 22998 0104>0102", 9999 + 5 * 100},
        {"own men on the run", "07070104H0E01EHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH",
         {"6000 0202,0302,0402,0502,0602,0702,0103, Remove green from King path", "2000 King can move to border",
          "1000 King can go home indirect"},
         "90999 09000 0102>0103", -1},
        {"one empty neighbour", "07070404HEEEEEHEEEEEEEEEE1EEEEE101EEEEEEEEEEEEEEEEHEEEEEH",
         {"9999 0504, Avoid capture"}, "90000 09999 0404>0504", -1},
        {"an attacker to take", "07070606HEEEEEHEEEEEEEE01EEEEEEEEEEEEEEEEEEEEE0E0EHEEEEEH", {"5000 0304, Capture Red"}, "", -1},
        {"attackers beside a corner", "07070505H1EEE1HEEE1EEEEEEEEEEEE0E0EEEEE000EEEEE0EEHEEEEEH", {}, "", 1000 + 8000 + 8000 + 50},
        {"home in two", "07070204HEEEEEHEEE0EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", {}, "", 1000 + 4 * 100},
    };
    for (const Row& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok()) << r.rule;
        if (r.score >= 0) EXPECT_EQ(RankOfGreen(t.g), r.score) << r.rule;
        GetDefenderRank(t.g, 0);
        const Lines& got = t.g.DefenderMovesRank;
        EXPECT_EQ(Lines(got.begin(), got.begin() + static_cast<long>(std::min(got.size(), r.lines.size()))), r.lines) << r.rule;
        if (*r.best) EXPECT_EQ(t.g.List1D.empty() ? "" : t.g.List1D.front(), r.best) << r.rule;
    }
}

TEST(KingRoutes, TheKingsWaysHomeAreListedFromHimOutward) {
    // The King's ways home are listed from him outward: 99 a free run, 1 in two moves, 2 from a square he reaches.
    using Route = std::function<int(Game&, std::string&)>;
    const Route HomeInTwoRanked = [](Game& g, std::string& route) {   // -2 when the ranking does not say it once
        const int status = KingHomeInTwo(g, route);
        GetDefenderRank(g, 0);
        const Lines& ranked = g.DefenderMovesRank;
        return std::count(ranked.begin(), ranked.end(), "9999 King to Home in 2 moves") == 1 ? status : -2;
    };
    struct Row { const char* rule; Route find; std::string layout; int status; const char* route; };
    const Row rows[] = {
        {"both ways along a column", RouteFromKing, "07070104HEE0EEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 99, "0103,0102,0105,0106,"},
        {"one way closed", RouteFromKing, "07070104HEE01EHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 99, "0103,0102,"},
        {"both ways closed", RouteFromKing, "07070104H0E01EHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", -1, ""},
        {"along a row", RouteFromKing, "07070401HEEEEEHEEEEEEEEEEEEEE0EEEEEEEEEEEEEEEEEEEEHEEEEEH", 99, "0301,0201,0501,0601,"},
        {"off the edge", RouteFromKing, "07070404HEEEEEHEEEEEEEEEEEEEEEEE0EEEEEEEEEEEEEEEEEHEEEEEH", -1, ""},
        {"beside a corner", RouteFromKing, "07070102H01EEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 99, ""},
        {"two from the last corner", RouteFromKing, "07070501HEEEEEHEEEEEEEEEEEEEE1EEEEEE0EEEEEE1EEEEEEHEEEEEH", 99, ""},
        {"one from the last corner", RouteFromKing, "07070601HEEEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEE0EEEEEEHEEEEEH", 99, "0501,0401,0301,0201,"},
        {"one from the last corner, closed", RouteFromKing, "07070601HEEEEEHEEEEEEE1EEEEEEEEEEEEEEEEEEEE0EEEEEEHEEEEEH", -1, ""},
        // On 8 by 5: beside a corner the King has his route whatever the edge holds, on the second and the
        // next to last square of a column edge, on the second and the third from last of a row edge.
        {"beside the last corner of the first column", RouteFromKing,
         LayoutText({".a.K.", ".....", ".....", ".....", ".....", ".....", ".....", "....."}), 99, ""},
        {"beside the first corner of the last column", RouteFromKing,
         LayoutText({".....", ".....", ".....", ".....", ".....", ".....", ".....", ".K.a."}), 99, ""},
        {"beside the last corner of the last column", RouteFromKing,
         LayoutText({".....", ".....", ".....", ".....", ".....", ".....", ".....", ".a.K."}), 99, ""},
        {"beside the first corner of the first row", RouteFromKing,
         LayoutText({".....", "K....", ".....", ".....", "a....", ".....", ".....", "....."}), 99, ""},
        {"beside the first corner of the last row", RouteFromKing,
         LayoutText({".....", "....K", ".....", ".....", "....a", ".....", ".....", "....."}), 99, ""},
        {"two from the last corner of the last row", RouteFromKing,
         LayoutText({".....", ".....", "....a", ".....", ".....", "....K", "....a", "....."}), 99, ""},
        {"one from the last corner of the last row", RouteFromKing,
         LayoutText({".....", ".....", ".....", ".....", ".....", ".....", "....K", "....."}), 99, "0605,0505,0405,0305,0205,"},
        {"one from the last corner of the last row, closed", RouteFromKing,
         LayoutText({".....", ".....", ".....", "....a", ".....", ".....", "....K", "....."}), -1, ""},
        {"home in two", KingHomeInTwo, "07070204HEEEEEHEEE0EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 99, "0203,0202,0201,0205,0206,0207,"},
        {"slides stopped short", KingHomeInTwo, "07070204HEEEEEH1EE0EE1EEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", -1, ""},
        {"the corner ends a slide", KingHomeInTwo, "07070104HEE0E1HEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 99, "0103,0102,"},
        // A slide that ends beside a corner, along the edge or across onto it, is the King's way Home in two, ranked
        // so. A lone King on 8 by 5: his route slide by slide (left, right, up, down), each from him outward.
        {"along the first column", HomeInTwoRanked,
         LayoutText({"..K..", ".....", ".....", ".....", ".....", ".....", ".....", "....."}), 99, "0102,0104,"},
        {"along the last column", HomeInTwoRanked,
         LayoutText({".....", ".....", ".....", ".....", ".....", ".....", ".....", "..K.."}), 99, "0802,0804,"},
        {"along the first row", HomeInTwoRanked,
         LayoutText({".....", ".....", ".....", "K....", ".....", ".....", ".....", "....."}), 99, "0301,0201,0501,0601,0701,"},
        {"along the last row", HomeInTwoRanked,
         LayoutText({".....", ".....", ".....", "....K", ".....", ".....", ".....", "....."}), 99, "0305,0205,0505,0605,0705,"},
        {"onto the first and the last row, second column", HomeInTwoRanked,
         LayoutText({".....", "..K..", ".....", ".....", ".....", ".....", ".....", "....."}), 99, "0202,0201,0204,0205,"},
        {"onto the first and the last row, next to last column", HomeInTwoRanked,
         LayoutText({".....", ".....", ".....", ".....", ".....", ".....", "..K..", "....."}), 99, "0702,0701,0704,0705,"},
        {"onto the first and the last column, second row", HomeInTwoRanked,
         LayoutText({".....", ".....", ".....", ".K...", ".....", ".....", ".....", "....."}), 99,
         "0302,0202,0102,0502,0602,0702,0802,"},
        {"onto the first and the last column, next to last row", HomeInTwoRanked,
         LayoutText({".....", ".....", ".....", "...K.", ".....", ".....", ".....", "....."}), 99,
         "0304,0204,0104,0504,0604,0704,0804,"},
        {"status in two", KingRouteStatus, "07070204HEEEEEHEEE0EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 1, "0203,0202,0201,0205,0206,0207,"},
        {"status indirect", KingRouteStatus, "07070304HEEEEEHEEEEEEEEEE0EEEEEEEEEEEEEEEEEEEEEEEEHEEEEEH", 2, "0104,0103,0102,0105,0106,"},
        {"status boxed in", KingRouteStatus, "07070404HEEEEEHEEEEEEEEEE1EEEEE101EEEEE1EEEEEEEEEEHEEEEEH", -1, ""},
    };
    for (const Row& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok()) << r.rule;
        std::string route = "junk";
        EXPECT_EQ(r.find(t.g, route), r.status) << r.rule;
        EXPECT_EQ(route, r.route) << r.rule;
    }
}
