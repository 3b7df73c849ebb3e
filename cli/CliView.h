#pragma once
#include <deque>
#include <string>

#include "core/SilentView.h"

namespace jv::cli {

// The command-line tool's view: event-log lines and messages go to standard
// output as they happen, questions are answered from the options, pauses
// take no time and nothing is drawn.
class CliView : public SilentView {
public:
    int Answer = 6;                   // the button every question gets (Yes)
    std::deque<std::string> Files;   // names given to the file dialog, in order
    bool Quiet = false;              // print nothing

    void PrintLine(const std::string& text, int colour, int background) override;
    int Show(const std::string& text, const std::string& style) override;
    std::string ChooseFile(FileMode mode, const std::string& title, const std::string& pattern,
                           const std::string& description) override;
};

}  // namespace jv::cli
