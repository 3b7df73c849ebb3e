#include <gtest/gtest.h>

#include <random>
#include <regex>
#include <utility>

#include "core/Board.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/OtnFile.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::DataPath;
using jv::test::PlacePieces;
using jv::test::TestGame;

namespace {

const char* const OpeningOtn = "/3ttttt3/5t5/11/t4T4t/t3TTT3t/tt1TTKTT1tt/t3TTT3t/t4T4t/11/5t5/3ttttt3/";
const char* const BrandubhOtn = "/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/";
const char* const BrandubhLine = "07070404HEE1EEHEEE1EEEEEE0EEE1100011EEE0EEEEEE1EEEHEE1EEH";

// The reason an OTN position is refused with ("" when it is read).
std::string Refusal(const std::string& otn) {
    std::string line, reason;
    return OtnToLayoutLine(otn, line, reason) ? "" : reason;
}

// A random position of a random size: every square not a corner empty, an
// attacker or a defender, and the King on a square that is not a corner.
void RandomPosition(Game& g, std::mt19937& random) {
    std::uniform_int_distribution<int> side(3, MaxBoardSide), piece(0, 3);
    NewBoard(g, side(random), side(random));
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            if (IsCorner(g, col, row)) continue;
            const int p = piece(random);
            g.Board(col, row) = p == 0 ? AttackerCode : p == 1 ? DefenderCode : EmptyCode;
        }
    std::uniform_int_distribution<int> col(1, g.BoardWidth), row(1, g.BoardHeight);
    do {
        g.KingCol = col(random);
        g.KingRow = row(random);
    } while (IsCorner(g, g.KingCol, g.KingRow));
    g.Board(g.KingCol, g.KingRow) = DefenderCode;
}

}  // namespace

TEST(Notation, StandardSquaresCountFilesFromTheLeftAndRanksFromTheBottom) {
    // Files a, b, ... run across (the Row); ranks 1, 2, ... run up from the last letter (rank = width - Col + 1).
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 9, 7);   // 9 Cols down (ranks 1..9), 7 Rows across (files a..g)
    EXPECT_EQ(StandardSquare(g, 1, 1), "a9");   // A1, top left
    EXPECT_EQ(StandardSquare(g, 9, 1), "a1");   // I1, bottom left
    EXPECT_EQ(StandardSquare(g, 9, 7), "g1");   // I7, bottom right
    EXPECT_EQ(StandardSquare(g, 1, 7), "g9");   // A7, top right
    EXPECT_EQ(SquareName(g, 3, 5), "C5");
    EXPECT_EQ(StandardSquare(g, 3, 5), "e7");

    for (int col = 1; col <= 9; ++col)
        for (int row = 1; row <= 7; ++row) {
            int c = 0, r = 0;
            ASSERT_TRUE(ReadStandardSquare(g, StandardSquare(g, col, row), c, r)) << col << "," << row;
            EXPECT_EQ(std::make_pair(c, r), std::make_pair(col, row));
        }

    int c = -5, r = -5;
    for (const char* text : {"h1", "a10", "a0", "a01", "A1", "", "a", "1a", "a1x", "aa1", "a-1", "a 1"})
        EXPECT_FALSE(ReadStandardSquare(g, text, c, r)) << text;
    EXPECT_EQ(std::make_pair(c, r), std::make_pair(-5, -5));   // left as they were

    NewBoard(g, 14, 14);
    EXPECT_EQ(StandardSquare(g, 1, 14), "n14");
    ASSERT_TRUE(ReadStandardSquare(g, "n14", c, r));
    EXPECT_EQ(std::make_pair(c, r), std::make_pair(1, 14));
}

TEST(Notation, AStandardMoveIsTwoSquaresJoinedByADash) {
    // "d1-d4" names a move from one square of the board to another; anything else is no standard move.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 9, 7);
    EXPECT_TRUE(IsStandardMoveText("d1-d4"));
    EXPECT_TRUE(IsStandardMoveText("z99-a1"));   // the form holds whatever the board
    for (const char* text : {"d1d4", "d1-", "-d4", "0304>0302", "d1-d4x", "d1--d4", "D1-D4"})
        EXPECT_FALSE(IsStandardMoveText(text)) << text;

    Move move;
    ASSERT_TRUE(ReadStandardMove(g, "a9-a1", move));
    EXPECT_EQ(move.From.Col, 1);
    EXPECT_EQ(move.From.Row, 1);
    EXPECT_EQ(move.To.Col, 9);
    EXPECT_EQ(move.To.Row, 1);
    ASSERT_TRUE(ReadStandardMove(g, "e7-g7", move));
    EXPECT_EQ(move.From.Col, 3);
    EXPECT_EQ(move.From.Row, 5);
    EXPECT_EQ(move.To.Col, 3);
    EXPECT_EQ(move.To.Row, 7);
    EXPECT_FALSE(ReadStandardMove(g, "h1-a1", move));   // no file h on a board 7 squares across
    EXPECT_FALSE(ReadStandardMove(g, "a1-a10", move));
}

TEST(Otn, TheShippedOpeningsReadAsOpenTaflWritesThem) {
    // The 11x11 opening is /3ttttt3/.../3ttttt3/ with its corners empty; Brandubh is /3t3/3t3/3T3/ttTKTtt/...
    TestGame t;
    Game& g = t.g;
    ASSERT_FALSE(ReadLayoutFile(g, DataPath("patf.txt")));
    EXPECT_EQ(OtnPosition(g), OpeningOtn);
    ASSERT_FALSE(ReadLayoutFile(g, DataPath("pattern1.txt")));
    EXPECT_EQ(LayoutLine(g), BrandubhLine);
    EXPECT_EQ(OtnPosition(g), BrandubhOtn);
}

TEST(Otn, RanksRunFromTheTopAndFilesAcrossOnANonSquareBoard) {
    // The first rank written is Col 1; each rank holds one square per Row; the King stands where KingCol and
    // KingRow put him.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 3, 5, {"..a..", "dK..a", "....."});
    EXPECT_EQ(OtnPosition(g), "/2t2/TK2t/5/");
    std::string line, reason;
    ASSERT_TRUE(OtnToLayoutLine("/2t2/TK2t/5/", line, reason)) << reason;
    EXPECT_EQ(line, "0305" "0202" "HE1EH" "00EE1" "HEEEH");
    EXPECT_EQ(line, LayoutLine(g));

    // A run of ten or more empty squares takes several digits.
    PlacePieces(g, 3, 12, {"............", "K...........", "..........a."});
    EXPECT_EQ(OtnPosition(g), "/12/K11/10t1/");
    ASSERT_TRUE(OtnToLayoutLine(OtnPosition(g), line, reason)) << reason;
    EXPECT_EQ(line, LayoutLine(g));

    // The King at Home after his escape stands on his corner; such a position cannot be read back.
    PlacePieces(g, 3, 3, {"...", ".K.", "..."});
    g.KingCol = 1;
    g.KingRow = 3;
    g.Board(2, 2) = EmptyCode;
    EXPECT_EQ(OtnPosition(g), "/2K/3/3/");
    EXPECT_EQ(Refusal("/2K/3/3/"), "a piece stands on the corner c3");
}

TEST(Otn, EveryShippedLayoutComesBackFromItsOtn) {
    // Layout -> OTN -> layout gives the same layout line for every shipped layout.
    for (const char* name : {"patf.txt", "pattern1.txt", "pattern2.txt", "pattern3.txt", "pattern4.txt", "pattern5.txt"}) {
        TestGame t;
        ASSERT_FALSE(ReadLayoutFile(t.g, DataPath(name))) << name;
        std::string line, reason;
        ASSERT_TRUE(OtnToLayoutLine(OtnPosition(t.g), line, reason)) << name << ": " << reason;
        EXPECT_EQ(line, LayoutLine(t.g)) << name;
    }
}

TEST(Otn, AThousandGeneratedPositionsComeBackFromTheirOtn) {
    // Layout -> OTN -> layout gives the same layout line for positions of every size from 3x3 to 14x14.
    TestGame t;
    Game& g = t.g;
    std::mt19937 random(20261122);
    int longRuns = 0, nonSquare = 0;
    for (int i = 0; i < 1000; ++i) {
        RandomPosition(g, random);
        const std::string otn = OtnPosition(g);
        std::string line, reason;
        ASSERT_TRUE(OtnToLayoutLine(otn, line, reason)) << otn << ": " << reason;
        ASSERT_EQ(line, LayoutLine(g)) << otn;
        ASSERT_FALSE(ApplyLayoutLine(g, line));
        ASSERT_EQ(OtnPosition(g), otn);
        longRuns += std::regex_search(otn, std::regex("/1[0-4]"));
        nonSquare += g.BoardWidth != g.BoardHeight;
    }
    EXPECT_GT(nonSquare, 500);
    EXPECT_GT(longRuns, 0);   // some rank starts with a run of ten or more
}

TEST(Otn, PositionsNoBoardOfTheProgramHoldsAreRefusedWithTheirReason) {
    // More than 14 ranks or files, ragged or empty ranks, other letters, not exactly one King, or a piece on
    // a corner are refused, each with a reason in words.
    std::string fifteenRanks = "/";
    for (int i = 0; i < 15; ++i) fifteenRanks += i == 7 ? "1K1/" : "3/";
    EXPECT_EQ(Refusal(fifteenRanks), "the position has 15 ranks, more than 14");
    EXPECT_EQ(Refusal("/15/7K7/15/"), "rank 3: more than 14 squares");
    EXPECT_EQ(Refusal("/14/6K7/" + std::string(15, 't') + "/"), "rank 1: more than 14 squares");
    EXPECT_EQ(Refusal("/99999999999999999999/1K1/3/"), "rank 3: more than 14 squares");
    EXPECT_EQ(Refusal("/3/1K1/4/"), "rank 1 has 4 squares, rank 3 has 3");
    EXPECT_EQ(Refusal("/3/1K/3/"), "rank 2 has 2 squares, rank 3 has 3");
    EXPECT_EQ(Refusal("/3//3/"), "rank 2: no squares");
    EXPECT_EQ(Refusal("/3/1k1/3/"), "rank 2: 'k' is not t, T or K");
    EXPECT_EQ(Refusal("/3/1K1/1m1/"), "rank 1: 'm' is not t, T or K");
    EXPECT_EQ(Refusal("/3/1K 1/3/"), "rank 2: a character that is no letter is not t, T or K");
    EXPECT_EQ(Refusal("/3/1K0/3/"), "rank 2: a run of no empty squares");
    EXPECT_EQ(Refusal("/3/1T1/3/"), "the position has no King");
    EXPECT_EQ(Refusal("/3/KTK/3/"), "the position has 2 Kings");
    EXPECT_EQ(Refusal("/t2/1K1/3/"), "a piece stands on the corner a3");
    EXPECT_EQ(Refusal("/3/1K1/2T/"), "a piece stands on the corner c1");
    EXPECT_EQ(Refusal(""), "the position is empty");
    EXPECT_EQ(Refusal(" // "), "the position is empty");

    // Blanks and a line end around it, and the outer slashes, may be left out.
    std::string line, reason;
    ASSERT_TRUE(OtnToLayoutLine("  3/1K1/3 \r\n", line, reason)) << reason;
    EXPECT_EQ(line, "0303" "0202" "HEH" "E0E" "HEH");
}

TEST(OtnFiles, LoadingAnOtnFileStartsAGameOnItsPosition) {
    // An .otn file chosen in the load dialog becomes "otnlayout.txt" and is loaded like a layout; the log
    // names the OTN file. A file that cannot be read, or holds no position, is reported and the game stays.
    TestGame t;
    Game& g = t.g;
    t.CopyData("patf.txt");
    LoadLayout(g, "patf.txt");
    t.WriteFile("brandubh.otn", std::string(BrandubhOtn) + "\r\n");
    t.view.FileChoices = {"brandubh.otn"};
    t.view.Clear();
    LoadCommand(g);
    EXPECT_EQ(LayoutLine(g), BrandubhLine);
    EXPECT_EQ(g.LayoutFile, g.ProgramFolder + "otnlayout.txt");
    EXPECT_EQ(t.ReadFile("otnlayout.txt"), std::string(BrandubhLine) + "\r\n");
    EXPECT_TRUE(g.Undo.empty());
    ASSERT_GE(g.EventLog.size(), 2u);
    EXPECT_EQ(g.EventLog[g.EventLog.size() - 2], "Loaded Layout: " + g.ProgramFolder + "otnlayout.txt");
    EXPECT_EQ(g.EventLog.back(), "OpenTafl position: brandubh.otn");
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Layout loaded from file:\r\nbrandubh.otn [vbinformation+vbok]"});

    t.WriteFile("noking.otn", "/3/1T1/3/\r\n");
    t.view.FileChoices = {"noking.otn", "missing.otn"};
    t.view.Clear();
    LoadCommand(g);
    LoadCommand(g);
    EXPECT_EQ(t.view.Messages(),
              (std::vector<std::string>{
                  "OpenTafl Position File:\r\nnoking.otn\r\nholds no position JarlsVakt can play: the position has "
                  "no King [vbcritical+vbok]",
                  "OpenTafl Position File:\r\nmissing.otn\r\ncould not be read [vbcritical+vbok]"}));
    EXPECT_EQ(LayoutLine(g), BrandubhLine);
    EXPECT_EQ(g.LayoutFile, g.ProgramFolder + "otnlayout.txt");
}

TEST(OtnFiles, SavingUnderAnOtnNameWritesTheOtnLine) {
    // A save to a name ending in .otn writes the OTN of the board and CR LF, asking first over a file that
    // is there; any other name is written as a layout line as before.
    TestGame t;
    Game& g = t.g;
    t.CopyData("patf.txt");
    LoadLayout(g, "patf.txt");
    t.view.FileChoices = {"opening.OTN"};
    t.view.Clear();
    SaveCommand(g);
    EXPECT_EQ(t.ReadFile("opening.OTN"), std::string(OpeningOtn) + "\r\n");
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"Game saved to file:\r\nopening.OTN [vbinformation+vbok]"});

    g.Board(2, 2) = AttackerCode;
    t.view.FileChoices = {"opening.OTN"};
    t.view.Answers = {7};
    t.view.Clear();
    SaveCommand(g);
    EXPECT_EQ(t.view.Messages(), std::vector<std::string>{"opening.OTN\r\nOverWrite file? [vbYesNo+vbquestion]"});
    EXPECT_EQ(t.ReadFile("opening.OTN"), std::string(OpeningOtn) + "\r\n");

    EXPECT_TRUE(IsOtnFileName("a.otn"));
    EXPECT_FALSE(IsOtnFileName("a.otn.txt"));
    EXPECT_FALSE(IsOtnFileName("otn"));
}
