#include "cli/CliView.h"

#include <iostream>

namespace jv::cli {

void CliView::PrintLine(const std::string& text, int, int) {
    if (!Quiet) std::cout << text << '\n';
}

int CliView::Show(const std::string& text, const std::string& style) {
    if (!Quiet) {
        std::string shown;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text.compare(i, 2, "\r\n") == 0) {
                shown += " / ";
                ++i;
            } else {
                shown += text[i];
            }
        }
        std::cout << "MESSAGE [" << style << "]: " << shown << '\n';
    }
    return Answer;
}

std::string CliView::ChooseFile(FileMode, const std::string&, const std::string&, const std::string&) {
    if (Files.empty()) return "";
    std::string name = Files.front();
    Files.pop_front();
    return name;
}

}  // namespace jv::cli
