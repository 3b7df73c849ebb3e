#include "core/SortedList.h"

#include <algorithm>

namespace jv {

void InsertSorted(std::vector<std::string>& list, std::string line) {
    const auto at = std::upper_bound(list.begin(), list.end(), line);
    list.insert(at, std::move(line));
}

}  // namespace jv
