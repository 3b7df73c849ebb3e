// The standard notation of squares and moves, and OpenTafl positions written, read and refused.
#include <gtest/gtest.h>

#include "core/Board.h"
#include "records/GameRecord.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/OtnFile.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::DataPath;
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
}  // namespace

TEST(Notation, FilesRunAcrossAndRanksUpFromTheLastColumn) {
    // Standard squares count files along the Row and ranks up from the last Col, and read back the same.
    TestGame t;
    NewBoard(t.g, 9, 7);
    EXPECT_EQ((std::array{StandardSquare(t.g, 1, 1), StandardSquare(t.g, 9, 7), StandardSquare(t.g, 3, 5)}),
              (std::array<std::string, 3>{"a9", "g1", "e7"}));
    int c = -5, r = -5;
    for (int col = 1; col <= 9; ++col)
        for (int row = 1; row <= 7; ++row)
            EXPECT_TRUE(ReadStandardSquare(t.g, StandardSquare(t.g, col, row), c, r) && c == col && r == row) << col << "," << row;
    for (const char* text : {"h1", "a10", "a0", "a01", "A1", "", "a", "1a", "a1x", "aa1", "a-1", "a 1"})
        EXPECT_FALSE(ReadStandardSquare(t.g, text, c, r)) << text;
    // A written move: the King's letter, the squares, the captures after "x" and the ending mark.
    const struct { const char* text; const char* read; } moves[] = {
        {"e7-g7", "3,5>3,7 "},
        {"Kc6-c4xb4/d4++", "K 4,3>6,3 x6,2 6,4 ++"},
        {"a1-a3+", "9,1>7,1 +"},
        {"g1-a1--", "9,7>9,1 --"},
        {"h1-a1", "-"}, {"a1-a10", "-"}, {"d1d4", "-"}, {"d1-", "-"}, {"0304>0302", "-"}, {"D1-D4", "-"},
        {"d1-d4xh1", "-"}, {"d1-d4x/a1", "-"}, {"a1-a3x+", "-"}, {"d1-d4+-", "-"}, {"d1-d4+++", "-"}, {"kd1-d4", "-"},
    };
    for (const auto& m : moves) {
        WrittenMove w;
        std::string read = "-";
        if (ReadStandardMove(t.g, m.text, w)) {
            const auto square = [](const Square& s) { return std::to_string(s.Col) + "," + std::to_string(s.Row); };
            read = std::string(w.King ? "K " : "") + square(w.Squares.From) + ">" + square(w.Squares.To) + " " +
                   (w.CapturesWritten ? "x" : "");
            for (const Square& c : w.Captures) read += square(c) + " ";
            read += w.Mark;
        }
        EXPECT_EQ(read, m.read) << m.text;
    }
}

TEST(Otn, PositionsAreReadFromRankOneUpAndWrittenBack) {
    // An OpenTafl position lists rank 1 first: the openings and an asymmetric position read and write back unchanged.
    // The inverted form, top rank first, where a record says so; and the shipped opening of the 11x11 board.
    const struct { const char* otn; const char* king; bool inverted = false; const char* written = nullptr; } rows[] = {
        {BrandubhOtn, "d4"},
        {"/4ttt4/4t1t4/5t5/5T5/tt2TTT2tt/t1tTTKTTt1t/tt2TTT2tt/5T5/5t5/4t1t4/4ttt4/", "f6"},   // Tawlbwrdd
        {OpeningOtn, "f6"},                                                                     // Copenhagen, Fetlar
        {"/3ttt3/4t4/4T4/t3T3t/ttTTKTTtt/t3T3t/4T4/4t4/3ttt3/", "e5"},                          // Sea Battle
        {"/1tK1t2/2t1T2/7/7/7/7/7/", "c1"},
        {"/7/7/7/7/7/2t1T2/1tK1t2/", "c1", true, "/1tK1t2/2t1T2/7/7/7/7/7/"},
        {"patf.txt", "f6", false, OpeningOtn},
    };
    for (const auto& r : rows) {
        TestGame t;
        std::string line, reason;
        if (std::string(r.otn).ends_with(".txt")) ASSERT_TRUE(ReadLayoutFile(t.g, DataPath(r.otn)).Ok());
        else ASSERT_TRUE(OtnToLayoutLine(r.otn, line, reason, r.inverted) && ApplyLayoutLine(t.g, line).Ok()) << reason;
        EXPECT_EQ(StandardSquare(t.g, t.g.KingCol, t.g.KingRow), r.king) << r.otn;
        EXPECT_EQ(OtnPosition(t.g), r.written ? r.written : r.otn);
    }
}

TEST(Otn, PositionsNoBoardOfTheProgramHoldsAreRefusedWithTheirReason) {
    // An OpenTafl position no board of the program holds is refused with its reason in words.
    const struct { std::string otn; const char* reason; } rows[] = {
        {"/3/3/3/3/3/3/3/1K1/3/3/3/3/3/3/3/", "the position has 15 ranks, more than 14"},
        {"/15/7K7/15/", "rank 1: more than 14 squares"},
        {"/99999999999999999999/1K1/3/", "rank 1: more than 14 squares"},
        {"/3/1K1/4/", "rank 3 has 4 squares, rank 1 has 3"},
        {"/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/7/", "the position has 8 ranks of 7 squares: an OpenTafl board is square"},
        {"/3//3/", "rank 2: no squares"},
        {"/3/1k1/3/", "rank 2: 'k' is not t, T or K"},
        {"/3/1K 1/3/", "rank 2: a character that is no letter is not t, T or K"},
        {"/3/1K0/3/", "rank 2: a run of no empty squares"},
        {"/3/1T1/3/", "the position has no King"},
        {"/3/KTK/3/", "the position has 2 Kings"},
        {"/t2/1K1/3/", "a piece stands on the corner a1"},
        {" // ", "the position is empty"},
        {"  3/1K1/3 \r\n", ""},
    };
    for (const auto& r : rows) EXPECT_EQ(Refusal(r.otn), r.reason) << r.otn;
}

TEST(Otn, APositionTheReaderWouldRefuseIsNeverWritten) {
    // A position whose OTN no reader takes back is neither saved as .otn nor a game record's start, and says why.
    const struct { const char* layout; const char* refusal; const char* record; } rows[] = {
        {"03030000HEHE0EHEH", "the position has no King", "line 1: the position has no King"},
        {"03030202HEHE1EHEH", "the position has no King", "line 1: the position has no King"},
        {"02020101HHHH", "a piece stands on the corner a2", "line 1: a piece stands on the corner a2"},
        {"03050202HEEEH00EEEHEE1H", "the position has 3 ranks of 5 squares: an OpenTafl board is square",
         "line 1: the board is 3x5, where a record holds a square board"},
        {"03030202HEHE0EHEH", "", "written"},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok()) << r.layout;
        EXPECT_EQ(OtnRefusal(t.g), r.refusal) << r.layout;
        const WriteResult written = WriteOtnFile(t.g, t.Path("saved.otn"));
        EXPECT_EQ(written.Refusal, *r.refusal ? "cannot hold this position: " + std::string(r.refusal) : "") << r.layout;
        EXPECT_EQ(t.ReadFile("saved.otn").empty(), !written.Ok()) << r.layout;
        const GameRecordResult record = MakeGameRecord({r.layout}, t.g.GameRules);
        EXPECT_EQ(record.Ok ? "written" : "line " + std::to_string(record.BadLine) + ": " + record.Reason, r.record)
            << r.layout;
    }
}

TEST(OtnFiles, AnOtnFileIsLoadedAndSavedLikeALayoutWithTheRulesRecordOfItsRuleSet) {
    // An .otn file is loaded and saved like a layout, or reported when it holds no playable position; under any
    // rule set but the classic it holds the rules record with the position, and loads back under those rules; a
    // bare position keeps the rules in play, and a rules record they cannot play is refused.
    TestGame t;
    Game& g = t.g;
    const Rules& tablut = *FindRules("Tablut");
    t.WriteFile("brandubh.otn", std::string(BrandubhOtn) + "\r\n");
    t.WriteFile("noking.otn", "/3/1T1/3/\r\n");
    t.WriteFile("weak.otn", "dim:7 ks:w start:" + std::string(BrandubhOtn) + "\r\n");
    t.view.FileChoices = {"brandubh.otn", "noking.otn", "opening.OTN", "tablut.otn", "tablut.otn", "brandubh.otn", "weak.otn"};
    LoadCommand(g);
    EXPECT_EQ(std::tuple(LayoutLine(g), g.LayoutFile, g.EventLog.back(), g.GameRules),
              std::tuple(BrandubhLine, g.ProgramFolder + "otnlayout.txt", "OpenTafl position: brandubh.otn", Rules::Classic()));
    LoadCommand(g);
    EXPECT_EQ(t.view.Messages().back(), "OpenTafl Position File:\r\nnoking.otn\r\nholds no position JarlsVakt can play: "
                                        "the position has no King [vbcritical+vbok]");
    EXPECT_EQ(LayoutLine(g), BrandubhLine);
    SaveCommand(g);
    EXPECT_EQ(t.ReadFile("opening.OTN"), std::string(BrandubhOtn) + "\r\n");
    g.GameRules = tablut;
    SaveCommand(g);
    EXPECT_EQ(t.ReadFile("tablut.otn"), "dim:7 " + std::string(tablut.OpenTafl) + " start:" + BrandubhOtn + "\r\n");
    g.GameRules = Rules::Classic();
    ASSERT_TRUE(ApplyLayoutLine(g, "03030202HEHE0EHEH").Ok());
    LoadCommand(g);
    EXPECT_EQ(g.GameRules, tablut);
    EXPECT_EQ(LayoutLine(g), BrandubhLine);
    LoadCommand(g);
    EXPECT_EQ(g.GameRules, tablut);
    LoadCommand(g);
    EXPECT_EQ(t.view.Messages().back(), "OpenTafl Position File:\r\nweak.otn\r\nholds no position JarlsVakt can play: "
                                        "the rules record's ks:w asks for a King weaker than strong (s) or strong on "
                                        "and beside the throne (c), which JarlsVakt cannot play [vbcritical+vbok]");
    EXPECT_EQ(g.GameRules, tablut);
}
