#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "core/Game.h"
#include "records/WriteResult.h"

namespace jv {

// True when the name holds a folder separator ("\" or "/").
bool HasFolder(const std::string& name);

// A file name as the program opens it: a name without a folder is taken from
// the program's folder.
std::string InProgramFolder(const Game& g, const std::string& name);

// The name as the user typed it, with "." and the extension added when its
// file name (the part after the last folder separator) holds no point.
std::string WithExtension(const std::string& name, const std::string& extension);

// Reads a whole file as bytes. False, leaving the text as it was, when it is
// not a file or cannot be read.
bool ReadWholeFile(const std::string& path, std::string& text);

// The lines of a text as every reader takes them: each ends at LF and loses
// one CR before it (a CR elsewhere stays); the text after a final LF is a
// line only when it is not empty.
std::vector<std::string> SplitLines(std::string_view text);

// The first of those lines ("" for an empty text).
std::string FirstLine(std::string_view text);

// Reads the first line of a file (without its line end). False when the file
// cannot be opened or read.
bool ReadFirstLine(const std::string& path, std::string& line);

// Reads every line of a file. False, leaving the lines as they were, when the
// file cannot be opened or read.
bool ReadLines(const std::string& path, std::vector<std::string>& lines);

// Replaces a file's content through a temporary file beside it and a rename,
// so the previous content stays whole when the write fails. A symbolic link
// is written through: the file it leads to gets the content and the link
// stays. An existing file keeps its permissions (and, where the system
// allows, its owner and group). A hard-linked file is replaced under this
// name only, the other names keeping the previous content.
WriteResult WriteFileAtomically(const std::string& path, const std::string& content);

// Appends one line and CR LF to a file (the file a symbolic link leads to),
// creating it.
WriteResult AppendLine(const std::string& path, const std::string& line);

// Lines joined with CR LF after each.
std::string JoinLines(const std::vector<std::string>& lines);

}  // namespace jv
