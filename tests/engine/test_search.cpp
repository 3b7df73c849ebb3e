#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include "session/ComputerMoves.h"
#include "ai/Search.h"
#include "ai/SearchBoard.h"
#include "core/Move.h"
#include "core/Perft.h"
#include "session/Pointer.h"
#include "records/LayoutFile.h"
#include "session/PlayerMoves.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::TestGame;

namespace {

void ReadLayout(TestGame& t, const std::string& name) {
    ASSERT_TRUE(ReadLayoutFile(t.g, jv::test::DataPath(name)).Ok());
}

// A board drawn as one text per column, read as its layout line.
void PlacePieces(Game& g, std::initializer_list<const char*> cols) {
    ASSERT_TRUE(ApplyLayoutLine(g, jv::test::LayoutText(cols)).Ok());
}

const char* SideName(int side) { return side == AttackerCode ? "attackers" : "defenders"; }

// A forced position: the side to move, the depth the win or the defence
// needs, and the one move that does it.
struct Forced {
    const char* what;
    std::initializer_list<const char*> cols;   // 7x7, one text per Col, one character per Row
    int side;
    int depth;
    Move move;
};

const Forced ForcedPositions[] = {
    {"the King escapes in one",
     {"...Kd..", ".......", "..a....", ".......", "...a...", ".......", "......."},
     DefenderCode, 1, {1, 4, 1, 1}},
    {"the King is taken in one",
     {".......", ".......", "...a...", "..aK..a", "...a...", ".......", "......."},
     AttackerCode, 1, {4, 7, 4, 5}},
    {"the only move that stops an escape in two",
     {"...K.d.", ".......", ".......", ".......", "..a....", ".....a.", "......."},
     AttackerCode, 2, {5, 3, 1, 3}},
    {"the King's capture against the corner opens his way home",
     {".a..Kd.", ".......", "....a..", ".......", ".......", ".......", "......."},
     DefenderCode, 3, {1, 5, 1, 3}},
};

SearchResult SearchTo(const Game& g, int side, int depth, std::size_t tableMegabytes = 16) {
    SearchLimits limits;
    limits.MaxDepth = depth;
    limits.TableMegabytes = tableMegabytes;
    return SearchBestMove(g, side, limits);
}

std::string MoveName(const Move& m) {
    return std::to_string(m.From.Col) + "," + std::to_string(m.From.Row) + ">" + std::to_string(m.To.Col) + "," +
           std::to_string(m.To.Row);
}

}  // namespace

TEST(Search, OwnMoveCounterAgreesWithPerft) {
    // Every shipped layout from either side, as loaded (to depth 4 with the defenders first) and
    // after rounds of ten random moves a side: the search's own make and unmake count the same move
    // sequences as the game's counter.
    struct Row {
        const char* layout;
        int depths[2];      // the deepest count with the defenders first, with the attackers first
        int randomRounds;   // RedGreenRandom calls before counting
    };
    const Row table[] = {
        {"patf.txt", {4, 3}, 0},     {"pattern1.txt", {4, 4}, 0}, {"pattern2.txt", {4, 3}, 0},
        {"pattern3.txt", {4, 3}, 0}, {"pattern4.txt", {4, 3}, 0}, {"pattern5.txt", {4, 3}, 0},
        {"patf.txt", {3, 3}, 1},     {"pattern1.txt", {4, 4}, 2}, {"pattern3.txt", {3, 3}, 2},
        {"pattern4.txt", {3, 3}, 3},
    };
    for (const Row& row : table) {
        TestGame t;
        ReadLayout(t, row.layout);
        t.g.Random.Timer = TickingClock(7);
        for (int round = 0; round < row.randomRounds; ++round) RedGreenRandom(t.g);
        for (int side : {DefenderCode, AttackerCode}) {
            SearchBoard board(t.g, side);
            for (int depth = 1; depth <= row.depths[side]; ++depth)
                EXPECT_EQ(board.Perft(depth), Perft(t.g, depth, side))
                    << row.layout << " after " << row.randomRounds << " random rounds, " << SideName(side)
                    << " first, depth " << depth;
        }
    }
}

TEST(Search, KeysAndCapturesFollowEveryMoveAsTheGamesOwnMovesMakeThem) {
    // Every move of either side keys and captures as the game's own moves make it, and is taken back whole.
    const struct { const char* what; std::initializer_list<const char*> cols; } rows[] = {
        {"captures for both sides and a King to take",
         {".ad.a..", "a.da.d.", "dK.a..a", ".a.d.d.", "..a.a..", ".d...da", "..a...."}},
        {"the King as the far man of a defender's capture and as the capturing man, never as the attackers' far man",
         {".....a.", "..d....", "..Ka...", ".......", "..a....", "..d.d..", "......."}},
        {"the King sandwiched by two stops the captures of the directions after his",
         {".......", ".......", "..aK..a", "....d..", "....a..", ".......", "......."}},
    };
    const auto men = [](const Game& g, int code) {
        int n = 0;
        for (int c = 1; c <= g.BoardWidth; ++c)
            for (int r = 1; r <= g.BoardHeight; ++r) n += g.Board(c, r) == code;
        return n;
    };
    for (const auto& row : rows) {
        TestGame t;
        PlacePieces(t.g, row.cols);
        t.g.Check1 = false;   // the computer does not answer the user's drops
        for (int side : {DefenderCode, AttackerCode}) {
            SearchBoard board(t.g, side);
            const std::uint64_t key = board.Key(), count = board.Perft(3);
            SearchMove moves[MaxSearchMoves];
            const int n = board.Generate(moves);
            for (int i = 0; i < n; ++i) {
                const SearchMove m = moves[i];
                const std::string where = std::string(row.what) + ", " + SideName(side) + " " +
                                          MoveName({{ColOf(m.From), RowOf(m.From)}, {ColOf(m.To), RowOf(m.To)}});
                Game next = t.g;
                if (side == DefenderCode) {
                    ASSERT_TRUE(BeginDrag(next, ColOf(m.From), RowOf(m.From)));
                    ASSERT_TRUE(EndDrag(next, ColOf(m.To), RowOf(m.To)));
                } else {
                    MakeAttackerMove(next, {{ColOf(m.From), RowOf(m.From)}, {ColOf(m.To), RowOf(m.To)}});
                }
                // An attacker's move beside the King is searched early whatever it takes: there only the key counts.
                const bool besideKing = side == AttackerCode && (std::abs(m.To - board.King()) == 1 ||
                                                                 std::abs(m.To - board.King()) == SearchStride);
                if (!besideKing) {
                    EXPECT_EQ(board.Captures(m), men(next, 1 - side) < men(t.g, 1 - side)) << where;
                }
                SearchUndo undo;
                board.Make(m, undo);
                EXPECT_EQ(board.Key(), SearchBoard(next, 1 - side).Key()) << where;
                board.Unmake(m, undo);
            }
            EXPECT_EQ(board.Key(), key) << row.what << ", " << SideName(side);
            EXPECT_EQ(board.Perft(3), count) << row.what << ", " << SideName(side);
        }
    }
}

TEST(Search, TheKingsLineToACornerIsFoundInEachOfTheFourDirections) {
    // The King's free line to a corner is seen, marked, generated, allowed and won along each of the four directions.
    const struct { const char* way; std::initializer_list<const char*> cols; Move home; std::vector<int> line; } rows[] = {
        {"A4 to A1", {"...K.a.", ".......", ".......", ".......", ".......", ".......", "......."}, {1, 4, 1, 1},
         {CellOf(1, 2), CellOf(1, 3)}},
        {"A4 to A7", {".a.K...", ".......", ".......", ".......", ".......", ".......", "......."}, {1, 4, 1, 7},
         {CellOf(1, 5), CellOf(1, 6)}},
        {"D1 to A1", {".......", ".......", ".......", "K......", ".......", "a......", "......."}, {4, 1, 1, 1},
         {CellOf(2, 1), CellOf(3, 1)}},
        {"D1 to G1", {".......", "a......", ".......", "K......", ".......", ".......", "......."}, {4, 1, 7, 1},
         {CellOf(5, 1), CellOf(6, 1)}},
    };
    for (const auto& r : rows) {
        TestGame t;
        PlacePieces(t.g, r.cols);
        const SearchMove home{static_cast<std::uint8_t>(CellOf(r.home.From.Col, r.home.From.Row)),
                              static_cast<std::uint8_t>(CellOf(r.home.To.Col, r.home.To.Row))};
        EXPECT_EQ(SearchBoard(t.g, AttackerCode).KingRoutes(), 1) << r.way;
        SearchBoard board(t.g, DefenderCode);
        std::array<bool, SearchCells> lines{};
        EXPECT_EQ(board.KingRoutes(&lines), 1) << r.way;
        std::vector<int> marked;
        for (int cell = 0; cell < SearchCells; ++cell)
            if (lines[cell]) marked.push_back(cell);
        EXPECT_EQ(marked, r.line) << r.way;

        SearchMove moves[MaxSearchMoves];
        const int n = board.Generate(moves);
        EXPECT_EQ(std::count(moves, moves + n, home), 1) << r.way;
        const int tactical = board.GenerateTactical(moves);
        EXPECT_EQ(std::count(moves, moves + tactical, home), 1) << r.way;
        const std::uint8_t corner = home.To;
        ASSERT_EQ(board.GenerateOnto(&corner, 1, moves), 1) << r.way;
        EXPECT_EQ(moves[0], home) << r.way;
        EXPECT_TRUE(board.Allows(r.home) && IsLegalMove(t.g, DefenderCode, r.home)) << r.way;
        SearchUndo undo;
        board.Make(home, undo);
        EXPECT_EQ(board.Status(), SearchStatus::KingHome) << r.way;
    }
}

TEST(Search, FindsTheForcedMoveAtTheDepthItNeeds) {
    for (const Forced& f : ForcedPositions) {
        TestGame t;
        PlacePieces(t.g, f.cols);
        const SearchResult r = SearchTo(t.g, f.side, f.depth);
        ASSERT_TRUE(r.HasMove) << f.what;
        EXPECT_EQ(MoveName(r.Best), MoveName(f.move)) << f.what;
        EXPECT_TRUE(IsWinScore(r.Score) || f.side == AttackerCode) << f.what << ": score " << r.Score;
        ASSERT_FALSE(r.Pv.empty()) << f.what;
        EXPECT_EQ(MoveName(r.Pv.front()), MoveName(f.move)) << f.what;
    }
}

TEST(Search, TheTableChangesNotTheForcedMoveAndAFixedDepthRepeats) {
    // Searched two plies deeper than they need, with and without the table, the forced positions
    // keep their move; from the 11x11 opening a fixed depth gives the same move and the same node
    // count every time. (In an open position the table reorders the moves, and the reductions
    // that follow from the order may then settle on another move of about the same score.)
    for (const Forced& f : ForcedPositions) {
        TestGame t;
        PlacePieces(t.g, f.cols);
        const SearchResult with = SearchTo(t.g, f.side, f.depth + 2);
        const SearchResult without = SearchTo(t.g, f.side, f.depth + 2, 0);
        EXPECT_EQ(MoveName(with.Best), MoveName(f.move)) << f.what;
        EXPECT_EQ(MoveName(without.Best), MoveName(f.move)) << f.what;
    }
    TestGame t;
    ReadLayout(t, "patf.txt");
    for (int side : {DefenderCode, AttackerCode}) {
        const SearchResult first = SearchTo(t.g, side, 5), again = SearchTo(t.g, side, 5);
        EXPECT_EQ(MoveName(first.Best), MoveName(again.Best)) << SideName(side);
        EXPECT_EQ(first.Nodes, again.Nodes) << SideName(side);
    }
}

TEST(Search, StopsAtOnceAndStillNamesALegalMove) {
    // A stop already set or a time of one millisecond: the search ends with a move of the side.
    TestGame t;
    ReadLayout(t, "patf.txt");
    std::atomic<bool> stop{true};
    SearchLimits stopped;
    stopped.Stop = &stop;
    SearchLimits brief;
    brief.Millis = 1;
    for (const SearchLimits& limits : {stopped, brief}) {
        const SearchResult r = SearchBestMove(t.g, AttackerCode, limits);
        ASSERT_TRUE(r.HasMove);
        EXPECT_EQ(t.g.Board(r.Best.From.Col, r.Best.From.Row), AttackerCode);
        EXPECT_EQ(t.g.Board(r.Best.To.Col, r.Best.To.Row), EmptyCode);
    }
}
