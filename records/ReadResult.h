#pragma once
#include <string>

namespace jv {

// What a reader answers: that it read its input, or why it refused it. The
// reason is for a person (a test's message, the command-line tool); the
// program's own messages stay as the commands word them.
struct [[nodiscard]] ReadResult {
    std::string Error;   // empty when the input was read

    bool Ok() const { return Error.empty(); }
    static ReadResult Read() { return {}; }
    static ReadResult Refused(std::string reason) { return {std::move(reason)}; }
};

}  // namespace jv
