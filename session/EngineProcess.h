#pragma once
#include <string>
#include <sys/types.h>

#include "session/EngineLink.h"

namespace jv {

// An outside engine started from its command line by the shell, in a
// process of its own: its standard input and output are the link, read
// without waiting longer than asked; its error output is dropped. Stopping
// it (or destroying the link) ends the engine and whatever it started.

class EngineProcess : public EngineLink {
public:
    explicit EngineProcess(const std::string& commandLine);
    ~EngineProcess() override;
    EngineProcess(const EngineProcess&) = delete;
    EngineProcess& operator=(const EngineProcess&) = delete;

    // False when the process could not be started.
    bool Started() const { return pid_ > 0; }

    bool Send(const std::string& line) override;
    Read Receive(std::string& line, int millis) override;
    void Stop() override;
    void Interrupt() override;

private:
    pid_t pid_ = -1;
    int toEngine_ = -1, fromEngine_ = -1;
    int wake_[2] = {-1, -1};   // a byte written here wakes a waiting Receive
    std::string pending_;   // read but not yet handed out as a line
};

}  // namespace jv
