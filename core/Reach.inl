#pragma once
#include "core/VbText.h"

namespace jv {

template <typename Visit>
void ForEachSquareItem(const std::string& items, Visit visit) {
    std::size_t start = 0;
    while (start < items.size()) {
        std::size_t comma = items.find(',', start);
        if (comma == std::string::npos) comma = items.size();
        const std::string_view item(items.data() + start, comma - start);
        const std::string trimmed = Trim(item);
        if (!trimmed.empty()) {
            const std::string_view t(trimmed);
            const int col = ValInt(t.substr(0, 2));
            const int row = ValInt(t.size() >= 2 ? t.substr(t.size() - 2) : t);
            visit(col, row);
        }
        start = comma + 1;
    }
}

}  // namespace jv
