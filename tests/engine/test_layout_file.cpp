// The layout reader and writer and the position records: what they accept, refuse and leave as it was.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/Board.h"
#include "records/LayoutFile.h"
#include "records/PositionRecord.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
// 5 by 5: the King on C3, an attacker on B2.
const std::string Small = "05050303HEEEHE1EEEEE0EEEEEEEHEEEH";
const std::string Opening = "11110606HEE11111EEHEEEEE1EEEEEEEEEEEEEEEE1EEEE0EEEE11EEE000EEE111E00000E111EEE000EEE11EEEE0EEEE1"
                            "EEEEEEEEEEEEEEEE1EEEEEHEE11111EEH";
}  // namespace

TEST(LayoutFile, TheFirstLineIsReadOntoAFreshBoardOrTheFileIsRefused) {
    // A layout file's first line is read onto a fresh board; one that cannot be read or is above 14 is refused.
    const struct { const char* why; std::string content; bool fails; std::string after; } rows[] = {
        {"CR LF", Opening + "\r\n", false, Opening},
        {"LF and a second line", Opening + "\nsecond line\n", false, Opening},
        {"15 wide", "1505" + std::string(80, 'E'), true, Small},
        {"15 high", "0515" + std::string(80, 'E'), true, Small},
        {"14 by 14", "1414" + std::string(200, 'E'), false,
         "14140000H" + std::string(12, 'E') + "H" + std::string(168, 'E') + "H" + std::string(12, 'E') + "H"},
        {"no digits for the width", "xx05", false, "00050000"},
        {"a short line", "05050303E1", false, "05050303H1EEH" + std::string(15, 'E') + "HEEEH"},
        {"missing", "", true, Small},
        {"a folder", "", true, Small},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, Small).Ok());
        if (!r.content.empty()) t.WriteFile("layout.txt", r.content);
        const std::string path = std::string(r.why) == "a folder" ? t.folder.string() : t.Path("layout.txt");
        EXPECT_EQ(ReadLayoutFile(t.g, path).Ok(), !r.fails) << r.why;
        EXPECT_EQ(LayoutLine(t.g), r.after) << r.why;
    }
}

TEST(LayoutFile, EveryShippedLayoutWritesBackByteForByteAndAFailedWriteKeepsTheOldFile) {
    // A saved layout is the file it was read from; a write that fails keeps the old file whole.
    for (const char* name : {"patf.txt", "pattern1.txt", "pattern2.txt", "pattern3.txt", "pattern4.txt", "pattern5.txt"}) {
        TestGame t;
        t.CopyData(name);
        ASSERT_TRUE(ReadLayoutFile(t.g, t.Path(name)).Ok()) << name;
        ASSERT_TRUE(WriteLayoutFile(t.g, t.Path("copy.txt")).Ok()) << name;
        EXPECT_EQ(t.ReadFile("copy.txt"), t.ReadFile(name)) << name;
    }
    TestGame t;
    ASSERT_TRUE(ApplyLayoutLine(t.g, Small).Ok());
    EXPECT_FALSE(WriteLayoutFile(t.g, t.Path("no-such-folder/layout.txt")).Ok());
    const std::string path = t.WriteFile("keep.txt", "previous\r\n");
    std::filesystem::create_directory(path + ".tmp");   // the temporary name is taken
    EXPECT_FALSE(WriteLayoutFile(t.g, path).Ok());
    EXPECT_EQ(t.ReadFile("keep.txt"), "previous\r\n");
}

TEST(PositionRecord, ARecordChangesOnlyTheSquaresItCovers) {
    // A position record changes the King's square and only the squares it has a letter for.
    const struct { const char* record; const char* after; } rows[] = {
        {"0202E0", "05050202H0EEHE1EEEEE0EEEEEEEHEEEH"},
        {"0303" "1?E0EE", "05050303HEE0HE1EEEEE0EEEEEEEHEEEH"},
        {"9999", "05051414HEEEHE1EEEEE0EEEEEEEHEEEH"},
        {"", "05050000HEEEHE1EEEEE0EEEEEEEHEEEH"},
        {"0303" "HEEEH" "E1EEE" "EE0EE" "EEEEE" "HEEEH" "0000111", "05050303HEEEHE1EEEEE0EEEEEEEHEEEH"},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, Small).Ok());
        ApplyPositionRecord(t.g, r.record);
        EXPECT_EQ(LayoutLine(t.g), r.after) << r.record;
        EXPECT_EQ(t.g.Board(6, 3), HomeCode) << r.record;   // the frame
    }
}
