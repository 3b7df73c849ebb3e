// The rule board: the one place where a move, what it takes and how the game stands after it are decided.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <set>
#include <utility>
#include <vector>

#include "core/RuleBoard.h"
#include "records/LayoutFile.h"
#include "session/ComputerMoves.h"
#include "session/PlayerMoves.h"
#include "session/Pointer.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::TestGame;

namespace {

const char* SideName(int side) { return side == AttackerCode ? "attackers" : "defenders"; }

std::string MoveName(const Move& m) {
    return std::to_string(m.From.Col) + "," + std::to_string(m.From.Row) + ">" + std::to_string(m.To.Col) + "," +
           std::to_string(m.To.Row);
}

}  // namespace

TEST(RuleBoard, AllowsExactlyTheMovesItListsAndCounts) {
    // Every shipped layout, as loaded and after rounds of random moves, for either side: a move between
    // any two squares is allowed exactly when the board lists it, and its count of moves is that list's length.
    const struct { const char* layout; int rounds; } rows[] = {
        {"patf.txt", 0}, {"pattern1.txt", 0}, {"pattern2.txt", 0}, {"pattern3.txt", 0}, {"pattern4.txt", 0},
        {"pattern5.txt", 0}, {"patf.txt", 3}, {"pattern1.txt", 2}, {"pattern3.txt", 4}, {"pattern4.txt", 3},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ReadLayoutFile(t.g, jv::test::DataPath(r.layout)).Ok());
        t.g.Random.Timer = TickingClock(7);
        for (int round = 0; round < r.rounds; ++round) RedGreenRandom(t.g);
        for (int side : {DefenderCode, AttackerCode}) {
            const RuleBoard board(t.g, side);
            BoardMove moves[MaxMoves];
            const int n = board.Generate(moves);
            EXPECT_EQ(board.CountMoves(), n) << r.layout << " " << SideName(side);
            std::set<std::pair<int, int>> listed;
            for (int i = 0; i < n; ++i) listed.insert({moves[i].From, moves[i].To});
            for (int from = 0; from < CellCount; ++from)
                for (int to = 0; to < CellCount; ++to) {
                    const Move m{{ColOf(from), RowOf(from)}, {ColOf(to), RowOf(to)}};
                    if (m.From.Col < 1 || m.From.Col > t.g.BoardWidth || m.From.Row < 1 || m.From.Row > t.g.BoardHeight ||
                        m.To.Col < 1 || m.To.Col > t.g.BoardWidth || m.To.Row < 1 || m.To.Row > t.g.BoardHeight)
                        continue;
                    ASSERT_EQ(board.Allows(m), listed.count({from, to}) == 1)
                        << r.layout << " " << SideName(side) << " " << MoveName(m);
                }
        }
    }
}

TEST(RuleBoard, RefusesAMoveWithItsReason) {
    // A piece runs along a row or a column over empty squares; only the King stops on the centre or enters a
    // corner, and every piece may pass the empty centre.
    const auto board = jv::test::LayoutText({"H.....H", "...a...", ".......", "a.....d", ".......", "...K...", "H.....H"});
    const struct { const char* rule; int side; Move move; Refusal why; } rows[] = {
        {"an attacker passes the empty centre", AttackerCode, {{2, 4}, {5, 4}}, Refusal::None},
        {"an attacker stops on it", AttackerCode, {{4, 1}, {4, 4}}, Refusal::CentreForKing},
        {"a defender passes it", DefenderCode, {{4, 7}, {4, 2}}, Refusal::None},
        {"a defender stops on it", DefenderCode, {{4, 7}, {4, 4}}, Refusal::CentreForKing},
        {"the King stops on it", DefenderCode, {{6, 4}, {4, 4}}, Refusal::None},
        {"a piece passes over another", AttackerCode, {{2, 4}, {7, 4}}, Refusal::PassesOver},
        {"an attacker runs into a corner", AttackerCode, {{4, 1}, {1, 1}}, Refusal::CornerForKing},
        {"a move onto a piece", AttackerCode, {{4, 1}, {4, 7}}, Refusal::TargetTaken},
        {"a move of the other side's piece", AttackerCode, {{4, 7}, {4, 5}}, Refusal::NotYourPiece},
        {"a move along no line", AttackerCode, {{2, 4}, {3, 5}}, Refusal::NotStraight},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, board).Ok());
        EXPECT_EQ(static_cast<int>(RuleBoard(t.g, r.side).Check(r.move).Why), static_cast<int>(r.why)) << r.rule;
    }
}

TEST(RuleBoard, KeysAndCapturesFollowEveryMoveAsTheGamesOwnMovesMakeThem) {
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
        ASSERT_TRUE(ApplyLayoutLine(t.g, jv::test::LayoutText(row.cols)).Ok());
        t.g.Check1 = false;   // the computer does not answer the user's drops
        for (int side : {DefenderCode, AttackerCode}) {
            RuleBoard board(t.g, side);
            const std::uint64_t key = board.Key(), count = board.Perft(3);
            BoardMove moves[MaxMoves];
            const int n = board.Generate(moves);
            for (int i = 0; i < n; ++i) {
                const BoardMove m = moves[i];
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
                                                                 std::abs(m.To - board.King()) == CellStride);
                if (!besideKing) {
                    EXPECT_EQ(board.Captures(m), men(next, 1 - side) < men(t.g, 1 - side)) << where;
                }
                MoveUndo undo;
                board.Make(m, undo);
                EXPECT_EQ(board.Key(), RuleBoard(next, 1 - side).Key()) << where;
                board.Unmake(m, undo);
            }
            EXPECT_EQ(board.Key(), key) << row.what << ", " << SideName(side);
            EXPECT_EQ(board.Perft(3), count) << row.what << ", " << SideName(side);
        }
    }
}

TEST(RuleBoard, TheKingsLineToACornerIsFoundInEachOfTheFourDirections) {
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
        ASSERT_TRUE(ApplyLayoutLine(t.g, jv::test::LayoutText(r.cols)).Ok());
        const BoardMove home{static_cast<std::uint8_t>(CellOf(r.home.From.Col, r.home.From.Row)),
                              static_cast<std::uint8_t>(CellOf(r.home.To.Col, r.home.To.Row))};
        EXPECT_EQ(RuleBoard(t.g, AttackerCode).KingRoutes(), 1) << r.way;
        RuleBoard board(t.g, DefenderCode);
        std::array<bool, CellCount> lines{};
        EXPECT_EQ(board.KingRoutes(&lines), 1) << r.way;
        std::vector<int> marked;
        for (int cell = 0; cell < CellCount; ++cell)
            if (lines[cell]) marked.push_back(cell);
        EXPECT_EQ(marked, r.line) << r.way;

        BoardMove moves[MaxMoves];
        const int n = board.Generate(moves);
        EXPECT_EQ(std::count(moves, moves + n, home), 1) << r.way;
        const int tactical = board.GenerateTactical(moves);
        EXPECT_EQ(std::count(moves, moves + tactical, home), 1) << r.way;
        const std::uint8_t corner = home.To;
        ASSERT_EQ(board.GenerateOnto(&corner, 1, moves), 1) << r.way;
        EXPECT_EQ(moves[0], home) << r.way;
        EXPECT_TRUE(board.Allows(r.home) && IsLegalMove(t.g, DefenderCode, r.home)) << r.way;
        MoveUndo undo;
        board.Make(home, undo);
        EXPECT_EQ(board.State(), GameState::KingHome) << r.way;
    }
}
