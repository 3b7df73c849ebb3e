#include <iostream>
#include <poll.h>
#include <string>
#include <unistd.h>

#include "cli/Commands.h"
#include "session/EngineProtocol.h"

namespace jv::cli {

namespace {
// How long a move asked for waits for the host's clock line.
constexpr int ClockWaitMillis = 200;
}  // namespace

// The strong player as an OpenTafl engine on standard input and output:
// "hello" first, then an answer to each of the host's lines until goodbye
// or the end of the input. Nothing but protocol lines reaches the output.
int RunEngine(const Args& args) {
    if (!HasArguments(args, 0, "engine")) return 1;
    // The input's own buffer, so that a line read ahead is seen as waiting.
    std::ios::sync_with_stdio(false);
    EngineProtocol engine([](const std::string& line) { std::cout << line << std::endl; });
    std::cout << "hello" << std::endl;
    for (std::string line;;) {
        // A move asked for is played on the clock known so far when the
        // host's clock line does not follow at once.
        if (engine.WaitingToPlay() && std::cin.rdbuf()->in_avail() <= 0) {
            pollfd input{STDIN_FILENO, POLLIN, 0};
            if (poll(&input, 1, ClockWaitMillis) == 0) engine.PlayNow();
        }
        if (!std::getline(std::cin, line)) break;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!engine.Handle(line)) return 0;
    }
    engine.PlayNow();
    return 0;
}

}  // namespace jv::cli
