#pragma once
#include <string>

namespace jv {

// What the host asks of an outside engine's process: a line written to it,
// a line read from it within a time, and its end. The program's own link
// runs a command line (session/EngineProcess.h); a test scripts one.

class EngineLink {
public:
    enum class Read { Line, TimedOut, Closed };

    virtual ~EngineLink() = default;
    // False when the engine can no longer be written to.
    virtual bool Send(const std::string& line) = 0;
    // The next line, without its line end; TimedOut when none came within
    // millis, Closed when the engine has ended.
    virtual Read Receive(std::string& line, int millis) = 0;
    // Ends the engine's process; what it still writes is not read.
    virtual void Stop() = 0;
    // Called from another thread while one waits in Receive: that Receive
    // returns Closed at once, and so does every later one; Stop still follows.
    virtual void Interrupt() = 0;
};

}  // namespace jv
