#include "ui/MsgStyle.h"

#include <algorithm>
#include <map>

#include "core/VbText.h"

namespace jv::ui {

const std::vector<std::string>& MsgPictureKeywords() {
    static const std::vector<std::string> keywords{
        "vblighton", "vbcustom", "vbtrash", "vbprint", "vbhappy",
        "vbcritical", "vberror", "vbexclamation", "vbquestion", "vbinformation"};
    return keywords;
}

namespace {

const std::map<std::string, std::vector<MsgButton>>& ButtonKeywords() {
    static const std::map<std::string, std::vector<MsgButton>> table{
        {"vbok", {{"Ok", 1}}},
        {"vbokonly", {{"Ok", 1}}},
        {"vbnormal", {{"Ok", 0}}},
        {"vbokcancel", {{"Ok", 1}, {"Cancel", 2}}},
        {"vbcancelok", {{"Ok", 1}, {"Cancel", 2}}},
        {"vbyes", {{"Yes", 6}}},
        {"vbno", {{"No", 7}}},
        {"vbyesno", {{"Yes", 6}, {"No", 7}}},
        {"vbyesnocancel", {{"Yes", 6}, {"No", 7}, {"Cancel", 2}}},
        {"vbretrycancel", {{"Retry", 4}, {"Cancel", 2}}},
        {"vbabortretryignore", {{"Abort", 3}, {"Retry", 4}, {"Ignore", 5}}},
        {"vbabort", {{"Abort", 3}}},
        {"vbretry", {{"Retry", 4}}},
        {"vbignore", {{"Ignore", 5}}},
        {"vbcancel", {{"Cancel", 2}}},
        // Continue answers 6, the number of Yes: callers test for 6 to go on.
        {"vbcontinuecancel", {{"Continue", 6}, {"Cancel", 2}}},
    };
    return table;
}

}  // namespace

MsgStyle ParseMsgStyle(const std::string& style) {
    MsgStyle result;
    const std::string lower = Lower(style);
    std::size_t start = 0;
    while (start <= lower.size()) {
        const std::size_t plus = std::min(lower.find('+', start), lower.size());
        const std::string part = Trim(std::string_view(lower).substr(start, plus - start));
        start = plus + 1;
        const auto& pictures = MsgPictureKeywords();
        if (auto at = std::find(pictures.begin(), pictures.end(), part); at != pictures.end())
            result.Picture = static_cast<int>(at - pictures.begin());
        if (auto buttons = ButtonKeywords().find(part); buttons != ButtonKeywords().end())
            result.Buttons = buttons->second;
    }
    if (result.Buttons.empty()) result.Buttons = {{"Ok", 1}};
    return result;
}

}  // namespace jv::ui
