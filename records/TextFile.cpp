#include "records/TextFile.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

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

bool WriteFileAtomically(const std::string& path, const std::string& content) {
    const std::string temporary = path + ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out) return false;
        out.write(content.data(), static_cast<std::streamsize>(content.size()));
        out.flush();
        if (!out) {
            out.close();
            std::remove(temporary.c_str());
            return false;
        }
    }
    std::error_code ec;
    std::filesystem::rename(temporary, path, ec);
    if (ec) {
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

bool AppendLine(const std::string& path, const std::string& line) {
    std::ofstream out(path, std::ios::binary | std::ios::app);
    if (!out) return false;
    out << line << "\r\n";
    out.flush();
    return static_cast<bool>(out);
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
