#include "records/TextFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "records/FileTarget.h"

namespace jv {

bool HasFolder(const std::string& name) {
    return name.find('\\') != std::string::npos || name.find('/') != std::string::npos;
}

std::string InProgramFolder(const Game& g, const std::string& name) {
    return HasFolder(name) ? name : g.ProgramFolder + name;
}

std::string WithExtension(const std::string& name, const std::string& extension) {
    const std::size_t folderEnd = name.find_last_of("\\/");
    const std::size_t nameStart = folderEnd == std::string::npos ? 0 : folderEnd + 1;
    if (name.find('.', nameStart) != std::string::npos) return name;
    return name + "." + extension;
}

namespace {
bool IsRegularFile(const std::string& path) {
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}
// Writes all of the content; false when the system takes only part of it.
bool WriteAll(int fd, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(fd, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}
// Creates the temporary file beside the target: a new file as any other
// (the user's file-creation mask applies), the replacement of an existing one
// with its permissions, owner and group. -1 when it cannot be made so.
int CreateTemporary(const std::string& temporary, const FileTarget& target) {
    constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    int fd = ::open(temporary.c_str(), Flags, 0666);
    if (fd < 0 && errno == EEXIST) {   // left behind by a write that was cut short
        ::unlink(temporary.c_str());
        fd = ::open(temporary.c_str(), Flags, 0666);
    }
    if (fd < 0 || !target.Exists) return fd;
    // Only the superuser may give a file to someone else; anyone else owns
    // what they write, so that refusal is no failure. The owner goes first,
    // as changing it clears the set-id bits that the permissions then restore.
    const bool owned = ::fchown(fd, target.Owner, target.Group) == 0 || errno == EPERM;
    if (owned && ::fchmod(fd, target.Permissions) == 0) return fd;
    ::close(fd);
    ::unlink(temporary.c_str());
    return -1;
}
// A line as read: a CR at its end belongs to the line end.
std::string LineOf(std::string_view text) {
    if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
    return std::string(text);
}
}  // namespace

bool ReadWholeFile(const std::string& path, std::string& text) {
    // A folder opens as a stream on some systems; only a file is read.
    if (!IsRegularFile(path)) return false;
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::string content{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad()) return false;
    text = std::move(content);
    return true;
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t lf = text.find('\n', start);
        const std::size_t end = lf == std::string_view::npos ? text.size() : lf;
        lines.push_back(LineOf(text.substr(start, end - start)));
        start = end + 1;
    }
    return lines;
}

std::string FirstLine(std::string_view text) {
    return LineOf(text.substr(0, text.find('\n')));
}

bool ReadFirstLine(const std::string& path, std::string& line) {
    std::string text;
    if (!ReadWholeFile(path, text)) return false;
    line = FirstLine(text);
    return true;
}

bool ReadLines(const std::string& path, std::vector<std::string>& lines) {
    std::string text;
    if (!ReadWholeFile(path, text)) return false;
    lines = SplitLines(text);
    return true;
}

WriteResult WriteFileAtomically(const std::string& path, const std::string& content) {
    const FileTarget target = FindFileTarget(path);
    if (target.Refused()) return {false, target.Refusal};
    const std::string temporary = target.Path + ".tmp";
    const int fd = CreateTemporary(temporary, target);
    if (fd < 0) return {};
    // On disk before the rename: a crash in between leaves the old file, never an empty one.
    const bool whole = WriteAll(fd, content) && ::fsync(fd) == 0;
    if (::close(fd) != 0 || !whole || ::rename(temporary.c_str(), target.Path.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return {};
    }
    return {true, ""};
}

WriteResult AppendLine(const std::string& path, const std::string& line) {
    const FileTarget target = FindFileTarget(path);
    if (target.Refused()) return {false, target.Refusal};
    // Should a pipe take the file's place after the look, opening it without
    // waiting fails at once instead of waiting for a reader.
    const int fd = ::open(target.Path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
    if (fd < 0) return {};
    const bool written = WriteAll(fd, line + "\r\n");
    return {::close(fd) == 0 && written, ""};
}

std::string JoinLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

}  // namespace jv
