#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "ai/AttackerRank.h"
#include "ai/AutoMove.h"
#include "ai/SelfPlay.h"
#include "core/Board.h"
#include "core/Session.h"
#include "core/VbText.h"
#include "records/Layouts.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

// The King on the edge between two attackers; a third attacker far off is the only one that can move
// without opening his run, and its move beside him is made the one best by a huge weight.
void KingBetweenAttackers(Game& g) {
    PlacePieces(g, 7, 7, {"..aKa..", ".......", ".......", ".......", ".......", ".......", "...a..."});
}

// Int(Rnd * n) from one generator reseeded before every draw with the given
// timer readings, as the random mover draws.
std::vector<long long> ReseededDraws(const std::vector<double>& timer, int n) {
    Chance c;
    std::vector<long long> out;
    for (double t : timer) {
        c.Randomize(t);
        out.push_back(static_cast<long long>(std::floor(c.Rnd() * n)));
    }
    return out;
}

// Int(Rnd * n + 1) after Randomize(seed), as the program draws.
int Draw(double seed, int n) {
    Chance c;
    c.Randomize(seed);
    return static_cast<int>(std::floor(c.Rnd() * n + 1));
}

}  // namespace

TEST(MakeRedAutoMove, ASingleBestMoveIsPlayedWithoutADraw) {
    // One best line: it is played without a random draw; when the move has taken the King the board stays
    // closed, as every finished game does.
    TestGame t;
    Game& g = t.g;
    KingBetweenAttackers(g);
    g.SquareWeight(2, 4) = 200000;
    int timerReads = 0;
    g.Random.Timer = [&] { return ++timerReads, 5.0; };
    MakeRedAutoMove(g);
    EXPECT_EQ(timerReads, 0);
    EXPECT_EQ(g.List3, Lines{"0204 0704 00000"});
    EXPECT_EQ(g.Board(2, 4), AttackerCode);
    EXPECT_EQ(g.Board(7, 4), EmptyCode);
    EXPECT_EQ(t.view.Messages(), Lines{"King Captured !\r\nClick Reset to start a new game [vbcritical+vbok]"});
    EXPECT_EQ(t.view.Calls.back(), "SetBusy 0");
    EXPECT_EQ(t.view.Calls[t.view.Calls.size() - 2], "EnableBoard 0");
    EXPECT_FALSE(g.BoardEnabled);
    EXPECT_TRUE(GameFinished(g));
    EXPECT_EQ(t.view.CallsStartingWith("SetBusy").front(), " 1");
}

TEST(MakeRedAutoMove, TiedBestMovesAreDrawnFromATimerSeededGenerator) {
    // Every line sharing the best score goes into List3; the move is line Int(Rnd * n + 1) - 1 after
    // reseeding from the timer, so different timer readings can give different moves.
    const Lines tied{"0202 0206 99349", "0210 0206 99349", "0202 0602 99349", "1002 0602 99349",
                     "0210 0610 99349", "1010 0610 99349", "1002 1006 99349", "1010 1006 99349"};
    std::set<std::string> played;
    for (double seed : {12345.0, 1.5, 777.25, 40000.0, 86399.0, 3.0}) {
        TestGame t;
        t.CopyData("patf.txt");
        Game& g = t.g;
        LoadLayout(g, "patf.txt");
        g.Random.Timer = [seed] { return seed; };
        MakeRedAutoMove(g);
        ASSERT_EQ(g.List3, tied);
        const std::string& taken = tied[Draw(seed, 8) - 1];
        const int toCol = ValInt(taken.substr(0, 2)), toRow = ValInt(taken.substr(2, 2));
        const int fromCol = ValInt(taken.substr(5, 2)), fromRow = ValInt(taken.substr(7, 2));
        EXPECT_EQ(g.Board(toCol, toRow), AttackerCode) << seed;
        EXPECT_EQ(g.Board(fromCol, fromRow), EmptyCode) << seed;
        played.insert(taken);
    }
    EXPECT_GT(played.size(), 1u);
}

TEST(MakeRedAutoMove, NoMoveForTheAttacker) {
    // With no listed move the board and pointer are given back, the message is shown, and nothing moves.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {"..a..", "..d..", ".dKd.", "..d.."});
    const std::string before = EncodePosition(g);
    t.view.Clear();
    MakeRedAutoMove(g);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.Undo.empty());
    const Lines& calls = t.view.Calls;
    ASSERT_GE(calls.size(), 4u);
    EXPECT_EQ(Lines(calls.end() - 4, calls.end()),
              (Lines{"SetBusy 0", "EnableBoard 1",
                     "Show No move for the Attacker\r\nClick Reset to start another Game [Vbcritical+vbok]", "DoEvents"}));
}

TEST(RandomMover, EveryDrawReseedsFromTheTimer) {
    // Each candidate gets Int(Rnd * 9998) from the generator reseeded from the timer just before; the list is
    // kept in text order and its first line is played straight on the board, without a capture.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {"..a..", "..d..", ".dKd.", "..d.."});
    int reads = 0;
    g.Random.Timer = [&reads] { return ++reads, 7.5; };
    RandomMover(g, AttackerCode);
    EXPECT_EQ(reads, 2);
    // Both draws fall in one timer tick, so they repeat and the order falls back to the squares.
    const std::vector<long long> n = ReseededDraws({7.5, 7.5}, 9998);
    EXPECT_EQ(n[0], n[1]);
    const Lines expected{Format(n[0], "0000") + " 0103>0102", Format(n[1], "0000") + " 0103>0104"};
    EXPECT_EQ(g.List1, expected);
    const int toRow = 2;
    EXPECT_EQ(g.Board(1, toRow), AttackerCode);
    EXPECT_EQ(g.Board(1, 3), EmptyCode);
    EXPECT_EQ(g.Undo.size(), 1u);
    EXPECT_EQ(g.MoveTargets(1, toRow).substr(0, 5), SquareItem(2, toRow));   // analysed again
    EXPECT_EQ(t.view.Calls.back(), "DrawBoard");
}

TEST(RandomMover, SmallestNumberWinsAndTheKingFollows) {
    // The lines are ordered by their numbers; a King that is moved takes his square along.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", "...K."});
    double tick = 100;
    g.Random.Timer = [&tick] { return tick += 1; };
    RandomMover(g, DefenderCode);
    // The King's targets, drawn at 101, 102, ...
    const Lines targets{"0104", "0304", "0404", "0504", "0203", "0202", "0201", "0205"};
    const std::vector<long long> n = ReseededDraws({101, 102, 103, 104, 105, 106, 107, 108}, 9998);
    Lines expected;
    for (std::size_t i = 0; i < targets.size(); ++i) expected.push_back(Format(n[i], "0000") + " 0204>" + targets[i]);
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(g.List1, expected);
    const int toCol = ValInt(expected[0].substr(10, 2)), toRow = ValInt(expected[0].substr(12, 2));
    EXPECT_EQ(g.KingCol, toCol);
    EXPECT_EQ(g.KingRow, toRow);
    EXPECT_EQ(g.Board(toCol, toRow), DefenderCode);
    EXPECT_EQ(g.Board(2, 4), EmptyCode);
}

TEST(RandomMover, ASideWithoutAMoveMovesAndRecordsNothing) {
    // No candidate: no move and no undo record; ten rounds of both sides make twenty records, attackers first.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", "...K."});
    const std::string before = EncodePosition(g);
    RandomMover(g, AttackerCode);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.Undo.empty());
    EXPECT_TRUE(g.List1.empty());

    TestGame u;
    u.CopyData("patf.txt");
    LoadLayout(u.g, "patf.txt");
    const std::string opening = EncodePosition(u.g);
    RedGreenRandom(u.g);
    EXPECT_EQ(u.g.Undo.size(), 20u);
    EXPECT_EQ(u.g.Undo.back(), opening);
}

TEST(MakeGreenAutoMove, PlaysTheFirstLineOfList1D) {
    // The defenders' move is read from the first line of List1D at characters 13, 15, 18 and 20.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".d.Ka.."});
    MakeGreenAutoMove(g);
    EXPECT_EQ(g.List1D.front(), "90999 09000 0102>0103");
    EXPECT_EQ(g.Board(1, 3), DefenderCode);
    EXPECT_EQ(g.Board(1, 2), EmptyCode);
    EXPECT_EQ(g.Undo.size(), 1u);
    EXPECT_EQ(t.view.Calls.back(), "SetBusy 0");
    EXPECT_TRUE(g.BoardEnabled);
}

TEST(MakeGreenAutoMove, NoMoveForTheDefender) {
    // The King boxed in by four attackers and no other defender: the message is shown, nothing moves
    // and the board and pointer are given back.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {".a.....", "aKa....", ".a....."});
    const std::string before = EncodePosition(g);
    t.view.Clear();
    MakeGreenAutoMove(g);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_EQ(t.view.Messages(), Lines{"No move for the Defender\r\nClick Reset to start another Game [Vbcritical+vbok]"});
    const Lines& calls = t.view.Calls;
    EXPECT_EQ(Lines(calls.end() - 2, calls.end()), (Lines{"EnableBoard 1", "SetBusy 0"}));
    EXPECT_TRUE(g.BoardEnabled);
}

TEST(MakeGreenAutoMove, WithoutARankedMoveTheSearchedMoveIsMadeAndExplained) {
    // From the 11x11 opening the ranking lists no defender move: one defender move is made all the
    // same, the event log says why and names the move that was made, and a second game from the same
    // opening gets the same move.
    std::string firstLog;
    for (int game = 0; game < 2; ++game) {
        TestGame t;
        t.CopyData("patf.txt");
        Game& g = t.g;
        LoadLayout(g, "patf.txt");
        g.Check1 = true;   // the attackers' reply is not the defenders' move to make
        const Game before = g;
        MakeGreenAutoMove(g);
        EXPECT_TRUE(t.view.Messages().empty());
        int moved = 0;
        std::string from, to;
        for (int c = 1; c <= g.BoardWidth; ++c)
            for (int r = 1; r <= g.BoardHeight; ++r) {
                if (g.Board(c, r) == before.Board(c, r)) continue;
                ++moved;
                (g.Board(c, r) == DefenderCode ? to : from) = SquareName(g, c, r);
            }
        EXPECT_EQ(moved, 2);
        const auto why = std::find(g.EventLog.begin(), g.EventLog.end(), "No ranked move: searched " + from + " > " + to);
        ASSERT_NE(why, g.EventLog.end()) << from << " > " << to;
        ASSERT_NE(why + 1, g.EventLog.end());
        EXPECT_NE((why + 1)->find("Move " + from + " > " + to), std::string::npos) << *(why + 1);
        if (game == 0) firstLog = *why;
        else EXPECT_EQ(*why, firstLog);
    }
}

TEST(ListMovePreview, APressedLineShowsItsMove) {
    // A pressed line of List1A or List1D shows its move as the drag line from source to destination until released.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 11, 11);
    ListMove m;
    ASSERT_TRUE(ReadListMove("99349 00150 0206>0202", m));
    EXPECT_EQ(m.FromCol, 2);
    EXPECT_EQ(m.FromRow, 6);
    EXPECT_EQ(m.ToCol, 2);
    EXPECT_EQ(m.ToRow, 2);
    EXPECT_FALSE(ReadListMove("0202 0206 99349", m));

    t.view.Clear();
    const Lines list{"77001 22998 0104>0102"};
    PreviewListMove(g, list, 0);
    EXPECT_TRUE(g.DragLineVisible);
    EndListMovePreview(g);
    EXPECT_FALSE(g.DragLineVisible);
    EXPECT_EQ(t.view.Calls, (Lines{"ShowDragLine 1 4 1 2", "HideDragLine"}));

    t.view.Clear();
    PreviewListMove(g, list, 1);
    PreviewListMove(g, Lines{"77001 22998 1504>0102"}, 0);
    EXPECT_TRUE(t.view.Calls.empty());
}

TEST(PlayAutoGame, EndsOnAFreeRunANoMoveOrTheMoveLimit) {
    // A game between the computer players ends, on the defenders' turn, when the King sees a corner along a free
    // line; it also ends when a side has no move or the moves run out.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 7, 7, {"...K..."});
    EXPECT_TRUE(KingHasFreeRun(g));
    AutoGameResult r = PlayAutoGame(g, 300);
    EXPECT_EQ(r.End, GameEnd::KingFreeRun);
    EXPECT_EQ(r.Moves, 0);

    PlacePieces(g, 7, 7, {".d.Ka.."});
    EXPECT_FALSE(KingHasFreeRun(g));
    r = PlayAutoGame(g, 1);
    EXPECT_EQ(r.End, GameEnd::MoveLimit);
    EXPECT_EQ(r.Moves, 1);

    // The King boxed in by four attackers, no other defender.
    PlacePieces(g, 7, 7, {".a.....", "aKa....", ".a....."});
    r = PlayAutoGame(g, 300);
    EXPECT_EQ(r.End, GameEnd::DefendersWithoutMove);
    EXPECT_EQ(r.Moves, 0);
}

TEST(RandomMover, ReadsThePositionAsItStandsNotTheLastTrialsTables) {
    // The random mover's candidates are the moves of the board as it stands, whatever analysis a ranking
    // left behind, so it never lands on a piece.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {"..d..", "..ad.", "..d..", ".....", "...K."});
    g.Board(2, 2) = DefenderCode;   // the attacker's lists still show (2,2) and (2,1) free
    const std::string before = EncodePosition(g);
    RandomMover(g, AttackerCode);
    EXPECT_EQ(EncodePosition(g), before);
    EXPECT_TRUE(g.Undo.empty());
}
