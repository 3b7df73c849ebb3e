// The file layer every reader of outside data goes through: a file read whole
// as bytes, then split into lines.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "records/TextFile.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
using Lines = std::vector<std::string>;
}  // namespace

TEST(TextFile, AFileReadsBackByteForByteAndGivesItsLines) {
    // A line ends at LF and loses one CR before it; a CR elsewhere and a NUL byte are ordinary
    // characters; the text after a final LF is a line only when it is not empty.
    struct Case {
        std::string text;
        Lines lines;
    };
    const std::vector<Case> cases{
        {"", {}},
        {"0505\r\n0303\r\n", {"0505", "0303"}},
        {"0505\n0303\n", {"0505", "0303"}},
        {"0505\r\n0303", {"0505", "0303"}},
        {"\n\r\n\n", {"", "", ""}},
        {"a\rb\r\r\n", {"a\rb\r"}},
        {"xp.col\r", {"xp.col"}},
        {std::string("a\0b\n", 4), {std::string("a\0b", 3)}},
    };
    TestGame t;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& c = cases[i];
        const std::string path = t.WriteFile("case" + std::to_string(i) + ".txt", c.text);
        std::string text = "before";
        ASSERT_TRUE(ReadWholeFile(path, text)) << i;
        EXPECT_EQ(text, c.text) << i;
        EXPECT_EQ(SplitLines(text), c.lines) << i;
        EXPECT_EQ(FirstLine(text), c.lines.empty() ? "" : c.lines.front()) << i;

        Lines lines;
        std::string first;
        EXPECT_TRUE(ReadLines(path, lines) && ReadFirstLine(path, first)) << i;
        EXPECT_EQ(lines, c.lines) << i;
        EXPECT_EQ(first, c.lines.empty() ? "" : c.lines.front()) << i;
    }
}

TEST(TextFile, WhatIsNotAReadableFileIsRefusedAndChangesNothing) {
    // A missing file and a folder are refused by every reading, which leaves what it was handed.
    TestGame t;
    for (const std::string& path : {t.Path("missing.txt"), t.folder.string()}) {
        std::string text = "kept", line = "kept";
        Lines lines{"kept"};
        EXPECT_FALSE(ReadWholeFile(path, text)) << path;
        EXPECT_FALSE(ReadFirstLine(path, line)) << path;
        EXPECT_FALSE(ReadLines(path, lines)) << path;
        EXPECT_EQ(text + line, "keptkept");
        EXPECT_EQ(lines, Lines{"kept"});
    }
}
