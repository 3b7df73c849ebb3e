#include "records/TextFile.h"

#include <cstdio>
#include <fstream>
#include <system_error>
#include <filesystem>

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
void DropCarriageReturn(std::string& line) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
}
bool IsRegularFile(const std::string& path) {
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}
}  // namespace

bool ReadFirstLine(const std::string& path, std::string& line) {
    if (!IsRegularFile(path)) return false;
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    line.clear();
    std::getline(in, line);
    if (in.bad()) return false;
    DropCarriageReturn(line);
    return true;
}

bool ReadLines(const std::string& path, std::vector<std::string>& lines) {
    if (!IsRegularFile(path)) return false;
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    lines.clear();
    std::string line;
    while (std::getline(in, line)) {
        DropCarriageReturn(line);
        lines.push_back(line);
    }
    return !in.bad();
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
