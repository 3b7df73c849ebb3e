#include <gtest/gtest.h>

#include <random>

#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::PlacePieces;
using jv::test::TestGame;

namespace {
const std::string OpeningLine =
    "11110606HEE11111EEHEEEEE1EEEEEEEEEEEEEEEE1EEEE0EEEE11EEE000EEE111E00000E111EEE000EEE11EEEE0EEEE1"
    "EEEEEEEEEEEEEEEE1EEEEEHEE11111EEH";
}

TEST(PositionRecord, EncodesTheKingThenEverySquareColumnByColumn) {
    // A record is the King's square as four digits, then H, E, 0 or 1 per square, Col outer and Row inner.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 3, 4, {".a..", "dK.a", "...."});
    EXPECT_EQ(EncodePosition(g), "0202" "H1EH" "00E1" "HEEH");
    EXPECT_EQ(LayoutLine(g), "0304" "0202" "H1EH00E1HEEH");
}

TEST(PositionRecord, AnUnknownCodeRepeatsThePreviousLetter) {
    // The letter is not reset between squares, so a square with an unknown code repeats the one before.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 3, 3, {"...", ".K.", "..."});
    g.Board(1, 2) = 7;
    EXPECT_EQ(EncodePosition(g), "0202" "HHH" "E0E" "HEH");
}

TEST(PositionRecord, ApplyingSetsSquaresKingAndHomeCornersAndRefreshes) {
    // A record sets the King's square and the squares; unknown letters leave a square as it was, letters
    // past the board are ignored, the corners become Home, and the position is analysed and redrawn.
    TestGame t;
    Game& g = t.g;
    NewBoard(g, 3, 3);
    g.Board(2, 3) = AttackerCode;
    t.view.Clear();
    ApplyPositionRecord(g, "0202" "E1E" "0?0" "1E1" "0000111");
    EXPECT_EQ(g.KingCol, 2);
    EXPECT_EQ(g.KingRow, 2);
    EXPECT_EQ(g.Board(1, 1), HomeCode);
    EXPECT_EQ(g.Board(1, 2), AttackerCode);
    EXPECT_EQ(g.Board(2, 1), DefenderCode);
    EXPECT_EQ(g.Board(2, 2), EmptyCode);   // '?' left the square as it was
    EXPECT_EQ(g.Board(2, 3), DefenderCode);
    EXPECT_EQ(g.Board(3, 3), HomeCode);
    EXPECT_EQ(g.Board(4, 1), HomeCode);    // the frame is untouched by the extra letters
    EXPECT_EQ(t.view.Calls.back(), "DrawBoard");
    EXPECT_EQ(g.AttackerCount, 1);
}

TEST(PositionRecord, ShortOrMalformedRecordsKeepTheirSquaresAndStayInTheArray) {
    // A short record leaves the remaining squares as they were; a King's square beyond the tables is
    // held inside them.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", ".a...", "..K..", ".....", "....."});
    ApplyPositionRecord(g, "0303E");
    EXPECT_EQ(g.Board(2, 2), AttackerCode);
    ApplyPositionRecord(g, "9999");
    EXPECT_LE(g.KingCol, MaxBoardSide);
    EXPECT_LE(g.KingRow, MaxBoardSide);
    ApplyPositionRecord(g, "");
    EXPECT_EQ(g.KingCol, 0);
}

TEST(LayoutFile, ElevenByElevenLineIs129CharactersAndRoundTrips) {
    // An 11x11 layout is "1111", the King's square, then 121 letters; writing it back gives the same bytes.
    TestGame t;
    Game& g = t.g;
    const std::string path = t.WriteFile("opening.txt", OpeningLine + "\r\n");
    ASSERT_FALSE(ReadLayoutFile(g, path));
    EXPECT_EQ(g.BoardWidth, 11);
    EXPECT_EQ(g.KingCol, 6);
    EXPECT_EQ(g.KingRow, 6);
    EXPECT_EQ(g.AttackerCount, 24);
    EXPECT_EQ(g.DefenderCount, 12);
    EXPECT_EQ(LayoutLine(g).size(), 129u);
    ASSERT_TRUE(WriteLayoutFile(g, t.Path("copy.txt")));
    EXPECT_EQ(t.ReadFile("copy.txt"), OpeningLine + "\r\n");
}

TEST(LayoutFile, ReadingAcceptsLfAloneAndResetsTheSquareWeights) {
    // A file with LF line ends reads the same; the weights of the board and its margin are set to 10.
    TestGame t;
    Game& g = t.g;
    g.SquareWeight(12, 12) = 5;
    g.SquareWeight(13, 13) = 5;
    const std::string path = t.WriteFile("lf.txt", OpeningLine + "\nsecond line ignored\n");
    ASSERT_FALSE(ReadLayoutFile(g, path));
    EXPECT_EQ(LayoutLine(g), OpeningLine);
    EXPECT_EQ(g.SquareWeight(-1, -1), 10);
    EXPECT_EQ(g.SquareWeight(12, 12), 10);
    EXPECT_EQ(g.SquareWeight(13, 13), 5);
}

TEST(LayoutFile, UnreadableOrOversizedLayoutsFail) {
    // A missing file, a folder, or a board wider or higher than 14 cannot be read; the board is untouched.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", ".a...", "..K..", ".....", "....."});
    EXPECT_TRUE(ReadLayoutFile(g, t.Path("missing.txt")));
    EXPECT_TRUE(ReadLayoutFile(g, t.folder.string()));
    EXPECT_TRUE(ReadLayoutFile(g, t.WriteFile("wide.txt", "1511" + std::string(200, 'E'))));
    EXPECT_TRUE(ReadLayoutFile(g, t.WriteFile("high.txt", "0799" + std::string(200, 'E'))));
    EXPECT_EQ(g.BoardWidth, 5);
    EXPECT_EQ(g.Board(2, 2), AttackerCode);
    EXPECT_FALSE(ReadLayoutFile(g, t.WriteFile("max.txt", "1414" + std::string(200, 'E'))));
    EXPECT_EQ(g.BoardWidth, 14);
}

TEST(LayoutFile, MalformedLinesFollowTheirLetters) {
    // Non-digits read as 0, so "xx" gives a 0-wide board; missing letters leave squares empty from NewBoard.
    TestGame t;
    Game& g = t.g;
    EXPECT_FALSE(ReadLayoutFile(g, t.WriteFile("xx.txt", "xx05")));
    EXPECT_EQ(g.BoardWidth, 0);
    EXPECT_EQ(g.BoardHeight, 5);
    EXPECT_FALSE(ReadLayoutFile(g, t.WriteFile("short.txt", "05050303E1")));
    EXPECT_EQ(g.Board(1, 2), AttackerCode);
    EXPECT_EQ(g.Board(4, 4), EmptyCode);
    EXPECT_EQ(g.Board(5, 5), HomeCode);
    EXPECT_FALSE(ReadLayoutFile(g, t.WriteFile("empty.txt", "")));
    EXPECT_EQ(g.BoardWidth, 0);
}

TEST(LayoutFile, GarbageBytesNeverCrash) {
    // Any byte sequence as a layout file either fails to read or gives a board within the tables.
    TestGame t;
    Game& g = t.g;
    std::mt19937 random(2024);
    for (int i = 0; i < 300; ++i) {
        std::string bytes(random() % 300, '\0');
        for (char& c : bytes) c = static_cast<char>(random() % 256);
        if (i % 3 == 0 && bytes.size() > 4) bytes.replace(0, 4, "1212");
        const std::string path = t.WriteFile("garbage.txt", bytes);
        if (!ReadLayoutFile(g, path)) {
            EXPECT_LE(g.BoardWidth, MaxBoardSide);
            EXPECT_LE(g.BoardHeight, MaxBoardSide);
            EXPECT_EQ(EncodePosition(g).size(), 4u + g.BoardWidth * g.BoardHeight);
        }
    }
}

TEST(LayoutFile, FailedWriteLeavesThePreviousFileWhole) {
    // A layout that cannot be written leaves the file it would have replaced as it was.
    TestGame t;
    Game& g = t.g;
    PlacePieces(g, 5, 5, {".....", ".a...", "..K..", ".....", "....."});
    EXPECT_FALSE(WriteLayoutFile(g, t.Path("no-such-folder/layout.txt")));
    const std::string path = t.WriteFile("keep.txt", "previous\r\n");
    std::filesystem::create_directory(path + ".tmp");   // the temporary name is taken
    EXPECT_FALSE(WriteLayoutFile(g, path));
    EXPECT_EQ(t.ReadFile("keep.txt"), "previous\r\n");
}
