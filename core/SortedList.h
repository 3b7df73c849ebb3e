#pragma once
#include <string>
#include <vector>

namespace jv {

// Puts line into a list kept in ascending text order, as a sorted list box
// keeps it: after every line that is not greater, so equal lines keep the
// order in which they came.
void InsertSorted(std::vector<std::string>& list, std::string line);

}  // namespace jv
