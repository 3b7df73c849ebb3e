#include <gtest/gtest.h>

#include "ai/Evaluation.h"
#include "ai/KingRegion.h"
#include "records/LayoutFile.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;

namespace {

struct RegionCase {
    const char* what;
    std::initializer_list<const char*> cols;   // 7x7, one text per Col, one character per Row
    const char* rules;
    int squares;
    bool escapes;
};

const RegionCase RegionCases[] = {
    {"a closed diamond holds the King and his four neighbours",
     {"H.....H", "...a...", "..a.a..", ".a.K.a.", "..a.a..", "...a...", "H.....H"}, "Classic", 5, false},
    {"one attacker short of the diamond, the whole board is open",
     {"H.....H", "...a...", "..a.a..", ".a.K...", "..a.a..", "...a...", "H.....H"}, "Classic", 49 - 7, true},
    {"defenders are passed as the King's own side",
     {"H.....H", "...a...", "..ada..", ".adKda.", "..ada..", "...a...", "H.....H"}, "Classic", 5, false},
    {"a pocket on the edge, far from a corner",
     {"..a.a..", "..aKa..", "...a...", ".......", ".......", ".......", "......."}, "Classic", 2, false},
    {"the same pocket where the King escapes on the edge",
     {"..a.a..", "..aKa..", "...a...", ".......", ".......", ".......", "......."}, "Tablut", 2, true},
};

}  // namespace

TEST(KingRegion, IsTheAreaTheKingsSideReachesAndWhetherItTouchesAnEscape) {
    // The King's region spreads over empty squares and defenders, never over an attacker, and
    // escapes when it holds a corner or, where the King escapes on the edge, an edge square.
    for (const RegionCase& c : RegionCases) {
        test::TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, test::LayoutText(c.cols)).Ok()) << c.what;
        t.g.GameRules = *FindRules(c.rules);
        const KingRegion region = FindKingRegion(RuleBoard(t.g, AttackerCode));
        EXPECT_EQ(region.Squares, c.squares) << c.what;
        EXPECT_EQ(region.Escapes, c.escapes) << c.what;
    }
}

TEST(Evaluation, CountsTheAttackersThatSealACorner) {
    // The three squares on the diagonal two steps from a corner seal it; where the King escapes on the edge
    // there is no corner to seal.
    const struct { const char* what; std::initializer_list<const char*> cols; const char* rules; int seals, sealed; } rows[] = {
        {"three seal a corner", {"H.a...H", ".a.....", "a......", "...K...", ".......", ".......", "H.....H"}, "Copenhagen", 3, 1},
        {"two of the three", {"H.a...H", ".......", "a......", "...K...", ".......", ".......", "H.....H"}, "Copenhagen", 2, 0},
        {"beside the corner is no seal", {"Ha....H", "a......", ".......", "...K...", ".......", ".......", "H.....H"}, "Copenhagen", 0, 0},
        {"the edge escape", {"..a....", ".a.....", "a......", "...K...", ".......", ".......", "......."}, "Tablut", 0, 0},
    };
    for (const auto& r : rows) {
        test::TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, test::LayoutText(r.cols)).Ok()) << r.what;
        t.g.GameRules = *FindRules(r.rules);
        const EvaluationTerms terms = TermsOf(RuleBoard(t.g, AttackerCode));
        EXPECT_EQ(terms[TermSealSquares], r.seals) << r.what;
        EXPECT_EQ(terms[TermSealedCorners], r.sealed) << r.what;
    }
}
