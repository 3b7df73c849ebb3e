#pragma once
#include <string>

namespace jv {

// The program's folder, with a trailing "/": the folder named by the
// environment variable JARLSVAKT_HOME when it is set; else, for an installed
// program (its shipped data in ../share/jarlsvakt beside its bin folder), the
// user's own data folder, filled with copies of the shipped files that are not
// there yet; else the folder of the running executable, else the current folder.
std::string FindProgramFolder();

}  // namespace jv
