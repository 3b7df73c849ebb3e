#pragma once
#include <string>

namespace jv {

// The program's folder, with a trailing "/": the folder named by the
// environment variable JARLSVAKT_HOME when it is set, else the folder of the
// running executable, else the current folder.
std::string FindProgramFolder();

}  // namespace jv
