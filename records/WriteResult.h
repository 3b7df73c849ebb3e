#pragma once
#include <string>

namespace jv {

// What a write did: written; failed (the disk or the system would not take
// it); or refused before anything was written, because what stands at the
// path is no file (a folder, a device, a pipe).
struct [[nodiscard]] WriteResult {
    bool Written = false;
    std::string Refusal;   // when refused: "is a folder, not a file" and the like

    bool Ok() const { return Written; }
    // What a message says after the file's name: the refusal, or the words
    // the caller has for a failed write.
    std::string Problem(const std::string& failed) const { return Refusal.empty() ? failed : Refusal; }
};

}  // namespace jv
