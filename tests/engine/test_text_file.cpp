// The file layer every reader of outside data goes through: a file read whole
// as bytes, then split into lines.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "records/TextFile.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {
using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

// The permission bits of what a path leads to.
unsigned Permissions(const std::string& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0 ? st.st_mode & 07777 : 0;
}

// The names of the folder's entries that a cut-short write would leave behind.
Lines Temporaries(const fs::path& folder) {
    Lines left;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".tmp") left.push_back(entry.path().filename().string());
    return left;
}
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

TEST(TextFile, AWriteGoesThroughLinksKeepsPermissionsAndRefusesWhatIsNoFile) {
    // Both writers follow links to the file and keep its permissions; what is no file is refused, nothing written.
    struct Case {
        const char* what;
        std::function<void(TestGame&)> setUp;
        const char* path;
        const char* file;      // the file that gets the line, when written
        const char* refusal;   // "" when written
        unsigned permissions;  // the file's afterwards, 0 when left to the user's file-creation mask
    };
    const auto oldFile = [](const char* name, unsigned permissions) {
        return [=](TestGame& t) { ::chmod(t.WriteFile(name, "old\r\n").c_str(), permissions); };
    };
    const std::vector<Case> cases{
        {"nothing", [](TestGame&) {}, "new.txt", "new.txt", "", 0},
        {"a file only its owner may read", oldFile("secret.cfg", 0600), "secret.cfg", "secret.cfg", "", 0600},
        {"a link into another folder",
         [&](TestGame& t) {
             fs::create_directory(t.folder / "dotfiles");
             oldFile("dotfiles/jarlsvakt.cfg", 0640)(t);
             fs::create_symlink("dotfiles/jarlsvakt.cfg", t.folder / "jarlsvakt.cfg");
         },
         "jarlsvakt.cfg", "dotfiles/jarlsvakt.cfg", "", 0640},
        {"a link to a link to no file yet",
         [](TestGame& t) {
             fs::create_symlink("b.txt", t.folder / "a.txt");
             fs::create_symlink(t.folder / "c.txt", t.folder / "b.txt");
         },
         "a.txt", "c.txt", "", 0},
        {"a folder", [](TestGame& t) { fs::create_directory(t.folder / "saved.txt"); }, "saved.txt", "",
         "is a folder, not a file", 0},
        {"a link to a folder", [](TestGame& t) { fs::create_symlink(t.folder, t.folder / "up.txt"); }, "up.txt", "",
         "is a folder, not a file", 0},
        {"a pipe", [](TestGame& t) { ::mkfifo(t.Path("pipe.txt").c_str(), 0600); }, "pipe.txt", "",
         "is a pipe, not a file", 0},
        {"a circle of links",
         [](TestGame& t) {
             fs::create_symlink("y.txt", t.folder / "x.txt");
             fs::create_symlink("x.txt", t.folder / "y.txt");
         },
         "x.txt", "", "is a circle of symbolic links, not a file", 0},
    };
    for (const Case& c : cases)
        for (const bool append : {false, true}) {
            const std::string row = std::string(c.what) + (append ? ", appended" : ", replaced");
            TestGame t;
            c.setUp(t);
            const fs::path path = t.folder / c.path;
            const fs::file_type before = fs::symlink_status(path).type();
            const std::string old = *c.file ? t.ReadFile(c.file) : "";
            // A reader holds the pipe open, so that no writer can wait on it whatever it does.
            const int reader = ::open(t.Path("pipe.txt").c_str(), O_RDONLY | O_NONBLOCK);
            const WriteResult written =
                append ? AppendLine(path.string(), "new") : WriteFileAtomically(path.string(), "new\r\n");
            char sent = 0;
            EXPECT_FALSE(reader >= 0 && ::read(reader, &sent, 1) > 0) << row << ": something went down the pipe";
            if (reader >= 0) ::close(reader);

            EXPECT_EQ(written.Ok(), !*c.refusal) << row;
            EXPECT_EQ(written.Refusal, c.refusal) << row;
            const fs::file_type after = before == fs::file_type::not_found ? fs::file_type::regular : before;
            EXPECT_EQ(fs::symlink_status(path).type(), after) << row << ": what stood at the path was replaced";
            EXPECT_EQ(Temporaries(t.folder), Lines{}) << row;
            if (!*c.file) continue;
            EXPECT_EQ(t.ReadFile(c.file), (append ? old : "") + "new\r\n") << row;
            if (c.permissions) EXPECT_EQ(Permissions(t.Path(c.file)), c.permissions) << row;
        }
}

TEST(TextFile, AHardLinkedFileIsReplacedUnderTheSavedNameOnly) {
    // A save replaces the file by a rename, whole or not at all: another name of a hard-linked file keeps what it held.
    TestGame t;
    const std::string saved = t.WriteFile("saved.txt", "old\r\n");
    fs::create_hard_link(saved, t.folder / "other.txt");
    ASSERT_TRUE(WriteFileAtomically(saved, "new\r\n").Ok());
    EXPECT_EQ(t.ReadFile("saved.txt"), "new\r\n");
    EXPECT_EQ(t.ReadFile("other.txt"), "old\r\n");
}
